// What a dialog looks like on the screen: places, colours, and what all dialogs of the module
// share.
#pragma once

#include "platform/Win.h"

#include <vector>

// A window's rectangle on the screen.
RECT RectOf(HWND window);

// Whether a point of the screen turns into a colour, within the usual time of waiting.
bool TurnsInto(COLORREF expected, int x, int y);

// Checks that a dialog fills the screen down to its soft keys, which end at the screen's bottom.
void ExpectFullScreen(HWND dialog);

// Checks that the screen shows the title band of a dialog that isn't scrolled.
void ExpectTitleBand();

// The controls of a dialog, in z-order.
std::vector<HWND> ControlsOf(HWND dialog);

// The width that a control's text takes in the control's font.
int TextWidthOf(HWND control);

// Checks that the controls stand within the dialog, below its title band, none over another.
void ExpectControlsApart(HWND dialog);
