// Where the help viewer and its page stand on the screen, on every size of screen.
#include "tests/device/help/ViewerWindow.h"

#include <algorithm>

#include "device/TopBar.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"

namespace
{

// The last column that a text colours, drawn on white.
int RightmostInk(HFONT font, const std::wstring& text)
{
    constexpr int kWidth = 700;
    constexpr int kHeight = 60;
    const UniqueScreenDc screen(GetDC(nullptr));
    const UniqueMemoryDc dc(CreateCompatibleDC(screen.get()));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(screen.get(), kWidth, kHeight));
    const CSelectObject selectedBitmap(dc.get(), bitmap.get());
    const CSelectObject selectedFont(dc.get(), font);
    PatBlt(dc.get(), 0, 0, kWidth, kHeight, WHITENESS);
    ExtTextOutW(dc.get(), 0, 0, 0, nullptr, text.data(), static_cast<UINT>(text.size()), nullptr);
    for (int x = kWidth - 1; x >= 0; --x)
        for (int y = 0; y < kHeight; ++y)
            if (GetPixel(dc.get(), x, y) != RGB(255, 255, 255))
                return x;
    return -1;
}

class ViewerGeometry : public ViewerWindow
{
protected:
    RECT ViewRect() const { return RectOf(ViewWindow()); }
};

} // namespace

TEST_F(ViewerGeometry, TheWindowFillsTheScreenDownToItsSoftKeys)
{
    OpenBook();
    ExpectFullScreen(m_window.Window());
}

TEST_F(ViewerGeometry, ThePageFillsTheWindowBelowItsTitleBand)
{
    OpenBook();
    const RECT window = RectOf(m_window.Window());
    const RECT view = ViewRect();
    EXPECT_EQ(window.left, view.left);
    EXPECT_EQ(window.right, view.right);
    EXPECT_EQ(window.top + Px(24), view.top);
    EXPECT_EQ(window.bottom, view.bottom);
}

TEST_F(ViewerGeometry, TheTitleBandLooksLikeThatOfTheDialogs)
{
    OpenBook();
    UpdateWindow(m_window.Window());
    ExpectTitleBand();
}

TEST_F(ViewerGeometry, TheTopBarOfTheDeviceStaysFree)
{
    const CTopBar bar;
    SendMessageW(m_window.Window(), WM_DISPLAYCHANGE, 0, 0);
    HandleMessages();
    EXPECT_EQ(CTopBar::Height(), RectOf(m_window.Window()).top);
    EXPECT_EQ(RectOf(GetParent(SoftKeyBar(m_window.Window()))).top,
              RectOf(m_window.Window()).bottom);
}

TEST_F(ViewerGeometry, NoTextLeavesThePage)
{
    OpenBook();
    RECT client = {};
    GetClientRect(ViewWindow(), &client);
    EXPECT_LT(client.right, ViewRect().right - ViewRect().left) << "no scroll bar";
    for (const help::Piece& piece : m_window.View().Layout().Pieces)
    {
        EXPECT_GE(piece.Left, 0) << std::wstring(piece.Text);
        EXPECT_LE(piece.Left + piece.Width, client.right) << std::wstring(piece.Text);
    }
}

TEST_F(ViewerGeometry, NoTwoPiecesOfALineOverlap)
{
    OpenBook();
    const help::BookLayout& layout = m_window.View().Layout();
    for (const help::Line& line : layout.Lines)
        for (size_t i = 1; i < line.PieceCount; ++i)
        {
            const help::Piece& before = layout.Pieces[line.FirstPiece + i - 1];
            const help::Piece& piece = layout.Pieces[line.FirstPiece + i];
            EXPECT_LE(before.Left + before.Width, piece.Left) << std::wstring(piece.Text);
        }
}

TEST(FontGeometry, ATextIsAsWideAsTheSystemDrawsItByItself)
{
    help::CFontMeasure fonts;
    const std::wstring text = L"The launcher menu, wide and illicit";
    for (int i = 0; i < help::kTextStyles; ++i)
    {
        const auto style = static_cast<help::TextStyle>(i);
        int width = 0;
        for (const wchar_t unit : text)
            width += fonts.Width(style, unit);
        const int drawn = RightmostInk(fonts.Font(style), text) + 1;
        // But for the room beside the last letter, and what is rounded letter by letter.
        EXPECT_NEAR(drawn, width, Px(4)) << i;
    }
}

TEST_F(ViewerGeometry, ANarrowerWindowBreaksTheLinesAnewAndKeepsTheTopic)
{
    OpenBook(L"Menu_Options");
    const size_t lines = m_window.View().Layout().Lines.size();
    const RECT window = RectOf(m_window.Window());
    SetWindowPos(m_window.Window(), nullptr, 0, 0, Px(160), window.bottom - window.top,
                 SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_GT(m_window.View().Layout().Lines.size(), lines);
    EXPECT_EQ(L"Menu Options", FirstLine());
    EXPECT_EQ(Px(160), ViewRect().right - ViewRect().left);
    // The word of a screen that was turned brings it back to the whole screen.
    SendMessageW(m_window.Window(), WM_SETTINGCHANGE, 0x3002, 0);
    HandleMessages();
    ExpectFullScreen(m_window.Window());
    EXPECT_EQ(lines, m_window.View().Layout().Lines.size());
    EXPECT_EQ(L"Menu Options", FirstLine());
}

TEST_F(ViewerGeometry, AWindowWithoutRoomIsBorne)
{
    OpenBook();
    SetWindowPos(m_window.Window(), nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    SetWindowPos(m_window.Window(), nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
    for (const WPARAM key : {VK_DOWN, VK_NEXT, VK_END, VK_TAB, VK_HOME})
        Press(key);
    EXPECT_EQ(0, m_window.View().Position());
}
