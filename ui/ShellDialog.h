// What every dialog asks of the Pocket PC shell: full-screen set-up and its soft-key bar.
#pragma once

#include "platform/Win.h"

// Unless told otherwise these throw CTavException with the code of the last error when the shell
// refuses.

// Sets the dialog up with the given SHIDIF_ flags.
void InitShellDialog(HWND dialog, DWORD flags);

// The same, but returns false when the shell refuses.
bool TryInitShellDialog(HWND dialog, DWORD flags);

// Creates the dialog's soft-key bar from the menu resource `menu` with the given SHCMBF_ flags.
void CreateMenuBar(HWND dialog, UINT menu, DWORD flags);

// The part of a dialog's start-up that must not fail it: an empty bar until the dialog's own one
// stands there, and the full-screen set-up.
void PrepareShellDialog(HWND dialog);
