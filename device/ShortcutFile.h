// Reads the shortcuts of the Start Menu from their files.
#pragma once

#include <string>

#include "device/Shortcut.h"

namespace shortcut
{

// True for names that end in ".lnk", ignoring case.
bool IsShortcut(const std::wstring& path);

// Reads a shortcut file. False, with `found` untouched, for a file that can't be read or isn't one.
bool ReadFile(const std::wstring& path, Shortcut& found);

} // namespace shortcut
