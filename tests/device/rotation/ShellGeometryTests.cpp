// The whole device, started like ./run starts it, whose screen is turned by its key.
#include "tests/device/rotation/ShellRun.h"
#include "tests/device/rotation/TurningScreen.h"

#include <gtest/gtest.h>

#include "device/Rotation.h"
#include "include/TavLumenarDialogs.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

constexpr const wchar_t* kDialogClass = L"#32770";
constexpr int kTreeId = 203;
constexpr UINT kOptionsCommand = 32792;

// The shell brings its own top bar.
class ShellTurnGeometry : public testing::Test
{
protected:
    ShellTurnGeometry() { MakeUpright(); }
    ~ShellTurnGeometry() override { MakeUpright(); }

    static bool IsUpright()
    {
        return GetSystemMetrics(SM_CXSCREEN) < GetSystemMetrics(SM_CYSCREEN);
    }
    static void MakeUpright()
    {
        if (!IsUpright())
            RotateScreen();
    }
    static void TurnByKey()
    {
        const bool before = IsUpright();
        PressKey(VK_F9);
        ASSERT_TRUE(WaitUntil([&] { return IsUpright() != before; }));
    }
    static void ExpectPlace(HWND window, const RECT& expected)
    {
        EXPECT_TRUE(WaitUntil(
            [&]
            {
                const RECT now = RectOf(window);
                return EqualRect(&now, &expected) != FALSE;
            }))
            << RectOf(window).left << "," << RectOf(window).top << "-" << RectOf(window).right
            << "," << RectOf(window).bottom;
    }
    static void ExpectTopBar(const CShellRun& shell)
    {
        ExpectPlace(shell.WaitFor(L"TavLumenarTopBar", L""),
                    {0, 0, GetSystemMetrics(SM_CXSCREEN), Px(26)});
    }
};

} // namespace

TEST_F(ShellTurnGeometry, TheHomeScreenStandsBetweenTheBarsWhicheverWayTheScreenIs)
{
    const CShellRun shell(L"");
    const HWND home = shell.WaitFor(L"TavLumenarHome", L"");
    ASSERT_NE(nullptr, home);
    for (int turns = 0; turns < 3; ++turns)
    {
        ExpectPlace(home, RoomBetweenBars());
        ExpectTopBar(shell);
        ExpectPlace(shell.WaitFor(L"SoftKeyBar", L""),
                    {0, RoomBetweenBars().bottom, GetSystemMetrics(SM_CXSCREEN),
                     GetSystemMetrics(SM_CYSCREEN)});
        TurnByKey();
    }
}

TEST_F(ShellTurnGeometry, TheNowScreenFollowsTheKey)
{
    const CShellRun shell(L"");
    const HWND home = shell.WaitFor(L"TavLumenarHome", L"");
    ASSERT_NE(nullptr, home);
    ExpectPlace(home, RoomBetweenBars());
    // The way there is at the right end of the date's line.
    TapScreen({GetSystemMetrics(SM_CXSCREEN) - Px(20), Px(40)});
    const HWND now = shell.WaitFor(TAVLUMENAR_NOW_WINDOW_CLASS, L"");
    ASSERT_NE(nullptr, now);
    for (int turns = 0; turns < 3; ++turns)
    {
        ExpectPlace(now, RoomBetweenBars());
        TurnByKey();
    }
}

TEST_F(ShellTurnGeometry, AnOpenDialogAndTheOneAboveItFollowTheKey)
{
    const CShellRun shell(L"--dialog customize-menu");
    const HWND editor = shell.WaitFor(kDialogClass, L"Customize Menu");
    ASSERT_NE(nullptr, editor);
    ASSERT_TRUE(WaitUntil([&] { return IsWindowEnabled(editor) != FALSE; }));
    ExpectFillsRoom(editor);
    TurnByKey();
    ExpectControlFills(editor, GetDlgItem(editor, kTreeId));
    ExpectTopBar(shell);

    PostCommand(editor, kOptionsCommand);
    const HWND options = shell.WaitForDialogOver(editor);
    ASSERT_NE(nullptr, options);
    ExpectFillsRoom(options);
    TurnByKey();
    ExpectFillsRoom(options);
    ExpectControlFills(editor, GetDlgItem(editor, kTreeId));

    PostCommand(options, IDCANCEL);
    ASSERT_TRUE(WaitUntil([&] { return !IsWindow(options); }));
    PostCommand(editor, IDCANCEL);
    EXPECT_TRUE(shell.WaitForEnd());
}
