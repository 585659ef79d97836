#include "platform/aygshell/SipPref.h"

#include "aygshell.h"

#include "platform/aygshell/Module.h"
#include "platform/aygshell/Sip.h"

namespace shell
{

namespace
{

constexpr UINT_PTR kPreferenceSubclass = 5;

// The panel follows the focus so much later, in milliseconds: the step from one edit control to the
// next leaves it where it is, and a dialog that was just shown has come to the front by then, which
// would cover a panel that is up already.
constexpr UINT kFollowDelay = 30;
constexpr UINT_PTR kFollowTimer = 1;

// To the control itself, after its creation: be invisible whatever the template says.
constexpr UINT kHide = WM_USER + 1;

// Whether text can be typed into the window: an edit control that isn't read-only.
bool TakesText(HWND window)
{
    wchar_t name[16] = {};
    if (!GetClassNameW(window, name, ARRAYSIZE(name)) || lstrcmpiW(name, WC_EDITW) != 0)
        return false;
    return (GetWindowLongPtrW(window, GWL_STYLE) & ES_READONLY) == 0;
}

// A dialog that is still to be shown gets its panel when it is.
void FollowFocus(HWND preference)
{
    if (!IsWindowVisible(GetParent(preference)))
        return;
    // What the display has to say is heard before, even when the thread was busy all the while.
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 0, QS_ALLINPUT);
    const HWND focus = GetFocus();
    const bool inDialog = focus != nullptr && IsChild(GetParent(preference), focus);
    SetInputPanel(inDialog && TakesText(focus));
}

LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR preference)
{
    const UINT code = HIWORD(wParam);
    const bool shown = message == WM_SHOWWINDOW && wParam != FALSE;
    if (shown ||
        (message == WM_COMMAND && lParam != 0 && (code == EN_SETFOCUS || code == EN_KILLFOCUS)))
        SetTimer(reinterpret_cast<HWND>(preference), kFollowTimer, kFollowDelay, nullptr);
    if (message == WM_NCDESTROY)
        RemoveWindowSubclass(dialog, DialogProc, id);
    return DefSubclassProc(dialog, message, wParam, lParam);
}

LRESULT CALLBACK PreferenceProc(HWND preference, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_CREATE:
        SetWindowSubclass(GetParent(preference), DialogProc, kPreferenceSubclass,
                          reinterpret_cast<DWORD_PTR>(preference));
        PostMessageW(preference, kHide, 0, 0);
        break;
    case kHide:
        ShowWindow(preference, SW_HIDE);
        return 0;
    case WM_TIMER:
        KillTimer(preference, kFollowTimer);
        FollowFocus(preference);
        return 0;
    case WM_DESTROY:
        RemoveWindowSubclass(GetParent(preference), DialogProc, kPreferenceSubclass);
        SetInputPanel(false);
        break;
    }
    return DefWindowProcW(preference, message, wParam, lParam);
}

} // namespace

bool RegisterSipPrefClass()
{
    return RegisterShellClass(kSipPrefClass, PreferenceProc, CS_GLOBALCLASS);
}

} // namespace shell

BOOL WINAPI SHInitExtraControls()
{
    return shell::RegisterSipPrefClass() ? TRUE : FALSE;
}
