// A window of another thread that can take the foreground, like another program's.
#pragma once

#include "platform/Win.h"

#include <atomic>
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
    // Brings it to the front and waits until it has been there: what closes in answer may give the
    // foreground to its owner at once.
    void Activate();

private:
    void Run();

    HANDLE m_ready;
    HWND m_window = nullptr;
    std::atomic<bool> m_wasInFront{false};
    std::thread m_thread;
};
