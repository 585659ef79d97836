// Turning the device between upright and on its side, as a handheld's rotate key does. Used by the
// top bar, which has the key and the button for it.
#pragma once

#include "platform/Win.h"

// Whether the screen can be turned and turned back: it is a device's own, that is no larger than a
// handheld's, and the system has it in both shapes. A person's desktop is never touched.
bool CanRotateScreen();

// Turns the screen and returns when every window has heard of it (WM_DISPLAYCHANGE). Returns false
// and changes nothing when it can't be turned.
bool RotateScreen();

namespace rotation
{

// Whether a screen of this size, in pixels, can be a handheld's.
bool IsDeviceScreen(SIZE screen);

// `box` moved, not resized, so that it lies within `room`; what is larger than the room begins at
// the room's corner.
RECT MovedInto(RECT box, const RECT& room);

// Moves the process's message boxes into the work area, which a turned screen may have taken
// from under them. Full-screen dialogs look after themselves.
void KeepMessageBoxesOnScreen();

} // namespace rotation
