#include "dialogs/menu/ChooseIconDlg.h"

#include "ui/RedrawPause.h"
#include "ui/Scale.h"
#include "ui/ShellDialog.h"

#include <aygshell.h>

namespace
{

// From one icon to the next.
constexpr int kIconSpacing = 42;

} // namespace

CChooseIconDlg::CChooseIconDlg(LONG iconIndex, const std::wstring& imagePath)
    : IconIndex(iconIndex), ImagePath(imagePath)
{
}

BOOL CChooseIconDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);
    m_list.Attach(GetDlgItem(IDC_ICON_LIST));
    MainControl = m_list;
    m_images = BuildIconList(ImagePath);
    FillList();
    SelectInitialItem();
    m_list.SetFocus();
    return FALSE;
}

void CChooseIconDlg::OnOK()
{
    const int chosen = m_list.GetNextItem(-1, LVNI_SELECTED);
    const bool isImagePath = !ImagePath.empty() && chosen == m_list.GetItemCount() - 1;
    IconIndex = chosen >= 0 && !isImagePath ? chosen + kFirstIconNumber : kNoIcon;
    Accept();
}

void CChooseIconDlg::FillList()
{
    const CRedrawPause pause(m_list);
    m_list.SetImageList(m_images.get(), LVSIL_NORMAL);
    m_list.SetIconSpacing(ScaleX(kIconSpacing), ScaleY(kIconSpacing));
    const int count = ImageList_GetImageCount(m_images.get());
    wchar_t noText[] = L"";
    for (int i = 0; i < count; ++i)
    {
        LVITEMW item = {};
        item.mask = LVIF_TEXT | LVIF_IMAGE;
        item.iItem = i;
        item.iImage = i;
        item.pszText = noText;
        m_list.InsertItem(item);
    }
}

// The icon's number is taken for a place in the list, although the first one has number 100: what
// is selected is 100 places beyond it, or nothing. Kept so.
void CChooseIconDlg::SelectInitialItem()
{
    int place = -1;
    if (!ImagePath.empty())
        place = m_list.GetItemCount() - 1;
    else if (IconIndex >= kFirstIconNumber)
        place = IconIndex;
    // An item of -1 would stand for all.
    if (place < 0)
        return;
    m_list.SetItemState(place, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    m_list.EnsureVisible(place, FALSE);
}
