// The keyboard of the soft-key bar, which never has the focus itself: F1 and F2 are the left and
// the right soft key, Alt and a letter the key that underlines the letter.
#pragma once

#include "platform/Win.h"

namespace shell
{

// Watches the calling thread's key messages for windows that have a bar. One hook per bar: it is
// unhooked with the bar, and what one has taken, the others see as WM_NULL. Null on failure.
HHOOK HookBarKeys();

} // namespace shell
