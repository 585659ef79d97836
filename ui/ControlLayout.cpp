#include "ui/ControlLayout.h"

#include "platform/os/WindowClass.h"
#include "ui/DialogFonts.h"
#include "ui/Scale.h"

#include <string>

namespace
{

constexpr int kLineHeight = 20;
constexpr int kComboHeight = 19;
constexpr LONG kButtonTypeMask = 0xF;

void SetControlFont(HWND control, bool bold)
{
    const HFONT font = CDialogFonts::Instance().Get(bold);
    SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
}

// Compares with the unscaled limit, deliberately: a control that the dialog manager already made
// small stays as it is.
void LimitHeight(HWND control, int limit)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    if (rect.bottom - rect.top <= limit)
        return;
    SetWindowPos(control, nullptr, 0, 0, rect.right - rect.left, ScaleY(limit),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void MoveToEvenRow(HWND dialog, HWND control)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    if (rect.top % 2 == 0)
        return;
    POINT corner = {rect.left, rect.top - 1};
    ScreenToClient(dialog, &corner);
    SetWindowPos(control, nullptr, corner.x, corner.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void LayoutButton(HWND dialog, HWND control)
{
    const LONG type = GetWindowLongW(control, GWL_STYLE) & kButtonTypeMask;
    const bool isPushButton = type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
    SetControlFont(control, isPushButton);
    if (!isPushButton)
        MoveToEvenRow(dialog, control);
}

void LayoutTabControl(HWND control)
{
    const auto old = reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0));
    SetControlFont(control, false);
    if (old && old != CDialogFonts::Instance().Get(false))
        DeleteObject(old);
}

void LayoutControl(HWND dialog, HWND control)
{
    const std::wstring name = os::HandheldClassName(control);
    if (name == L"Button")
        LayoutButton(dialog, control);
    else if (name == L"static")
        SetControlFont(control, (GetWindowLongW(control, GWL_STYLE) & WS_GROUP) == 0);
    else if (name == L"msctls_updown32")
        LimitHeight(control, kLineHeight);
    else if (name == L"SysTabControl32")
        LayoutTabControl(control);
    else
        SetControlFont(control, false);

    if (name == L"combobox")
        LimitHeight(control, kComboHeight);
    else if (name == L"Edit")
        LimitHeight(control, kLineHeight);
}

} // namespace

void LayoutControls(HWND dialog)
{
    for (HWND control = GetWindow(dialog, GW_CHILD); control;
         control = GetWindow(control, GW_HWNDNEXT))
        LayoutControl(dialog, control);
}

RECT ControlPlace(HWND dialog, HWND control)
{
    RECT place = {};
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

void MoveControl(HWND control, const RECT& place)
{
    MoveWindow(control, place.left, place.top, place.right - place.left, place.bottom - place.top,
               TRUE);
}

void FitMainControl(HWND dialog, HWND control)
{
    if (!control)
        return;
    RECT place = {};
    GetClientRect(dialog, &place);
    place.top = ControlPlace(dialog, control).top;
    MoveControl(control, place);
}
