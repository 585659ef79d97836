// Messages that no honest sender sends, and the ones of an honest tree: how Select File answers.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/PageEnd.h"

namespace
{

constexpr UINT kStylusDown = static_cast<UINT>(-50);
constexpr UINT kExpanding = static_cast<UINT>(TVN_ITEMEXPANDINGW);
constexpr UINT kReflected = 0x204E;

class FileNotifications : public FileFixture
{
protected:
    FileNotifications()
    {
        device.AddFile(L"\\Windows\\a.exe");
        device.AddFile(L"\\b.exe");
    }
    void OpenWatched()
    {
        OpenFiles();
        m_before = entries.Dump();
        m_faults = std::make_unique<CFaultCounter>(module->Handle());
    }
    LRESULT Notify(const NMHDR* header)
    {
        return SendMessageW(picker, WM_NOTIFY, 207, reinterpret_cast<LPARAM>(header));
    }
    NMTREEVIEWW Expanding(HTREEITEM node, UINT action = TVE_EXPAND)
    {
        NMTREEVIEWW notification = {};
        notification.hdr = {entries.Window(), 207, kExpanding};
        notification.action = action;
        notification.itemNew.hItem = node;
        return notification;
    }
    LRESULT NotifyExpanding(HTREEITEM node, UINT action = TVE_EXPAND)
    {
        const NMTREEVIEWW notification = Expanding(node, action);
        return Notify(&notification.hdr);
    }
    void ExpectUntouched()
    {
        EXPECT_EQ(m_before, entries.Dump());
        EXPECT_EQ(0, m_faults->Count());
        EXPECT_EQ(picker, run->InnermostDialog());
    }

private:
    std::wstring m_before;
    std::unique_ptr<CFaultCounter> m_faults;
};

} // namespace

TEST_F(FileNotifications, AnExpansionIsFilledAndAllowedToGoAhead)
{
    OpenFiles();
    const HTREEITEM folder = entries.Find(L"Windows");
    EXPECT_EQ(0, NotifyExpanding(folder));
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows"));
    EXPECT_FALSE(entries.IsExpanded(folder)) << "that is the tree's own business";
}

TEST_F(FileNotifications, OnlyAnExpansionFillsAFolder)
{
    OpenWatched();
    for (const UINT action : {TVE_COLLAPSE, TVE_TOGGLE, TVE_EXPAND | TVE_EXPANDPARTIAL, 0})
        EXPECT_EQ(0, NotifyExpanding(entries.Find(L"Windows"), action));
    ExpectUntouched();
}

TEST_F(FileNotifications, AStylusIsNotToBeWaitedFor)
{
    OpenWatched();
    const NMHDR down = {entries.Window(), 207, kStylusDown};
    EXPECT_EQ(1, Notify(&down));
    ExpectUntouched();
}

TEST_F(FileNotifications, OthersAreAnsweredWithZero)
{
    OpenWatched();
    for (const UINT code : {static_cast<UINT>(TVN_KEYDOWN), static_cast<UINT>(NM_CLICK),
                            static_cast<UINT>(TVN_SELCHANGEDW), 12345u})
    {
        const NMTREEVIEWW notification = {{entries.Window(), 207, code}, 0, {}, {}, {}};
        EXPECT_EQ(0, Notify(&notification.hdr)) << code;
    }
    ExpectUntouched();
}

TEST_F(FileNotifications, OfNodesThatTheTreeDoesNotHaveDoNothing)
{
    OpenWatched();
    for (const LPARAM node : {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000)})
        EXPECT_EQ(0, NotifyExpanding(reinterpret_cast<HTREEITEM>(node)));
    EXPECT_EQ(0, NotifyExpanding(TVI_ROOT));
    EXPECT_EQ(0, NotifyExpanding(tree.Find(L"Programs"))) << "of the editor's tree";
    ExpectUntouched();
}

TEST_F(FileNotifications, OfAFileAndOfAPlaceholderDoNothing)
{
    OpenWatched();
    EXPECT_EQ(0, NotifyExpanding(entries.Find(L"b.exe")));
    EXPECT_EQ(0, NotifyExpanding(entries.Next(entries.Find(L"Windows"), TVGN_CHILD)));
    ExpectUntouched();
}

TEST_F(FileNotifications, OfForeignWindowsAreDropped)
{
    OpenWatched();
    NMTREEVIEWW notification = Expanding(entries.Find(L"Windows"));
    for (const HWND from : {HWND(nullptr), picker, dialog, tree.Window(), GetDesktopWindow()})
    {
        notification.hdr.hwndFrom = from;
        EXPECT_EQ(0, Notify(&notification.hdr));
        ExpectUntouched();
    }
}

TEST_F(FileNotifications, WithoutDataAreDropped)
{
    OpenWatched();
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000)})
    {
        SendMessageW(picker, WM_NOTIFY, 207, data);
        SendMessageW(entries.Window(), kReflected, 207, data);
    }
    ExpectUntouched();
}

TEST_F(FileNotifications, ThatAreCutOffAreDropped)
{
    OpenWatched();
    const CPageEnd end;
    NMHDR* const header = end.Last<NMHDR>();
    *header = {entries.Window(), 207, kExpanding};
    EXPECT_EQ(0, Notify(header));
    ExpectUntouched();
}

TEST_F(FileNotifications, SentToTheTreeDirectlyFillTheFolderToo)
{
    OpenFiles();
    const NMTREEVIEWW notification = Expanding(entries.Find(L"Windows"));
    EXPECT_EQ(0, SendMessageW(entries.Window(), kReflected, 207,
                              reinterpret_cast<LPARAM>(&notification)));
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows"));
}
