#include "dialogs/menu/MenuOptionsDlg.h"

#include "menu/MenuKeys.h"
#include "ui/DialogFonts.h"
#include "ui/FormattedString.h"
#include "ui/ShellDialog.h"

#include <atlctrls.h>
#include <aygshell.h>

namespace
{

constexpr LONG kListLayout = 0;
constexpr LONG kGridLayout = 1;

bool IsChecked(const CWindow& dialog, int id)
{
    return CButton(dialog.GetDlgItem(id)).GetCheck() == BST_CHECKED;
}

void SetChecked(const CWindow& dialog, int id, bool checked)
{
    CButton(dialog.GetDlgItem(id)).SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
}

} // namespace

CMenuOptionsDlg::CMenuOptionsDlg(const std::wstring& menuText) : MenuText(menuText) {}

void CMenuOptionsDlg::ReadFrom(CMenuItem& menu)
{
    const DWORD flags = menu.GetRtFlags();
    LayoutIndex = menu.GetDrawType() == MenuDrawType::Grid ? kGridLayout : kListLayout;
    MostUsedFirst = (flags & kRtMostUsedFirst) != 0;
    HardwareNavigation = (flags & kRtHardwareNavigation) != 0;
    IsRoot = menu.Parent == nullptr;
}

// A list has no use for hardware navigation: what is stored for the grid stays as it is.
void CMenuOptionsDlg::WriteTo(CMenuItem& menu) const
{
    const bool isGrid = LayoutIndex == kGridLayout;
    menu.SetDrawType(isGrid ? MenuDrawType::Grid : MenuDrawType::List);
    menu.SetRated(MostUsedFirst != FALSE);
    if (isGrid)
        menu.SetRtFlags((menu.GetRtFlags() & ~kRtHardwareNavigation) |
                        (HardwareNavigation ? kRtHardwareNavigation : 0));
}

BOOL CMenuOptionsDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN);
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU);
    SetWindowText(FormattedString(IDS_MENU_OPTIONS_CAPTION, MenuText).c_str());
    for (const int heading : {IDC_LAYOUT_HEADING, IDC_OPTIONS_HEADING})
        GetDlgItem(heading).SetFont(CDialogFonts::Instance().Get(true));
    FieldsToControls();
    EnableControls();
    FocusFirstEnabled();
    return FALSE;
}

void CMenuOptionsDlg::OnOK()
{
    ControlsToFields();
    Accept();
}

LRESULT CMenuOptionsDlg::OnLayoutClicked(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                         BOOL& /*handled*/)
{
    EnableControls();
    return 0;
}

void CMenuOptionsDlg::FieldsToControls()
{
    SetChecked(*this, IDC_LAYOUT_LIST, LayoutIndex == kListLayout);
    SetChecked(*this, IDC_LAYOUT_GRID, LayoutIndex == kGridLayout);
    SetChecked(*this, IDC_MOST_USED_FIRST, MostUsedFirst != FALSE);
    SetChecked(*this, IDC_HARDWARE_NAVIGATION, HardwareNavigation != FALSE);
}

void CMenuOptionsDlg::ControlsToFields()
{
    LayoutIndex = IsChecked(*this, IDC_LAYOUT_GRID) ? kGridLayout : kListLayout;
    MostUsedFirst = IsChecked(*this, IDC_MOST_USED_FIRST);
    HardwareNavigation = IsChecked(*this, IDC_HARDWARE_NAVIGATION);
}

void CMenuOptionsDlg::EnableControls()
{
    ControlsToFields();
    for (const int control : {IDC_LAYOUT_LIST, IDC_LAYOUT_GRID, IDC_MOST_USED_FIRST})
        GetDlgItem(control).EnableWindow(!IsRoot);
    GetDlgItem(IDC_HARDWARE_NAVIGATION).EnableWindow(LayoutIndex == kGridLayout);
}

// The dialog's first control may be disabled, or the radio button that isn't chosen. With nothing
// to work, the dialog itself takes the keys.
void CMenuOptionsDlg::FocusFirstEnabled()
{
    const HWND first = GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    ::SetFocus(first && IsWindowEnabled(first) ? first : m_hWnd);
}
