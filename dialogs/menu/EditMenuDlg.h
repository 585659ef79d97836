// CEditMenuDlg: name and icon of a menu, a new or an existing one. Run by the menu editor, which
// reads the fields after a run that ended with IDOK.
#pragma once

#include "dialogs/menu/EditItemDlg.h"

class CEditMenuDlg : public CEditItemDlg<CEditMenuDlg>
{
public:
    enum
    {
        IDD = IDD_EDIT_MENU
    };

    // Without an icon (-1) the menu gets the one that the registry names for new menus.
    CEditMenuDlg(const std::wstring& name, LONG iconIndex);

    void ShowIcon();
    // Nothing chosen (-1) keeps the icon.
    void TakeIcon(LONG chosen);

    // Menus have no icons of their own files.
    const std::wstring ImagePath;
};
