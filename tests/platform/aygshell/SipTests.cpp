// The soft input panel: SHSipInfo, the announcement, the on-screen keyboard, the bar's button and
// the SIPPREF control.
#include "tests/platform/aygshell/TestDialog.h"

#include <atomic>
#include <thread>

#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"
#include "tests/support/Wait.h"

namespace
{

constexpr int kEditId = 201;
constexpr int kOtherEditId = 202;
constexpr int kReadOnlyId = 203;
constexpr int kButtonId = 204;
constexpr int kPreferenceId = 65535;

// The grid of the on-screen keyboard.
constexpr int kRows = 5;
constexpr int kColumns = 22;

BOOL SetPanel(bool on)
{
    SIPINFO info{};
    info.cbSize = sizeof info;
    info.fdwFlags = on ? SIPF_ON : SIPF_OFF;
    return SHSipInfo(SPI_SETSIPINFO, 0, &info, 0);
}

SIPINFO PanelInfo()
{
    SIPINFO info{};
    info.cbSize = sizeof info;
    EXPECT_TRUE(SHSipInfo(SPI_GETSIPINFO, 0, &info, 0));
    return info;
}

bool IsOn()
{
    return (PanelInfo().fdwFlags & SIPF_ON) != 0;
}

RECT ExpectedPanel()
{
    RECT panel = WorkArea();
    panel.bottom -= Scaled(26);
    panel.top = panel.bottom - Scaled(80);
    return panel;
}

HWND VisiblePanel()
{
    const HWND window = WindowFromPoint(CentreOf(ExpectedPanel()));
    return window != nullptr && ScreenRectOf(window) == ExpectedPanel() ? window : nullptr;
}

// The dialog's controls keep clear of where the panel comes up.
const std::vector<TestControl> kEditsAndPreference{
    {L"Button", WS_TABSTOP, kButtonId, 0, 0, 40, 10},
    {L"Edit", WS_TABSTOP, kEditId, 0, 12, 40, 10},
    {L"Edit", WS_TABSTOP, kOtherEditId, 0, 24, 40, 10},
    {L"Edit", WS_TABSTOP | ES_READONLY, kReadOnlyId, 0, 36, 40, 10},
    {L"SIPPREF", 0, static_cast<WORD>(kPreferenceId), 0, 0, 0, 0}};

class InputPanel : public testing::Test
{
protected:
    ~InputPanel() override { SetPanel(false); }
};

} // namespace

TEST_F(InputPanel, WrongRequestsAreRefused)
{
    SIPINFO info{};
    info.cbSize = sizeof info - 1;
    EXPECT_FALSE(SHSipInfo(SPI_GETSIPINFO, 0, &info, 0));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_INVALID_PARAMETER));
    EXPECT_FALSE(SHSipInfo(SPI_SETSIPINFO, 0, &info, 0));
    EXPECT_FALSE(SHSipInfo(SPI_GETSIPINFO, 0, nullptr, 0));
    info.cbSize = sizeof info;
    EXPECT_FALSE(SHSipInfo(SPI_GETWORKAREA, 0, &info, 0));
}

TEST_F(InputPanel, ItStartsDown)
{
    EXPECT_FALSE(IsOn());
}

TEST_F(InputPanel, WhatIsSetIsReadBackOnEveryThread)
{
    EXPECT_TRUE(SetPanel(true));
    EXPECT_TRUE(IsOn());
    bool seen = false;
    std::thread([&seen] { seen = IsOn(); }).join();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(SetPanel(false));
    EXPECT_FALSE(IsOn());
}

TEST(InputPanelGeometry, ThePanelStandsAboveTheBarOverTheFullWidth)
{
    EXPECT_EQ(PanelInfo().rcSipRect, ExpectedPanel());
    SetPanel(true);
    EXPECT_EQ(PanelInfo().rcSipRect, ExpectedPanel());
    EXPECT_NE(VisiblePanel(), nullptr);
    SetPanel(false);
    EXPECT_EQ(VisiblePanel(), nullptr);
}

TEST(InputPanelGeometry, ThePanelTakesItsPartOfTheVisibleDesktop)
{
    EXPECT_EQ(PanelInfo().rcVisibleDesktop, WorkArea());
    SetPanel(true);
    RECT visible = WorkArea();
    visible.bottom = ExpectedPanel().top;
    EXPECT_EQ(PanelInfo().rcVisibleDesktop, visible);
    SetPanel(false);
    EXPECT_EQ(PanelInfo().rcVisibleDesktop, WorkArea());
}

TEST_F(InputPanel, AChangeIsAnnouncedAfterTheCall)
{
    CTestDialog dialog;
    dialog.Open();
    SetPanel(true);
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 0);
    ASSERT_TRUE(dialog.RunUntil([&] { return dialog.Count(WM_SETTINGCHANGE) == 1; }));
    EXPECT_EQ(dialog.Log().back().WParam, SPI_SETSIPINFO);
    SetPanel(false);
    EXPECT_TRUE(dialog.RunUntil([&] { return dialog.Count(WM_SETTINGCHANGE) == 2; }));
}

TEST_F(InputPanel, WhatChangesNothingIsNotAnnounced)
{
    CTestDialog dialog;
    dialog.Open();
    SetPanel(false);
    SetPanel(true);
    ASSERT_TRUE(dialog.RunUntil([&] { return dialog.Count(WM_SETTINGCHANGE) == 1; }));
    SetPanel(true);
    SetPanel(false);
    ASSERT_TRUE(dialog.RunUntil([&] { return dialog.Count(WM_SETTINGCHANGE) == 2; }));
    dialog.RunUntil([end = GetTickCount64() + 100] { return GetTickCount64() > end; });
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 2);
}

TEST_F(InputPanel, AHungWindowHoldsUpNeitherTheCallNorTheAnnouncement)
{
    CTestDialog dialog;
    dialog.Open();
    HWND hung = nullptr;
    std::atomic<bool> done{false};
    std::thread sleeper(
        [&]
        {
            const CTestDialog other;
            hung = other.Window();
            WaitUntil([&] { return done.load(); });
        });
    ASSERT_TRUE(WaitUntil([&] { return hung != nullptr; }));
    const ULONGLONG start = GetTickCount64();
    SetPanel(true);
    EXPECT_LT(GetTickCount64() - start, 400u);
    EXPECT_TRUE(dialog.RunUntil([&] { return dialog.Count(WM_SETTINGCHANGE) == 1; }));
    done = true;
    sleeper.join();
}

TEST_F(InputPanel, InitDialogLowersThePanelWhenAsked)
{
    CTestDialog dialog;
    SetPanel(true);
    dialog.InitDialog(SHIDIF_SIZEDLGFULLSCREEN);
    EXPECT_TRUE(IsOn());
    dialog.InitDialog(SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    EXPECT_FALSE(IsOn());
}

TEST_F(InputPanel, TheBarsButtonRaisesAndLowersThePanel)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU));
    dialog.Open();
    const POINT button = CentreOf(ScreenRectOf(BarOf(dialog.Window())));
    ClickScreen(button);
    EXPECT_TRUE(dialog.RunUntil(IsOn));
    ClickScreen(button);
    EXPECT_TRUE(dialog.RunUntil([] { return !IsOn(); }));
    EXPECT_EQ(dialog.Count(WM_ACTIVATE), 0);
    EXPECT_EQ(dialog.Count(WM_COMMAND), 0);
}

TEST_F(InputPanel, APanelRaisedByAnotherThreadIsLoweredFromHere)
{
    std::atomic<bool> done{false};
    std::thread other(
        [&]
        {
            SetPanel(true);
            MSG message;
            WaitUntil(
                [&]
                {
                    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                        DispatchMessageW(&message);
                    return done.load();
                });
        });
    ASSERT_TRUE(WaitUntil([] { return VisiblePanel() != nullptr; }));
    SetPanel(false);
    EXPECT_TRUE(WaitUntil([] { return VisiblePanel() == nullptr; }));
    done = true;
    other.join();
}

namespace
{

// Types on the on-screen keyboard into an edit control.
class Keyboard : public testing::Test
{
protected:
    Keyboard() : dialog({{L"Edit", WS_TABSTOP, kEditId, 0, 10, 80, 10}})
    {
        dialog.Open();
        SetFocus(dialog.Control(kEditId));
        SetPanel(true);
        dialog.RunPending();
        dialog.ClearLog();
    }
    ~Keyboard() override { SetPanel(false); }

    // Presses the key that covers the column of the row.
    void Press(int row, int column)
    {
        const RECT panel = ExpectedPanel();
        const LONG width = panel.right - panel.left;
        const LONG height = panel.bottom - panel.top;
        ClickScreen({panel.left + (2 * column + 1) * width / (2 * kColumns),
                     panel.top + (2 * row + 1) * height / (2 * kRows)});
        dialog.RunPending();
    }

    std::wstring Text()
    {
        wchar_t text[64] = {};
        GetWindowTextW(dialog.Control(kEditId), text, 64);
        return text;
    }

    bool RunUntilText(const wchar_t* text)
    {
        return dialog.RunUntil([&] { return Text() == text; });
    }

    CTestDialog dialog;
};

} // namespace

TEST_F(Keyboard, LettersDigitsAndSpaceAreTyped)
{
    Press(1, 0);
    Press(2, 1);
    Press(4, 10);
    Press(0, 18);
    EXPECT_TRUE(RunUntilText(L"qa 0"));
    EXPECT_EQ(GetFocus(), dialog.Control(kEditId));
    EXPECT_EQ(dialog.Count(WM_ACTIVATE), 0);
}

TEST_F(Keyboard, ShiftIsGoodForOneCharacter)
{
    Press(3, 0);
    Press(1, 0);
    Press(1, 2);
    EXPECT_TRUE(RunUntilText(L"Qw"));
}

TEST_F(Keyboard, BackspaceDeletes)
{
    Press(1, 0);
    Press(1, 2);
    ASSERT_TRUE(RunUntilText(L"qw"));
    Press(0, 20);
    EXPECT_TRUE(RunUntilText(L"q"));
}

TEST_F(Keyboard, EnterIsTheEnterKey)
{
    Press(2, 20);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountCommand(IDOK) == 1; }));
}

TEST_F(Keyboard, AKeyThatTheStylusLeavesIsNotTyped)
{
    const HWND panel = VisiblePanel();
    ASSERT_NE(panel, nullptr);
    SendMessageW(panel, WM_LBUTTONDOWN, MK_LBUTTON, PointParam({3, Scaled(20)}));
    SendMessageW(panel, WM_LBUTTONUP, 0, PointParam({3, -50}));
    Press(1, 2);
    EXPECT_TRUE(RunUntilText(L"w"));
}

TEST_F(Keyboard, TheKeyboardFollowsTheScreen)
{
    const HWND panel = VisiblePanel();
    ASSERT_NE(panel, nullptr);
    MoveWindow(panel, 0, 0, 50, 20, FALSE);
    SendMessageW(panel, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_EQ(ScreenRectOf(panel), ExpectedPanel());
}

namespace
{

class InputPreference : public testing::Test
{
protected:
    InputPreference() : dialog(kEditsAndPreference)
    {
        dialog.Open();
        Focus(kButtonId);
    }
    ~InputPreference() override { SetPanel(false); }

    void Focus(int id) { SetFocus(dialog.Control(id)); }

    // Waits until the panel is up or down.
    bool Becomes(bool up)
    {
        return dialog.RunUntil([up] { return IsOn() == up; });
    }

    // Long enough for the panel to follow a step of the focus.
    void RunForAWhile()
    {
        dialog.RunUntil([end = GetTickCount64() + 100] { return GetTickCount64() > end; });
    }

    CTestDialog dialog;
};

// What a person sees at a point of the screen.
COLORREF PixelAt(POINT point)
{
    const HDC screen = GetDC(nullptr);
    const COLORREF colour = GetPixel(screen, point.x, point.y);
    ReleaseDC(nullptr, screen);
    return colour;
}

} // namespace

TEST_F(InputPreference, TheClassIsThereForEveryTemplate)
{
    EXPECT_TRUE(SHInitExtraControls());
    EXPECT_TRUE(SHInitExtraControls());
    ASSERT_NE(dialog.Window(), nullptr);
    ASSERT_NE(dialog.Control(kPreferenceId), nullptr);
    EXPECT_FALSE(IsWindowVisible(dialog.Control(kPreferenceId)));
}

TEST_F(InputPreference, AnEditControlWithTheFocusRaisesThePanel)
{
    EXPECT_FALSE(IsOn());
    Focus(kEditId);
    EXPECT_TRUE(Becomes(true));
}

TEST_F(InputPreference, LosingTheFocusLowersThePanel)
{
    Focus(kEditId);
    ASSERT_TRUE(Becomes(true));
    Focus(kButtonId);
    EXPECT_TRUE(Becomes(false));
}

TEST_F(InputPreference, FromOneEditControlToTheNextThePanelStays)
{
    Focus(kEditId);
    ASSERT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_SETTINGCHANGE) == 1; }));
    Focus(kOtherEditId);
    RunForAWhile();
    EXPECT_TRUE(IsOn());
    EXPECT_EQ(dialog.Count(WM_SETTINGCHANGE), 1);
}

TEST_F(InputPreference, AReadOnlyEditControlNeedsNoPanel)
{
    Focus(kReadOnlyId);
    RunForAWhile();
    EXPECT_FALSE(IsOn());
    Focus(kEditId);
    ASSERT_TRUE(Becomes(true));
    Focus(kReadOnlyId);
    EXPECT_TRUE(Becomes(false));
}

TEST_F(InputPreference, TheEndOfTheDialogLowersThePanel)
{
    Focus(kEditId);
    ASSERT_TRUE(Becomes(true));
    dialog.Destroy();
    EXPECT_FALSE(IsOn());
}

TEST_F(InputPreference, ADialogThatIsStillToBeShownGetsItsPanelWhenItIs)
{
    ShowWindow(dialog.Window(), SW_HIDE);
    Focus(kEditId);
    RunForAWhile();
    EXPECT_FALSE(IsOn());
    ShowWindow(dialog.Window(), SW_SHOW);
    EXPECT_TRUE(Becomes(true));
}

TEST(InputPreferenceAtStart, TheDialogDoesNotCoverItsKeyboard)
{
    CTestDialog dialog(kEditsAndPreference);
    dialog.InitDialog();
    SetFocus(dialog.Control(kEditId));
    dialog.Open();
    // A key's tile, left of its letter, and the dialog around it have different colours.
    const RECT panel = ExpectedPanel();
    const POINT key = {panel.left + Scaled(2), panel.top + Scaled(6)};
    ASSERT_NE(GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_BTNFACE));
    EXPECT_TRUE(dialog.RunUntil([key] { return PixelAt(key) == GetSysColor(COLOR_WINDOW); }));
    SetPanel(false);
}

TEST_F(InputPanel, WithoutThePreferenceTheFocusChangesNothing)
{
    CTestDialog dialog({{L"Edit", WS_TABSTOP, kEditId, 0, 12, 40, 10}});
    dialog.Open();
    SetFocus(dialog.Control(kEditId));
    dialog.RunUntil([end = GetTickCount64() + 100] { return GetTickCount64() > end; });
    EXPECT_FALSE(IsOn());
}
