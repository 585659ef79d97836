// Drawing that the bar, its input-panel button and the on-screen keyboard share.
#pragma once

#include "platform/Handles.h"

namespace shell
{

// Fills with a plain colour.
void FillPlain(HDC dc, const RECT& area, COLORREF colour);

// The bar's own surface with its upper edge, for whatever stands on the bar. `background` is
// CLR_DEFAULT for the system's colour.
void PaintBarSurface(HDC dc, const RECT& area, COLORREF background);

// Answers WM_PAINT without flicker: paint(dc, clientArea) draws off-screen.
template <class Paint>
void PaintBuffered(HWND window, Paint paint)
{
    PAINTSTRUCT info;
    const HDC target = BeginPaint(window, &info);
    RECT area{};
    GetClientRect(window, &area);
    const UniqueMemoryDc memory(CreateCompatibleDC(target));
    const UniqueBitmap bitmap(CreateCompatibleBitmap(target, area.right, area.bottom));
    if (memory && bitmap)
    {
        const CSelectObject selected(memory.get(), bitmap.get());
        paint(memory.get(), area);
        BitBlt(target, 0, 0, area.right, area.bottom, memory.get(), 0, 0, SRCCOPY);
    }
    EndPaint(window, &info);
}

} // namespace shell
