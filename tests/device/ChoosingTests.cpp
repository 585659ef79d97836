// The three dialogs that choose, as the device opens them over its own sample data: the module's
// real exports, the device's own launcher-menu window and Now screen.
#include "device/Dialogs.h"

#include <gmock/gmock.h>

#include <commctrl.h>

#include "device/Keys.h"
#include "device/MenuProcessWindow.h"
#include "device/NowScreen.h"
#include "device/SampleFiles.h"
#include "device/Seed.h"
#include "menu/Rating.h"
#include "tests/support/DialogRun.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/StartMenu.h"
#include "tests/support/TreeDriver.h"
#include "tests/support/Wait.h"

namespace
{

using testing::Contains;

class Choosing : public testing::Test
{
protected:
    Choosing()
    {
        seed::WriteRegistry(L"C:\\Device");
        seed::WriteStartMenu(m_startMenu.Path(), L"C:\\shell.exe");
    }

    // Opens a dialog as the home screen does, waits for it and runs `work` on it.
    void Open(const wchar_t* name, const wchar_t* title, const std::function<void(HWND)>& work)
    {
        CDialogRun run(
            [&](HWND owner)
            {
                m_result = FindDialogEntry(name)->Run(owner);
                return m_result.Confirmed;
            });
        const HWND dialog = run.WaitForDialog(title);
        ASSERT_NE(nullptr, dialog);
        work(dialog);
        ASSERT_TRUE(run.WaitForEnd());
        ASSERT_TRUE(run.Result().has_value()) << std::hex << run.ThrownCode();
    }

    static std::wstring ChoiceOf(const wchar_t* name) { return FindDialogEntry(name)->Choice(); }

    CRegistrySandbox m_machine;
    CStartMenu m_startMenu;
    const CMenuProcessWindow m_menuProcess;
    DialogResult m_result = {};
};

} // namespace

TEST_F(Choosing, TheStartMenuIsShownWithItsFolders)
{
    Open(L"customize-home", L"Manage Pinned",
         [](HWND dialog)
         {
             const CTreeDriver tree(FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr));
             size_t files = 0;
             for (const std::wstring& child : tree.ChildrenOf(L"Programs"))
             {
                 const size_t inside = tree.ChildrenOf(L"Programs/" + child).size();
                 files += inside == 0 ? 1 : inside;
             }
             EXPECT_EQ(sample::StartMenuFiles().Count, files);
             EXPECT_THAT(tree.ChildrenOf(L"Programs/Games"), Contains(L"Chess"));
             SendCommand(dialog, IDCANCEL);
         });
    EXPECT_FALSE(m_result.Confirmed);
}

TEST_F(Choosing, AnEntryThatIsCheckedIsPinnedAndTold)
{
    EXPECT_EQ(L"4 pinned", ChoiceOf(L"customize-home"));
    Open(L"customize-home", L"Manage Pinned",
         [](HWND dialog)
         {
             const CTreeDriver tree(FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr));
             const HTREEITEM calendar = tree.Find(L"Calendar");
             tree.SetBox(calendar, 2);
             SendMessageW(dialog, 0x8014, 0, reinterpret_cast<LPARAM>(calendar));
             SendCommand(dialog, IDOK);
         });
    EXPECT_TRUE(m_result.Confirmed);
    EXPECT_EQ(L"5 pinned", ChoiceOf(L"customize-home"));
}

TEST_F(Choosing, NoMoreThanEightEntriesArePinned)
{
    Open(L"customize-home", L"Manage Pinned",
         [](HWND dialog)
         {
             const CTreeDriver tree(FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr));
             // Three are checked: the fourth pin is a file of another Start Menu.
             for (const wchar_t* name : {L"Calendar", L"Games", L"Tools", L"Connect", L"Help"})
             {
                 tree.SetBox(tree.Find(name), 2);
                 SendMessageW(dialog, 0x8014, 0, reinterpret_cast<LPARAM>(tree.Find(name)));
             }
             const HTREEITEM ninth = tree.Find(L"Settings");
             tree.SetBox(ninth, 2);
             PostMessageW(dialog, 0x8014, 0, reinterpret_cast<LPARAM>(ninth));
             HWND box = nullptr;
             EXPECT_TRUE(WaitUntil(
                 [&] { return (box = FindWindowW(L"#32770", L"Tav Lumenar")) != nullptr; }));
             SendCommand(box, IDOK);
             EXPECT_TRUE(WaitUntil([&] { return tree.BoxOf(ninth) == 1; }));
             EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(dialog); }));
             SendCommand(dialog, IDCANCEL);
         });
}

TEST_F(Choosing, APluginThatIsCheckedIsInUse)
{
    EXPECT_EQ(L"2 in use", ChoiceOf(L"customize-now"));
    Open(L"customize-now", L"Customize Now Screen",
         [](HWND dialog)
         {
             const HWND list = FindWindowExW(dialog, nullptr, WC_LISTVIEWW, nullptr);
             EXPECT_EQ(6, SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
             LVITEMW item = {};
             item.stateMask = LVIS_STATEIMAGEMASK;
             item.state = INDEXTOSTATEIMAGEMASK(2);
             SendMessageW(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
             SendCommand(dialog, IDOK);
         });
    EXPECT_TRUE(m_result.Confirmed);
    EXPECT_EQ(L"3 in use", ChoiceOf(L"customize-now"));
}

TEST_F(Choosing, TheWizardsChoiceReachesTheNowScreen)
{
    const CNowScreen now;
    EXPECT_EQ(L"Classic", ChoiceOf(L"install-wizard"));
    Open(L"install-wizard", L"Tav Lumenar",
         [](HWND dialog)
         {
             CheckRadioButton(dialog, 221, 222, 222);
             SendCommand(dialog, IDOK);
         });
    EXPECT_TRUE(m_result.Confirmed);
    EXPECT_EQ(L"Professional", ChoiceOf(L"install-wizard"));
    EXPECT_TRUE(WaitUntil([&] { return now.Layout() == LayoutType::Professional; }));
}
