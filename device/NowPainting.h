// How the Now screen looks in either layout; its own window and the wizard's pictures are drawn
// here.
#pragma once

#include "platform/Win.h"

#include "device/NowContents.h"

// Draws the whole screen into `area`; lengths inside are logical pixels at `dpi`. Begins with the
// panel `first`; with a scroll bar when not all of them fit.
void PaintNow(HDC dc, const RECT& area, int dpi, const NowContents& contents, int first = 0);
