#include "dialogs/now/CustomizeNowDlg.h"

#include "dialogs/now/NowLayout.h"
#include "dialogs/now/PluginRules.h"
#include "frame/TavException.h"
#include "menu/MemoryFailure.h"
#include "ui/ControlLayout.h"
#include "ui/DialogFonts.h"
#include "ui/ShellDialog.h"

#include <aygshell.h>

#include <algorithm>
#include <climits>
#include <numeric>

namespace
{

// State images of an item's box.
constexpr UINT kUncheckedBox = INDEXTOSTATEIMAGEMASK(1);
constexpr UINT kCheckedBox = INDEXTOSTATEIMAGEMASK(2);

constexpr int kBehindAllItems = INT_MAX;

// Whether `left` stands behind `right` in the language's order, which is the list's own.
bool IsBehind(const std::wstring& left, const std::wstring& right)
{
    return CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, left.c_str(), -1, right.c_str(),
                          -1) == CSTR_GREATER_THAN;
}

// The positions of the plug-ins by their labels, the last label first. The list sorts by itself,
// but searches an item's place from its top: in this order it finds each at once.
std::vector<size_t> LastLabelFirst(const std::vector<Plugin>& plugins)
{
    std::vector<size_t> order(plugins.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t left, size_t right)
                     { return IsBehind(plugins[left].Label, plugins[right].Label); });
    return order;
}

} // namespace

CCustomizeNowDlg::CCustomizeNowDlg()
{
    InitCommonControls();
    SHInitExtraControls();
}

BOOL CCustomizeNowDlg::OnInitDialogEx()
{
    if (!TryInitShellDialog(m_hWnd, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN))
        ThrowBroken();
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON);
    PrepareList();
    const HFONT bold = CDialogFonts::Instance().Get(true);
    GetDlgItem(IDC_NOW_EMPTY).SetFont(bold, FALSE);
    WithMemoryFailure([this] { BuildList(); });
    LayOut();
    // The list is the only control that takes the focus; the system gives it to it.
    return FALSE;
}

void CCustomizeNowDlg::OnOK()
{
    Save();
    EndWith(IDOK);
}

LRESULT CCustomizeNowDlg::OnSettingChange(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/,
                                          BOOL& /*handled*/)
{
    if (wParam == kSettingChangeReset)
        LayOut();
    return 0;
}

// The layout gives the column its width.
void CCustomizeNowDlg::PrepareList()
{
    m_list.Attach(GetDlgItem(IDC_NOW_LIST));
    m_list.SetExtendedListViewStyle(LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT;
    column.fmt = LVCFMT_LEFT;
    column.pszText = const_cast<wchar_t*>(L"");
    m_list.InsertColumn(0, column);
}

void CCustomizeNowDlg::BuildList()
{
    const std::vector<Plugin> plugins = LoadPlugins();
    m_list.SetRedraw(FALSE);
    m_list.DeleteAllItems();
    m_keyNames.clear();
    for (const Plugin& plugin : plugins)
        m_keyNames.push_back(plugin.KeyName);
    for (const size_t position : LastLabelFirst(plugins))
        InsertPlugin(plugins[position], position);
    m_list.SetRedraw(TRUE);
    ShowListOrEmptyText();
}

void CCustomizeNowDlg::InsertPlugin(const Plugin& plugin, size_t keyPosition)
{
    LVITEMW item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.iItem = kBehindAllItems;
    item.pszText = const_cast<wchar_t*>(plugin.Label.c_str());
    item.lParam = static_cast<LPARAM>(PluginItemData(keyPosition, plugin.Kind));
    // Sorting moves the item: only the list knows where it went.
    const int place = m_list.InsertItem(item);
    if (place < 0)
        ThrowOutOfMemory();
    m_list.SetItemState(place, plugin.IsUsed ? kCheckedBox : kUncheckedBox, LVIS_STATEIMAGEMASK);
}

void CCustomizeNowDlg::ShowListOrEmptyText()
{
    const bool hasPlugins = m_list.GetItemCount() > 0;
    ::ShowWindow(m_list, hasPlugins ? SW_SHOW : SW_HIDE);
    ::ShowWindow(GetDlgItem(IDC_NOW_EXPLANATION), hasPlugins ? SW_SHOW : SW_HIDE);
    ::ShowWindow(GetDlgItem(IDC_NOW_EMPTY), hasPlugins ? SW_HIDE : SW_SHOW);
}

void CCustomizeNowDlg::Save()
{
    CPluginSaving saving;
    const int count = m_list.GetItemCount();
    for (int item = 0; item < count; ++item)
    {
        const UINT box = m_list.GetItemState(item, LVIS_STATEIMAGEMASK);
        saving.SetUsed(KeyNameOf(item), box == kCheckedBox);
    }
}

const std::wstring& CCustomizeNowDlg::KeyNameOf(int item) const
{
    const size_t position = KeyPositionOf(static_cast<uint32_t>(m_list.GetItemData(item)));
    if (position >= m_keyNames.size())
        ThrowBroken();
    return m_keyNames[position];
}

void CCustomizeNowDlg::LayOut()
{
    RECT client = {};
    GetClientRect(&client);
    const RECT list = NowListPlace(client, ControlPlace(m_hWnd, m_list));
    MoveControl(m_list, list);
    m_list.SetColumnWidth(0, NowColumnWidth(list, GetSystemMetrics(SM_CXVSCROLL)));
    const HWND emptyText = GetDlgItem(IDC_NOW_EMPTY);
    MoveControl(emptyText, NowEmptyTextPlace(client, ControlPlace(m_hWnd, emptyText)));
}
