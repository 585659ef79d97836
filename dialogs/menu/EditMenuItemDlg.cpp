#include "dialogs/menu/EditMenuItemDlg.h"

CEditMenuItemDlg::CEditMenuItemDlg(const std::wstring& name, const std::wstring& path,
                                   LONG iconIndex, const std::wstring& imagePath)
    : CEditItemDlg(name, iconIndex), Path(path), ImagePath(imagePath)
{
}

void CEditMenuItemDlg::FieldsToControls()
{
    CEditItemDlg::FieldsToControls();
    GetDlgItem(IDC_ITEM_PATH).SetWindowText(Path.c_str());
}

void CEditMenuItemDlg::ControlsToFields()
{
    CEditItemDlg::ControlsToFields();
    Path = ControlText(GetDlgItem(IDC_ITEM_PATH));
}

void CEditMenuItemDlg::ShowIcon()
{
    if (IconIndex != kNoIcon)
        Preview.SetIcon(IconIndex);
    else if (!ImagePath.empty())
        Preview.SetImagePath(ImagePath);
}

void CEditMenuItemDlg::TakeIcon(LONG chosen)
{
    IconIndex = chosen;
    ShowIcon();
}
