// SHCreateMenuBar: checks the request, loads the menu, ties the new bar to its owner.
#include "aygshell.h"

#include "platform/aygshell/BarOwner.h"
#include "platform/aygshell/MenuBar.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/SoftKeys.h"

namespace shell
{

namespace
{

DWORD CheckInfo(const SHMENUBARINFO* info)
{
    if (info == nullptr || info->cbSize != sizeof *info)
        return ERROR_INVALID_PARAMETER;
    const bool describesKeys = (info->dwFlags & (SHCMBF_EMPTYBAR | SHCMBF_HMENU)) != 0;
    // Bars described by a toolbar resource instead of a menu are of an older system.
    if (!describesKeys)
        return ERROR_NOT_SUPPORTED;
    return CheckOwnWindow(info->hwndParent);
}

// LoadMenu leaves the last error alone in some failures.
UniqueMenu LoadKeys(const SHMENUBARINFO& info)
{
    SetLastError(ERROR_SUCCESS);
    UniqueMenu menu(LoadMenuW(info.hInstRes, MAKEINTRESOURCEW(info.nToolBarId)));
    if (!menu && GetLastError() == ERROR_SUCCESS)
        SetLastError(ERROR_RESOURCE_NAME_NOT_FOUND);
    return menu;
}

} // namespace

} // namespace shell

BOOL WINAPI SHCreateMenuBar(SHMENUBARINFO* info)
{
    using namespace shell;
    const DWORD error = CheckInfo(info);
    if (error != ERROR_SUCCESS)
        return Fail(error);
    UniqueMenu menu;
    if ((info->dwFlags & SHCMBF_EMPTYBAR) == 0)
    {
        menu = LoadKeys(*info);
        if (!menu)
            return FALSE;
    }
    const bool isFilled = CMenuBar::FillEmpty(*info, menu);
    const HWND bar = isFilled ? GetParent(SHFindMenuBar(info->hwndParent))
                              : CMenuBar::Create(*info, std::move(menu));
    if (bar == nullptr)
        return FALSE;
    const HWND toolbar = FindSoftKeys(bar);
    if (!AttachOwner(info->hwndParent, toolbar, (info->dwFlags & SHCMBF_HIDDEN) != 0))
    {
        DestroyWindow(bar);
        return Fail(ERROR_NOT_ENOUGH_MEMORY);
    }
    info->hwndMB = toolbar;
    return TRUE;
}
