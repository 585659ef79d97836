#include "device/help/BookView.h"

#include <windowsx.h>

#include <algorithm>

#include "ui/Scale.h"

namespace help
{
namespace
{

constexpr const wchar_t* kClass = L"TavHelpPage";
constexpr int kWheelLines = 3;

LayoutMetrics Metrics()
{
    LayoutMetrics metrics;
    metrics.Margin = ScaleX(8);
    metrics.Indent = ScaleX(14);
    metrics.Gap = ScaleY(6);
    metrics.HeadingGap = ScaleY(12);
    return metrics;
}

bool IsShiftDown()
{
    return GetKeyState(VK_SHIFT) < 0;
}

} // namespace

void CBookView::CreateIn(HWND parent)
{
    Create(kClass, L"", 0, WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP, {0, 0, 0, 0}, parent);
}

int CBookView::PageHeight() const
{
    RECT client = {};
    GetClientRect(Window(), &client);
    return client.bottom;
}

void CBookView::Show(Book book)
{
    // The layout points into the book.
    m_layout = {};
    m_book = std::move(book);
    m_focus = -1;
    m_pressed = -1;
    m_topicTop = 0;
    m_position = 0;
    Arrange();
    ScrollTo(0);
}

void CBookView::Arrange()
{
    RECT client = {};
    GetClientRect(Window(), &client);
    m_width = client.right;
    m_layout = LayOut(m_book, m_width, Metrics(), m_fonts);
    InvalidateRect(Window(), nullptr, FALSE);
}

// The same text stays at the top when the lines break elsewhere.
void CBookView::OnSize()
{
    RECT client = {};
    GetClientRect(Window(), &client);
    const int margin = Metrics().Margin;
    const bool isAtTopic = m_topicTop > 0 && m_position == m_topicTop;
    const size_t block = BlockAt(m_layout, m_position + margin);
    if (client.right != m_width)
    {
        Arrange();
        if (block < m_layout.BlockTops.size() && m_position > 0)
            m_position = std::max(0, m_layout.BlockTops[block] - margin);
        m_topicTop = isAtTopic ? m_position : 0;
    }
    ScrollTo(m_position);
}

void CBookView::GoTo(const std::wstring& topic)
{
    const std::optional<size_t> block = FindTopic(m_book, topic);
    const bool isKnown = block && *block < m_layout.BlockTops.size() && *block > 0;
    m_topicTop = isKnown ? std::max(0, m_layout.BlockTops[*block] - Metrics().Margin) : 0;
    SetFocusedLink(-1);
    ScrollTo(m_topicTop);
}

void CBookView::SetPosition(int position)
{
    m_topicTop = position;
    ScrollTo(position);
}

void CBookView::UpdateScrollBar()
{
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, m_scrollHeight - 1);
    info.nPage = static_cast<UINT>(PageHeight());
    info.nPos = m_position;
    SetScrollInfo(Window(), SB_VERT, &info, TRUE);
}

void CBookView::ScrollTo(int position)
{
    const int page = PageHeight();
    m_scrollHeight = std::max(m_layout.Height, m_topicTop + page);
    m_position = std::clamp(position, 0, std::max(0, m_scrollHeight - page));
    UpdateScrollBar();
    UpdateText();
    InvalidateRect(Window(), nullptr, FALSE);
}

void CBookView::SetFocusedLink(int link)
{
    m_focus = link;
    UpdateText();
    InvalidateRect(Window(), nullptr, FALSE);
}

void CBookView::UpdateText()
{
    std::wstring text;
    const size_t first = LineAt(m_layout, m_position + Metrics().Margin);
    if (first < m_layout.Lines.size())
        for (size_t i = 0; i < m_layout.Lines[first].PieceCount; ++i)
            text += m_layout.Pieces[m_layout.Lines[first].FirstPiece + i].Text;
    if (m_focus >= 0)
    {
        text += L'\n';
        for (const Piece& piece : m_layout.Pieces)
            if (piece.Link == m_focus)
                text += piece.Text;
    }
    SetWindowTextW(Window(), text.substr(0, 255).c_str());
}

// The next link, if it is in sight or one line from it; otherwise the page moves by a line.
void CBookView::StepTo(bool forward)
{
    const int reach = LineStep();
    const int top = m_position - (forward ? 0 : reach);
    const int bottom = m_position + PageHeight() + (forward ? reach : 0);
    const LinkSpan* const span = m_focus < 0 ? nullptr : SpanOf(m_layout, m_focus);
    const bool isInSight = span && span->Bottom > m_position && span->Top < bottom;
    const int next = NextLink(m_layout, isInSight ? m_focus : -1, forward, top, bottom);
    if (next < 0)
        ScrollTo(m_position + (forward ? reach : -reach));
    else
        Reveal(next);
}

void CBookView::TabTo(bool forward)
{
    int next = NextLink(m_layout, m_focus, forward, INT_MIN, INT_MAX);
    // From the last one on to the first.
    if (next < 0)
        next = NextLink(m_layout, -1, forward, INT_MIN, INT_MAX);
    if (next >= 0)
        Reveal(next);
}

void CBookView::Reveal(int link)
{
    SetFocusedLink(link);
    const LinkSpan* const span = SpanOf(m_layout, link);
    if (!span)
        return;
    const int page = PageHeight();
    if (span->Top < m_position)
        ScrollTo(span->Top - LineStep());
    else if (span->Bottom > m_position + page)
        ScrollTo(span->Bottom + LineStep() - page);
}

void CBookView::Follow(int link)
{
    if (link >= 0 && static_cast<size_t>(link) < m_book.Links.size())
        m_reader.FollowLink(std::wstring(m_book.Links[static_cast<size_t>(link)]));
}

bool CBookView::OnScrollKey(WPARAM key)
{
    const int page = std::max(LineStep(), PageHeight() - LineStep());
    switch (key)
    {
    case VK_NEXT:
        ScrollTo(m_position + page);
        return true;
    case VK_PRIOR:
        ScrollTo(m_position - page);
        return true;
    case VK_SPACE:
        ScrollTo(m_position + (IsShiftDown() ? -page : page));
        return true;
    case VK_HOME:
        ScrollTo(0);
        return true;
    case VK_END:
        ScrollTo(m_scrollHeight);
        return true;
    default:
        return false;
    }
}

void CBookView::OnKey(WPARAM key)
{
    if (OnScrollKey(key))
        return;
    switch (key)
    {
    case VK_DOWN:
    case VK_UP:
        return StepTo(key == VK_DOWN);
    case VK_TAB:
        return TabTo(!IsShiftDown());
    case VK_RETURN:
        return Follow(m_focus);
    case VK_BACK:
    case VK_LEFT:
        return m_reader.GoBack();
    case VK_ESCAPE:
        return m_reader.Leave();
    default:
        return;
    }
}

void CBookView::OnScrollBar(int request)
{
    const int page = std::max(LineStep(), PageHeight() - LineStep());
    SCROLLINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = SIF_TRACKPOS;
    switch (request)
    {
    case SB_LINEDOWN:
        return ScrollTo(m_position + LineStep());
    case SB_LINEUP:
        return ScrollTo(m_position - LineStep());
    case SB_PAGEDOWN:
        return ScrollTo(m_position + page);
    case SB_PAGEUP:
        return ScrollTo(m_position - page);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        if (GetScrollInfo(Window(), SB_VERT, &info))
            ScrollTo(info.nTrackPos);
        return;
    default:
        return;
    }
}

void CBookView::OnWheel(int delta)
{
    ScrollTo(m_position - delta * kWheelLines * LineStep() / WHEEL_DELTA);
}

void CBookView::OnTap(POINT point, bool released)
{
    const int link = LinkAt(m_layout, point.x, point.y + m_position);
    if (!released)
    {
        ::SetFocus(Window());
        m_pressed = link;
        SetFocusedLink(link);
        return;
    }
    const bool isTap = link >= 0 && link == m_pressed;
    m_pressed = -1;
    if (isTap)
        Follow(link);
}

LRESULT CBookView::OnMessage(UINT message, WPARAM wparam, LPARAM lparam)
{
    switch (message)
    {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SIZE:
        OnSize();
        return 0;
    case WM_GETDLGCODE:
        return DLGC_WANTALLKEYS;
    case WM_KEYDOWN:
        OnKey(wparam);
        return 0;
    case WM_VSCROLL:
        OnScrollBar(LOWORD(wparam));
        return 0;
    case WM_MOUSEWHEEL:
        OnWheel(GET_WHEEL_DELTA_WPARAM(wparam));
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_LBUTTONUP:
        OnTap({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, message == WM_LBUTTONUP);
        return 0;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

} // namespace help
