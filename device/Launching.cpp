#include "device/Launching.h"

#include "device/ShortcutFile.h"
#include "platform/Win.h"
#include "platform/os/Process.h"
#include "platform/os/Text.h"

namespace launching
{
namespace
{

// The program that a file leads to; empty when it leads to none.
std::wstring ProgramOf(const std::wstring& file)
{
    if (!shortcut::IsShortcut(file))
        return file;
    shortcut::Shortcut found;
    return shortcut::ReadFile(file, found) ? found.Target : std::wstring();
}

bool IsProgram(const std::wstring& path)
{
    return path.size() > 4 && os::EqualNoCase(path.substr(path.size() - 4), L".exe");
}

// With its drive, because nothing but this very file may be started.
std::wstring FullPath(const std::wstring& path)
{
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::wstring(full, length) : std::wstring();
}

} // namespace

Result Start(const std::wstring& file)
{
    const std::wstring program = ProgramOf(file);
    if (!IsProgram(program) || !Exists(program))
        return Result::NoProgram;
    const std::wstring path = FullPath(program);
    return !path.empty() && os::StartProgramAt(path, L"\"" + path + L"\"") ? Result::Started
                                                                           : Result::Failed;
}

bool Exists(const std::wstring& file)
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

} // namespace launching
