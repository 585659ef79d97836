// How the soft-key bar looks: flat, in the system's colours, texts centred, a fine divider.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Answers WM_PAINT of the soft keys' toolbar. `background` is CLR_DEFAULT for the system's colour.
void PaintSoftKeys(HWND toolbar, COLORREF background);

} // namespace shell
