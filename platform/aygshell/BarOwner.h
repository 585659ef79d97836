// The tie between a window and its soft-key bar: which bar a window has, and the window's own
// moves that the bar follows.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Makes `toolbar` (in its bar) the bar of `owner`, in place of an earlier one, which is destroyed.
// From now on the bar is shown and hidden with its owner, unless `hidden`, and goes away with it.
// Returns false when memory is short.
bool AttachOwner(HWND owner, HWND toolbar, bool hidden);

// Forgets the toolbar, if it is still the one of `owner`.
void DetachOwner(HWND owner, HWND toolbar);

} // namespace shell
