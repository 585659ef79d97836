#include "device/ShortcutFile.h"

#include "platform/Handles.h"
#include "platform/os/Text.h"

namespace shortcut
{
namespace
{

// A shortcut is one line; anything longer isn't one.
constexpr DWORD kLongestShortcut = 4096;

} // namespace

bool IsShortcut(const std::wstring& path)
{
    return path.size() > 4 && os::EqualNoCase(path.substr(path.size() - 4), L".lnk");
}

bool ReadFile(const std::wstring& path, Shortcut& found)
{
    const UniqueFile file(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string bytes(kLongestShortcut, '\0');
    DWORD length = 0;
    if (!file || !::ReadFile(file.get(), bytes.data(), kLongestShortcut, &length, nullptr))
        return false;
    std::wstring text(length, L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(
        CP_ACP, 0, bytes.data(), static_cast<int>(length), text.data(), static_cast<int>(length))));
    return Parse(text, found);
}

} // namespace shortcut
