// Checks of the names that members are asked for by.
#pragma once

#include "platform/Char16.h"

namespace skin
{

// False when the name, put behind a folder's path, could mean something outside of the folder: it
// is rooted, names a drive, a stream or a device, or goes up somewhere.
bool StaysInFolder(StringView16 name);

} // namespace skin
