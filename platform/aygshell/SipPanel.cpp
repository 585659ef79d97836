#include "platform/aygshell/SipPanel.h"

#include <atomic>

#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/SipKeys.h"
#include "platform/aygshell/SipPainting.h"

namespace shell
{

namespace
{

// The one keyboard of the process; its window belongs to the thread that raised it.
std::atomic<HWND> g_panel{nullptr};

// The window's own state: which key is pressed (-1: none) and whether Shift is on.
constexpr int kPressedKey = 0;
constexpr int kShiftOn = sizeof(LONG);

SipLook LookOf(HWND panel)
{
    return {static_cast<int>(GetWindowLongW(panel, kPressedKey)),
            GetWindowLongW(panel, kShiftOn) != 0};
}

void SetLook(HWND panel, SipLook look)
{
    SetWindowLongW(panel, kPressedKey, look.Pressed);
    SetWindowLongW(panel, kShiftOn, look.Shifted);
    RedrawWindow(panel, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

// Where typing goes: the focus of the foreground thread, which the panel never takes.
HWND TypingTarget()
{
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    return GetGUIThreadInfo(0, &state) ? state.hwndFocus : nullptr;
}

void TypeKey(HWND target, UINT key)
{
    const auto scan = static_cast<LPARAM>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) << 16;
    PostMessageW(target, WM_KEYDOWN, key, scan | 1);
    PostMessageW(target, WM_KEYUP, key, scan | static_cast<LPARAM>(0xC0000001));
}

// One shifted character ends Shift, as on the handheld.
void Type(HWND panel, const SipKey& key)
{
    const bool shifted = LookOf(panel).Shifted;
    const HWND target = TypingTarget();
    switch (key.Action)
    {
    case SipAction::Shift:
        SetLook(panel, {-1, !shifted});
        return;
    case SipAction::Backspace:
        TypeKey(target, VK_BACK);
        break;
    case SipAction::Enter:
        TypeKey(target, VK_RETURN);
        break;
    case SipAction::Character:
        PostMessageW(target, WM_CHAR, shifted ? key.Shifted : key.Plain, 1);
        break;
    }
    SetLook(panel, {-1, key.Action != SipAction::Character && shifted});
}

int KeyUnder(HWND panel, POINT point)
{
    RECT area{};
    GetClientRect(panel, &area);
    return SipKeyUnder(point.x, point.y, area.right, area.bottom);
}

void OnPress(HWND panel, POINT point)
{
    const int key = KeyUnder(panel, point);
    if (key < 0)
        return;
    SetCapture(panel);
    SetLook(panel, {key, LookOf(panel).Shifted});
}

// The key counts that was pressed and is still under the stylus.
void OnRelease(HWND panel, POINT point)
{
    const SipLook look = LookOf(panel);
    if (look.Pressed < 0)
        return;
    ReleaseCapture();
    SetLook(panel, {-1, look.Shifted});
    if (KeyUnder(panel, point) == look.Pressed)
        Type(panel, SipKeyAt(look.Pressed));
}

void FitPanel(HWND panel)
{
    const RECT place = PanelRect();
    SetWindowPos(panel, HWND_TOPMOST, place.left, place.top, Width(place), Height(place),
                 SWP_NOACTIVATE);
    InvalidateRect(panel, nullptr, FALSE);
}

LRESULT CALLBACK PanelProc(HWND panel, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsScreenChange(message, wParam))
        FitPanel(panel);
    switch (message)
    {
    case WM_NCCREATE:
        SetWindowLongW(panel, kPressedKey, -1);
        break;
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_PAINT:
        PaintSipPanel(panel, LookOf(panel));
        return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnPress(panel, PointOf(lParam));
        return 0;
    case WM_LBUTTONUP:
        OnRelease(panel, PointOf(lParam));
        return 0;
    }
    return DefWindowProcW(panel, message, wParam, lParam);
}

HWND CreatePanel()
{
    const RECT place = PanelRect();
    const HWND panel = CreateWindowExW(
        WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TOPMOST, kSipPanelClass, nullptr, WS_POPUP,
        place.left, place.top, Width(place), Height(place), nullptr, nullptr, Instance(), nullptr);
    if (panel != nullptr)
        ShowWindow(panel, SW_SHOWNA);
    return panel;
}

// A window can be destroyed by its own thread only; WM_CLOSE asks another thread to do it.
void RemovePanel(HWND panel)
{
    if (CheckOwnWindow(panel) == ERROR_SUCCESS)
        DestroyWindow(panel);
    else
        PostMessageW(panel, WM_CLOSE, 0, 0);
}

} // namespace

bool RegisterSipPanelClass()
{
    return RegisterShellClass(kSipPanelClass, PanelProc, 0, 2 * sizeof(LONG));
}

void ShowSipPanel(bool show)
{
    if (show && IsWindow(g_panel))
        return;
    const HWND before = g_panel.exchange(show ? CreatePanel() : nullptr);
    if (before != nullptr)
        RemovePanel(before);
}

} // namespace shell
