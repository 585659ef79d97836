// What the two Edit Item dialogs, for menus and for links and files, have in common: a name, and an
// icon with a button to change it.
#pragma once

#include "dialogs/menu/ChooseIconDlg.h"
#include "resources/resource.h"
#include "ui/ControlText.h"
#include "ui/GlobalImageCtlr.h"
#include "ui/ShellDialog.h"
#include "ui/TavMenuBaseDlg.h"

#include <aygshell.h>

#include <string>

// T supplies ShowIcon, which previews the icon that the fields tell, TakeIcon, which gets what was
// chosen, and may hide FieldsToControls and ControlsToFields for more controls and ImagePath for
// its own.
template <class T>
class CEditItemDlg : public CTavMenuBaseDlg<T>
{
public:
    BEGIN_MSG_MAP(CEditItemDlg)
        COMMAND_ID_HANDLER(IDC_CHANGE_ICON, OnChangeIcon)
        CHAIN_MSG_MAP(CTavMenuBaseDlg<T>)
    END_MSG_MAP()

    std::wstring Name;
    // The number of an icon of the launcher-menu process; -1 = none.
    LONG IconIndex;

    BOOL OnInitDialogEx()
    {
        InitShellDialog(this->m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
        CreateMenuBar(this->m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU);
        Self().FieldsToControls();
        if (!Preview.SubclassWindow(this->GetDlgItem(IDC_ITEM_ICON)))
            ThrowLastError();
        Self().ShowIcon();
        return TRUE;
    }

    // Any name is taken, an empty one too.
    void OnOK()
    {
        Self().ControlsToFields();
        this->Accept();
    }

    void FieldsToControls() { this->GetDlgItem(IDC_ITEM_NAME).SetWindowText(Name.c_str()); }
    void ControlsToFields() { Name = ControlText(this->GetDlgItem(IDC_ITEM_NAME)); }

protected:
    CEditItemDlg(const std::wstring& name, LONG iconIndex) : Name(name), IconIndex(iconIndex) {}

    // The icon, in the static control.
    CGlobalImageCtlr Preview;

private:
    T& Self() { return static_cast<T&>(*this); }

    // When the choice ended because another program came to the front, this dialog goes, too.
    LRESULT OnChangeIcon(WORD /*code*/, WORD /*id*/, HWND /*control*/, BOOL& /*handled*/)
    {
        CChooseIconDlg choice(IconIndex, Self().ImagePath);
        if (choice.RunModal(this->m_hWnd) == IDOK)
            Self().TakeIcon(choice.IconIndex);
        else if (GetForegroundWindow() != this->m_hWnd)
            this->EndWith(IDCANCEL);
        return 0;
    }
};
