// Telling a tap from a tap-and-hold.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Waits while the stylus, just put down on `window`, stays where it is. Returns true when it was
// still there after the hold time; false at once when it is lifted or moves, or the window goes.
// The button's release stays in the message queue. Sent messages are handled meanwhile.
bool IsStylusHeld(HWND window);

} // namespace shell
