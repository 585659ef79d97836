// Fonts, heights and places that LayoutControls gives to controls, class by class.
#include "ui/ControlLayout.h"

#include "platform/Handles.h"
#include "tests/support/Pixels.h"
#include "ui/DialogFonts.h"

#include <gtest/gtest.h>

namespace
{

constexpr const wchar_t* kRecorder = L"TestRecorder";

// What a window of the recording classes was told.
struct Recorded
{
    int fonts = 0;
    HFONT font = nullptr;
    LPARAM redraw = -1;
    int heightAsked = -1;
};
Recorded g_recorded;

LRESULT CALLBACK Record(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT)
    {
        ++g_recorded.fonts;
        g_recorded.font = reinterpret_cast<HFONT>(wParam);
        g_recorded.redraw = lParam;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT CALLBACK RecordHeight(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                              DWORD_PTR)
{
    if (message == WM_WINDOWPOSCHANGING)
        g_recorded.heightAsked = reinterpret_cast<const WINDOWPOS*>(lParam)->cy;
    return DefSubclassProc(window, message, wParam, lParam);
}

void RegisterRecorder(const wchar_t* name)
{
    WNDCLASSW info = {};
    info.lpfnWndProc = Record;
    info.hInstance = GetModuleHandleW(nullptr);
    info.lpszClassName = name;
    RegisterClassW(&info);
}

RECT RectOf(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

int HeightOf(HWND window)
{
    const RECT rect = RectOf(window);
    return rect.bottom - rect.top;
}

// A parent at a given row of the screen, with one control laid out in it.
class ControlLayoutGeometry : public testing::Test
{
protected:
    ControlLayoutGeometry()
    {
        INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_WIN95_CLASSES};
        InitCommonControlsEx(&classes);
        RegisterRecorder(kRecorder);
        g_recorded = Recorded();
        PlaceParent(0);
    }

    void PlaceParent(int y)
    {
        parent.reset(CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, y, 200, 200, nullptr, nullptr,
                                     nullptr, nullptr));
    }

    HWND Add(const wchar_t* name, DWORD style, int y = 10, int height = 15)
    {
        const HWND control =
            CreateWindowExW(0, name, L"text", WS_CHILD | WS_VISIBLE | style, 10, y, 100, height,
                            parent.get(), nullptr, GetModuleHandleW(nullptr), nullptr);
        EXPECT_NE(nullptr, control);
        return control;
    }

    HWND LayOut(const wchar_t* name, DWORD style, int y = 10, int height = 15)
    {
        const HWND control = Add(name, style, y, height);
        LayoutControls(parent.get());
        return control;
    }

    static HFONT FontOf(HWND control)
    {
        return reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    }
    static HFONT Bold() { return CDialogFonts::Instance().Get(true); }
    static HFONT Normal() { return CDialogFonts::Instance().Get(false); }

    UniqueWindow parent;
};

} // namespace

TEST_F(ControlLayoutGeometry, PushButtonsAreBold)
{
    EXPECT_EQ(Bold(), FontOf(LayOut(L"Button", BS_PUSHBUTTON)));
    EXPECT_EQ(Bold(), FontOf(LayOut(L"Button", BS_DEFPUSHBUTTON)));
}

TEST_F(ControlLayoutGeometry, CheckBoxesRadioButtonsAndGroupBoxesAreNormal)
{
    for (const DWORD type : {BS_CHECKBOX, BS_AUTOCHECKBOX, BS_RADIOBUTTON, BS_AUTORADIOBUTTON,
                             BS_3STATE, BS_GROUPBOX, BS_OWNERDRAW})
        EXPECT_EQ(Normal(), FontOf(LayOut(L"Button", type))) << type;
}

TEST_F(ControlLayoutGeometry, OtherStyleBitsDoNotChangeTheTypeOfAButton)
{
    EXPECT_EQ(Bold(), FontOf(LayOut(L"Button", BS_PUSHBUTTON | BS_FLAT | BS_MULTILINE)));
    EXPECT_EQ(Normal(), FontOf(LayOut(L"Button", BS_AUTOCHECKBOX | BS_FLAT | BS_MULTILINE)));
}

TEST_F(ControlLayoutGeometry, ACheckBoxOnAnOddRowMovesUpByOnePixel)
{
    const HWND box = LayOut(L"Button", BS_AUTOCHECKBOX, 11, 17);
    const RECT rect = RectOf(box);
    EXPECT_EQ(10, rect.top);
    EXPECT_EQ(10, rect.left);
    EXPECT_EQ(110, rect.right);
    EXPECT_EQ(27, rect.bottom);
}

TEST_F(ControlLayoutGeometry, ACheckBoxOnAnEvenRowStays)
{
    EXPECT_EQ(12, RectOf(LayOut(L"Button", BS_AUTOCHECKBOX, 12)).top);
}

TEST_F(ControlLayoutGeometry, OddIsMeantOfTheScreensRows)
{
    PlaceParent(5);
    // Row 11 of the dialog is the even row 16 of the screen, row 12 the odd row 17.
    EXPECT_EQ(16, RectOf(LayOut(L"Button", BS_AUTORADIOBUTTON, 11)).top);
    EXPECT_EQ(16, RectOf(LayOut(L"Button", BS_AUTORADIOBUTTON, 12)).top);
}

TEST_F(ControlLayoutGeometry, APushButtonNeverMoves)
{
    EXPECT_EQ(11, RectOf(LayOut(L"Button", BS_PUSHBUTTON, 11)).top);
    EXPECT_EQ(13, RectOf(LayOut(L"Button", BS_DEFPUSHBUTTON, 13)).top);
}

TEST_F(ControlLayoutGeometry, ButtonsKeepTheirHeight)
{
    EXPECT_EQ(50, HeightOf(LayOut(L"Button", BS_PUSHBUTTON, 10, 50)));
    EXPECT_EQ(50, HeightOf(LayOut(L"Button", BS_AUTOCHECKBOX, 10, 50)));
}

TEST_F(ControlLayoutGeometry, MovingKeepsTheOrderOfControls)
{
    const HWND first = Add(L"Button", BS_AUTOCHECKBOX, 11);
    const HWND second = Add(L"Button", BS_AUTOCHECKBOX, 41);
    LayoutControls(parent.get());
    EXPECT_EQ(first, GetWindow(parent.get(), GW_CHILD));
    EXPECT_EQ(second, GetWindow(first, GW_HWNDNEXT));
}

TEST_F(ControlLayoutGeometry, ALabelIsBoldUnlessItStartsAGroup)
{
    EXPECT_EQ(Bold(), FontOf(LayOut(L"Static", SS_LEFT)));
    EXPECT_EQ(Normal(), FontOf(LayOut(L"Static", SS_LEFT | WS_GROUP)));
}

TEST_F(ControlLayoutGeometry, ALabelKeepsItsPlaceAndHeight)
{
    const RECT rect = RectOf(LayOut(L"Static", SS_LEFT, 11, 50));
    EXPECT_EQ(11, rect.top);
    EXPECT_EQ(61, rect.bottom);
}

TEST_F(ControlLayoutGeometry, AnEditOfTwentyPixelsStays)
{
    EXPECT_EQ(20, HeightOf(LayOut(L"Edit", 0, 10, 20)));
    EXPECT_EQ(7, HeightOf(LayOut(L"Edit", 0, 10, 7)));
}

TEST_F(ControlLayoutGeometry, AHigherEditGetsTheStandardHeight)
{
    EXPECT_EQ(Px(20), HeightOf(LayOut(L"Edit", 0, 10, 21)));
    EXPECT_EQ(Px(20), HeightOf(LayOut(L"Edit", 0, 10, 30)));
    EXPECT_EQ(Px(20), HeightOf(LayOut(L"Edit", 0, 10, 60)));
}

TEST_F(ControlLayoutGeometry, ResizingKeepsPlaceAndWidth)
{
    const RECT rect = RectOf(LayOut(L"Edit", 0, 11, 60));
    EXPECT_EQ(10, rect.left);
    EXPECT_EQ(11, rect.top);
    EXPECT_EQ(110, rect.right);
}

TEST_F(ControlLayoutGeometry, AnEditIsNormal)
{
    EXPECT_EQ(Normal(), FontOf(LayOut(L"Edit", 0)));
}

TEST_F(ControlLayoutGeometry, AComboBoxIsNormal)
{
    EXPECT_EQ(Normal(), FontOf(LayOut(L"ComboBox", CBS_DROPDOWNLIST)));
}

TEST_F(ControlLayoutGeometry, AComboBoxAboveNineteenPixelsGetsTheStandardHeight)
{
    // A simple combo box has the height that it is given.
    EXPECT_EQ(Px(19), HeightOf(LayOut(L"ComboBox", CBS_SIMPLE, 10, 20)));
    EXPECT_EQ(Px(19), HeightOf(LayOut(L"ComboBox", CBS_SIMPLE, 10, 80)));
}

TEST_F(ControlLayoutGeometry, AComboBoxOfNineteenPixelsStays)
{
    EXPECT_EQ(19, HeightOf(LayOut(L"ComboBox", CBS_SIMPLE, 10, 19)));
}

TEST_F(ControlLayoutGeometry, ASpinnerKeepsItsFontAndIsLimitedInHeight)
{
    const HWND low = Add(UPDOWN_CLASSW, 0, 10, 20);
    const HWND high = Add(UPDOWN_CLASSW, 0, 10, 21);
    SetWindowSubclass(low, RecordHeight, 1, 0);
    const HFONT before = FontOf(high);
    LayoutControls(parent.get());
    EXPECT_EQ(20, HeightOf(low));
    EXPECT_EQ(-1, g_recorded.heightAsked);
    EXPECT_EQ(Px(20), HeightOf(high));
    EXPECT_EQ(before, FontOf(high));
}

TEST_F(ControlLayoutGeometry, ATabControlGetsTheNormalFontAndItsOldOneIsDeleted)
{
    const HWND tabs = Add(WC_TABCONTROLW, 0);
    const HFONT old = CreateFontExactly(L"Tahoma", 20, 400, 0);
    SendMessageW(tabs, WM_SETFONT, reinterpret_cast<WPARAM>(old), 0);
    LayoutControls(parent.get());
    EXPECT_EQ(Normal(), FontOf(tabs));
    EXPECT_EQ(0u, GetObjectType(old));
}

TEST_F(ControlLayoutGeometry, ATabControlThatHasTheNormalFontAlreadyKeepsItAlive)
{
    const HWND tabs = LayOut(WC_TABCONTROLW, 0);
    LayoutControls(parent.get());
    EXPECT_EQ(Normal(), FontOf(tabs));
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(Normal()));
}

TEST_F(ControlLayoutGeometry, OnlyATabControlsOldFontIsDeleted)
{
    const HWND list = Add(L"ListBox", 0);
    const UniqueFont old(CreateFontExactly(L"Tahoma", 20, 400, 0));
    SendMessageW(list, WM_SETFONT, reinterpret_cast<WPARAM>(old.get()), 0);
    LayoutControls(parent.get());
    EXPECT_EQ(Normal(), FontOf(list));
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(old.get()));
}

TEST_F(ControlLayoutGeometry, AnyOtherClassIsNormalAndKeepsItsSizeAndPlace)
{
    const HWND other = LayOut(kRecorder, 0, 11, 60);
    EXPECT_EQ(Normal(), g_recorded.font);
    EXPECT_EQ(11, RectOf(other).top);
    EXPECT_EQ(60, HeightOf(other));
    EXPECT_EQ(Normal(), FontOf(LayOut(WC_TREEVIEWW, 0)));
}

TEST_F(ControlLayoutGeometry, FontsAreSetOnceAndWithoutRedrawing)
{
    LayOut(kRecorder, 0);
    EXPECT_EQ(1, g_recorded.fonts);
    EXPECT_EQ(0, g_recorded.redraw);
}

TEST_F(ControlLayoutGeometry, AClassNameInOtherCapitalsIsAnotherClass)
{
    RegisterRecorder(L"BUTTON");
    RegisterRecorder(L"EDIT");
    const HWND button = Add(L"BUTTON", BS_PUSHBUTTON, 11);
    const HWND edit = Add(L"EDIT", 0, 50, 60);
    LayoutControls(parent.get());
    EXPECT_EQ(2, g_recorded.fonts);
    EXPECT_EQ(Normal(), g_recorded.font);
    EXPECT_EQ(11, RectOf(button).top);
    EXPECT_EQ(60, HeightOf(edit));
    UnregisterClassW(L"BUTTON", GetModuleHandleW(nullptr));
    UnregisterClassW(L"EDIT", GetModuleHandleW(nullptr));
}

TEST_F(ControlLayoutGeometry, ControlsInsideControlsAreLeftAlone)
{
    const HWND frame = Add(L"Static", 0);
    CreateWindowExW(0, kRecorder, L"", WS_CHILD, 0, 1, 10, 10, frame, nullptr,
                    GetModuleHandleW(nullptr), nullptr);
    LayoutControls(parent.get());
    EXPECT_EQ(0, g_recorded.fonts);
}

TEST_F(ControlLayoutGeometry, TheMainControlReachesFromItsTopToTheRightAndBottom)
{
    const HWND main = Add(L"ListBox", LBS_NOINTEGRALHEIGHT, 30, 20);
    FitMainControl(parent.get(), main);
    const RECT rect = RectOf(main);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(30, rect.top);
    EXPECT_EQ(200, rect.right);
    EXPECT_EQ(200, rect.bottom);
}

TEST_F(ControlLayoutGeometry, WithoutAMainControlNothingIsFitted)
{
    const HWND control = Add(L"ListBox", LBS_NOINTEGRALHEIGHT, 30, 20);
    FitMainControl(parent.get(), nullptr);
    EXPECT_EQ(20, HeightOf(control));
}
