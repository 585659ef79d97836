// Opens the help viewer.
#pragma once

#include <string>

// The command line that shows `topic` ("Main_Contents" when it is empty); at most 259 characters.
std::wstring HelpCommandLine(const std::wstring& topic);

// Shows `topic` in the help viewer; nothing happens when there is none.
void LaunchHelp(const std::wstring& topic);
