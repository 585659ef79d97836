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
};

// The entries of a folder, given without a backslash at its end, in the file system's order. None
// for a folder that can't be opened.
std::vector<FolderEntry> ListFolder(const std::wstring& folder);

} // namespace os
