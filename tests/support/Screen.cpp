#include "tests/support/Screen.h"

#include "tests/support/Pixels.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

#include <gtest/gtest.h>

RECT RectOf(HWND window)
{
    RECT rect = {};
    GetWindowRect(window, &rect);
    return rect;
}

bool TurnsInto(COLORREF expected, int x, int y)
{
    return WaitUntil(
        [=]
        {
            const HDC screen = GetDC(nullptr);
            const COLORREF colour = GetPixel(screen, x, y);
            ReleaseDC(nullptr, screen);
            return colour == expected;
        });
}

void ExpectFullScreen(HWND dialog)
{
    const RECT own = RectOf(dialog);
    const RECT bar = RectOf(GetParent(SoftKeyBar(dialog)));
    EXPECT_EQ(0, own.left);
    EXPECT_EQ(0, own.top);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), own.right);
    EXPECT_EQ(bar.top, own.bottom);
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), bar.bottom);
}

void ExpectTitleBand()
{
    const int right = GetSystemMetrics(SM_CXSCREEN) - 1;
    EXPECT_TRUE(TurnsInto(GetSysColor(COLOR_WINDOW), 3, 3));
    EXPECT_TRUE(TurnsInto(GetSysColor(COLOR_WINDOW), right, Px(23) - 1));
    EXPECT_TRUE(TurnsInto(RGB(0, 0, 0), 3, Px(23)));
    EXPECT_TRUE(TurnsInto(RGB(0, 0, 0), right, Px(24) - 1));
}
