#include "dialogs/menu/SelectFileDlg.h"

#include "dialogs/menu/FileChoice.h"
#include "ui/ShellDialog.h"

#include <aygshell.h>

CSelectFileDlg::CSelectFileDlg(const std::wstring& startPath, BOOL iconMode)
{
    m_tree.StartPath = startPath;
    m_tree.IconMode = iconMode;
}

BOOL CSelectFileDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU);
    MainControl = GetDlgItem(IDC_FILE_TREE);
    m_tree.AttachTo(MainControl);
    m_tree.SetFocus();
    return FALSE;
}

// A folder, or nothing at all, closes the dialog as if it was cancelled.
void CSelectFileDlg::OnOK()
{
    const std::wstring path = m_tree.SelectedPath();
    if (!IsFile(path))
    {
        EndWith(IDCANCEL);
        return;
    }
    Path = path;
    Accept();
}
