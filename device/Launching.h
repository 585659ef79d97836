// Starts what an entry of the launcher or the home screen stands for.
#pragma once

#include <string>

namespace launching
{

enum class Result
{
    Started,
    // The file is there, but not the program that it leads to.
    NoProgram,
    // The program is there, but the system refused to start it.
    Failed,
};

// Starts the program that a shortcut of the Start Menu leads to, or a program itself. Paths may be
// the handheld's, without a drive.
Result Start(const std::wstring& file);

// True when there is such a file.
bool Exists(const std::wstring& file);

} // namespace launching
