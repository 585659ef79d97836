#include "dialogs/menu/SelectLinkDlg.h"

#include "dialogs/menu/FileChoice.h"
#include "frame/Localizer.h"
#include "platform/os/SystemIcon.h"
#include "ui/RedrawPause.h"
#include "ui/ShellDialog.h"
#include "ui/WaitCursor.h"

#include <aygshell.h>

namespace
{

// The root's data; the entries have negative numbers.
constexpr LPARAM kRootNumber = 1;

} // namespace

CSelectLinkDlg::CSelectLinkDlg() : m_scan(true) {}

BOOL CSelectLinkDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU);
    m_tree.Attach(GetDlgItem(IDC_LINK_TREE));
    MainControl = m_tree;
    const CWaitCursor wait;
    FillTree();
    m_tree.SetFocus();
    return FALSE;
}

// A folder, or a node that stands for no path, closes the dialog as if it was cancelled.
void CSelectLinkDlg::OnOK()
{
    const HTREEITEM node = m_tree.GetSelectedItem();
    const std::wstring path =
        node ? m_scan.PathOf(static_cast<int32_t>(m_tree.GetItemData(node))) : std::wstring();
    if (!IsFile(path))
    {
        EndWith(IDCANCEL);
        return;
    }
    Path = path;
    Accept();
}

void CSelectLinkDlg::FillTree()
{
    const CRedrawPause pause(m_tree);
    std::wstring text = GetLocalizer().LoadTranslatedString(IDS_PROGRAMS);
    TVINSERTSTRUCTW insert = {};
    insert.hParent = TVI_ROOT;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = text.data();
    insert.item.lParam = kRootNumber;
    insert.item.iImage = os::SmallIconOf(m_scan.ProgramsFolder);
    insert.item.iSelectedImage = insert.item.iImage;
    const HTREEITEM root = m_tree.InsertItem(insert);
    m_scan.Fill(m_tree, root, nullptr);
    m_tree.Expand(root, TVE_TOGGLE);
}
