// Where the shell puts things on the screen: the dialog, the soft-key bar and the input panel.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Logical pixels (of a 96 dpi screen) in device pixels.
int Scaled(int logical);

// A work area that reaches beyond a screen of this size was the area of the screen before it was
// turned: the system tells of the turn first and may think of the work area later, or never.
// Returns the same area, its margins kept, on the screen as it is now; any other area as it is.
RECT AreaOnScreen(const RECT& area, int width, int height);

// The part of the screen that the system leaves to programs.
RECT WorkArea();

// The soft-key bar: the lowest strip of the work area.
RECT BarRect();

// A full-screen dialog: what the bar leaves of the work area.
RECT DialogRect();

// The input panel when it is up: right above the bar, as wide as the work area.
RECT PanelRect();

// The shell's face, Tahoma in the size of the handheld's bars and keys. The caller deletes it.
HFONT CreateShellFont(int weight);

// The extent of a rectangle.
inline int Width(const RECT& rect)
{
    return rect.right - rect.left;
}
inline int Height(const RECT& rect)
{
    return rect.bottom - rect.top;
}

} // namespace shell
