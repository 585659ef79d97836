// Window class names in the handheld's spelling.
#pragma once

#include "platform/Win.h"

#include <string>

namespace os
{

// The class name of a window. Desktop systems spell two of the standard classes with capitals,
// "Static" and "ComboBox"; they are returned as the handheld has them, "static" and "combobox".
// Every other name is returned as it is; empty for a window that is gone.
std::wstring HandheldClassName(HWND window);

} // namespace os
