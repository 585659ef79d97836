// The lengths that tests expect on the screen they run on.
#pragma once

#include "platform/Win.h"

// `logical` pixels of a 96-dpi screen, on this screen: the tests run at whole multiples of 96.
inline int Px(int logical)
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return logical * (dpi / 96);
}
