#include "ui/ShellDialog.h"

#include "frame/Module.h"
#include "frame/TavException.h"

#include <aygshell.h>

namespace
{

BOOL TryCreateMenuBar(HWND dialog, UINT menu, DWORD flags)
{
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = dialog;
    info.dwFlags = flags;
    info.nToolBarId = menu;
    info.hInstRes = ModuleInstance();
    return SHCreateMenuBar(&info);
}

} // namespace

void InitShellDialog(HWND dialog, DWORD flags)
{
    if (!TryInitShellDialog(dialog, flags))
        ThrowLastError();
}

bool TryInitShellDialog(HWND dialog, DWORD flags)
{
    SHINITDLGINFO info = {};
    info.dwMask = SHIDIM_FLAGS;
    info.hDlg = dialog;
    info.dwFlags = flags;
    return SHInitDialog(&info) != FALSE;
}

void CreateMenuBar(HWND dialog, UINT menu, DWORD flags)
{
    if (!TryCreateMenuBar(dialog, menu, flags))
        ThrowLastError();
}

void PrepareShellDialog(HWND dialog)
{
    TryCreateMenuBar(dialog, 0, SHCMBF_EMPTYBAR);
    TryInitShellDialog(dialog, SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
}
