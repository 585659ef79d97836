// What a dialog looks like on the screen: places, colours, and what all dialogs of the module
// share.
#pragma once

#include "platform/Win.h"

// A window's rectangle on the screen.
RECT RectOf(HWND window);

// Whether a point of the screen turns into a colour, within the usual time of waiting.
bool TurnsInto(COLORREF expected, int x, int y);

// Checks that a dialog fills the screen down to its soft keys, which end at the screen's bottom.
void ExpectFullScreen(HWND dialog);

// Checks that the screen shows the title band of a dialog that isn't scrolled.
void ExpectTitleBand();
