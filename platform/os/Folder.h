// Listing a folder as the handheld does: without the entries "." and ".." and without links to
// other folders, none of which its file system knows.
#pragma once

#include <string>
#include <vector>

namespace os
{

struct FolderEntry
{
    std::wstring Name;
    bool IsFolder;
    // Hidden, or a part of the system.
    bool IsHidden;
};

// The entries that match a pattern such as a folder's "\Windows\*.*", in the file system's order.
// None for a folder that can't be opened.
std::vector<FolderEntry> ListFolder(const std::wstring& pattern);

} // namespace os
