// CInstallWizardDlg: the first-run choice behind the export InstallWizard. A picture of each of the
// two looks of the Now screen stands over a radio button.
#pragma once

#include "dialogs/wizard/WizardLayout.h"
#include "resources/resource.h"
#include "ui/BitmapBuffer.h"
#include "ui/PPCDialog.h"

#include <atlctrls.h>

class CInstallWizardDlg : public CPPCDialogImpl<CInstallWizardDlg>
{
public:
    enum
    {
        IDD = IDD_INSTALL_WIZARD
    };

    CInstallWizardDlg();

    BEGIN_MSG_MAP(CInstallWizardDlg)
        MESSAGE_HANDLER(WM_SETTINGCHANGE, OnSettingChange)
        // The pictures have the whole page: there is no title band.
        if (uMsg == WM_PAINT)
            return FALSE;
        CHAIN_MSG_MAP(CPPCDialogImpl<CInstallWizardDlg>)
    END_MSG_MAP()

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnSettingChange(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);

    void AttachControls();
    void PrepareControls();
    void CheckStoredType();
    void LoadPictures();

    void LayOut();
    WizardPlaces Places() const;

    CWindow m_classicPicture;
    CWindow m_professionalPicture;
    CButton m_classic;
    CButton m_professional;
    // Own the pictures' bitmaps, which the controls only show.
    CBitmapBuffer m_classicBitmap;
    CBitmapBuffer m_professionalBitmap;
};
