// Calling the export: results, arguments, owners, failures, leaks.
#include "frame/TavException.h"
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/ProcessPatch.h"
#include "tests/support/ShellCalls.h"
#include "tests/support/TranslationFixture.h"

#include <commctrl.h>

namespace
{

using HomeCall = HomeFixture;

} // namespace

TEST_F(HomeCall, DoneReturnsTrueAndCancelFalse)
{
    Open();
    Done();
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    Open();
    Cancel();
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
}

TEST_F(HomeCall, TheLastArgumentsHaveNoEffect)
{
    module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>(
        [this](HWND owner) { return module->CustomizeHome(owner, 4, 0xFFFFFFFF, 0x80000000); });
    dialog = run->WaitForDialog(L"Manage Pinned");
    EXPECT_EQ(run->Owner(), GetWindow(dialog, GW_OWNER));
    Done();
}

TEST_F(HomeCall, AnOwnerThatIsNoWindowShowsNothing)
{
    module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>(
        [this](HWND)
        {
            const auto stranger = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF1234));
            return module->CustomizeHome(stranger, 4, 0, 0);
        });
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(FALSE, run->Result());
}

TEST_F(HomeCall, TitleTextsAndSoftKeysAreTranslated)
{
    const CTempFolder folder;
    WriteTranslation(folder, L"Manage Pinned|Angeheftet\nDone|Fertig\nCancel|Abbrechen\n"
                             L"Tav Menu|Startmenü\nTools|Werkzeuge\n");
    SetInstallFolder(registry, folder);
    module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->CustomizeHome(owner, 4, 0, 0); });
    dialog = run->WaitForDialog(L"Angeheftet");
    ASSERT_NE(nullptr, dialog);
    tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    EXPECT_EQ(L"Fertig", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Abbrechen", SoftKeyText(dialog, 1));
    EXPECT_EQ(L"Startmenü", tree.TextOf(tree.Find(L"")));
    EXPECT_NE(nullptr, tree.Find(L"Werkzeuge"));
}

TEST_F(HomeCall, HelpShowsTheMainContents)
{
    Open();
    ExpectHelp(module->Handle(), dialog);
    EXPECT_FALSE(run->HasEnded());
}

namespace
{

std::vector<HCURSOR> g_cursors;
// How many nodes the tree had when the cursor changed.
std::vector<int> g_nodes;

HCURSOR WINAPI WatchCursor(HCURSOR cursor)
{
    g_cursors.push_back(cursor);
    const HWND dialog = FindWindowW(L"#32770", L"Manage Pinned");
    const HWND view = dialog ? GetDlgItem(dialog, kTreeId) : nullptr;
    g_nodes.push_back(view ? static_cast<int>(SendMessageW(view, TVM_GETCOUNT, 0, 0)) : -1);
    return SetCursor(cursor);
}

} // namespace

TEST_F(HomeCall, TheWaitCursorIsShownWhileTheTreeIsFilledAndTheOldOneRestored)
{
    module = std::make_unique<CModule>();
    g_cursors.clear();
    g_nodes.clear();
    const CImportPatch patch(module->Handle(), "user32.dll", "SetCursor", WatchCursor);
    Open();
    ASSERT_EQ(2u, g_cursors.size());
    EXPECT_EQ(LoadCursorW(nullptr, IDC_WAIT), g_cursors[0]);
    EXPECT_NE(g_cursors[0], g_cursors[1]);
    EXPECT_EQ((std::vector<int>{0, 14}), g_nodes);
}

// The shell.

namespace
{

class HomeShell : public HomeFixture
{
protected:
    HomeShell()
    {
        module = std::make_unique<CModule>();
        shell = std::make_unique<CShellCalls>(module->Handle());
    }
    ~HomeShell() override
    {
        run.reset();
        shell.reset();
    }

    // Calls the export and checks that it throws this and leaves nothing behind.
    void ExpectThrown(HRESULT code)
    {
        run = std::make_unique<CDialogRun>([this](HWND owner)
                                           { return module->CustomizeHome(owner, 4, 0, 0); });
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_FALSE(run->Result());
        EXPECT_EQ(code, run->ThrownCode());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
        EXPECT_EQ(nullptr, run->InnermostDialog());
    }

    std::unique_ptr<CShellCalls> shell;
};

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

} // namespace

TEST_F(HomeShell, IsAskedForAFullScreenTwiceAndForABarOfMenu207WithoutAnInputPanelButton)
{
    Open();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 20 207"), CShellCalls::Asked());
}

TEST_F(HomeShell, MayRefuseWhatTheBaseAsksFor)
{
    CShellCalls::RefuseInit(1);
    CShellCalls::RefuseBar(1);
    Open();
    EXPECT_EQ(4u, CShellCalls::Asked().size());
    Done();
}

TEST_F(HomeShell, ThatRefusesTheDialogsOwnFullScreenLetsTheExportThrow)
{
    CShellCalls::RefuseInit(2);
    ExpectThrown(kAccessDenied);
}

TEST_F(HomeShell, ThatRefusesTheDialogsOwnBarLetsTheExportThrow)
{
    CShellCalls::RefuseBar(2);
    ExpectThrown(kAccessDenied);
}

// Leaks.

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;

int g_shown;

LRESULT CALLBACK ShowAll(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_COPYDATA)
        return DefWindowProcW(window, message, wParam, lParam);
    ++g_shown;
    return TRUE;
}

// Switches a box and ends the dialog; works on the dialog's own thread, since a thread per round
// would cost memory of its own.
void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    const CTreeDriver tree(GetDlgItem(dialog, kTreeId));
    const HTREEITEM node = tree.Find(L"Tools");
    tree.SetBox(node, tree.BoxOf(node) == BoxOn ? BoxOff : BoxOn);
    SendMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(node));
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}

} // namespace

TEST_F(HomeCall, OpeningSwitchingAndSavingTwoHundredTimesLeavesNothingBehind)
{
    module = std::make_unique<CModule>();
    const HWND owner = CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100,
                                       100, nullptr, nullptr, nullptr, nullptr);
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog);
    // In place of the filter, whose record of what it was asked would grow.
    filter.reset();
    const HWND shower = CreateWindowExW(0, L"TavMenu_ProcessWindow", L"", WS_POPUP, 0, 0, 0, 0,
                                        nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(shower, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ShowAll));
    DWORD opened = 0;
    const auto openOften = [&](int rounds)
    {
        for (int i = 0; i < rounds; ++i, ++opened)
            ASSERT_TRUE(module->CustomizeHome(owner, 4, 0, 0));
    };
    openOften(kWarmUp);
    const DWORD saved = Timestamp() - opened;
    ExpectNothingLeftBy([&] { openOften(kRounds); });
    EXPECT_EQ(saved + opened, Timestamp());
    EXPECT_GE(g_shown, 4 * kRounds);
    KillTimer(nullptr, timer);
    DestroyWindow(shower);
    DestroyWindow(owner);
}
