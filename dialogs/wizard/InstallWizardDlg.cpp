#include "dialogs/wizard/InstallWizardDlg.h"

#include "dialogs/wizard/LayoutType.h"
#include "frame/InstallFolder.h"
#include "frame/TavException.h"
#include "skin/Skin.h"
#include "ui/ControlLayout.h"
#include "ui/DialogFonts.h"
#include "ui/Scale.h"
#include "ui/ShellDialog.h"

#include <aygshell.h>

namespace
{

constexpr const wchar_t* kPictureArchive = L"qa_wizard.dat";

// From a picture to its button, in logical pixels.
constexpr int kButtonDistance = 4;

// Shows the archive's picture `name` in a control; the buffer keeps it. Without such a picture the
// control stays empty.
void ShowPicture(skin::CSkin& skin, const wchar_t* name, CBitmapBuffer& buffer,
                 const CWindow& control)
{
    UniqueBitmap bitmap(skin.Storage().Bitmap(name, nullptr, false, true));
    if (!buffer.Attach(bitmap.get()))
        return;
    const auto owned = reinterpret_cast<LPARAM>(bitmap.release());
    control.SendMessage(STM_SETIMAGE, IMAGE_BITMAP, owned);
}

SIZE ScaledSize(const CBitmapBuffer& buffer)
{
    return {ScaleX(buffer.Width()), ScaleY(buffer.Height())};
}

} // namespace

CInstallWizardDlg::CInstallWizardDlg()
{
    // Registers the class of the input panel preference.
    SHInitExtraControls();
}

BOOL CInstallWizardDlg::OnInitDialogEx()
{
    if (!TryInitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN))
        ThrowBroken();
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);
    AttachControls();
    PrepareControls();
    CheckStoredType();
    LoadPictures();
    LayOut();
    return TRUE;
}

void CInstallWizardDlg::OnOK()
{
    SaveLayoutType(m_professional.GetCheck() == BST_CHECKED ? LayoutType::Professional
                                                            : LayoutType::Classic);
    AnnounceLayoutType();
    EndWith(IDOK);
}

LRESULT CInstallWizardDlg::OnSettingChange(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/,
                                           BOOL& /*handled*/)
{
    if (wParam == kSettingChangeReset)
        LayOut();
    return 0;
}

void CInstallWizardDlg::AttachControls()
{
    m_classicPicture.Attach(GetDlgItem(IDC_CLASSIC_PICTURE));
    m_professionalPicture.Attach(GetDlgItem(IDC_PROFESSIONAL_PICTURE));
    m_classic.Attach(GetDlgItem(IDC_CLASSIC));
    m_professional.Attach(GetDlgItem(IDC_PROFESSIONAL));
}

void CInstallWizardDlg::PrepareControls()
{
    m_classicPicture.ModifyStyle(SS_TYPEMASK, SS_BITMAP);
    m_professionalPicture.ModifyStyle(SS_TYPEMASK, SS_BITMAP);
    const HFONT bold = CDialogFonts::Instance().Get(true);
    m_classic.SetFont(bold);
    m_professional.SetFont(bold);
}

void CInstallWizardDlg::CheckStoredType()
{
    const bool isProfessional = LoadLayoutType() == LayoutType::Professional;
    (isProfessional ? m_professional : m_classic).SetCheck(BST_CHECKED);
}

void CInstallWizardDlg::LoadPictures()
{
    skin::CSkin skin;
    if (!skin.Storage().Open((InstallFolder() + kPictureArchive).c_str()))
        return;
    ShowPicture(skin, L"Classic.bmp", m_classicBitmap, m_classicPicture);
    ShowPicture(skin, L"Professional.bmp", m_professionalBitmap, m_professionalPicture);
}

void CInstallWizardDlg::LayOut()
{
    RECT client = {};
    GetClientRect(&client);
    const WizardPlaces places =
        SpreadWizard(Places(), client.right - client.left, ScaledSize(m_classicBitmap),
                     ScaledSize(m_professionalBitmap), ScaleY(kButtonDistance));
    MoveControl(m_classicPicture, places.Classic.Picture);
    MoveControl(m_professionalPicture, places.Professional.Picture);
    MoveControl(m_classic, places.Classic.Button);
    MoveControl(m_professional, places.Professional.Button);
}

WizardPlaces CInstallWizardDlg::Places() const
{
    return {{ControlPlace(m_hWnd, m_classicPicture), ControlPlace(m_hWnd, m_classic)},
            {ControlPlace(m_hWnd, m_professionalPicture), ControlPlace(m_hWnd, m_professional)}};
}
