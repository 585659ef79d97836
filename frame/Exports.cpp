// The five functions that a host calls: where an export meets its dialog.
#include "include/TavLumenarDialogs.h"

#include "dialogs/menu/CustomizeMenuDlg.h"

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

// The dialogs below are still to come: their exports return at once.

BOOL WINAPI CustomizeHome(HWND /*owner*/, DWORD /*maxPinned*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    return FALSE;
}

BOOL WINAPI CustomizeNow(HWND /*owner*/, DWORD /*unused2*/, DWORD /*unused3*/, DWORD /*unused4*/)
{
    return FALSE;
}

BOOL WINAPI InstallWizard(DWORD /*unused1*/, DWORD /*unused2*/, DWORD /*unused3*/,
                          DWORD /*unused4*/)
{
    return FALSE;
}

BOOL WINAPI SelectCity(HWND /*owner*/, CITYINFO* /*city*/, DWORD /*unused3*/)
{
    return FALSE;
}
