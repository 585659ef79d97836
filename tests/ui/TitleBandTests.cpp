// The title band, pixel by pixel.
#include "ui/TitleBand.h"

#include "frame/Localizer.h"
#include "platform/Handles.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/Pixels.h"
#include "tests/support/TranslationFixture.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace
{

constexpr COLORREF kBackground = RGB(255, 0, 0);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr int kWidth = 200;
constexpr int kHeight = 120;

WPARAM g_textSize = 0;

LRESULT CALLBACK PaintBand(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PAINT)
    {
        PaintTitleBand(window);
        return 0;
    }
    if (message == WM_GETTEXT)
        g_textSize = wParam;
    return DefWindowProcW(window, message, wParam, lParam);
}

// A red window in the corner of the screen that paints a title band and nothing else.
class CBandWindow
{
public:
    explicit CBandWindow(const wchar_t* title, int position = 0)
        : m_brush(CreateSolidBrush(kBackground))
    {
        WNDCLASSW info = {};
        info.lpfnWndProc = PaintBand;
        info.hInstance = GetModuleHandleW(nullptr);
        info.lpszClassName = L"BandWindow";
        info.hbrBackground = m_brush.get();
        RegisterClassW(&info);
        m_window.reset(CreateWindowExW(0, L"BandWindow", title, WS_POPUP | WS_VISIBLE | WS_VSCROLL,
                                       0, 0, kWidth, kHeight, nullptr, nullptr, info.hInstance,
                                       nullptr));
        ScrollTo(position);
    }
    ~CBandWindow()
    {
        m_window.reset();
        UnregisterClassW(L"BandWindow", GetModuleHandleW(nullptr));
    }

    HWND Window() const { return m_window.get(); }

    void ScrollTo(int position)
    {
        SCROLLINFO scroll = {};
        scroll.cbSize = sizeof(scroll);
        scroll.fMask = SIF_RANGE | SIF_POS;
        scroll.nMin = -1000;
        scroll.nMax = 1000;
        scroll.nPos = position;
        SetScrollInfo(Window(), SB_VERT, &scroll, FALSE);
        Paint();
    }

    void Paint()
    {
        RedrawWindow(Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }

    COLORREF Pixel(int x, int y) const
    {
        const HDC dc = GetDC(Window());
        const COLORREF colour = GetPixel(dc, x, y);
        ReleaseDC(Window(), dc);
        return colour;
    }

    // The columns of the band's middle part in which anything is written: first and last, -1
    // without any.
    std::pair<int, int> InkColumns() const
    {
        const COLORREF paper = GetSysColor(COLOR_WINDOW);
        std::pair<int, int> columns(-1, -1);
        for (int x = 0; x < kWidth / 2; ++x)
            for (int y = 0; y < Px(23); ++y)
                if (Pixel(x, y) != paper)
                {
                    columns.first = columns.first < 0 ? x : columns.first;
                    columns.second = x;
                }
        return columns;
    }

private:
    UniqueBrush m_brush;
    UniqueWindow m_window;
};

std::vector<LOGFONTW> g_fonts;

HFONT WINAPI RecordFont(const LOGFONTW* font)
{
    g_fonts.push_back(*font);
    return CreateFontW(font->lfHeight, 0, 0, 0, font->lfWeight, 0, 0, 0, font->lfCharSet, 0, 0, 0,
                       0, font->lfFaceName);
}

} // namespace

TEST(TitleBandGeometry, IsTwentyThreePixelsWithALineOfOnePixelBelow)
{
    EXPECT_EQ(Px(23), TitleBandHeight());
    EXPECT_EQ(Px(1), TitleLineThickness());
    const CBandWindow band(L"");
    for (int y = 0; y < Px(23); ++y)
        ASSERT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(3, y)) << y;
    for (int y = Px(23); y < Px(24); ++y)
        ASSERT_EQ(kBlack, band.Pixel(3, y)) << y;
    EXPECT_EQ(kBackground, band.Pixel(3, Px(24)));
}

TEST(TitleBandGeometry, ReachesAcrossTheWindow)
{
    const CBandWindow band(L"");
    const int last = kWidth - GetSystemMetrics(SM_CXVSCROLL) - 1;
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(last, 5));
    EXPECT_EQ(kBlack, band.Pixel(last, Px(23)));
}

TEST(TitleBandGeometry, TheTitleStartsEightPixelsFromTheLeft)
{
    // The letter's stem is the first thing to be seen; its bearing is a pixel or two.
    const auto ink = CBandWindow(L"H").InkColumns();
    EXPECT_GE(ink.first, Px(8));
    EXPECT_LE(ink.first, Px(8) + Px(2));
}

TEST(TitleBandGeometry, TheTitleHasTheHighlightColour)
{
    const CBandWindow band(L"HHH");
    int coloured = 0;
    for (int x = 0; x < kWidth / 2; ++x)
        for (int y = 0; y < Px(23); ++y)
            coloured += band.Pixel(x, y) == GetSysColor(COLOR_HIGHLIGHT);
    EXPECT_GT(coloured, 20);
}

TEST(TitleBandGeometry, TheTitleIsCentredVertically)
{
    const CBandWindow band(L"HHH");
    int first = -1;
    int last = -1;
    for (int y = 0; y < Px(23); ++y)
        for (int x = 0; x < kWidth / 2; ++x)
            if (band.Pixel(x, y) != GetSysColor(COLOR_WINDOW))
            {
                first = first < 0 ? y : first;
                last = y;
            }
    // Capitals stand a little above the middle of their cell.
    EXPECT_NEAR(Px(23) / 2, (first + last) / 2, Px(2));
}

TEST(TitleBandGeometry, AnAmpersandIsShownAsItIs)
{
    EXPECT_NE(-1, CBandWindow(L"&").InkColumns().first);
}

TEST(TitleBandGeometry, TheTitleIsOneLine)
{
    const CBandWindow band(L"H\nH");
    // The second letter follows the first on the same line.
    EXPECT_GT(band.InkColumns().second, Px(8) + Px(10));
}

TEST(TitleBandGeometry, ScrollsAwayWithTheContent)
{
    const CBandWindow band(L"", Px(5));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(3, 0));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(3, Px(18) - 1));
    EXPECT_EQ(kBlack, band.Pixel(3, Px(18)));
    EXPECT_EQ(kBackground, band.Pixel(3, Px(19)));
}

TEST(TitleBandGeometry, ItsLastRowIsStillDrawn)
{
    const CBandWindow band(L"", Px(23) - 1);
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(3, 0));
    EXPECT_EQ(kBlack, band.Pixel(3, 1));
}

TEST(TitleBandGeometry, ScrolledByItsHeightItIsNotDrawnAtAll)
{
    const CBandWindow band(L"", Px(23));
    EXPECT_EQ(kBackground, band.Pixel(3, 0));
    EXPECT_EQ(kBackground, band.Pixel(3, 1));
}

TEST(TitleBandGeometry, ScrolledFurtherItIsNotDrawnEither)
{
    const CBandWindow band(L"", Px(23) + 40);
    EXPECT_EQ(kBackground, band.Pixel(3, 0));
}

TEST(TitleBandGeometry, ANegativePositionMovesItDown)
{
    const CBandWindow band(L"", -10);
    EXPECT_EQ(kBackground, band.Pixel(3, 9));
    EXPECT_EQ(GetSysColor(COLOR_WINDOW), band.Pixel(3, 10));
}

TEST(TitleBandGeometry, ItsFontIsBoldTahomaOfThirteenPixelsInEveryLanguage)
{
    const CTempFolder folder;
    GetLocalizer().LoadFile(WriteTranslation(folder, L"_LARGE_SMALL_FONTS|1\n").c_str());
    const CImportPatch patch(GetModuleHandleW(nullptr), "gdi32.dll", "CreateFontIndirectW",
                             RecordFont);
    const CBandWindow band(L"title");
    ASSERT_FALSE(g_fonts.empty());
    EXPECT_EQ(Px(13), g_fonts[0].lfHeight);
    EXPECT_EQ(700, g_fonts[0].lfWeight);
    EXPECT_STREQ(L"Tahoma", g_fonts[0].lfFaceName);
    EXPECT_EQ(0, g_fonts[0].lfCharSet);
    GetLocalizer().Clear();
}

TEST(TitleBand, TakesAtMost255CharactersOfTheTitle)
{
    const CBandWindow band(std::wstring(1000, L'i').c_str());
    EXPECT_EQ(256u, g_textSize);
}

TEST(TitleBand, PaintingValidatesTheWindow)
{
    const CBandWindow band(L"title", 500);
    EXPECT_FALSE(GetUpdateRect(band.Window(), nullptr, FALSE));
}

TEST(TitleBand, PaintingLeavesNothingBehind)
{
    CBandWindow band(L"title");
    const ResourceCounts before = CountResources();
    for (int i = 0; i < 100; ++i)
        band.Paint();
    EXPECT_EQ(before.gdiObjects, CountResources().gdiObjects);
}

TEST(TitleBand, AScrollPositionThatCannotBeReadCountsAsZero)
{
    EXPECT_EQ(0, VerticalScrollPosition(nullptr));
}

TEST(ScrolledBand, ToTheSamePlaceNothingIsRepainted)
{
    EXPECT_FALSE(ScrolledBandBottom(7, 7, 23));
}

TEST(ScrolledBand, ReachesDownToWhereTheBandIsOrWas)
{
    EXPECT_EQ(23, ScrolledBandBottom(5, 0, 23));
    EXPECT_EQ(23, ScrolledBandBottom(0, 5, 23));
    EXPECT_EQ(13, ScrolledBandBottom(10, 20, 23));
    EXPECT_EQ(33, ScrolledBandBottom(-10, 20, 23));
}

TEST(ScrolledBand, IsStillRepaintedWhenJustItsLineIsLeft)
{
    EXPECT_EQ(0, ScrolledBandBottom(23, 40, 23));
    EXPECT_FALSE(ScrolledBandBottom(24, 40, 23));
}

TEST(ScrolledBand, SurvivesTheMostNegativePosition)
{
    const auto bottom = ScrolledBandBottom(INT_MIN, 0, 23);
    ASSERT_TRUE(bottom);
    // The line below still has to fit into a coordinate.
    EXPECT_GT(*bottom, 1000000);
    EXPECT_LE(*bottom, INT_MAX - TitleLineThickness());
    EXPECT_FALSE(ScrolledBandBottom(INT_MAX, INT_MAX - 1, 23));
}
