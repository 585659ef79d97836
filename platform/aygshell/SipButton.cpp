#include "platform/aygshell/SipButton.h"

#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/Painting.h"
#include "platform/aygshell/Sip.h"

namespace shell
{

namespace
{

// Where the window keeps its colour.
constexpr int kBackground = 0;

// The picture, in logical pixels: a keyboard's outline with two rows of keys and a space bar.
constexpr int kPictureWidth = 18;
constexpr int kPictureHeight = 11;
constexpr RECT kPictureParts[] = {
    {0, 0, 18, 1}, {0, 10, 18, 11}, {0, 0, 1, 11},  {17, 0, 18, 11}, {3, 3, 5, 4},
    {6, 3, 8, 4},  {9, 3, 11, 4},   {12, 3, 15, 4}, {3, 5, 5, 6},    {6, 5, 8, 6},
    {9, 5, 11, 6}, {12, 5, 15, 6},  {5, 7, 13, 8},
};

void PaintPicture(HDC dc, const RECT& area, COLORREF colour)
{
    const int left = (area.right - Scaled(kPictureWidth)) / 2;
    const int top = (area.bottom - Scaled(kPictureHeight)) / 2;
    for (const RECT& part : kPictureParts)
    {
        const RECT scaled{left + Scaled(part.left), top + Scaled(part.top),
                          left + Scaled(part.right), top + Scaled(part.bottom)};
        FillPlain(dc, scaled, colour);
    }
}

// Lit while the panel is up.
void Paint(HDC dc, const RECT& area, COLORREF background)
{
    const bool lit = IsInputPanelUp();
    PaintBarSurface(dc, area, background);
    if (lit)
        FillPlain(dc, area, GetSysColor(COLOR_HIGHLIGHT));
    PaintPicture(dc, area, GetSysColor(lit ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT));
}

LRESULT CALLBACK ButtonProc(HWND button, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SetInputPanel(!IsInputPanelUp());
        InvalidateRect(button, nullptr, FALSE);
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
    {
        const auto background = static_cast<COLORREF>(GetWindowLongW(button, kBackground));
        PaintBuffered(button,
                      [background](HDC dc, const RECT& area) { Paint(dc, area, background); });
        return 0;
    }
    }
    return DefWindowProcW(button, message, wParam, lParam);
}

} // namespace

bool RegisterSipButtonClass()
{
    return RegisterShellClass(kSipButtonClass, ButtonProc, 0, sizeof(LONG));
}

HWND CreateSipButton(HWND bar, int id, COLORREF background)
{
    const HWND button =
        CreateWindowExW(0, kSipButtonClass, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 0, 0, bar,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Instance(), nullptr);
    if (button != nullptr)
        SetWindowLongW(button, kBackground, static_cast<LONG>(background));
    return button;
}

} // namespace shell
