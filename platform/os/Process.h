// Starting a program by its name.
#pragma once

#include <string>

namespace os
{

// Starts the program `name` from where programs are installed (the application's folder, then the
// system's), never from the current folder, with exactly `commandLine`. Returns whether it was
// started; no handle stays open.
bool StartProgram(const wchar_t* name, const std::wstring& commandLine);

// The same with the program's full path.
bool StartProgramAt(const std::wstring& path, const std::wstring& commandLine);

} // namespace os
