#include "dialogs/city/SelectCityDlg.h"

#include "dialogs/city/CityListLayout.h"
#include "platform/os/Text.h"
#include "ui/ControlLayout.h"
#include "ui/Scale.h"
#include "ui/ShellDialog.h"
#include "ui/WaitCursor.h"

#include <algorithm>

namespace
{

enum Column
{
    ColumnName = 0,
    ColumnArea = 1
};

// Characters of the search text that count, and the terminating zero.
constexpr int kSearchSize = 32;
// The list ends this far above the input panel or the soft keys, in logical pixels.
constexpr int kMarginBelowList = 4;

// Keeps a list from drawing each of several changes. The list's own answer to WM_SETREDRAW would
// draw the scroll bar several times; the default one takes it for hidden meanwhile.
class CListPause
{
public:
    explicit CListPause(CListViewCtrl& list) : m_list(list)
    {
        DefWindowProcW(m_list, WM_SETREDRAW, FALSE, 0);
    }
    ~CListPause()
    {
        DefWindowProcW(m_list, WM_SETREDRAW, TRUE, 0);
        SetWindowPos(m_list, nullptr, 0, 0, 0, 0,
                     SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        InvalidateRect(m_list, nullptr, TRUE);
    }
    CListPause(const CListPause&) = delete;
    CListPause& operator=(const CListPause&) = delete;

private:
    CListViewCtrl& m_list;
};

// At most 31 characters, padded with zeros; the text may lie at an odd address.
void CopyName(WCHAR (&target)[32], const wchar_t* name)
{
    std::fill(std::begin(target), std::end(target), L'\0');
    for (size_t i = 0; i + 1 < std::size(target) && CityUnit(name + i) != L'\0'; ++i)
        target[i] = CityUnit(name + i);
}

} // namespace

CSelectCityDlg::CSelectCityDlg(const CITYINFO& city) : City(city), m_cities(os::FoldTable())
{
    InitCommonControls();
    SHInitExtraControls();
}

BOOL CSelectCityDlg::OnInitDialogEx()
{
    CreateMenuBar(m_hWnd, IDR_DONE_CANCEL, SHCMBF_HMENU);
    m_search.Attach(GetDlgItem(IDC_CITY_SEARCH));
    m_list.Attach(GetDlgItem(IDC_CITY_LIST));
    if (!m_list.m_hWnd)
    {
        LayOut();
        return FALSE;
    }
    PrepareList();
    LoadCities();
    LayOut();
    return TRUE;
}

void CSelectCityDlg::OnOK()
{
    const int mark = m_list.m_hWnd ? m_list.GetSelectionMark() : -1;
    if (mark < 0)
    {
        EndWith(IDCANCEL);
        return;
    }
    TakeCity(m_database.Image().City(m_cities.At(static_cast<size_t>(mark))));
    EndWith(IDOK);
}

LRESULT CSelectCityDlg::OnGetCellText(int /*id*/, NMHDR* header, BOOL& /*handled*/)
{
    if (IsBadWritePtr(header, sizeof(NMLVDISPINFOW)))
        return 0;
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    const auto row = static_cast<uint32_t>(item.iItem);
    if (row >= m_cities.CityCount())
        return 0;
    const bool wantsText = (item.mask & LVIF_TEXT) != 0;
    item.mask |= LVIF_TEXT;
    const CCityImage& image = m_database.Image();
    const CityRecord city = image.City(m_cities.At(row));
    if (item.iSubItem == ColumnName)
        item.pszText = const_cast<wchar_t*>(image.StringAt(city.Name));
    else if (item.iSubItem == ColumnArea && wantsText && item.pszText)
        FormatCityArea(image, city, item.pszText,
                       static_cast<size_t>(std::max(item.cchTextMax, 0)));
    return 0;
}

LRESULT CSelectCityDlg::OnRowActivated(int /*id*/, NMHDR* /*header*/, BOOL& /*handled*/)
{
    OnOK();
    return 0;
}

// No gesture starts in this dialog.
LRESULT CSelectCityDlg::OnStylusDown(int /*id*/, NMHDR* /*header*/, BOOL& /*handled*/)
{
    return TRUE;
}

LRESULT CSelectCityDlg::OnSearchChanged(WORD /*code*/, WORD /*id*/, HWND /*control*/,
                                        BOOL& /*handled*/)
{
    if (!m_list.m_hWnd)
        return 0;
    wchar_t text[kSearchSize] = {};
    m_search.SendMessage(WM_GETTEXT, kSearchSize, reinterpret_cast<LPARAM>(text));
    text[kSearchSize - 1] = L'\0';
    const auto shown = static_cast<uint32_t>(std::max(m_list.GetItemCount(), 0));
    ShowResults(m_cities.Search(os::FoldCase(text), false, shown));
    return 0;
}

LRESULT CSelectCityDlg::OnSettingChange(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/,
                                        BOOL& /*handled*/)
{
    if (wParam == SPI_SETSIPINFO || wParam == kSettingChangeReset)
        LayOut();
    return 0;
}

// One tap chooses, as everywhere on the handheld.
void CSelectCityDlg::PrepareList()
{
    constexpr DWORD kStyle = LVS_EX_FULLROWSELECT | LVS_EX_ONECLICKACTIVATE;
    m_list.SetExtendedListViewStyle(kStyle, kStyle);
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT;
    column.fmt = LVCFMT_LEFT;
    m_list.InsertColumn(ColumnName, column);
    m_list.InsertColumn(ColumnArea, column);
    SizeColumns();
}

// Without a usable database, or without memory for it, the list stays empty.
void CSelectCityDlg::LoadCities()
{
    const CWaitCursor wait;
    try
    {
        m_database.Load();
        ShowAllCities();
    }
    catch (...)
    {
        m_list.SetItemCount(0);
    }
}

void CSelectCityDlg::ShowAllCities()
{
    const CCityImage& image = m_database.Image();
    m_cities.Attach(image);
    ShowResults(m_cities.Search({}, true, 0));
    const uint32_t current = FindCity(image, City.identifier);
    if (current != kNoCityRecord)
        SelectRow(current);
}

void CSelectCityDlg::ShowResults(uint32_t count)
{
    const CListPause pause(m_list);
    m_list.SetItemCount(static_cast<int>(count));
    SizeColumns();
    ClearSelection();
}

// Clearing all rows at once takes time for every row there is: the row that has the focus, which
// nearly always is the selected one too, is cleared by itself.
void CSelectCityDlg::ClearSelection()
{
    const int focused = m_list.GetNextItem(-1, LVNI_FOCUSED);
    if (focused >= 0)
        m_list.SetItemState(focused, 0, LVIS_SELECTED | LVIS_FOCUSED);
    if (m_list.GetSelectedCount() > 0)
        m_list.SetItemState(-1, 0, LVIS_SELECTED);
}

void CSelectCityDlg::SelectRow(uint32_t row)
{
    const auto item = static_cast<int>(row);
    constexpr UINT kState = LVIS_SELECTED | LVIS_FOCUSED;
    m_list.SetItemState(item, kState, kState);
    m_list.SetSelectionMark(item);
    m_list.EnsureVisible(item, FALSE);
}

// Bytes that the database has nothing for keep what the host passed in.
void CSelectCityDlg::TakeCity(const CityRecord& city)
{
    const CCityImage& image = m_database.Image();
    CITYINFO taken = City;
    taken.identifier = city.Identifier;
    CopyName(taken.name, image.StringAt(city.Name));
    taken.hasDetails = 0;
    if (city.Details != kNoCityRecord)
    {
        taken.hasDetails = 1;
        std::copy_n(image.DetailsOf(city.Details), kCityDetailsSize, taken.details);
    }
    City = taken;
}

void CSelectCityDlg::LayOut()
{
    RECT client = {};
    GetClientRect(&client);
    if (m_search.m_hWnd)
    {
        RECT place = ControlPlace(m_hWnd, m_search);
        place.right = client.right - place.left;
        MoveControl(m_search, place);
    }
    if (!m_list.m_hWnd)
        return;
    RECT place = ControlPlace(m_hWnd, m_list);
    place.right = client.right - place.left;
    place.bottom = UsableBottom() - ScaleY(kMarginBelowList);
    MoveControl(m_list, place);
    SizeColumns();
    const int mark = m_list.GetSelectionMark();
    if (mark >= 0)
        m_list.EnsureVisible(mark, FALSE);
}

// Where the input panel or the dialog's client area ends, whichever comes first.
int CSelectCityDlg::UsableBottom() const
{
    RECT client = {};
    GetClientRect(&client);
    SIPINFO panel = {};
    panel.cbSize = sizeof(panel);
    if (!SHSipInfo(SPI_GETSIPINFO, 0, &panel, 0) || !(panel.fdwFlags & SIPF_ON))
        return client.bottom;
    POINT corner = {0, panel.rcVisibleDesktop.bottom};
    ScreenToClient(&corner);
    return std::min(corner.y, client.bottom);
}

// The widths are left alone when they fit already: setting one redraws the list.
void CSelectCityDlg::SizeColumns()
{
    RECT window = {}, client = {}, row = {};
    ::GetWindowRect(m_list, &window);
    ::GetClientRect(m_list, &client);
    const int count = m_list.GetItemCount();
    if (count > 0)
        m_list.GetItemRect(0, row, LVIR_BOUNDS);
    const CityListSize size = {
        static_cast<int>(window.right - window.left), static_cast<int>(client.bottom - client.top),
        static_cast<int>(row.bottom - row.top), count, GetSystemMetrics(SM_CXVSCROLL)};
    const CityColumnWidths widths = FitCityColumns(size, ScaleY(1), ScaleY(2));
    if (m_list.GetColumnWidth(ColumnName) != widths.Name)
        m_list.SetColumnWidth(ColumnName, widths.Name);
    if (m_list.GetColumnWidth(ColumnArea) != widths.Area)
        m_list.SetColumnWidth(ColumnArea, widths.Area);
}
