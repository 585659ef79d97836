// CSelectLinkDlg: the shortcuts of the Start Menu, to choose one. Run by the menu editor.
#pragma once

#include "menu/ProgramScan.h"
#include "resources/resource.h"
#include "ui/TavMenuBaseDlg.h"

#include <atlctrls.h>

#include <string>

class CSelectLinkDlg : public CTavMenuBaseDlg<CSelectLinkDlg>
{
public:
    enum
    {
        IDD = IDD_SELECT_LINK
    };

    // Throws CTavException when the device has no Programs folder.
    CSelectLinkDlg();

    // The chosen shortcut's full path after IDOK.
    std::wstring Path;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    void FillTree();

    CTreeViewCtrl m_tree;
    CProgramScan m_scan;
};
