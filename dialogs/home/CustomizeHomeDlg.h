// CCustomizeHomeDlg: chooses what is pinned to the home screen, behind the export CustomizeHome.
// Pins are written on "Done" only.
#pragma once

#include "dialogs/home/PinTreeView.h"
#include "menu/MenuTree.h"
#include "menu/ProgramScan.h"
#include "resources/resource.h"
#include "ui/PPCDialog.h"

#include <aygshell.h>

class CCustomizeHomeDlg : public CPPCDialogImpl<CCustomizeHomeDlg>
{
public:
    enum
    {
        IDD = IDD_MANAGE_PINNED
    };

    // Posted to the dialog by itself: the box of the node in lParam was switched.
    static constexpr UINT kBoxSwitched = 0x8014;

    // At most `maxPinned` entries may be checked. Throws CTavException when the device has no
    // Programs folder.
    explicit CCustomizeHomeDlg(DWORD maxPinned);

    BEGIN_MSG_MAP(CCustomizeHomeDlg)
        DROP_FOREIGN_NOTIFICATIONS()
        NOTIFY_HANDLER(IDC_PINNED_TREE, NM_STYLUSDOWN, OnStylusDown)
        NOTIFY_HANDLER(IDC_PINNED_TREE, static_cast<UINT>(TVN_KEYDOWN), OnTreeKeyDown)
        MESSAGE_HANDLER(kBoxSwitched, OnBoxSwitched)
        CHAIN_MSG_MAP(CPPCDialogImpl<CCustomizeHomeDlg>)
    END_MSG_MAP()

    const DWORD MaxPinned;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnStylusDown(int id, NMHDR* header, BOOL& handled);
    LRESULT OnTreeKeyDown(int id, NMHDR* header, BOOL& handled);
    LRESULT OnBoxSwitched(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);

    void PostBoxSwitched(HTREEITEM node);
    void TellLimit();
    void SavePin(HTREEITEM node, const Ratings::CMruSlots& pinned);

    CPinTreeView m_view;
    CMenuTree m_tree;
    CProgramScan m_scan;
};
