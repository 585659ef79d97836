#include "dialogs/menu/CustomizeMenuDlg.h"

#include "dialogs/menu/EditMenuDlg.h"
#include "dialogs/menu/EditMenuItemDlg.h"
#include "dialogs/menu/MenuCommands.h"
#include "dialogs/menu/MenuOptionsDlg.h"
#include "dialogs/menu/SelectFileDlg.h"
#include "dialogs/menu/SelectLinkDlg.h"
#include "frame/Localizer.h"
#include "frame/Module.h"
#include "frame/TavException.h"
#include "menu/MenuKeys.h"
#include "platform/Handles.h"
#include "ui/ShellDialog.h"

namespace
{

// The pop-up among the menu editor's soft keys.
constexpr int kMenuPopup = 1;

} // namespace

CCustomizeMenuDlg::CCustomizeMenuDlg() : m_tree(false) {}

BOOL CCustomizeMenuDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    CreateMenuBar(m_hWnd, IDR_MENU_EDITOR, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);
    m_view.Attach(GetDlgItem(IDC_MENU_TREE));
    MainControl = m_view;
    m_view.UseCheckBoxes();
    m_tree.Load();
    m_view.Fill(m_tree, GetLocalizer().LoadTranslatedString(IDS_ROOT).c_str());
    return TRUE;
}

void CCustomizeMenuDlg::OnOK()
{
    SyncCheckBoxes();
    EndWith(IDOK);
}

// A hold on a label acts on that label's node; a hold anywhere else is none.
LRESULT CCustomizeMenuDlg::OnStylusDown(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadReadPtr(header, sizeof(NMSTYLUSDOWN)))
        return TRUE;
    TVHITTESTINFO hit = {};
    hit.pt = reinterpret_cast<const NMSTYLUSDOWN*>(header)->point;
    const HTREEITEM node = m_view.HitTest(hit);
    if (!node || !(hit.flags & TVHT_ONITEMLABEL))
        return TRUE;
    m_view.SelectItem(node);
    return FALSE;
}

LRESULT CCustomizeMenuDlg::OnTreeKeyDown(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadReadPtr(header, sizeof(NMTVKEYDOWN)))
        return 0;
    const HTREEITEM node = m_view.GetSelectedItem();
    if (reinterpret_cast<const NMTVKEYDOWN*>(header)->wVKey == VK_RETURN && node &&
        !IsHeldDown(node))
        ToggleBox(node);
    return 0;
}

// Another program's window comes to the front: what was checked is kept, the dialog goes. Windows
// that this dialog owns, its sub-dialogs, don't count.
LRESULT CCustomizeMenuDlg::OnActivate(UINT /*message*/, WPARAM wParam, LPARAM lParam, BOOL& handled)
{
    handled = FALSE;
    const HWND activated = reinterpret_cast<HWND>(lParam);
    if (Ended || LOWORD(wParam) != WA_INACTIVE || GetWindow(activated, GW_OWNER) == m_hWnd)
        return 0;
    SyncCheckBoxes();
    EndWith(IDCANCEL);
    return 0;
}

LRESULT CCustomizeMenuDlg::OnInitMenuPopup(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/,
                                           BOOL& /*handled*/)
{
    const CMenuItemPtr item = ItemOf(m_view.GetSelectedItem());
    EnableMenuCommands(reinterpret_cast<HMENU>(wParam), item.get());
    return 0;
}

LRESULT CCustomizeMenuDlg::OnContextMenu(UINT /*message*/, WPARAM /*wParam*/, LPARAM lParam,
                                         BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (node)
        ShowContextMenu(ContextMenuPoint(node, lParam));
    return 0;
}

LRESULT CCustomizeMenuDlg::OnCmdMoveUp(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                       BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node)
        return 0;
    const CMenuItemPtr item = RequireItemOf(node);
    if (!item->Move(true, false))
        return 0;
    const HTREEITEM previous = m_view.GetPrevSiblingItem(node);
    if (!previous)
        ThrowBroken();
    const HTREEITEM beforePrevious = m_view.GetPrevSiblingItem(previous);
    Reinsert(node, m_view.GetParentItem(previous), beforePrevious ? beforePrevious : TVI_FIRST,
             *item);
    return 0;
}

LRESULT CCustomizeMenuDlg::OnCmdMoveDown(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                         BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node)
        return 0;
    const CMenuItemPtr item = RequireItemOf(node);
    if (!item->Move(false, false))
        return 0;
    const HTREEITEM next = m_view.GetNextSiblingItem(node);
    if (!next)
        ThrowBroken();
    Reinsert(node, m_view.GetParentItem(next), next, *item);
    return 0;
}

// Files and links become the same kind of item.
LRESULT CCustomizeMenuDlg::OnCmdAddLink(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                        BOOL& /*handled*/)
{
    if (const CMenuItemPtr parent = SelectedContainer())
    {
        CSelectLinkDlg dialog;
        AddPicked(dialog, *parent);
    }
    return 0;
}

LRESULT CCustomizeMenuDlg::OnCmdAddFile(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                        BOOL& /*handled*/)
{
    if (const CMenuItemPtr parent = SelectedContainer())
    {
        CSelectFileDlg dialog(std::wstring(), TRUE);
        AddPicked(dialog, *parent);
    }
    return 0;
}

// A menu without a name isn't added.
LRESULT CCustomizeMenuDlg::OnCmdAddMenu(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                        BOOL& /*handled*/)
{
    const CMenuItemPtr parent = SelectedContainer();
    if (!parent || !CanAddMenu(*parent))
        return 0;
    CEditMenuDlg dialog(std::wstring(), kNoImage);
    if (RunSubDialog(dialog) && !dialog.Name.empty() && m_view.NodeOf(*parent))
        ShowAdded(*parent, parent->AddMenu(dialog.Name, dialog.IconIndex, m_tree));
    return 0;
}

// Without a question: the menu model refuses anything but what the user made.
LRESULT CCustomizeMenuDlg::OnCmdRemove(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                       BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node)
        return 0;
    if (RequireItemOf(node)->Remove(m_tree))
        m_view.DeleteItem(node);
    return 0;
}

LRESULT CCustomizeMenuDlg::OnCmdEdit(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                     BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node)
        return 0;
    const CMenuItemPtr item = RequireItemOf(node);
    if (!item->IsUserItem())
        return 0;
    if (item->CanAdd())
    {
        CEditMenuDlg dialog(item->Text, item->GetImage());
        EditWith(dialog, *item);
    }
    else
    {
        CEditMenuItemDlg dialog(item->Text, item->GetFile(), item->GetImage(),
                                item->GetImagePath());
        EditWith(dialog, *item);
    }
    return 0;
}

// Ending in any other way while another program has the foreground closes the editor, here without
// keeping the check boxes; deliberately unlike the other sub-dialogs.
LRESULT CCustomizeMenuDlg::OnCmdMenuOptions(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                            BOOL& /*handled*/)
{
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node)
        return 0;
    const CMenuItemPtr item = RequireItemOf(node);
    CMenuOptionsDlg options(item->Text);
    options.ReadFrom(*item);
    if (options.RunModal(m_hWnd) == IDOK)
        options.WriteTo(*item);
    else if (!HasForeground())
        EndWith(IDCANCEL);
    return 0;
}

CMenuItemPtr CCustomizeMenuDlg::ItemOf(HTREEITEM node) const
{
    return node ? m_tree.Find(m_view.ItemIdOf(node)) : CMenuItemPtr();
}

CMenuItemPtr CCustomizeMenuDlg::RequireItemOf(HTREEITEM node) const
{
    CMenuItemPtr item = ItemOf(node);
    if (!item)
        ThrowBroken();
    return item;
}

CMenuItemPtr CCustomizeMenuDlg::SelectedContainer() const
{
    CMenuItemPtr item = ItemOf(m_view.GetSelectedItem());
    return item && item->CanAdd() ? item : CMenuItemPtr();
}

template <class Dialog>
bool CCustomizeMenuDlg::RunSubDialog(Dialog& dialog)
{
    if (dialog.RunModal(m_hWnd) == IDOK)
        return true;
    if (!HasForeground())
    {
        SyncCheckBoxes();
        EndWith(IDCANCEL);
    }
    return false;
}

// Other messages come in while a sub-dialog is open: what it was opened for may be gone after it.
template <class Dialog>
void CCustomizeMenuDlg::AddPicked(Dialog& dialog, CMenuItem& parent)
{
    if (RunSubDialog(dialog) && m_view.NodeOf(parent))
        ShowAdded(parent, parent.AddLink(dialog.Path, m_tree));
}

// The path is never changed.
template <class Dialog>
void CCustomizeMenuDlg::EditWith(Dialog& dialog, CMenuItem& item)
{
    if (!RunSubDialog(dialog))
        return;
    const HTREEITEM node = m_view.NodeOf(item);
    if (!node)
        return;
    item.SetText(dialog.Name);
    item.SetImage(dialog.IconIndex);
    m_view.SetItemText(node, dialog.Name.c_str());
    m_view.Show(node);
}

void CCustomizeMenuDlg::ShowAdded(const CMenuItem& parent, const CMenuItemPtr& item)
{
    if (item)
        m_view.Show(m_view.InsertNode(m_view.NodeOf(parent), TVI_LAST, *item));
}

void CCustomizeMenuDlg::SyncCheckBoxes()
{
    ForEachNode(m_view,
                [this](HTREEITEM node)
                {
                    const CMenuItemPtr item = ItemOf(node);
                    if (!item || !HasSwitch(*item))
                        return;
                    const bool inactive = m_view.BoxOf(node) != kCheckedBox;
                    if (item->Inactive != inactive)
                        item->SetInactive(inactive);
                });
}

void CCustomizeMenuDlg::ToggleBox(HTREEITEM node)
{
    const CMenuItemPtr item = ItemOf(node);
    if (item && HasSwitch(*item))
        m_view.SetBox(node, m_view.BoxOf(node) == kCheckedBox ? kUncheckedBox : kCheckedBox);
}

// True when the key is held down so long that it asks for the context menu.
bool CCustomizeMenuDlg::IsHeldDown(HTREEITEM node) const
{
    POINT point = m_view.LabelCentre(node);
    m_view.ClientToScreen(&point);
    ScreenToClient(&point);
    SHRGINFO gesture = {};
    gesture.cbSize = sizeof(gesture);
    gesture.hwndClient = m_hWnd;
    gesture.ptDown = point;
    gesture.dwFlags = SHRG_RETURNCMD;
    return SHRecognizeGesture(&gesture) == GN_CONTEXTMENU;
}

// The new node has no children and always a box: what a move shows until the dialog opens again.
void CCustomizeMenuDlg::Reinsert(HTREEITEM node, HTREEITEM parent, HTREEITEM after,
                                 const CMenuItem& item)
{
    m_view.DeleteItem(node);
    m_view.Show(m_view.InsertNode(parent, after, item));
}

// A request by key has no point: the label's centre stands in for it, converted with the dialog's
// origin instead of the tree's, which offsets the menu by the tree's place in the dialog. Kept so.
POINT CCustomizeMenuDlg::ContextMenuPoint(HTREEITEM node, LPARAM lParam) const
{
    constexpr WORD kNoCoordinate = 0xFFFF;
    const WORD x = LOWORD(lParam);
    const WORD y = HIWORD(lParam);
    if (x != kNoCoordinate && y != kNoCoordinate)
        return {static_cast<short>(x), static_cast<short>(y)};
    POINT point = m_view.LabelCentre(node);
    ClientToScreen(&point);
    return point;
}

void CCustomizeMenuDlg::ShowContextMenu(POINT point)
{
    const UniqueMenu bar(LoadMenuW(ModuleInstance(), MAKEINTRESOURCEW(IDR_MENU_EDITOR)));
    const HMENU menu = GetSubMenu(bar.get(), kMenuPopup);
    GetLocalizer().TranslateMenu(menu);
    TrackPopupMenu(menu, 0, point.x, point.y, 0, m_hWnd, nullptr);
}
