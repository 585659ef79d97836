// The bold title at the top of every dialog's client area.
#pragma once

#include "platform/Win.h"

#include <optional>

// Height of the band and thickness of the line below it, in device pixels.
int TitleBandHeight();
int TitleLineThickness();

// Answers WM_PAINT: draws the band with the dialog's window text, as far as it isn't scrolled away.
void PaintTitleBand(HWND dialog);

// What is left of a band of `height` when the dialog, now scrolled by `current`, is scrolled to
// `position`: the lower edge of the part to repaint, or nothing when there is nothing to do.
std::optional<int> ScrolledBandBottom(int position, int current, int height);

// The dialog's vertical scroll position; 0 when it has none.
int VerticalScrollPosition(HWND dialog);
