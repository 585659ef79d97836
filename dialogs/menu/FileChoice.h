// What Select File and Select Link take for an answer.
#pragma once

#include <string>

// True for the path of an existing file; false for a folder, an empty path or nothing at all.
bool IsFile(const std::wstring& path);
