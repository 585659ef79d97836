#include "device/Painting.h"

#include "device/PaintingRecorder.h"

namespace painting
{

void Fill(HDC dc, const RECT& area, COLORREF colour)
{
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(dc, &area, brush.get());
}

COLORREF Mix(COLORREF from, COLORREF to, int share)
{
    const auto channel = [&](int a, int b) { return a + (b - a) * share / 255; };
    return RGB(channel(GetRValue(from), GetRValue(to)), channel(GetGValue(from), GetGValue(to)),
               channel(GetBValue(from), GetBValue(to)));
}

void FillGradient(HDC dc, const RECT& area, COLORREF top, COLORREF bottom)
{
    const int height = area.bottom - area.top;
    for (int y = 0; y < height; ++y)
    {
        const RECT line = {area.left, area.top + y, area.right, area.top + y + 1};
        Fill(dc, line, Mix(top, bottom, y * 255 / (height > 1 ? height - 1 : 1)));
    }
}

UniqueFont MakeFont(int height, bool bold)
{
    LOGFONTW font = {};
    font.lfHeight = height;
    font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    lstrcpynW(font.lfFaceName, L"Tahoma", LF_FACESIZE);
    return UniqueFont(CreateFontIndirectW(&font));
}

void Text(HDC dc, HFONT font, const std::wstring& text, RECT area, COLORREF colour, UINT format)
{
    const CSelectObject selected(dc, font);
    Record(dc, text, area);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, colour);
    DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &area,
              format | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

CPaint::CPaint(HWND window) : m_window(window)
{
    const HDC screen = BeginPaint(window, &m_paint);
    GetClientRect(window, &m_area);
    m_bitmap.reset(CreateCompatibleBitmap(screen, m_area.right, m_area.bottom));
    m_memory.reset(CreateCompatibleDC(screen));
    m_oldBitmap = SelectObject(m_memory.get(), m_bitmap.get());
}

CPaint::~CPaint()
{
    BitBlt(m_paint.hdc, 0, 0, m_area.right, m_area.bottom, m_memory.get(), 0, 0, SRCCOPY);
    SelectObject(m_memory.get(), m_oldBitmap);
    EndPaint(m_window, &m_paint);
}

} // namespace painting
