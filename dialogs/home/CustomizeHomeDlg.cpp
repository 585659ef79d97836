#include "dialogs/home/CustomizeHomeDlg.h"

#include "frame/Localizer.h"
#include "frame/TavException.h"
#include "menu/Rating.h"
#include "ui/FormattedString.h"
#include "ui/ShellDialog.h"
#include "ui/WaitCursor.h"

CCustomizeHomeDlg::CCustomizeHomeDlg(DWORD maxPinned)
    : MaxPinned(maxPinned), m_tree(true), m_scan(false)
{
}

BOOL CCustomizeHomeDlg::OnInitDialogEx()
{
    InitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);
    m_view.Attach(GetDlgItem(IDC_PINNED_TREE));
    MainControl = m_view;
    m_view.UseCheckBoxes();

    const CWaitCursor wait;
    Ratings::CMruSlots pinned;
    Ratings::ReadGlobalMru(pinned, MaxPinned);
    m_tree.Load();
    if (!m_tree.Root)
        ThrowBroken();
    m_view.Fill(m_tree, m_scan, pinned, GetLocalizer().LoadTranslatedString(IDS_ROOT).c_str());
    return TRUE;
}

// The shell may have changed the list meanwhile: what differs from it now is written. An entry
// whose lock can't be had is left out.
void CCustomizeHomeDlg::OnOK()
{
    Ratings::CMruSlots pinned;
    Ratings::ReadGlobalMru(pinned, MaxPinned);
    ForEachNode(m_view, [&](HTREEITEM node) { SavePin(node, pinned); });
    EndWith(IDOK);
}

// The tree itself switches the box, after this. There is no context menu to hold the stylus for.
LRESULT CCustomizeHomeDlg::OnStylusDown(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadReadPtr(header, sizeof(NMSTYLUSDOWN)))
        return TRUE;
    TVHITTESTINFO hit = {};
    hit.pt = reinterpret_cast<const NMSTYLUSDOWN*>(header)->point;
    const HTREEITEM node = m_view.HitTest(hit);
    if (node && (hit.flags & (TVHT_ONITEMLABEL | TVHT_ONITEMSTATEICON)))
        m_view.SelectItem(node);
    if (node && (hit.flags & TVHT_ONITEMSTATEICON))
        PostBoxSwitched(node);
    return TRUE;
}

// Enter is ours to act on, Space switches the box in the tree behind this: both count.
LRESULT CCustomizeHomeDlg::OnTreeKeyDown(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadReadPtr(header, sizeof(NMTVKEYDOWN)))
        return 0;
    const WORD key = reinterpret_cast<const NMTVKEYDOWN*>(header)->wVKey;
    const HTREEITEM node = m_view.GetSelectedItem();
    if (!node || m_view.BoxOf(node) == kNoBox || (key != VK_RETURN && key != VK_SPACE))
        return 0;
    if (key == VK_RETURN)
        m_view.SetBox(node, m_view.BoxOf(node) == kCheckedBox ? kUncheckedBox : kCheckedBox);
    PostBoxSwitched(node);
    return 0;
}

// Anybody can send this: nodes are looked for in the tree before they are touched, and what is
// checked is counted anew, so that a message without a switched box changes nothing.
LRESULT CCustomizeHomeDlg::OnBoxSwitched(UINT /*message*/, WPARAM /*wParam*/, LPARAM lParam,
                                         BOOL& /*handled*/)
{
    const auto node = reinterpret_cast<HTREEITEM>(lParam);
    if (!node || !HasNode(m_view, node))
        return 0;
    if (m_view.BoxOf(node) == kCheckedBox && m_view.CountCheckedBeside(node) >= MaxPinned)
    {
        TellLimit();
        m_view.SetBox(node, kUncheckedBox);
        return 0;
    }
    m_view.MarkAncestors(node);
    return 0;
}

void CCustomizeHomeDlg::PostBoxSwitched(HTREEITEM node)
{
    PostMessageW(m_hWnd, kBoxSwitched, 0, reinterpret_cast<LPARAM>(node));
}

void CCustomizeHomeDlg::TellLimit()
{
    MessageBoxW(m_hWnd, FormattedString(IDS_PIN_LIMIT, static_cast<int>(MaxPinned)).c_str(),
                GetLocalizer().LoadTranslatedString(IDS_PRODUCT).c_str(),
                MB_OK | MB_ICONEXCLAMATION);
}

// A menu item that stands for a shortcut is pinned by the shortcut's name, but looked for by its
// own: it opens unchecked and is pinned again when it is checked. Kept so.
void CCustomizeHomeDlg::SavePin(HTREEITEM node, const Ratings::CMruSlots& pinned)
{
    const UINT box = m_view.BoxOf(node);
    if (box == kNoBox)
        return;
    const int32_t number = m_view.NumberOf(node);
    const bool isMenu = number > 0;
    const CMenuItemPtr item = isMenu ? m_tree.Find(static_cast<uint32_t>(number)) : CMenuItemPtr();
    const std::wstring path = item ? item->KeyPath : m_scan.PathOf(number);
    if (path.empty())
        return;
    const std::wstring name = isMenu ? Ratings::MenuEntryName(path) : Ratings::LinkEntryName(path);
    const bool isChecked = box == kCheckedBox;
    if (isChecked != pinned.IsPinned(name))
        Ratings::SetGlobalPinned(isChecked, path,
                                 isMenu ? Ratings::TargetKind::Menu : Ratings::TargetKind::Link,
                                 INFINITE);
}
