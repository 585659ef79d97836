// SHInitDialog: which dialogs it takes, and where they lie.
#include "tests/platform/aygshell/TestDialog.h"

#include <thread>

#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"

namespace
{

constexpr WPARAM kScreenReset = 0x3002;

DWORD ErrorOf(SHINITDLGINFO* info)
{
    SetLastError(ERROR_SUCCESS);
    return SHInitDialog(info) ? ERROR_SUCCESS : GetLastError();
}

RECT ExpectedDialog()
{
    RECT expected = WorkArea();
    expected.bottom -= Scaled(26);
    return expected;
}

} // namespace

TEST(InitDialog, NothingToWorkOnIsRefused)
{
    EXPECT_EQ(ErrorOf(nullptr), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(InitDialog, AMaskWithoutFlagsIsRefused)
{
    CTestDialog dialog;
    SHINITDLGINFO info{0, dialog.Window(), SHIDIF_SIZEDLGFULLSCREEN};
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
}

TEST(InitDialog, AWindowThatDoesNotExistIsRefused)
{
    SHINITDLGINFO info{SHIDIM_FLAGS, nullptr, SHIDIF_SIZEDLGFULLSCREEN};
    EXPECT_EQ(ErrorOf(&info), static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE));
}

TEST(InitDialog, AnotherThreadsDialogIsRefused)
{
    CTestDialog dialog;
    SHINITDLGINFO info{SHIDIM_FLAGS, dialog.Window(), SHIDIF_SIZEDLGFULLSCREEN};
    DWORD error = 0;
    std::thread([&] { error = ErrorOf(&info); }).join();
    EXPECT_EQ(error, static_cast<DWORD>(ERROR_WINDOW_OF_OTHER_THREAD));
}

TEST(InitDialogGeometry, AFullScreenDialogFillsTheWorkAreaAboveTheBar)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.InitDialog());
    EXPECT_EQ(ScreenRectOf(dialog.Window()), ExpectedDialog());
}

TEST(InitDialogGeometry, AFullScreenDialogIsAllClientArea)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.InitDialog(SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN));
    RECT client{};
    GetClientRect(dialog.Window(), &client);
    const RECT expected = ExpectedDialog();
    EXPECT_EQ(client.right, expected.right - expected.left);
    EXPECT_EQ(client.bottom, expected.bottom - expected.top);
}

TEST(InitDialog, AFramelessDialogKeepsItsText)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.InitDialog());
    EXPECT_EQ(GetWindowLongPtrW(dialog.Window(), GWL_STYLE) & WS_CAPTION, 0);
    wchar_t text[64] = {};
    GetWindowTextW(dialog.Window(), text, 64);
    EXPECT_STREQ(text, L"Test dialog");
    SetWindowTextW(dialog.Window(), L"Another text");
    GetWindowTextW(dialog.Window(), text, 64);
    EXPECT_STREQ(text, L"Another text");
}

TEST(InitDialog, WithoutTheFullScreenFlagADialogKeepsItsPlaceAndFrame)
{
    CTestDialog dialog;
    const RECT before = ScreenRectOf(dialog.Window());
    ASSERT_TRUE(dialog.InitDialog(SHIDIF_DONEBUTTON));
    EXPECT_EQ(ScreenRectOf(dialog.Window()), before);
    EXPECT_NE(GetWindowLongPtrW(dialog.Window(), GWL_STYLE) & WS_CAPTION, 0);
    SendMessageW(dialog.Window(), WM_SETTINGCHANGE, kScreenReset, 0);
    EXPECT_EQ(ScreenRectOf(dialog.Window()), before);
}

// The dialog and its bar are pushed away, as a rotation leaves them; the message must find them in
// their new places.
class ScreenChange : public testing::Test
{
protected:
    void Disturb()
    {
        ASSERT_TRUE(dialog.InitDialog());
        ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
        MoveWindow(dialog.Window(), 3, 4, 50, 60, FALSE);
        MoveWindow(BarOf(dialog.Window()), 0, 9, 77, 11, FALSE);
        dialog.SetHandler(
            [this](const LoggedMessage& entry, LRESULT&)
            {
                if (entry.Message == WM_SETTINGCHANGE || entry.Message == WM_DISPLAYCHANGE)
                {
                    seenDialog = ScreenRectOf(dialog.Window());
                    seenBar = ScreenRectOf(BarOf(dialog.Window()));
                }
                return false;
            });
        dialog.ClearLog();
    }

    void ExpectFittedWhenSeen()
    {
        RECT bar = WorkArea();
        bar.top = bar.bottom - Scaled(26);
        EXPECT_EQ(seenDialog, ExpectedDialog());
        EXPECT_EQ(seenBar, bar);
    }

    CTestDialog dialog;
    RECT seenDialog{};
    RECT seenBar{};
};

TEST_F(ScreenChange, AResetFitsDialogAndBarBeforeTheDialogSeesIt)
{
    Disturb();
    SendMessageW(dialog.Window(), WM_SETTINGCHANGE, kScreenReset, 0);
    ExpectFittedWhenSeen();
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 1);
}

TEST_F(ScreenChange, ADisplayChangeFitsDialogAndBarBeforeTheDialogSeesIt)
{
    Disturb();
    SendMessageW(dialog.Window(), WM_DISPLAYCHANGE, 24, MAKELPARAM(240, 320));
    ExpectFittedWhenSeen();
}

TEST_F(ScreenChange, ADisplayChangeThatMovesTheDialogIsFollowedByTheHandheldsReset)
{
    Disturb();
    SendMessageW(dialog.Window(), WM_DISPLAYCHANGE, 24, MAKELPARAM(240, 320));
    ASSERT_EQ(dialog.Count(WM_SETTINGCHANGE), 1);
    EXPECT_EQ(dialog.Log().back().WParam, kScreenReset);
    SendMessageW(dialog.Window(), WM_DISPLAYCHANGE, 24, MAKELPARAM(240, 320));
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 1);
}

TEST_F(ScreenChange, AWorkAreaFromBeforeTheTurnKeepsItsMarginsOnTheTurnedScreen)
{
    const LONG width = GetSystemMetrics(SM_CXSCREEN);
    const LONG height = GetSystemMetrics(SM_CYSCREEN);
    Disturb();
    const RECT earlier = WorkArea();
    // Of the screen as it was: its width is the height now.
    RECT before{5, 20, height - 7, width - 11};
    ASSERT_TRUE(SystemParametersInfoW(SPI_SETWORKAREA, 0, &before, 0));
    SendMessageW(dialog.Window(), WM_DISPLAYCHANGE, 24, MAKELPARAM(width, height));
    RECT restored = earlier;
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &restored, 0);
    const RECT expected{5, 20, width - 7, height - 11 - Scaled(26)};
    EXPECT_EQ(seenDialog, expected);
}

TEST_F(ScreenChange, OtherSettingsMoveNothing)
{
    Disturb();
    SendMessageW(dialog.Window(), WM_SETTINGCHANGE, SPI_SETSIPINFO, 0);
    const RECT pushedAway{3, 4, 53, 64};
    EXPECT_EQ(seenDialog, pushedAway);
}

TEST(InitDialog, TheSecondCallTakesThePlaceOfTheFirst)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.InitDialog(SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN));
    ASSERT_TRUE(dialog.InitDialog(SHIDIF_SIZEDLGFULLSCREEN));
    EXPECT_EQ(ScreenRectOf(dialog.Window()), ExpectedDialog());
    dialog.ClearLog();
    SendMessageW(dialog.Window(), WM_SETTINGCHANGE, kScreenReset, 0);
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 1);
}

TEST(InitDialog, ATemplatesBorderIsAPlainLine)
{
    constexpr WORD kBordered = 201;
    constexpr WORD kBare = 202;
    CTestDialog dialog(
        {{L"Edit", WS_BORDER, kBordered, 0, 0, 40, 10}, {L"Edit", 0, kBare, 0, 12, 40, 10}});
    ASSERT_TRUE(dialog.InitDialog());
    RECT window = ScreenRectOf(dialog.Control(kBordered));
    RECT client = {};
    GetClientRect(dialog.Control(kBordered), &client);
    EXPECT_EQ(client.right, window.right - window.left - 2);
    EXPECT_EQ(client.bottom, window.bottom - window.top - 2);
    window = ScreenRectOf(dialog.Control(kBare));
    GetClientRect(dialog.Control(kBare), &client);
    EXPECT_EQ(client.right, window.right - window.left);
}
