// CSelectFileDlg: the device's folders and programs, to choose a file. Run by the menu editor.
#pragma once

#include "resources/resource.h"
#include "ui/FileTreeCtrl.h"
#include "ui/TavMenuBaseDlg.h"

#include <string>

class CSelectFileDlg : public CTavMenuBaseDlg<CSelectFileDlg>
{
public:
    enum
    {
        IDD = IDD_SELECT_FILE
    };

    // Shows the folder `startPath`, the whole file system when that is empty; with `iconMode`, with
    // the icons of the files.
    CSelectFileDlg(const std::wstring& startPath, BOOL iconMode);

    BEGIN_MSG_MAP(CSelectFileDlg)
        DROP_FOREIGN_NOTIFICATIONS()
        REFLECT_NOTIFICATIONS()
        CHAIN_MSG_MAP(CTavMenuBaseDlg<CSelectFileDlg>)
    END_MSG_MAP()

    // The chosen file's full path after IDOK.
    std::wstring Path;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    CTavFileTreeCtrl m_tree;
};
