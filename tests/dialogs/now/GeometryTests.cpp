// Places and sizes of the dialog's parts, on every size of screen.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

namespace
{

class NowGeometry : public NowFixture
{
protected:
    RECT PlaceOf(int control) const { return RectOf(GetDlgItem(dialog, control)); }
    static int WidthOf(const RECT& rect) { return static_cast<int>(rect.right - rect.left); }
    static int HeightOf(const RECT& rect) { return static_cast<int>(rect.bottom - rect.top); }
    int ColumnWidth() const { return static_cast<int>(ToList(LVM_GETCOLUMNWIDTH, 0)); }
    void OpenWithPlugin()
    {
        registry.Add(L"A", L"a", kEmail);
        Open();
    }
    // Checks the list's place for a left edge of its own choice; the dialog begins at the corner.
    void ExpectListPlace(int margin, int top) const
    {
        const RECT place = PlaceOf(kListId);
        const RECT own = RectOf(dialog);
        EXPECT_EQ(margin, place.left);
        EXPECT_EQ(top, place.top);
        EXPECT_EQ(own.right - margin, place.right);
        EXPECT_EQ(own.bottom - margin, place.bottom);
        EXPECT_EQ(WidthOf(place) - GetSystemMetrics(SM_CXVSCROLL), ColumnWidth());
    }
    // The height that a control's text takes, wrapped to the control's width.
    int TextHeightOf(HWND control) const
    {
        const std::wstring text = TextOf(control);
        const HDC dc = GetDC(control);
        const HGDIOBJ old =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
        RECT rect = {0, 0, WidthOf(RectOf(control)), 0};
        DrawTextW(dc, text.c_str(), -1, &rect, DT_CALCRECT | DT_WORDBREAK);
        SelectObject(dc, old);
        ReleaseDC(control, dc);
        return static_cast<int>(rect.bottom);
    }
    // Puts a control where no layout would.
    void Misplace(int control, int left, int top, int width, int height) const
    {
        MoveWindow(GetDlgItem(dialog, control), Px(left), Px(top), Px(width), Px(height), FALSE);
    }
};

} // namespace

TEST_F(NowGeometry, TheDialogFillsTheScreenAboveItsSoftKeys)
{
    OpenWithPlugin();
    ExpectFullScreen(dialog);
}

TEST_F(NowGeometry, TheTitleBandIsPainted)
{
    OpenWithPlugin();
    ExpectTitleBand();
}

TEST_F(NowGeometry, TheListLeavesTheSameMarginOnThreeSides)
{
    OpenWithPlugin();
    const RECT place = PlaceOf(kListId);
    EXPECT_GT(place.left, 0);
    ExpectListPlace(static_cast<int>(place.left), static_cast<int>(place.top));
}

TEST_F(NowGeometry, TheColumnLeavesTheScrollBarsRoomWithAndWithoutOne)
{
    OpenWithPlugin();
    const int width = ColumnWidth();
    EXPECT_EQ(WidthOf(PlaceOf(kListId)) - GetSystemMetrics(SM_CXVSCROLL), width);
    Cancel();
    registry.AddMany(60, L"many ");
    Open();
    EXPECT_NE(0, GetWindowLongW(list, GWL_STYLE) & WS_VSCROLL);
    EXPECT_EQ(width, ColumnWidth());
}

TEST_F(NowGeometry, TheExplanationStandsBetweenTitleBandAndList)
{
    OpenWithPlugin();
    const RECT text = PlaceOf(kExplanationId);
    EXPECT_GE(text.top, Px(24));
    EXPECT_LE(text.bottom, PlaceOf(kListId).top);
    EXPECT_GE(text.left, 0);
    EXPECT_LE(text.right, RectOf(dialog).right);
    EXPECT_GT(HeightOf(PlaceOf(kListId)), Px(60));
}

TEST_F(NowGeometry, TheTextsFitIntoTheirControls)
{
    OpenWithPlugin();
    for (const int control : {kExplanationId, kEmptyTextId})
        EXPECT_LE(TextHeightOf(GetDlgItem(dialog, control)), HeightOf(PlaceOf(control))) << control;
    // One line at most: it is centred.
    EXPECT_LT(TextHeightOf(GetDlgItem(dialog, kEmptyTextId)), Px(20));
}

TEST_F(NowGeometry, TheEmptyTextIsAsWideAsTheScreen)
{
    Open();
    const RECT text = PlaceOf(kEmptyTextId);
    EXPECT_EQ(0, text.left);
    EXPECT_EQ(RectOf(dialog).right, text.right);
    EXPECT_GE(text.top, Px(24));
    EXPECT_LE(text.bottom, RectOf(dialog).bottom);
}

TEST_F(NowGeometry, AScreenResetLaysOutFromWhereTheControlsStand)
{
    OpenWithPlugin();
    Misplace(kListId, 7, 60, 50, 40);
    Misplace(kEmptyTextId, 5, 70, 20, 11);
    EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0));
    ExpectListPlace(Px(7), Px(60));
    const RECT text = PlaceOf(kEmptyTextId);
    EXPECT_EQ(0, text.left);
    EXPECT_EQ(RectOf(dialog).right, text.right);
    EXPECT_EQ(Px(70), text.top);
    EXPECT_EQ(Px(81), text.bottom);
}

TEST_F(NowGeometry, OtherSettingsMoveNothing)
{
    OpenWithPlugin();
    Misplace(kListId, 7, 60, 50, 40);
    const RECT misplaced = PlaceOf(kListId);
    for (const WPARAM kind : {WPARAM{0}, WPARAM{1}, WPARAM{224}, WPARAM{0x3001}, WPARAM{0x3003}})
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, kind, 0)) << kind;
    const RECT now = PlaceOf(kListId);
    EXPECT_TRUE(EqualRect(&misplaced, &now));
}

TEST_F(NowGeometry, ATurnedScreenIsFilledAgain)
{
    OpenWithPlugin();
    const int margin = static_cast<int>(PlaceOf(kListId).left);
    const int top = static_cast<int>(PlaceOf(kListId).top);
    MoveWindow(dialog, 0, 0, Px(200), Px(200), FALSE);
    SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), RectOf(dialog).right);
    ExpectListPlace(margin, top);
}

TEST_F(NowGeometry, TheExplanationHasRoomForThreeLines)
{
    OpenWithPlugin();
    // Translations run up to half longer than English: a third line has its place.
    const int line = TextHeightOf(GetDlgItem(dialog, kEmptyTextId));
    EXPECT_GE(HeightOf(PlaceOf(kExplanationId)), 3 * line);
}
