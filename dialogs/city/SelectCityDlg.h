// CSelectCityDlg: the city picker behind the export SelectCity. The user types a part of a name,
// the list shows the cities that contain it, and the chosen one's record goes back to the host.
#pragma once

#include "dialogs/city/CityDatabase.h"
#include "dialogs/city/CitySearch.h"
#include "include/TavLumenarDialogs.h"
#include "resources/resource.h"
#include "ui/PPCDialog.h"

#include <atlctrls.h>
#include <aygshell.h>

class CSelectCityDlg : public CPPCDialogImpl<CSelectCityDlg>
{
public:
    enum
    {
        IDD = IDD_SELECT_CITY
    };

    // `city` is copied; its identifier is the city that is chosen at first.
    explicit CSelectCityDlg(const CITYINFO& city);

    BEGIN_MSG_MAP(CSelectCityDlg)
        DROP_FOREIGN_NOTIFICATIONS()
        NOTIFY_HANDLER(IDC_CITY_LIST, static_cast<UINT>(LVN_GETDISPINFOW), OnGetCellText)
        NOTIFY_HANDLER(IDC_CITY_LIST, static_cast<UINT>(LVN_ITEMACTIVATE), OnRowActivated)
        NOTIFY_CODE_HANDLER(NM_STYLUSDOWN, OnStylusDown)
        COMMAND_HANDLER(IDC_CITY_SEARCH, EN_CHANGE, OnSearchChanged)
        MESSAGE_HANDLER(WM_SETTINGCHANGE, OnSettingChange)
        CHAIN_MSG_MAP(CPPCDialogImpl<CSelectCityDlg>)
    END_MSG_MAP()

    // The working record: the host's own until a city was accepted.
    CITYINFO City;

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnGetCellText(int id, NMHDR* header, BOOL& handled);
    LRESULT OnRowActivated(int id, NMHDR* header, BOOL& handled);
    LRESULT OnStylusDown(int id, NMHDR* header, BOOL& handled);
    LRESULT OnSearchChanged(WORD code, WORD id, HWND control, BOOL& handled);
    LRESULT OnSettingChange(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);

    void PrepareList();
    void LoadCities();
    void ShowAllCities();
    void ShowResults(uint32_t count);
    void ClearSelection();
    void SelectRow(uint32_t row);
    void TakeCity(const CityRecord& city);

    void LayOut();
    int UsableBottom() const;
    void SizeColumns();

    CListViewCtrl m_list;
    CWindow m_search;
    CCityDatabase m_database;
    CCitySearch m_cities;
};
