// Working the device like a person: real stylus and key input, put into the system's input queue.
#pragma once

#include "platform/Win.h"

namespace stylus
{

// Puts the stylus down at a point of the screen, or lifts it there.
void Down(POINT screen);
void Up(POINT screen);
void Tap(POINT screen);

// Presses and releases a key; it goes to whichever window has the focus.
void Key(WORD virtualKey);

} // namespace stylus
