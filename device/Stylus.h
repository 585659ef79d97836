// Working the device like a person: real stylus and key input, put into the system's input queue.
#pragma once

#include "device/Waiting.h"
#include "platform/Win.h"

namespace stylus
{

// Puts the stylus down at a point of the screen, or lifts it there.
void Down(POINT screen);
void Up(POINT screen);
void Tap(POINT screen);

// Taps where `place` says until the condition holds; false when it never does. A tap is lost when
// the display server reports the pointer's earlier place meanwhile.
template <class Place, class Condition>
bool TapUntil(Place place, Condition condition)
{
    constexpr DWORD kPatienceWithOne = 2000;
    return waiting::Until(
        [&]
        {
            Tap(place());
            return waiting::Until(condition, kPatienceWithOne);
        });
}

// Presses and releases a key; it goes to whichever window has the focus.
void Key(WORD virtualKey);

} // namespace stylus
