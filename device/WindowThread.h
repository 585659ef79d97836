// A window with a thread of its own, as a window of another process would have: it answers while
// the shell's thread waits for a dialog. Used by the launcher-menu process and the Now screen.
#pragma once

#include <functional>
#include <memory>
#include <thread>

#include "device/HostWindow.h"
#include "platform/Handles.h"

class CWindowThread
{
public:
    // Makes the object and creates its window; runs on the thread. The window must end its thread
    // with PostQuitMessage when it is destroyed.
    using Maker = std::function<std::unique_ptr<CHostWindow>()>;

    // Starts the thread and waits until the window is there.
    explicit CWindowThread(Maker make);
    // Closes the window and waits for the thread.
    ~CWindowThread();
    CWindowThread(const CWindowThread&) = delete;
    CWindowThread& operator=(const CWindowThread&) = delete;

    // Null when it could not be created.
    HWND Window() const { return m_window; }

private:
    void Run(const Maker& make);

    UniqueKernelHandle m_ready;
    HWND m_window = nullptr;
    std::thread m_thread;
};
