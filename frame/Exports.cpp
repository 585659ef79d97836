// The five functions that a host calls: where an export meets its dialog.
#include "include/TavLumenarDialogs.h"

#include "dialogs/city/SelectCityDlg.h"
#include "dialogs/home/CustomizeHomeDlg.h"
#include "dialogs/menu/CustomizeMenuDlg.h"
#include "dialogs/now/CustomizeNowDlg.h"
#include "dialogs/wizard/InstallWizardDlg.h"
#include "frame/ExceptionMemory.h"
#include "menu/MemoryFailure.h"

namespace
{

// Runs a dialog; TRUE exactly when it was confirmed.
template <class Dialog>
BOOL RunConfirmed(Dialog& dialog, HWND owner)
{
    return dialog.RunModal(owner) == IDOK;
}

// Does the work of an export. Memory that runs out before the dialog is there is reported as the
// model reports it. Where there is none even for telling so, no dialog is begun, as when there is
// none for its window procedure.
template <class Work>
BOOL Export(Work work)
{
    const CExceptionMemory memory;
    if (memory.IsReady())
        return WithMemoryFailure(work);
    SetLastError(ERROR_OUTOFMEMORY);
    return FALSE;
}

} // namespace

BOOL WINAPI CustomizeMenu(HWND owner, DWORD /*unused2*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    return Export(
        [&]
        {
            CCustomizeMenuDlg dialog;
            return RunConfirmed(dialog, owner);
        });
}

BOOL WINAPI CustomizeHome(HWND owner, DWORD maxPinned, DWORD /*unused3*/, DWORD /*unused4*/)
{
    return Export(
        [&]
        {
            CCustomizeHomeDlg dialog(maxPinned);
            return RunConfirmed(dialog, owner);
        });
}

BOOL WINAPI CustomizeNow(HWND owner, DWORD /*unused2*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    return Export(
        [&]
        {
            CCustomizeNowDlg dialog;
            return RunConfirmed(dialog, owner);
        });
}

// The host's record is touched only when a city was confirmed.
BOOL WINAPI SelectCity(HWND owner, CITYINFO* city, DWORD /*unused3*/)
{
    if (!city)
        return FALSE;
    return Export(
        [&]
        {
            CSelectCityDlg dialog(*city);
            if (!RunConfirmed(dialog, owner))
                return FALSE;
            *city = dialog.City;
            return TRUE;
        });
}

// Owned by whatever window is active: the host passes none.
BOOL WINAPI InstallWizard(DWORD /*unused1*/, DWORD /*unused2*/, DWORD /*unused3*/,
                          DWORD /*unused4*/)
{
    return Export(
        [&]
        {
            CInstallWizardDlg dialog;
            return RunConfirmed(dialog, GetActiveWindow());
        });
}
