// Icons of files as the system shows them, and image lists in the screen's own colours.
#pragma once

#include "platform/Win.h"

#include <string>

namespace os
{

// The system's image list and, in `index`, the image of a file with these attributes; the file need
// not exist. `flags` adds to SHGFI_SYSICONINDEX | SHGFI_USEFILEATTRIBUTES. Null when the system has
// none. The list is borrowed: it is never destroyed.
HIMAGELIST SystemIcon(const std::wstring& path, DWORD attributes, UINT flags, int& index);

// The system's list of small icons; null when it has none. Borrowed, too.
HIMAGELIST SmallIcons();

// The place of an existing file's or folder's icon in that list; 0 for anything else.
int SmallIconOf(const std::wstring& path);

// What the handheld's ImageList_Create takes as 0: desktop systems would give 16 colours for that.
constexpr UINT kScreenColours = ILC_COLOR32;

} // namespace os
