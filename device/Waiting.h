// Waiting for what another thread is about to do, always with an end.
#pragma once

#include "platform/Win.h"

namespace waiting
{

// Milliseconds until a picture driver gives up.
constexpr DWORD kPatience = 10000;

// Asks until the condition holds; false when it still doesn't after so many milliseconds.
template <class Condition>
bool Until(Condition condition, DWORD patience = kPatience)
{
    const ULONGLONG end = GetTickCount64() + patience;
    while (!condition())
    {
        if (GetTickCount64() > end)
            return false;
        Sleep(10);
    }
    return true;
}

// Waits until the window's thread has handled all its input: an answer comes only from its message
// loop.
inline void ForThreadOf(HWND window)
{
    DWORD_PTR answer = 0;
    SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &answer);
}

} // namespace waiting
