// CCustomizeMenuDlg: the menu editor behind the export CustomizeMenu. Structural changes are
// written as they are made; check boxes are written on "Done" or when the dialog loses the
// foreground.
#pragma once

#include "dialogs/menu/MenuTreeView.h"
#include "menu/MenuTree.h"
#include "resources/resource.h"
#include "ui/PPCDialog.h"

#include <aygshell.h>

class CCustomizeMenuDlg : public CPPCDialogImpl<CCustomizeMenuDlg>
{
public:
    enum
    {
        IDD = IDD_CUSTOMIZE_MENU
    };

    CCustomizeMenuDlg();

    BEGIN_MSG_MAP(CCustomizeMenuDlg)
        DROP_FOREIGN_NOTIFICATIONS()
        NOTIFY_CODE_HANDLER(NM_STYLUSDOWN, OnStylusDown)
        NOTIFY_HANDLER(IDC_MENU_TREE, static_cast<UINT>(TVN_KEYDOWN), OnTreeKeyDown)
        MESSAGE_HANDLER(WM_ACTIVATE, OnActivate)
        MESSAGE_HANDLER(WM_INITMENUPOPUP, OnInitMenuPopup)
        MESSAGE_HANDLER(WM_CONTEXTMENU, OnContextMenu)
        COMMAND_ID_HANDLER(ID_MOVE_UP, OnCmdMoveUp)
        COMMAND_ID_HANDLER(ID_MOVE_DOWN, OnCmdMoveDown)
        COMMAND_ID_HANDLER(ID_ADD_LINK, OnCmdAddLink)
        COMMAND_ID_HANDLER(ID_ADD_FILE, OnCmdAddFile)
        COMMAND_ID_HANDLER(ID_ADD_MENU, OnCmdAddMenu)
        COMMAND_ID_HANDLER(ID_REMOVE_ITEM, OnCmdRemove)
        COMMAND_ID_HANDLER(ID_EDIT_ITEM, OnCmdEdit)
        COMMAND_ID_HANDLER(ID_MENU_OPTIONS, OnCmdMenuOptions)
        CHAIN_MSG_MAP(CPPCDialogImpl<CCustomizeMenuDlg>)
    END_MSG_MAP()

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnStylusDown(int id, NMHDR* header, BOOL& handled);
    LRESULT OnTreeKeyDown(int id, NMHDR* header, BOOL& handled);
    LRESULT OnActivate(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);
    LRESULT OnInitMenuPopup(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);
    LRESULT OnContextMenu(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);
    LRESULT OnCmdMoveUp(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdMoveDown(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdAddLink(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdAddFile(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdAddMenu(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdRemove(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdEdit(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnCmdMenuOptions(WORD code, WORD id, HWND control, BOOL& handled);

    // The item that a node stands for; null when the menu knows none.
    CMenuItemPtr ItemOf(HTREEITEM node) const;
    // The same, but throws when there is none.
    CMenuItemPtr RequireItemOf(HTREEITEM node) const;

    // The selected node's item if items may be added to it; null otherwise.
    CMenuItemPtr SelectedContainer() const;
    // Runs a sub-dialog. True when it ended with IDOK; otherwise the editor ends, too, if another
    // program has the foreground.
    template <class Dialog>
    bool RunSubDialog(Dialog& dialog);
    // Runs the dialog that picks a path and adds a link to it.
    template <class Dialog>
    void AddPicked(Dialog& dialog, CMenuItem& parent);
    // Runs the dialog that edits the item and writes what it says.
    template <class Dialog>
    void EditWith(Dialog& dialog, CMenuItem& item);
    void ShowAdded(const CMenuItem& parent, const CMenuItemPtr& item);

    void SyncCheckBoxes();
    void ToggleBox(HTREEITEM node);
    bool IsHeldDown(HTREEITEM node) const;
    void Reinsert(HTREEITEM node, HTREEITEM parent, HTREEITEM after, const CMenuItem& item);
    POINT ContextMenuPoint(HTREEITEM node, LPARAM lParam) const;
    void ShowContextMenu(POINT point);
    bool HasForeground() const { return GetForegroundWindow() == m_hWnd; }

    CMenuTreeView m_view;
    CMenuTree m_tree;
};
