// The shell's own windows: one window procedure that hands messages to an object.
#pragma once

#include "platform/Win.h"

// A window that belongs to an object. The object must live longer than its window; the destructor
// destroys the window (on the thread that made it).
class CHostWindow
{
public:
    CHostWindow() = default;
    virtual ~CHostWindow();
    CHostWindow(const CHostWindow&) = delete;
    CHostWindow& operator=(const CHostWindow&) = delete;

    HWND Window() const { return m_window; }

protected:
    // Creates the window. False when the system refuses.
    bool Create(const wchar_t* className, const wchar_t* title, DWORD exStyle, DWORD style,
                const RECT& area, HWND owner = nullptr);

    // Answers one message. What it throws ends here and is shown to the user.
    virtual LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);

private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
    LRESULT Guarded(UINT message, WPARAM wparam, LPARAM lparam);

    HWND m_window = nullptr;
};
