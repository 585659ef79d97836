// Files and folders that tests make and take away again, below any folder.
#pragma once

#include <string>

// Creates an empty file with all folders above it. Returns its path.
std::wstring CreateEmptyFile(const std::wstring& path);

// Deletes a folder with all that is in it, also deeper than the standard library can go.
void RemoveFolderTree(const std::wstring& folder);
