// The five functions that a host calls: where an export meets its dialog.
#include "include/TavLumenarDialogs.h"

#include "dialogs/city/SelectCityDlg.h"
#include "dialogs/home/CustomizeHomeDlg.h"
#include "dialogs/menu/CustomizeMenuDlg.h"
#include "dialogs/now/CustomizeNowDlg.h"
#include "dialogs/wizard/InstallWizardDlg.h"

namespace
{

// Runs a dialog; TRUE exactly when it was confirmed.
template <class Dialog>
BOOL RunConfirmed(Dialog& dialog, HWND owner)
{
    return dialog.RunModal(owner) == IDOK;
}

} // namespace

BOOL WINAPI CustomizeMenu(HWND owner, DWORD /*unused2*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    CCustomizeMenuDlg dialog;
    return RunConfirmed(dialog, owner);
}

BOOL WINAPI CustomizeHome(HWND owner, DWORD maxPinned, DWORD /*unused3*/, DWORD /*unused4*/)
{
    CCustomizeHomeDlg dialog(maxPinned);
    return RunConfirmed(dialog, owner);
}

BOOL WINAPI CustomizeNow(HWND owner, DWORD /*unused2*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    CCustomizeNowDlg dialog;
    return RunConfirmed(dialog, owner);
}

// The host's record is touched only when a city was confirmed.
BOOL WINAPI SelectCity(HWND owner, CITYINFO* city, DWORD /*unused3*/)
{
    if (!city)
        return FALSE;
    CSelectCityDlg dialog(*city);
    if (!RunConfirmed(dialog, owner))
        return FALSE;
    *city = dialog.City;
    return TRUE;
}

// Owned by whatever window is active: the host passes none.
BOOL WINAPI InstallWizard(DWORD /*unused1*/, DWORD /*unused2*/, DWORD /*unused3*/,
                          DWORD /*unused4*/)
{
    CInstallWizardDlg dialog;
    return RunConfirmed(dialog, GetActiveWindow());
}
