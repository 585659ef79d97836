#include "dialogs/menu/EditMenuDlg.h"

#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"
#include "ui/IconImageList.h"

namespace
{

LONG IconOfNewMenus()
{
    const CVORegistry settings(HKEY_LOCAL_MACHINE, kMenuSettingsPath, FALSE, FALSE, 0);
    DWORD number = kFirstIconNumber;
    settings.GetDWORD(kDefFolderValue, number);
    return static_cast<LONG>(number);
}

} // namespace

CEditMenuDlg::CEditMenuDlg(const std::wstring& name, LONG iconIndex)
    : CEditItemDlg(name, iconIndex == kNoIcon ? IconOfNewMenus() : iconIndex)
{
}

void CEditMenuDlg::ShowIcon()
{
    Preview.SetIcon(IconIndex);
}

void CEditMenuDlg::TakeIcon(LONG chosen)
{
    if (chosen == kNoIcon)
        return;
    IconIndex = chosen;
    ShowIcon();
}
