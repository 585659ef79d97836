// CCustomizeNowDlg: the list of plug-ins behind the export CustomizeNow. Every plug-in that is
// installed has a check box; "Done" writes the boxes that were changed.
#pragma once

#include "dialogs/now/PluginList.h"
#include "resources/resource.h"
#include "ui/PPCDialog.h"

#include <atlctrls.h>

#include <string>
#include <vector>

class CCustomizeNowDlg : public CPPCDialogImpl<CCustomizeNowDlg>
{
public:
    enum
    {
        IDD = IDD_CUSTOMIZE_NOW
    };

    CCustomizeNowDlg();

    BEGIN_MSG_MAP(CCustomizeNowDlg)
        MESSAGE_HANDLER(WM_SETTINGCHANGE, OnSettingChange)
        CHAIN_MSG_MAP(CPPCDialogImpl<CCustomizeNowDlg>)
    END_MSG_MAP()

    BOOL OnInitDialogEx();
    void OnOK();

private:
    LRESULT OnSettingChange(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled);

    void PrepareList();
    void BuildList();
    void InsertPlugin(const Plugin& plugin, size_t keyPosition);
    void ShowListOrEmptyText();
    void Save();
    const std::wstring& KeyNameOf(int item) const;

    void LayOut();

    CListViewCtrl m_list;
    // One per list item, in the order of the registry.
    std::vector<std::wstring> m_keyNames;
};
