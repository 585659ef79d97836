#include "ui/PPCDialog.h"

#include "frame/Localizer.h"
#include "ui/DialogInit.h"
#include "ui/ShellDialog.h"

namespace ppc
{

void BeginDialog(HWND dialog, const std::wstring& caption, UINT templateId, UINT& scrollMessage)
{
    scrollMessage = RegisterWindowMessageW(L"PPCD_ScrollMessage");
    PrepareShellDialog(dialog);
    if (!caption.empty())
        SetWindowTextW(dialog, caption.c_str());
    LayoutControls(dialog);
    RunDialogInit(dialog, templateId);
}

void FinishDialog(HWND dialog, HWND mainControl, bool focusFirstControl)
{
    GetLocalizer().TranslateDialog(dialog);
    GetLocalizer().TranslateMenuBar(dialog, FALSE);
    FitMainControl(dialog, mainControl);
    if (focusFirstControl)
        SetFocus(GetWindow(dialog, GW_CHILD));
}

void ScrollTitleBand(HWND dialog, int position)
{
    const auto bottom =
        ScrolledBandBottom(position, VerticalScrollPosition(dialog), TitleBandHeight());
    if (!bottom)
        return;
    const RECT band = {0, 0, GetSystemMetrics(SM_CXSCREEN), *bottom + TitleLineThickness()};
    InvalidateRect(dialog, &band, TRUE);
}

void EnableOwner(HWND dialog)
{
    const HWND owner = GetWindow(dialog, GW_OWNER);
    if (owner)
        EnableWindow(owner, TRUE);
}

bool IsOwnNotification(HWND dialog, LPARAM lParam)
{
    const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
    return header && !IsBadReadPtr(header, sizeof(*header)) && IsChild(dialog, header->hwndFrom);
}

} // namespace ppc
