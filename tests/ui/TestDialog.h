// A dialog on the dialog base whose own part a test fills in.
#pragma once

#include "ui/PPCDialog.h"

#include "tests/ui/TestDialogs.h"
#include "ui/ShellDialog.h"

#include <functional>

constexpr UINT kMessageAct = WM_APP + 1;

// Calls the test's functions at start-up and once its loop runs, and then ends with IDOK unless it
// has ended already.
template <int Id>
class CTestDialogOf : public CPPCDialogImpl<CTestDialogOf<Id>>
{
    using Base = CPPCDialogImpl<CTestDialogOf<Id>>;

public:
    enum
    {
        IDD = Id
    };

    std::function<void(HWND)> onInit = [](HWND) {};
    std::function<void(HWND)> onAct = [](HWND) {};
    BOOL focusFirst = FALSE;
    std::wstring topic;
    int confirmed = 0;

    BEGIN_MSG_MAP(CTestDialogOf)
        DROP_FOREIGN_NOTIFICATIONS()
        NOTIFY_CODE_HANDLER(static_cast<UINT>(NM_CLICK), OnClick)
        MESSAGE_HANDLER(kMessageAct, OnAct)
        CHAIN_MSG_MAP(Base)
    END_MSG_MAP()

    BOOL OnInitDialogEx()
    {
        onInit(this->m_hWnd);
        PostMessageW(this->m_hWnd, kMessageAct, 0, 0);
        return focusFirst;
    }
    void OnOK()
    {
        ++confirmed;
        this->EndWith(IDOK);
    }
    std::wstring GetHelpTopic() const { return topic; }

    // Offers a message to the dialog's map alone; returns whether it was taken.
    bool Offer(UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        LRESULT result = -1;
        const BOOL taken =
            this->ProcessWindowMessage(this->m_hWnd, message, wParam, lParam, result, 0);
        offeredResult = result;
        return taken != FALSE;
    }
    LRESULT offeredResult = 0;

    using Base::EndWith;

private:
    LRESULT OnAct(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        // Posted messages come before the system shows the dialog.
        ShowWindow(this->m_hWnd, SW_SHOW);
        UpdateWindow(this->m_hWnd);
        onAct(this->m_hWnd);
        if (!this->Ended)
            this->EndWith(IDOK);
        return 0;
    }
    LRESULT OnClick(int /*id*/, NMHDR* /*header*/, BOOL& /*handled*/) { return 1; }
};

using CTestDialog = CTestDialogOf<IDD_TEST>;
using CPlainDialog = CTestDialogOf<IDD_PLAIN>;
