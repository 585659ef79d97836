// Runs an export on a user-interface thread of its own, with an owner window, while the test works
// the dialog from outside.
#pragma once

#include "platform/Win.h"

#include <functional>
#include <optional>
#include <string>
#include <thread>

// One call of an export. The destructor cancels a dialog that is still open and waits for the end.
class CDialogRun
{
public:
    // `call` shows the dialog over the given owner and returns the export's result.
    explicit CDialogRun(std::function<BOOL(HWND owner)> call);
    ~CDialogRun();
    CDialogRun(const CDialogRun&) = delete;
    CDialogRun& operator=(const CDialogRun&) = delete;

    // Waits for the innermost dialog of the run to have the given window text and to be ready for
    // input; null and a failed test when the time is up.
    HWND WaitForDialog(const std::wstring& title, DWORD milliseconds = 10000);
    // The innermost visible dialog now; null when there is none.
    HWND InnermostDialog() const;
    // The window of the run's thread that has the focus; null when none has.
    HWND Focus() const;
    // Waits until a pop-up menu is open and returns its window; null after 10 seconds.
    HWND WaitForPopup();
    // The pop-up menu that is open now; null when there is none.
    HWND OpenPopup() const;
    // Waits for the call to return; false when the time is up.
    bool WaitForEnd(DWORD milliseconds = 20000);
    bool HasEnded() const;

    // After the end: what the export returned, nothing when it threw.
    std::optional<BOOL> Result() const { return m_result; }
    // After the end: the code of the CTavException that left the export; 0 without one. Any other
    // exception is reported as E_UNEXPECTED.
    HRESULT ThrownCode() const { return m_thrown; }

    HWND Owner() const { return m_owner; }
    DWORD ThreadId() const { return m_threadId; }
    // Whether the owner was enabled when the call returned.
    bool OwnerEnabledAtEnd() const { return m_ownerEnabledAtEnd; }

private:
    void Run(const std::function<BOOL(HWND)>& call);

    HANDLE m_ready;
    HANDLE m_ended;
    HWND m_owner = nullptr;
    DWORD m_threadId = 0;
    std::optional<BOOL> m_result;
    HRESULT m_thrown = 0;
    bool m_ownerEnabledAtEnd = false;
    std::thread m_thread;
};

// The innermost dialog of a thread that is visible and takes input; null when there is none.
HWND OpenDialogOf(DWORD threadId);

// The window text of any window.
std::wstring TextOf(HWND window);

// Sends a command to a dialog like its soft keys do.
void SendCommand(HWND dialog, UINT id);
// The same without waiting for it: for commands that open a dialog or a menu.
void PostCommand(HWND dialog, UINT id);

// Presses and releases a key in whichever window has the focus.
void PressKey(WORD virtualKey);
// Presses a key without releasing it, or releases it.
void HoldKey(WORD virtualKey, bool down);
// Whether the system takes the key as pressed now.
bool IsKeyDown(WORD virtualKey);
// Puts the stylus over a point of the screen without touching it, and waits until it stays there:
// the display server may still be reporting an earlier place.
void PlaceStylus(POINT screen);
// Taps the screen with the stylus.
void TapScreen(POINT screen);
