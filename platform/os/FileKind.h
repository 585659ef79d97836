// What an opened file really is: desktop systems open devices and pipes by name like files.
#pragma once

#include "platform/Win.h"

namespace os
{

// True for a file of a file system; false for a device such as NUL, a console or a pipe.
bool IsDiskFile(HANDLE file);

} // namespace os
