// Bounded waiting for a condition: what tests use instead of sleeping.
#pragma once

#include "platform/Win.h"

// Asks `condition` again and again, with short pauses, until it is true or the time is up. Returns
// what it said last.
template <class Condition>
bool WaitUntil(Condition condition, DWORD milliseconds = 10000)
{
    const ULONGLONG end = GetTickCount64() + milliseconds;
    while (!condition())
    {
        if (GetTickCount64() > end)
            return false;
        Sleep(5);
    }
    return true;
}
