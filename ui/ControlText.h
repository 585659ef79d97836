// The text of a control, however long it is.
#pragma once

#include "platform/Win.h"

#include <string>

// Returns the window text of `control`; empty for no window.
std::wstring ControlText(HWND control);
