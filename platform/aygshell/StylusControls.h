// The handheld's tree and list views: they announce the stylus to their dialog, know tap-and-hold,
// and leave Enter to trees.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Gives a tree or list view these manners until it is destroyed; other windows stay as they are.
// Harmless when repeated.
void GiveStylusManners(HWND control);

} // namespace shell
