#include "ui/GlobalImageCtlr.h"

#include "frame/MenuProcess.h"
#include "frame/TavException.h"
#include "ui/ImagePath.h"
#include "ui/ImageRequest.h"
#include "ui/Paint.h"

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace

void CGlobalImageCtlr::SetIcon(int number)
{
    m_iconNumber = number;
    m_imagePath.clear();
    MarkDirty();
}

void CGlobalImageCtlr::SetImagePath(const std::wstring& path)
{
    m_iconNumber = kNoIcon;
    m_imagePath = path;
    MarkDirty();
}

// The painting begins first: should the bitmap fail, the control is not asked to paint for ever.
LRESULT CGlobalImageCtlr::OnPaint(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/,
                                  BOOL& /*handled*/)
{
    const CPaint paint(m_hWnd);
    if (m_dirty)
        Redraw();
    const RECT& rect = paint.rect();
    BitBlt(paint.dc(), rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
           m_buffer.GetMemoryDC(), rect.left, rect.top, SRCCOPY);
    return 0;
}

LRESULT CGlobalImageCtlr::OnSize(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/,
                                 BOOL& /*handled*/)
{
    MarkDirty();
    return 0;
}

void CGlobalImageCtlr::MarkDirty()
{
    m_dirty = TRUE;
    InvalidateRect(nullptr, TRUE);
}

// While the launcher-menu process is asked, other messages may come in: what they set marks the
// buffer dirty anew.
void CGlobalImageCtlr::Redraw()
{
    m_dirty = FALSE;
    RECT client = {};
    GetClientRect(&client);
    FitBuffer(client);
    m_buffer.Fill(client.left, client.top, client.right, client.bottom, kWhite, 255);
    if (m_iconNumber != kNoIcon)
    {
        RefreshMenuProcess();
        DrawIconNumber(m_iconNumber, m_buffer.GetMemoryDC(), client);
    }
    else if (!m_imagePath.empty())
        DrawImagePath(std::wstring(m_imagePath), m_buffer);
}

void CGlobalImageCtlr::FitBuffer(const RECT& client)
{
    const int width = client.right - client.left;
    const int height = client.bottom - client.top;
    if (width == m_buffer.Width() && height == m_buffer.Height())
        return;
    if (!m_buffer.Create(width, height, BitmapFormatRgb565))
        ThrowLastError();
}
