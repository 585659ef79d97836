#include "device/LauncherIcons.h"

#include <shellapi.h>

#include <algorithm>

#include "device/ShortcutFile.h"

namespace icons
{
namespace
{

// The icon number that a shortcut file names, 0 when it names none of ours.
int NumberInShortcut(const wchar_t* path)
{
    shortcut::Shortcut found;
    return shortcut::ReadFile(path, found) && !found.IconFile.empty() ? found.Icon : 0;
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
    if (shortcut::IsShortcut(path) && Draw(dc, NumberInShortcut(path), area, size))
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
