// The Programs branch of the launcher: what the module's scan of the Start Menu puts into a tree
// view, read back as plain values.
#pragma once

#include <string>
#include <vector>

// A file of the Start Menu or, without being one, a folder of files.
struct Program
{
    std::wstring Text;
    std::wstring Path;
    bool IsFolder = false;
    std::vector<Program> Files;
};

// Scans the Start Menu. Shows what the launcher-menu process shows, in the order of the dialogs.
// Throws CTavException.
std::vector<Program> ReadPrograms();
