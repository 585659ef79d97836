// The on-screen keyboard: the window that is up while the input panel is on.
#pragma once

#include "platform/Win.h"

namespace shell
{

inline constexpr wchar_t kSipPanelClass[] = L"SoftInputPanel";

bool RegisterSipPanelClass();

// Puts the keyboard on the screen (on the calling thread, unless it is there) or takes it away.
void ShowSipPanel(bool show);

} // namespace shell
