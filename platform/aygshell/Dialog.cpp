// SHInitDialog: sizes the dialog and subclasses it, so that it keeps fitting the screen and its
// tree and list views behave like the handheld's.
#include "aygshell.h"

#include "platform/aygshell/MenuBar.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/Sip.h"
#include "platform/aygshell/StylusControls.h"

namespace shell
{

namespace
{

constexpr UINT_PTR kDialogSubclass = 1;

// Handheld dialogs have no frame; their text stays with the window for whoever paints a title.
void RemoveFrame(HWND dialog)
{
    constexpr LONG_PTR kFrame = WS_CAPTION | WS_THICKFRAME;
    constexpr LONG_PTR kExtendedFrame =
        WS_EX_DLGMODALFRAME | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE | WS_EX_STATICEDGE;
    SetWindowLongPtrW(dialog, GWL_STYLE, GetWindowLongPtrW(dialog, GWL_STYLE) & ~kFrame);
    SetWindowLongPtrW(dialog, GWL_EXSTYLE,
                      GetWindowLongPtrW(dialog, GWL_EXSTYLE) & ~kExtendedFrame);
}

void FitDialog(HWND dialog)
{
    const RECT place = DialogRect();
    SetWindowPos(dialog, nullptr, place.left, place.top, Width(place), Height(place),
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// Fits the dialog and its bar before the dialog hears of the new screen. Handheld programs wait
// for the screen reset, which desktop systems don't send after WM_DISPLAYCHANGE.
LRESULT OnScreenChange(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    RECT before{};
    GetWindowRect(dialog, &before);
    FitDialog(dialog);
    FitMenuBar(dialog);
    RECT after{};
    GetWindowRect(dialog, &after);
    if (!EqualRect(&before, &after))
        CloseOpenMenu();

    const LRESULT result = DefSubclassProc(dialog, message, wParam, lParam);
    const bool isReset = message == WM_SETTINGCHANGE && wParam == kScreenReset;
    if (!isReset && !EqualRect(&before, &after) && IsWindow(dialog))
        SendMessageW(dialog, WM_SETTINGCHANGE, kScreenReset, 0);
    return result;
}

LRESULT CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR flags)
{
    if (IsScreenChange(message, wParam) && (flags & SHIDIF_SIZEDLGFULLSCREEN) != 0)
        return OnScreenChange(dialog, message, wParam, lParam);
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE)
        GiveStylusManners(reinterpret_cast<HWND>(lParam));
    if (message == WM_NCDESTROY)
        RemoveWindowSubclass(dialog, DialogProc, id);
    return DefSubclassProc(dialog, message, wParam, lParam);
}

// Desktop systems make a sunken edge of a template's border, which is two pixels wide; the
// handheld's is a plain line.
void GivePlainBorder(HWND control)
{
    const LONG_PTR extended = GetWindowLongPtrW(control, GWL_EXSTYLE);
    if ((extended & WS_EX_CLIENTEDGE) == 0)
        return;
    SetWindowLongPtrW(control, GWL_EXSTYLE, extended & ~static_cast<LONG_PTR>(WS_EX_CLIENTEDGE));
    SetWindowLongPtrW(control, GWL_STYLE, GetWindowLongPtrW(control, GWL_STYLE) | WS_BORDER);
    SetWindowPos(control, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

BOOL CALLBACK GiveManners(HWND control, LPARAM /*unused*/)
{
    GivePlainBorder(control);
    GiveStylusManners(control);
    return TRUE;
}

DWORD CheckInfo(const SHINITDLGINFO* info)
{
    if (info == nullptr || info->dwMask != SHIDIM_FLAGS)
        return ERROR_INVALID_PARAMETER;
    return CheckOwnWindow(info->hDlg);
}

} // namespace

} // namespace shell

BOOL WINAPI SHInitDialog(SHINITDLGINFO* info)
{
    using namespace shell;
    const DWORD error = CheckInfo(info);
    if (error != ERROR_SUCCESS)
        return Fail(error);
    if (!SetWindowSubclass(info->hDlg, DialogProc, kDialogSubclass, info->dwFlags))
        return Fail(ERROR_NOT_ENOUGH_MEMORY);
    EnumChildWindows(info->hDlg, GiveManners, 0);
    if ((info->dwFlags & SHIDIF_SIZEDLGFULLSCREEN) != 0)
    {
        RemoveFrame(info->hDlg);
        FitDialog(info->hDlg);
    }
    if ((info->dwFlags & SHIDIF_SIPDOWN) != 0)
        SetInputPanel(false);
    return TRUE;
}
