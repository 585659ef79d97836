#include "device/LauncherIcons.h"

#include <shellapi.h>

#include <algorithm>
#include <string>

#include "device/Shortcut.h"
#include "platform/os/Text.h"

namespace icons
{
namespace
{

// A shortcut is one line; anything longer isn't one.
constexpr DWORD kLongestShortcut = 4096;

bool IsShortcut(const std::wstring& path)
{
    return path.size() > 4 && os::EqualNoCase(path.substr(path.size() - 4), L".lnk");
}

// The icon number that a shortcut file names, 0 when it names none of ours.
int NumberInShortcut(const wchar_t* path)
{
    const UniqueFile file(CreateFileW(path, GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    std::string bytes(kLongestShortcut, '\0');
    DWORD length = 0;
    if (!file || !ReadFile(file.get(), bytes.data(), kLongestShortcut, &length, nullptr))
        return 0;
    std::wstring text(length, L'\0');
    text.resize(static_cast<size_t>(MultiByteToWideChar(
        CP_ACP, 0, bytes.data(), static_cast<int>(length), text.data(), static_cast<int>(length))));
    shortcut::Shortcut found;
    return shortcut::Parse(text, found) && !found.IconFile.empty() ? found.Icon : 0;
}

} // namespace

UniqueIcon Load(int number, int size)
{
    if (number < kFirst || number > 0xFFFF)
        return {};
    return UniqueIcon(
        static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(number),
                                      IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

void Draw(HDC dc, HICON icon, const RECT& area, int size)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const int extent = std::min({size, width, height});
    DrawIconEx(dc, area.left + (width - extent) / 2, area.top + (height - extent) / 2, icon, extent,
               extent, 0, nullptr, DI_NORMAL);
}

bool Draw(HDC dc, int number, const RECT& area, int size)
{
    const UniqueIcon icon = Load(number, size);
    if (!icon)
        return false;
    Draw(dc, icon.get(), area, size);
    return true;
}

bool DrawOfFile(HDC dc, const wchar_t* path, const RECT& area, int size)
{
    const DWORD attributes = GetFileAttributesW(path);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    if (IsShortcut(path) && Draw(dc, NumberInShortcut(path), area, size))
        return true;
    // The system's shell wants a drive letter.
    wchar_t full[MAX_PATH];
    const DWORD length = GetFullPathNameW(path, MAX_PATH, full, nullptr);
    SHFILEINFOW info = {};
    if (length == 0 || length >= MAX_PATH ||
        !SHGetFileInfoW(full, attributes, &info, sizeof(info), SHGFI_ICON | SHGFI_LARGEICON))
        return false;
    const UniqueIcon icon(info.hIcon);
    Draw(dc, icon.get(), area, size);
    return true;
}

} // namespace icons
