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

    // Moves on by so many panels, or back; as far as there are more than fit. Doesn't wait for it.
    void Scroll(int panels) const;

    // The layout that it shows at the moment.
    LayoutType Layout() const { return m_state.Layout; }
    // How many panels it has, and which is the first one on the screen.
    int PanelCount() const { return m_state.Panels; }
    int FirstPanel() const { return m_state.First; }

    // What its window tells about itself.
    struct State
    {
        std::atomic<LayoutType> Layout = LayoutType::Classic;
        std::atomic<int> Panels = 0;
        std::atomic<int> First = 0;
    };

private:
    State m_state;
    // Last: the window uses what stands above.
    CWindowThread m_thread;
};
