// CPPCDialogImpl: what all dialogs of the module have in common. A dialog class derives from it,
// names its template with IDD, and supplies OnInitDialogEx, OnOK and, if it has one, a help topic.
#pragma once

#include "frame/TavException.h"
#include "platform/Win.h"
#include "ui/ControlLayout.h"
#include "ui/Help.h"
#include "ui/TitleBand.h"

#include <atlwin.h>

#include <string>

// wParam of WM_SETTINGCHANGE when the screen was rotated or changed its size.
constexpr WPARAM kSettingChangeReset = 0x3002;

namespace ppc
{

// The steps of start-up before the dialog's own: registers the scroll message, prepares the shell,
// sets the caption unless it is empty, lays the controls out, adds initial box entries.
void BeginDialog(HWND dialog, const std::wstring& caption, UINT templateId, UINT& scrollMessage);

// The steps behind the dialog's own start-up: translates the dialog with its bar, fits the main
// control (may be null) and gives the first control the focus if asked.
void FinishDialog(HWND dialog, HWND mainControl, bool focusFirstControl);

// Repaints what is left of the title band when the dialog is scrolled to `position`.
void ScrollTitleBand(HWND dialog, int position);

// Enables the dialog's owner window, if it has one.
void EnableOwner(HWND dialog);

// False for a notification that no child window of the dialog can have sent: its data must not be
// looked at.
bool IsOwnNotification(HWND dialog, LPARAM lParam);

} // namespace ppc

// A full-screen dialog with soft keys, title band, scaled fonts and translated texts.
template <class T>
class CPPCDialogImpl : public CDialogImpl<T>
{
public:
    std::wstring Caption;
    UINT ScrollMessage = 0;
    BOOL Ended = FALSE;
    HWND MainControl = nullptr;

    // Runs the dialog modally over `owner` and returns its end code; -1 when it could not be shown.
    // Throws CTavException 0x84000001 when the object has a window already.
    INT_PTR RunModal(HWND owner)
    {
        if (this->m_hWnd)
            ThrowBroken();
        Ended = FALSE;
        return this->DoModal(owner);
    }

    // The chapter of the help book; empty for its contents.
    std::wstring GetHelpTopic() const { return std::wstring(); }

    BEGIN_MSG_MAP(CPPCDialogImpl)
        MESSAGE_HANDLER(WM_INITDIALOG, OnInitDialog)
        MESSAGE_HANDLER(WM_PAINT, OnPaint)
        MESSAGE_HANDLER(WM_HELP, OnHelp)
        if (ScrollMessage != 0)
            MESSAGE_HANDLER(ScrollMessage, OnScrollMessage)
        MESSAGE_HANDLER(WM_SETTINGCHANGE, OnSettingChange)
        MESSAGE_HANDLER(WM_ERASEBKGND, OnEraseBackground)
        COMMAND_ID_HANDLER(IDOK, OnCmdOk)
        COMMAND_ID_HANDLER(IDCANCEL, OnCmdCancel)
    END_MSG_MAP()

protected:
    // Ends the dialog. Ending it re-enters the dialog with WM_ACTIVATE, so that Ended is set first.
    void EndWith(int code)
    {
        if (!this->IsWindow())
            ThrowBroken();
        Ended = TRUE;
        this->EndDialog(code);
    }

private:
    T& Self() { return static_cast<T&>(*this); }

    LRESULT OnInitDialog(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        ppc::BeginDialog(this->m_hWnd, Caption, static_cast<UINT>(T::IDD), ScrollMessage);
        const BOOL focusFirst = Self().OnInitDialogEx();
        ppc::FinishDialog(this->m_hWnd, MainControl, focusFirst != FALSE);
        return FALSE;
    }

    LRESULT OnPaint(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        PaintTitleBand(this->m_hWnd);
        return 0;
    }

    LRESULT OnHelp(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        LaunchHelp(Self().GetHelpTopic());
        return TRUE;
    }

    LRESULT OnScrollMessage(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        ppc::ScrollTitleBand(this->m_hWnd, static_cast<int>(wParam));
        return 0;
    }

    LRESULT OnSettingChange(UINT /*message*/, WPARAM wParam, LPARAM /*lParam*/, BOOL& /*handled*/)
    {
        if (wParam == kSettingChangeReset)
            FitMainControl(this->m_hWnd, MainControl);
        return 0;
    }

    // The owner is enabled on every erase, deliberately.
    LRESULT OnEraseBackground(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/, BOOL& handled)
    {
        ppc::EnableOwner(this->m_hWnd);
        handled = FALSE;
        return 0;
    }

    LRESULT OnCmdOk(WORD /*code*/, WORD /*id*/, HWND /*control*/, BOOL& /*handled*/)
    {
        Self().OnOK();
        return 0;
    }

    LRESULT OnCmdCancel(WORD /*code*/, WORD /*id*/, HWND /*control*/, BOOL& /*handled*/)
    {
        EndWith(IDCANCEL);
        return 0;
    }
};

// First line of a dialog's message map that looks into notifications: drops forged ones.
#define DROP_FOREIGN_NOTIFICATIONS()                                                               \
    if (uMsg == WM_NOTIFY && !ppc::IsOwnNotification(hWnd, lParam))                                \
        return FALSE;
