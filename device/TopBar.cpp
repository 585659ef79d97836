#include "device/TopBar.h"

#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/Painting.h"
#include "ui/Scale.h"

namespace
{

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockPeriod = 1000;

} // namespace

CTopBar::CTopBar()
    : m_bold(painting::MakeFont(ScaleY(13), true)), m_normal(painting::MakeFont(ScaleY(13), false))
{
    const RECT area = {0, 0, GetSystemMetrics(SM_CXSCREEN), Height()};
    if (!Create(L"TavLumenarTopBar", L"", WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW,
                WS_POPUP, area))
        return;
    SetTimer(Window(), kClockTimer, kClockPeriod, nullptr);
    ShowWindow(Window(), SW_SHOWNA);
}

int CTopBar::Height()
{
    return ScaleY(26);
}

LRESULT CTopBar::OnMessage(UINT message, WPARAM wparam, LPARAM lparam)
{
    switch (message)
    {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_TIMER:
        InvalidateRect(Window(), nullptr, FALSE);
        return 0;
    case WM_MOUSEACTIVATE:
        // The dialog below keeps the foreground: it would close itself otherwise.
        return MA_NOACTIVATE;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

void CTopBar::Paint()
{
    const painting::CPaint paint(Window());
    painting::FillGradient(paint.Dc(), paint.Area(), colours::kTeal, colours::kDeepTeal);
    RECT area = paint.Area();
    const RECT edge = {0, area.bottom - ScaleY(1), area.right, area.bottom};
    painting::Fill(paint.Dc(), edge, painting::Mix(colours::kDeepTeal, RGB(0, 0, 0), 90));
    InflateRect(&area, -ScaleX(8), 0);
    painting::Text(paint.Dc(), m_bold.get(), L"Tav Lumenar", area, colours::kWhite,
                   DT_LEFT | DT_VCENTER);
    painting::Text(paint.Dc(), m_normal.get(), clockwork::TimeText(), area, colours::kMist,
                   DT_RIGHT | DT_VCENTER);
}

CWorkAreaBelow::CWorkAreaBelow(int top)
{
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &m_earlier, 0);
    RECT area = {0, top, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &area, 0);
}

CWorkAreaBelow::~CWorkAreaBelow()
{
    SystemParametersInfoW(SPI_SETWORKAREA, 0, &m_earlier, 0);
}
