// The state of the soft input panel, one for the whole process, with its announcement.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Whether the panel is up.
bool IsInputPanelUp();

// Raises or lowers the panel. A change is announced to the process's top-level windows with
// WM_SETTINGCHANGE, wParam SPI_SETSIPINFO, soon after the call has returned.
void SetInputPanel(bool up);

} // namespace shell
