// The device's screen under test: the shell's top bar on a thread of its own, over a screen that
// the session lets turn, and what every full-screen dialog must look like after a turn.
#pragma once

#include "platform/Win.h"

#include <memory>

#include "device/TopBar.h"
#include "device/WindowThread.h"

// The screen is upright when the object is made, and again when it goes.
class CTurningScreen
{
public:
    CTurningScreen();
    ~CTurningScreen();
    CTurningScreen(const CTurningScreen&) = delete;
    CTurningScreen& operator=(const CTurningScreen&) = delete;

    // Turns the screen; fails the test when it does not turn.
    void Turn();
    bool IsUpright() const;
    HWND TopBar() const { return m_bar->Window(); }

private:
    std::unique_ptr<CWorkAreaBelow> m_area;
    // Goes first: it would set the area anew.
    std::unique_ptr<CWindowThread> m_bar;
};

// Where a full-screen dialog belongs: between the top bar and the soft keys.
RECT RoomBetweenBars();

// Waits until a dialog fills the room between the bars, and checks that its soft keys are the
// screen's lowest strip and that none of its controls reaches out of it.
void ExpectFillsRoom(HWND dialog);

// The same, and that a control reaches the dialog's left, right and bottom edge.
void ExpectControlFills(HWND dialog, HWND control);
