// The little keyboard in the middle of the soft-key bar that raises and lowers the input panel.
#pragma once

#include "platform/Win.h"

namespace shell
{

inline constexpr wchar_t kSipButtonClass[] = L"SoftInputButton";

bool RegisterSipButtonClass();

// Creates the button as a child of a bar with that colour (CLR_DEFAULT: the system's). Null on
// failure.
HWND CreateSipButton(HWND bar, int id, COLORREF background);

} // namespace shell
