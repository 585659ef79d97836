// Finds the dialogs and menus that are open, for the picture drivers. Called on a thread of its
// own.
#pragma once

#include "platform/Win.h"

namespace open
{

// The visible dialog of the user-interface thread that takes input, other than `other`; null when
// there is none.
HWND Dialog(DWORD threadId, HWND other);

// Waits until there is one that has the foreground and is ready for input; null when none came.
HWND WaitForDialog(DWORD threadId, HWND other);

// Has all windows of a thread paint what they still have to.
void PaintAll(DWORD threadId);

// Whether a pop-up menu is open.
bool IsMenuOpen();

// How many are, one over the other.
int MenuCount();

// Waits for one; false when none came.
bool WaitForMenu();

} // namespace open
