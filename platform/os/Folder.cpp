#include "platform/os/Folder.h"

#include "platform/Handles.h"

namespace os
{
namespace
{

constexpr DWORD kHidden = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;

// A link that led back to a folder above it would make a walk endless.
bool IsForeignToTheHandheld(const WIN32_FIND_DATAW& found)
{
    const std::wstring_view name = found.cFileName;
    constexpr DWORD kFolderLink = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return name == L"." || name == L".." || (found.dwFileAttributes & kFolderLink) == kFolderLink;
}

} // namespace

std::vector<FolderEntry> ListFolder(const std::wstring& pattern)
{
    std::vector<FolderEntry> entries;
    WIN32_FIND_DATAW found = {};
    const UniqueFind find(FindFirstFileW(pattern.c_str(), &found));
    if (!find)
        return entries;
    do
    {
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        const bool isHidden = (found.dwFileAttributes & kHidden) != 0;
        if (!IsForeignToTheHandheld(found))
            entries.push_back({found.cFileName, isFolder, isHidden});
    } while (FindNextFileW(find.get(), &found));
    return entries;
}

} // namespace os
