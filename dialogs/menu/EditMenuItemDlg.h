// CEditMenuItemDlg: name and icon of a user link or file, whose path is shown. Run by the menu
// editor, which reads the fields after a run that ended with IDOK.
#pragma once

#include "dialogs/menu/EditItemDlg.h"

class CEditMenuItemDlg : public CEditItemDlg<CEditMenuItemDlg>
{
public:
    enum
    {
        IDD = IDD_EDIT_MENU_ITEM
    };

    // `imagePath` gives the icon when there is no number (-1).
    CEditMenuItemDlg(const std::wstring& name, const std::wstring& path, LONG iconIndex,
                     const std::wstring& imagePath);

    void FieldsToControls();
    void ControlsToFields();
    void ShowIcon();
    // Nothing chosen (-1) brings the image path's icon back.
    void TakeIcon(LONG chosen);

    // The item's target.
    std::wstring Path;
    const std::wstring ImagePath;
};
