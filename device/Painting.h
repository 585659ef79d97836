// Small drawing helpers of the shell's windows.
#pragma once

#include "platform/Win.h"

#include <string>

#include "platform/Handles.h"

namespace painting
{

// Fills a rectangle with one colour, or with a gradient from top to bottom.
void Fill(HDC dc, const RECT& area, COLORREF colour);
void FillGradient(HDC dc, const RECT& area, COLORREF top, COLORREF bottom);

// A colour `share`/255 of the way from one to another.
COLORREF Mix(COLORREF from, COLORREF to, int share);

// The handheld's face at a height in device pixels.
UniqueFont MakeFont(int height, bool bold);

// Draws one line of text, cut with "..." where it doesn't fit. `format` is DrawText's alignment.
void Text(HDC dc, HFONT font, const std::wstring& text, RECT area, COLORREF colour, UINT format);

// A drawing surface that appears on the window all at once when the object goes.
class CPaint
{
public:
    explicit CPaint(HWND window);
    ~CPaint();
    CPaint(const CPaint&) = delete;
    CPaint& operator=(const CPaint&) = delete;

    HDC Dc() const { return m_memory.get(); }
    const RECT& Area() const { return m_area; }

private:
    HWND m_window;
    PAINTSTRUCT m_paint = {};
    RECT m_area = {};
    UniqueBitmap m_bitmap;
    UniqueMemoryDc m_memory;
    HGDIOBJ m_oldBitmap = nullptr;
};

} // namespace painting
