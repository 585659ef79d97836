// A dialog whose behaviour a test fills in.
#pragma once

#include <atlwin.h>

#include "tests/platform/atl/TestDialogs.h"

#include <functional>

// Calls the test's functions from its message handlers; ends with 5 on WM_APP_END.
constexpr UINT kMessageAct = WM_APP + 1;
constexpr UINT kMessageEnd = WM_APP + 2;
constexpr UINT kMessageAnswer = WM_APP + 3;
constexpr int kEndCode = 5;
constexpr LRESULT kAnswer = 0x1234567;

template <int Id>
class CProbeDialog : public ATL::CDialogImpl<CProbeDialog<Id>>
{
public:
    enum
    {
        IDD = Id
    };

    // At start-up; by default the dialog ends as soon as its loop runs.
    std::function<void(HWND)> onInit = [](HWND dialog) { PostMessageW(dialog, kMessageEnd, 0, 0); };
    // At kMessageAct.
    std::function<void(HWND)> onAct = [](HWND) {};
    // At WM_DESTROY.
    std::function<void(HWND)> onDestroy = [](HWND) {};
    int finalMessages = 0;
    int actions = 0;
    HBRUSH brush = nullptr;

    BEGIN_MSG_MAP(CProbeDialog)
        MESSAGE_HANDLER(WM_INITDIALOG, OnInit)
        MESSAGE_HANDLER(kMessageAct, OnAct)
        MESSAGE_HANDLER(kMessageEnd, OnEnd)
        MESSAGE_HANDLER(kMessageAnswer, OnAnswer)
        MESSAGE_HANDLER(WM_CTLCOLORSTATIC, OnColour)
        MESSAGE_HANDLER(WM_DESTROY, OnDestroy)
    END_MSG_MAP()

    void OnFinalMessage(HWND /*window*/) override { ++finalMessages; }

private:
    LRESULT OnInit(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        onInit(this->m_hWnd);
        return TRUE;
    }
    LRESULT OnAct(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        ++actions;
        onAct(this->m_hWnd);
        return 0;
    }
    LRESULT OnEnd(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        this->EndDialog(kEndCode);
        return 0;
    }
    LRESULT OnAnswer(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        return kAnswer;
    }
    LRESULT OnColour(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& handled)
    {
        handled = brush != nullptr;
        return reinterpret_cast<LRESULT>(brush);
    }
    LRESULT OnDestroy(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& handled)
    {
        handled = FALSE;
        onDestroy(this->m_hWnd);
        return 0;
    }
};

using CProbe = CProbeDialog<IDD_PROBE>;
