// The Now screen: its window has the class that the module knows it by, lives on a thread of its
// own and takes a new layout as soon as it is told of one. The home screen shows and hides it.
#pragma once

#include <atomic>

#include "device/WindowThread.h"
#include "dialogs/wizard/LayoutType.h"

class CNowScreen
{
public:
    // Reads what is to be shown and creates the window, hidden.
    CNowScreen();

    // Null when it could not be created.
    HWND Window() const { return m_thread.Window(); }

    // Shows it over everything else in `area` of the screen, without taking the focus.
    void Show(const RECT& area) const;
    void Hide() const;
    // Has it read its plug-ins and its layout anew; doesn't wait for it.
    void Refresh() const;

    // The layout that it shows at the moment.
    LayoutType Layout() const { return m_layout; }

private:
    std::atomic<LayoutType> m_layout = LayoutType::Classic;
    // Last: the window uses what stands above.
    CWindowThread m_thread;
};
