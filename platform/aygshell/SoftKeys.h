// The toolbar inside a soft-key bar: its buttons are the soft keys.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Creates the toolbar without buttons. `background` is CLR_DEFAULT for the system's colour; the
// font stays the caller's. Null on failure.
HWND CreateSoftKeys(HWND bar, COLORREF background, HFONT font);

// The toolbar of a bar.
HWND FindSoftKeys(HWND bar);

// Makes a button of each top-level entry of a menu; a pop-up's button carries the HMENU in dwData.
bool AddSoftKeys(HWND toolbar, HMENU menu);

// Takes all buttons away.
void RemoveSoftKeys(HWND toolbar);

// Divides the toolbar's width evenly among its buttons; one or two get half of it each.
void LayoutSoftKeys(HWND toolbar);

// The place of a soft key in the toolbar, over its full height.
RECT SoftKeyRect(HWND toolbar, int index);

} // namespace shell
