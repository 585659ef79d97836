#include "dialogs/menu/FileChoice.h"

#include "platform/Win.h"

// The attributes of a missing file are all bits, that of a folder among them.
bool IsFile(const std::wstring& path)
{
    return !(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
}
