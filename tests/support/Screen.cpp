#include "tests/support/Screen.h"

#include "tests/support/DialogRun.h"
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

std::vector<HWND> ControlsOf(HWND dialog)
{
    std::vector<HWND> controls;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        controls.push_back(child);
    return controls;
}

int TextWidthOf(HWND control)
{
    const std::wstring text = TextOf(control);
    const HDC dc = GetDC(control);
    const HGDIOBJ old =
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    SIZE size = {};
    GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return static_cast<int>(size.cx);
}

void ExpectControlsApart(HWND dialog)
{
    const RECT own = RectOf(dialog);
    const std::vector<HWND> controls = ControlsOf(dialog);
    for (size_t i = 0; i < controls.size(); ++i)
    {
        const RECT rect = RectOf(controls[i]);
        EXPECT_GE(rect.left, own.left) << i;
        EXPECT_GE(rect.top, own.top + Px(24)) << i;
        EXPECT_LE(rect.right, own.right) << i;
        EXPECT_LE(rect.bottom, own.bottom) << i;
        for (size_t j = i + 1; j < controls.size(); ++j)
        {
            const RECT other = RectOf(controls[j]);
            RECT common = {};
            EXPECT_FALSE(IntersectRect(&common, &rect, &other)) << i << " and " << j;
        }
    }
}
