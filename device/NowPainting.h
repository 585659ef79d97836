// How the Now screen looks in either layout; its own window and the wizard's pictures are drawn
// here.
#pragma once

#include "platform/Win.h"

#include "device/NowContents.h"

// Draws the whole screen into `area`; lengths inside are logical pixels at `dpi`. Panels that don't
// fit are left out.
void PaintNow(HDC dc, const RECT& area, int dpi, const NowContents& contents);
