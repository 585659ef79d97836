// SHCreateMenuBar and SHFindMenuBar: what a bar is made of, where it lies, how long it lives.
#include "tests/platform/aygshell/TestDialog.h"

#include <set>

#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"

namespace
{

// The input panel's button among the bar's children.
constexpr int kSipButtonId = 1;

SHMENUBARINFO InfoFor(HWND parent)
{
    SHMENUBARINFO info{};
    info.cbSize = sizeof info;
    info.hwndParent = parent;
    info.dwFlags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON;
    info.nToolBarId = IDM_TWO_KEYS;
    info.hInstRes = GetModuleHandleW(nullptr);
    return info;
}

int ButtonCount(HWND toolbar)
{
    return static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
}

TBBUTTON ButtonAt(HWND toolbar, int index)
{
    TBBUTTON button{};
    SendMessageW(toolbar, TB_GETBUTTON, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&button));
    return button;
}

struct KeyInfo
{
    std::wstring Text;
    DWORD_PTR Data;
};

// By command id, or by index with mask TBIF_BYINDEX.
KeyInfo KeyOf(HWND toolbar, int id, DWORD mask = 0)
{
    wchar_t text[256] = {};
    TBBUTTONINFOW info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT | TBIF_LPARAM | mask;
    info.pszText = text;
    info.cchText = 256;
    EXPECT_GE(SendMessageW(toolbar, TB_GETBUTTONINFOW, static_cast<WPARAM>(id),
                           reinterpret_cast<LPARAM>(&info)),
              0);
    return {text, info.lParam};
}

void SetText(HWND toolbar, int id, const wchar_t* text)
{
    TBBUTTONINFOW info{};
    info.cbSize = sizeof info;
    info.dwMask = TBIF_TEXT;
    info.pszText = const_cast<wchar_t*>(text);
    EXPECT_TRUE(SendMessageW(toolbar, TB_SETBUTTONINFOW, static_cast<WPARAM>(id),
                             reinterpret_cast<LPARAM>(&info)));
}

std::vector<COLORREF> PixelsOf(HWND window)
{
    RECT area{};
    GetClientRect(window, &area);
    const HDC dc = GetDC(window);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < area.bottom; y += 2)
        for (int x = 0; x < area.right; ++x)
            pixels.push_back(GetPixel(dc, x, y));
    ReleaseDC(window, dc);
    return pixels;
}

} // namespace

TEST(MenuBar, TheCallerGetsTheToolbarThatIsFoundLater)
{
    CTestDialog dialog;
    SHMENUBARINFO info = InfoFor(dialog.Window());
    ASSERT_TRUE(SHCreateMenuBar(&info));
    ASSERT_NE(info.hwndMB, nullptr);
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), info.hwndMB);
    wchar_t name[64] = {};
    GetClassNameW(info.hwndMB, name, 64);
    EXPECT_STREQ(name, L"ToolbarWindow32");
}

TEST(MenuBar, AWindowWithoutABarHasNone)
{
    CTestDialog dialog;
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), nullptr);
    EXPECT_EQ(SHFindMenuBar(nullptr), nullptr);
}

TEST(MenuBar, TheMenusEntriesBecomeSoftKeysWithTheirCommands)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    ASSERT_EQ(ButtonCount(toolbar), 2);
    EXPECT_EQ(ButtonAt(toolbar, 0).idCommand, 1);
    EXPECT_EQ(ButtonAt(toolbar, 1).idCommand, 2);
    EXPECT_EQ(KeyOf(toolbar, 1).Text, L"Done");
    EXPECT_EQ(KeyOf(toolbar, 2).Text, L"Cancel");
    EXPECT_EQ(KeyOf(toolbar, 0, TBIF_BYINDEX).Text, L"Done");
    EXPECT_EQ(KeyOf(toolbar, 1, TBIF_BYINDEX).Text, L"Cancel");
    EXPECT_EQ(KeyOf(toolbar, 1).Data, 0u);
}

TEST(MenuBar, APopupKeyCarriesItsMenu)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_KEY_AND_POPUP));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    const KeyInfo key = KeyOf(toolbar, 1, TBIF_BYINDEX);
    EXPECT_EQ(key.Text, L"&Menu");
    const HMENU popup = reinterpret_cast<HMENU>(key.Data);
    ASSERT_TRUE(IsMenu(popup));
    EXPECT_EQ(GetMenuItemCount(popup), 4);
    EXPECT_EQ(GetMenuItemID(popup, 0), 32775u);
    EXPECT_EQ(ButtonAt(toolbar, 1).dwData, key.Data);
}

TEST(MenuBar, APopupKeysIdIsNoneOfTheMenusCommands)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_KEY_AND_POPUP));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    const int id = ButtonAt(toolbar, 1).idCommand;
    const std::set<int> commands{0, 1, 32775, 57344, 57345};
    EXPECT_EQ(commands.count(id), 0u) << id;
    EXPECT_EQ(KeyOf(toolbar, id).Text, L"&Menu");
}

TEST(MenuBar, AGrayedEntryIsADisabledKey)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_GRAYED_KEY));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    EXPECT_FALSE(SendMessageW(toolbar, TB_ISBUTTONENABLED, 1, 0));
    EXPECT_TRUE(SendMessageW(toolbar, TB_ISBUTTONENABLED, 2, 0));
}

TEST(MenuBar, AnEmptyBarHasNoKeys)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(ButtonCount(toolbar), 0);
}

TEST(MenuBar, AnEmptyBarBecomesTheBarWithKeys)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    ASSERT_NE(GetDlgItem(GetParent(toolbar), kSipButtonId), nullptr);
    ASSERT_TRUE(dialog.CreateBar(IDM_KEY_AND_POPUP, SHCMBF_HMENU));
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), toolbar);
    EXPECT_EQ(ButtonCount(toolbar), 2);
    EXPECT_NE(GetDlgItem(GetParent(toolbar), kSipButtonId), nullptr);
    const auto popup = reinterpret_cast<HMENU>(KeyOf(toolbar, 1, TBIF_BYINDEX).Data);
    EXPECT_TRUE(IsMenu(popup));
    dialog.Destroy();
    EXPECT_FALSE(IsMenu(popup)) << "the bar took the menu over";
}

TEST(MenuBar, AnEmptyBarLosesThePanelsButtonWhenTheBarWithKeysHidesIt)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR));
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    EXPECT_EQ(ButtonCount(toolbar), 2);
    EXPECT_EQ(GetDlgItem(GetParent(toolbar), kSipButtonId), nullptr);
}

TEST(MenuBar, AnEmptyBarWithoutThePanelsButtonGetsOneWithTheKeys)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR | SHCMBF_HIDESIPBUTTON));
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    EXPECT_EQ(ButtonCount(toolbar), 2);
    EXPECT_NE(GetDlgItem(GetParent(toolbar), kSipButtonId), nullptr);
}

TEST(MenuBar, AVisibleEmptyBarDisappearsWhenTheBarWithKeysIsHidden)
{
    CTestDialog dialog;
    dialog.Open();
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR));
    EXPECT_TRUE(IsWindowVisible(BarOf(dialog.Window())));
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU | SHCMBF_HIDDEN));
    EXPECT_FALSE(IsWindowVisible(BarOf(dialog.Window())));
}

TEST(MenuBar, ASecondBarReplacesTheFirst)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_KEY_AND_POPUP));
    const HWND first = BarOf(dialog.Window());
    const auto popup =
        reinterpret_cast<HMENU>(KeyOf(SHFindMenuBar(dialog.Window()), 1, TBIF_BYINDEX).Data);
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    EXPECT_FALSE(IsWindow(first));
    EXPECT_FALSE(IsMenu(popup));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(KeyOf(toolbar, 2).Text, L"Cancel");
}

TEST(MenuBar, TheBarGoesWithItsParentAndTakesItsMenusAlong)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_KEY_AND_POPUP));
    const HWND bar = BarOf(dialog.Window());
    const auto popup =
        reinterpret_cast<HMENU>(KeyOf(SHFindMenuBar(dialog.Window()), 1, TBIF_BYINDEX).Data);
    dialog.Destroy();
    EXPECT_FALSE(IsWindow(bar));
    EXPECT_FALSE(IsMenu(popup));
}

TEST(MenuBar, AChildWindowsBarGoesWithTheChild)
{
    CTestDialog dialog({{L"Static", 0, 7, 0, 0, 20, 20}});
    SHMENUBARINFO info = InfoFor(dialog.Control(7));
    ASSERT_TRUE(SHCreateMenuBar(&info));
    const HWND bar = GetAncestor(info.hwndMB, GA_ROOT);
    DestroyWindow(info.hwndParent);
    EXPECT_FALSE(IsWindow(bar));
    EXPECT_TRUE(IsWindow(dialog.Window()));
}

TEST(MenuBarGeometry, TheBarLiesAtTheBottomOfTheScreenBelowTheDialog)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.InitDialog());
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    RECT expected = WorkArea();
    expected.top = expected.bottom - Scaled(26);
    EXPECT_EQ(ScreenRectOf(BarOf(dialog.Window())), expected);
    EXPECT_EQ(ScreenRectOf(dialog.Window()).bottom, expected.top);
}

TEST(MenuBarGeometry, TwoKeysHaveHalfOfTheWidthEach)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    const RECT area = WorkArea();
    const LONG width = area.right - area.left;
    RECT left{};
    RECT right{};
    SendMessageW(toolbar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&left));
    SendMessageW(toolbar, TB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&right));
    EXPECT_EQ(left.left, 0);
    EXPECT_EQ(left.right, width / 2);
    EXPECT_EQ(right.left, width / 2);
    EXPECT_EQ(right.right, width);
}

TEST(MenuBarGeometry, KeysReactOverTheFullHeightOfTheBar)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    RECT area{};
    GetClientRect(toolbar, &area);
    for (LONG y : {area.top, area.bottom - 1})
        for (LONG x : {LONG{0}, area.right / 2 - 1, area.right / 2, area.right - 1})
        {
            POINT point{x, y};
            EXPECT_EQ(SendMessageW(toolbar, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)),
                      x < area.right / 2 ? 0 : 1)
                << x << ", " << y;
        }
}

TEST(MenuBarGeometry, ANewTextLeavesTheKeysWhereTheyAre)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    SetText(toolbar, 1, L"A translation that is much longer than the word");
    RECT left{};
    SendMessageW(toolbar, TB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&left));
    EXPECT_EQ(left.right, (WorkArea().right - WorkArea().left) / 2);
}

TEST(MenuBar, TheBarIsOwnedAndNeverActive)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND bar = BarOf(dialog.Window());
    EXPECT_EQ(GetWindow(bar, GW_OWNER), dialog.Window());
    const LONG_PTR style = GetWindowLongPtrW(bar, GWL_EXSTYLE);
    EXPECT_NE(style & WS_EX_NOACTIVATE, 0);
    EXPECT_NE(style & WS_EX_TOOLWINDOW, 0);
}

TEST(MenuBar, TheBarIsShownAndHiddenWithItsOwner)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    const HWND bar = BarOf(dialog.Window());
    dialog.Open();
    EXPECT_TRUE(IsWindowVisible(bar));
    ShowWindow(dialog.Window(), SW_HIDE);
    EXPECT_FALSE(IsWindowVisible(bar));
}

TEST(MenuBar, AVisibleWindowsBarIsVisibleAtOnce)
{
    CTestDialog dialog;
    dialog.Open();
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    EXPECT_TRUE(IsWindowVisible(BarOf(dialog.Window())));
}

TEST(MenuBar, AHiddenBarStaysHidden)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU | SHCMBF_HIDDEN));
    dialog.Open();
    EXPECT_FALSE(IsWindowVisible(BarOf(dialog.Window())));
    EXPECT_EQ(ButtonCount(SHFindMenuBar(dialog.Window())), 2);
}

TEST(MenuBar, TheInputPanelsButtonStandsInTheMiddleAndIsNoKey)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU));
    EXPECT_EQ(ButtonCount(SHFindMenuBar(dialog.Window())), 2);
    dialog.Open();
    const RECT bar = ScreenRectOf(BarOf(dialog.Window()));
    const HWND button = WindowFromPoint(CentreOf(bar));
    EXPECT_NE(button, SHFindMenuBar(dialog.Window()));
    EXPECT_EQ(GetAncestor(button, GA_ROOT), BarOf(dialog.Window()));
}

TEST(MenuBar, TheInputPanelsButtonCanBeLeftOut)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON));
    dialog.Open();
    const RECT bar = ScreenRectOf(BarOf(dialog.Window()));
    EXPECT_EQ(WindowFromPoint(CentreOf(bar)), SHFindMenuBar(dialog.Window()));
}

TEST(MenuBar, ANewTextIsDrawnAtOnce)
{
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(IDM_TWO_KEYS));
    dialog.Open();
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    UpdateWindow(toolbar);
    const std::vector<COLORREF> before = PixelsOf(toolbar);
    SetText(toolbar, 1, L"Ready");
    const std::vector<COLORREF> after = PixelsOf(toolbar);
    EXPECT_NE(before, after);
    EXPECT_FALSE(GetUpdateRect(toolbar, nullptr, FALSE));
}

TEST(MenuBar, TheBarWearsTheSystemsColoursOrItsOwn)
{
    const int face = COLOR_BTNFACE;
    const COLORREF before = GetSysColor(face);
    const COLORREF scheme = RGB(20, 40, 60);
    SetSysColors(1, &face, &scheme);
    CTestDialog dialog;
    ASSERT_TRUE(dialog.CreateBar(0, SHCMBF_EMPTYBAR | SHCMBF_HIDESIPBUTTON));
    dialog.Open();
    const HWND toolbar = SHFindMenuBar(dialog.Window());
    UpdateWindow(toolbar);
    EXPECT_EQ(PixelsOf(toolbar).back(), scheme);

    SHMENUBARINFO info = InfoFor(dialog.Window());
    info.dwFlags |= SHCMBF_COLORBK;
    info.clrBk = RGB(200, 100, 50);
    ASSERT_TRUE(SHCreateMenuBar(&info));
    UpdateWindow(info.hwndMB);
    EXPECT_EQ(PixelsOf(info.hwndMB).back(), info.clrBk);
    SetSysColors(1, &face, &before);
}
