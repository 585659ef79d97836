// How a page of help looks: the painting half of CBookView. All colours are the system's, which are
// the device's own while the shell runs.
#include "device/Painting.h"
#include "device/help/BookView.h"
#include "ui/Scale.h"

namespace help
{
void CBookView::Paint()
{
    const painting::CPaint paint(Window());
    const RECT& area = paint.Area();
    painting::Fill(paint.Dc(), area, GetSysColor(COLOR_WINDOW));
    for (size_t i = LineAt(m_layout, m_position); i < m_layout.Lines.size(); ++i)
    {
        if (m_layout.Lines[i].Top >= m_position + area.bottom)
            break;
        PaintLine(paint.Dc(), m_layout.Lines[i], area.right);
    }
}

void CBookView::PaintLine(HDC dc, const Line& line, int right)
{
    const int top = line.Top - m_position;
    if (line.IsRule)
    {
        const int middle = top + line.Height / 2;
        painting::Fill(dc, {ScaleX(8), middle, right - ScaleX(8), middle + ScaleY(1)},
                       GetSysColor(COLOR_BTNSHADOW));
        return;
    }
    for (size_t i = 0; i < line.PieceCount; ++i)
        PaintPiece(dc, m_layout.Pieces[line.FirstPiece + i], top, line.Height);
}

void CBookView::PaintPiece(HDC dc, const Piece& piece, int top, int height)
{
    const bool isFocused = piece.Link >= 0 && piece.Link == m_focus;
    const bool isHeading =
        piece.Style == TextStyle::Heading || piece.Style == TextStyle::LargeHeading;
    const int element = isFocused                      ? COLOR_HIGHLIGHTTEXT
                        : isHeading || piece.Link >= 0 ? COLOR_HIGHLIGHT
                                                       : COLOR_WINDOWTEXT;
    const int right = piece.Left + piece.Width;
    if (isFocused)
        painting::Fill(dc, {piece.Left - ScaleX(2), top, right + ScaleX(2), top + height},
                       GetSysColor(COLOR_HIGHLIGHT));
    else if (piece.Link >= 0)
        painting::Fill(dc, {piece.Left, top + height - ScaleY(3), right, top + height - ScaleY(2)},
                       GetSysColor(COLOR_HIGHLIGHT));
    m_fonts.Draw(dc, piece.Style, piece.Left, top, piece.Text, GetSysColor(element));
}

} // namespace help
