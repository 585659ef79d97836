// CMenuOptionsDlg: how one menu of the launcher is displayed. Run by the menu editor, which fills
// the fields before and writes them to the menu after a run that ended with IDOK.
#pragma once

#include "menu/MenuItem.h"
#include "resources/resource.h"
#include "ui/TavMenuBaseDlg.h"

#include <string>

class CMenuOptionsDlg : public CTavMenuBaseDlg<CMenuOptionsDlg>
{
public:
    enum
    {
        IDD = IDD_MENU_OPTIONS
    };

    // `menuText` is the menu's display text, shown in the caption.
    explicit CMenuOptionsDlg(const std::wstring& menuText);

    BEGIN_MSG_MAP(CMenuOptionsDlg)
        COMMAND_HANDLER(IDC_LAYOUT_LIST, BN_CLICKED, OnLayoutClicked)
        COMMAND_HANDLER(IDC_LAYOUT_GRID, BN_CLICKED, OnLayoutClicked)
        CHAIN_MSG_MAP(CTavMenuBaseDlg<CMenuOptionsDlg>)
    END_MSG_MAP()

    // 0 = one item per row, 1 = grid.
    LONG LayoutIndex = 0;
    BOOL MostUsedFirst = FALSE;
    // The grid is arranged for the direction keys.
    BOOL HardwareNavigation = FALSE;
    // The menu has no parent: its layout and order are fixed.
    BOOL IsRoot = FALSE;
    std::wstring MenuText;

    // Fills the fields from a menu, and writes them to it, each at once to the registry.
    void ReadFrom(CMenuItem& menu);
    void WriteTo(CMenuItem& menu) const;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnLayoutClicked(WORD code, WORD id, HWND control, BOOL& handled);

    void FieldsToControls();
    void ControlsToFields();
    void EnableControls();
    void FocusFirstEnabled();
};
