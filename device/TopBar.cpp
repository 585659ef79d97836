#include "device/TopBar.h"

#include <windowsx.h>

#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/Painting.h"
#include "device/Rotation.h"
#include "device/Texts.h"
#include "ui/Scale.h"

namespace
{

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockPeriod = 1000;

constexpr int kTurnKey = 1;
// To the bar itself, when all other windows have heard of a new screen.
constexpr UINT kTidyUp = WM_APP;

RECT Screen()
{
    return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
}

// Tells the windows (SPIF_SENDCHANGE) only of a change.
void SetWorkArea(RECT wanted, UINT announcement)
{
    RECT area = {};
    if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0) || !EqualRect(&area, &wanted))
        SystemParametersInfoW(SPI_SETWORKAREA, 0, &wanted, announcement);
}

RECT ScreenBelow(int top)
{
    RECT area = Screen();
    area.top = top;
    return area;
}

} // namespace

CTopBar::CTopBar()
    : m_bold(painting::MakeFont(ScaleY(13), true)), m_normal(painting::MakeFont(ScaleY(13), false)),
      m_canTurn(CanRotateScreen())
{
    const RECT area = {0, 0, GetSystemMetrics(SM_CXSCREEN), Height()};
    if (!Create(L"TavLumenarTopBar", L"", WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW,
                WS_POPUP, area))
        return;
    SetTimer(Window(), kClockTimer, kClockPeriod, nullptr);
    // The key works with every dialog open, but it is taken only where the screen is a device's
    // own: it is the whole system's.
    if (rotation::IsDeviceScreen({Screen().right, Screen().bottom}))
        RegisterHotKey(Window(), kTurnKey, 0, VK_F9);
    ShowWindow(Window(), SW_SHOWNA);
}

int CTopBar::Height()
{
    return ScaleY(26);
}

RECT CTopBar::TurnButton(SIZE bar)
{
    // Left of the clock, for whose longest time room is kept.
    const LONG right = bar.cx - ScaleX(60);
    return {right - ScaleX(26), 0, right, bar.cy};
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
    case WM_LBUTTONUP:
        OnTap({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)});
        return 0;
    case WM_HOTKEY:
        Turn();
        return 0;
    case WM_DISPLAYCHANGE:
        OnScreenChange();
        return 0;
    case kTidyUp:
        rotation::KeepMessageBoxesOnScreen();
        return 0;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

void CTopBar::OnTap(POINT point)
{
    RECT client = {};
    GetClientRect(Window(), &client);
    const RECT button = TurnButton({client.right, client.bottom});
    if (m_canTurn && PtInRect(&button, point))
        Turn();
}

void CTopBar::Turn()
{
    // The active window is a dialog of the module or the home screen: a box over any other would
    // take the foreground from it.
    if (!RotateScreen())
        MessageBoxW(GetActiveWindow(), texts::Translate(texts::kCannotTurn).c_str(), L"Tav Lumenar",
                    MB_OK | MB_ICONINFORMATION);
}

// The system gives the whole of a new screen to the windows, and may have forgotten the bar.
void CTopBar::OnScreenChange()
{
    SetWindowPos(Window(), nullptr, 0, 0, Screen().right, Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    InvalidateRect(Window(), nullptr, FALSE);
    SetWorkArea(ScreenBelow(Height()), SPIF_SENDCHANGE);
    PostMessageW(Window(), kTidyUp, 0, 0);
}

void CTopBar::Paint()
{
    const painting::CPaint paint(Window());
    painting::FillGradient(paint.Dc(), paint.Area(), colours::kTeal, colours::kDeepTeal);
    RECT area = paint.Area();
    const RECT edge = {0, area.bottom - ScaleY(1), area.right, area.bottom};
    painting::Fill(paint.Dc(), edge, painting::Mix(colours::kDeepTeal, RGB(0, 0, 0), 90));
    if (m_canTurn)
        PaintTurnButton(paint.Dc(), TurnButton({area.right, area.bottom}));
    InflateRect(&area, -ScaleX(8), 0);
    painting::Text(paint.Dc(), m_bold.get(), L"Tav Lumenar", area, colours::kWhite,
                   DT_LEFT | DT_VCENTER);
    painting::Text(paint.Dc(), m_normal.get(), clockwork::TimeText(), area, colours::kMist,
                   DT_RIGHT | DT_VCENTER);
}

// Two screens, one behind the other: as it is upright, and on its side.
void CTopBar::PaintTurnButton(HDC dc, const RECT& area) const
{
    const int line = ScaleX(1);
    const int longSide = ScaleX(14);
    const int shortSide = ScaleX(10);
    const int left = (area.left + area.right - longSide) / 2;
    const int bottom = (area.top + area.bottom + longSide) / 2;
    const auto draw = [&](int width, int height, COLORREF edge)
    {
        RECT screen = {left, bottom - height, left + width, bottom};
        painting::Fill(dc, screen, edge);
        InflateRect(&screen, -line, -line);
        painting::Fill(dc, screen, painting::Mix(colours::kTeal, colours::kDeepTeal, 128));
    };
    const bool upright = Screen().right < Screen().bottom;
    const int across = upright ? shortSide : longSide;
    const int along = upright ? longSide : shortSide;
    // What it would become is behind, and paler.
    draw(along, across, painting::Mix(colours::kTeal, colours::kMist, 120));
    draw(across, along, colours::kMist);
}

CWorkAreaBelow::CWorkAreaBelow(int top)
{
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &m_earlier, 0);
    SetWorkArea(ScreenBelow(top), 0);
}

CWorkAreaBelow::~CWorkAreaBelow()
{
    // The earlier area is that of the screen as it was: it may have been turned since.
    const RECT screen = Screen();
    const bool fits = m_earlier.right <= screen.right && m_earlier.bottom <= screen.bottom;
    SetWorkArea(fits ? m_earlier : screen, 0);
}
