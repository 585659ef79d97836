// How the on-screen keyboard looks.
#pragma once

#include "platform/Win.h"

namespace shell
{

// What changes on the keyboard's face: the index of the pressed key (-1: none), and Shift.
struct SipLook
{
    int Pressed;
    bool Shifted;
};

// Answers the keyboard's WM_PAINT.
void PaintSipPanel(HWND panel, SipLook look);

} // namespace shell
