#include "platform/os/Process.h"

#include "platform/Handles.h"

#include <vector>

namespace os
{
namespace
{

std::wstring FolderOfApplication()
{
    std::vector<wchar_t> path(0x8000);
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::wstring name(path.data(), length);
    return name.substr(0, name.find_last_of(L'\\'));
}

// The folders in which a program may be found, in that order.
std::wstring ProgramFolders()
{
    wchar_t system[MAX_PATH] = {};
    GetSystemDirectoryW(system, MAX_PATH);
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    return FolderOfApplication() + L";" + system + L";" + windows;
}

std::wstring FindProgram(const wchar_t* name)
{
    std::vector<wchar_t> path(0x8000);
    const DWORD length = SearchPathW(ProgramFolders().c_str(), name, nullptr,
                                     static_cast<DWORD>(path.size()), path.data(), nullptr);
    return length < path.size() ? std::wstring(path.data(), length) : std::wstring();
}

} // namespace

bool StartProgram(const wchar_t* name, const std::wstring& commandLine)
{
    const std::wstring path = FindProgram(name);
    return !path.empty() && StartProgramAt(path, commandLine);
}

bool StartProgramAt(const std::wstring& path, const std::wstring& commandLine)
{
    // The system may write into the command line that it is given.
    std::vector<wchar_t> line(commandLine.begin(), commandLine.end());
    line.push_back(L'\0');
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return false;
    const UniqueKernelHandle processHandle(process.hProcess);
    const UniqueKernelHandle threadHandle(process.hThread);
    return true;
}

} // namespace os
