// A window of another thread that can take the foreground, like another program's.
#pragma once

#include "platform/Win.h"

#include <thread>

// Lives from construction to destruction; small, in the corner of the screen.
class CForeignWindow
{
public:
    CForeignWindow();
    ~CForeignWindow();
    CForeignWindow(const CForeignWindow&) = delete;
    CForeignWindow& operator=(const CForeignWindow&) = delete;

    HWND Window() const { return m_window; }
    // Brings it to the front and waits until it is there.
    void Activate();

private:
    void Run();

    HANDLE m_ready;
    HWND m_window = nullptr;
    std::thread m_thread;
};
