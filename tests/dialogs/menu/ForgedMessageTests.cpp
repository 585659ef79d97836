// Messages that no honest sender sends: the editor stays as it is.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/PageEnd.h"

#include <climits>

namespace
{

constexpr UINT kStylusDown = static_cast<UINT>(-50);

class Forged : public EditorFixture
{
protected:
    void OpenSelected()
    {
        Open();
        Select(L"Programs/Calendar");
        m_before = tree.Dump();
        m_faults = std::make_unique<CFaultCounter>(module->Handle());
    }
    void ExpectUntouched()
    {
        EXPECT_EQ(m_before, tree.Dump());
        EXPECT_EQ(tree.Find(L"Programs/Calendar"), tree.Selected());
        EXPECT_FALSE(run->HasEnded());
        EXPECT_EQ(0, m_faults->Count());
    }
    LRESULT Notify(LPARAM data) { return SendMessageW(dialog, WM_NOTIFY, kTreeId, data); }
    NMHDR Header(HWND from, UINT code) { return {from, kTreeId, code}; }

private:
    std::wstring m_before;
    std::unique_ptr<CFaultCounter> m_faults;
};

} // namespace

TEST_F(Forged, NotificationsWithoutDataAreDropped)
{
    OpenSelected();
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000)})
        Notify(data);
    ExpectUntouched();
}

TEST_F(Forged, NotificationsOfForeignWindowsAreDropped)
{
    OpenSelected();
    for (const HWND from : {HWND(nullptr), dialog, GetDesktopWindow(), run->Owner()})
    {
        NMTVKEYDOWN key = {};
        key.hdr = Header(from, static_cast<UINT>(TVN_KEYDOWN));
        key.wVKey = VK_RETURN;
        Notify(reinterpret_cast<LPARAM>(&key));
        ExpectUntouched();
    }
}

TEST_F(Forged, AStylusNotificationThatIsCutOffStopsTheHold)
{
    OpenSelected();
    const CPageEnd end;
    NMHDR* const header = end.Last<NMHDR>();
    *header = Header(tree.Window(), kStylusDown);
    EXPECT_EQ(1, Notify(reinterpret_cast<LPARAM>(header)));
    ExpectUntouched();
}

TEST_F(Forged, AKeyNotificationThatIsCutOffIsIgnored)
{
    OpenSelected();
    const CPageEnd end;
    NMHDR* const header = end.Last<NMHDR>();
    *header = Header(tree.Window(), static_cast<UINT>(TVN_KEYDOWN));
    EXPECT_EQ(0, Notify(reinterpret_cast<LPARAM>(header)));
    ExpectUntouched();
}

TEST_F(Forged, SettingsAndCopiedDataAreNotLookedInto)
{
    OpenSelected();
    for (const LPARAM data : {LPARAM(4), LPARAM(-1)})
    {
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0, data));
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, data));
    }
    COPYDATASTRUCT copy = {6000, 0, nullptr};
    SendMessageW(dialog, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&copy));
    ExpectUntouched();
}

TEST_F(Forged, ScrollMessagesOfAnyPositionAreHarmless)
{
    OpenSelected();
    const UINT scroll = RegisterWindowMessageW(L"PPCD_ScrollMessage");
    for (const int position : {INT_MIN, INT_MIN + 1, -1, 0, 1, 23, 24, INT_MAX - 1, INT_MAX})
        EXPECT_EQ(0, SendMessageW(dialog, scroll, static_cast<WPARAM>(position), 0));
    UpdateWindow(dialog);
    ExpectUntouched();
}

TEST_F(Forged, APopupThatIsNoMenuIsHarmless)
{
    OpenSelected();
    for (const WPARAM menu : {WPARAM(0), WPARAM(4), WPARAM(0xFFFFFFFF)})
        SendMessageW(dialog, WM_INITMENUPOPUP, menu, 0);
    ExpectUntouched();
}

TEST_F(Forged, UnknownCommandsDoNothing)
{
    OpenSelected();
    for (const UINT command : {0u, 3u, 32771u, 32776u, 32784u, 0xFFFFu})
        SendCommand(dialog, command);
    ExpectUntouched();
}
