// CChooseIconDlg: the icons that a menu item can have, to choose one. Run by the Edit Item dialogs.
#pragma once

#include "platform/Handles.h"
#include "resources/resource.h"
#include "ui/IconImageList.h"
#include "ui/TavMenuBaseDlg.h"

#include <atlctrls.h>

#include <string>

class CChooseIconDlg : public CTavMenuBaseDlg<CChooseIconDlg>
{
public:
    enum
    {
        IDD = IDD_CHOOSE_ICON
    };

    // `iconIndex` is the present icon's number, -1 without one. The icon of `imagePath` is offered
    // last, unless that is empty.
    CChooseIconDlg(LONG iconIndex, const std::wstring& imagePath);

    // After IDOK the chosen icon's number; -1 for that of the image path or when none was chosen.
    LONG IconIndex;
    std::wstring ImagePath;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    void FillList();
    void SelectInitialItem();

    CListViewCtrl m_list;
    UniqueImageList m_images;
};
