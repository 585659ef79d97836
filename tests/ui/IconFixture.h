// What tests of icons share: a launcher-menu process that fills its rectangle with a colour, and
// bitmaps to look into.
#pragma once

#include "tests/support/ImageProcess.h"
#include "tests/support/Pixels.h"
#include "ui/BitmapBuffer.h"

#include <gtest/gtest.h>

#include <memory>

// Colours that a 16-bit bitmap holds exactly.
constexpr COLORREF kIconWhite = RGB(255, 255, 255);
constexpr COLORREF kIconGreen = RGB(0, 255, 0);
constexpr COLORREF kIconBlue = RGB(0, 0, 255);

inline void FillRectOf(const ImageProcessRequest& request, COLORREF colour)
{
    const RECT rect = request.Rect();
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(request.Dc(), &rect, brush.get());
    GdiFlush();
}

// The rectangle of all pixels that differ from `background`; empty when none does.
inline RECT DrawnPart(HDC dc, int width, int height, COLORREF background)
{
    RECT part = {width, height, 0, 0};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (GetPixel(dc, x, y) != background)
                part = {x < part.left ? x : part.left, y < part.top ? y : part.top,
                        x + 1 > part.right ? x + 1 : part.right,
                        y + 1 > part.bottom ? y + 1 : part.bottom};
    return part.right == 0 ? RECT{} : part;
}

// Opaque everywhere, so that its place is seen: an icon of `side` pixels in one colour.
inline HICON MakeIcon(int side, COLORREF colour)
{
    const UniqueScreenDc screen(GetDC(nullptr));
    const UniqueMemoryDc dc(CreateCompatibleDC(screen.get()));
    const UniqueBitmap picture(CreateCompatibleBitmap(screen.get(), side, side));
    const UniqueBitmap mask(CreateBitmap(side, side, 1, 1, nullptr));
    const RECT all = {0, 0, side, side};
    {
        const CSelectObject selected(dc.get(), picture.get());
        const UniqueBrush brush(CreateSolidBrush(colour));
        FillRect(dc.get(), &all, brush.get());
    }
    {
        const CSelectObject selected(dc.get(), mask.get());
        FillRect(dc.get(), &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    }
    ICONINFO info = {TRUE, 0, 0, mask.get(), picture.get()};
    return CreateIconIndirect(&info);
}
