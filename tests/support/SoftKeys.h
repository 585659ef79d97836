// Reads the soft-key bar of a dialog.
#pragma once

#include "platform/Win.h"

#include <string>

// The bar's window; null when the dialog has none. Found without the shell library.
HWND SoftKeyBar(HWND dialog);
// The number of keys.
int SoftKeyCount(HWND dialog);
// The text of a key, 0 the left one.
std::wstring SoftKeyText(HWND dialog, int key);
// The command of a key.
UINT SoftKeyCommand(HWND dialog, int key);
// The pop-up menu of a key; null when it has none.
HMENU SoftKeyMenu(HWND dialog, int key);
// The text of a menu's entry.
std::wstring MenuText(HMENU menu, UINT position);
