#include "platform/os/SystemIcon.h"

#include <shellapi.h>

namespace os
{
namespace
{

// Desktop shells know no paths that begin at the current drive's root, which all of the handheld's
// do.
std::wstring FullPath(const std::wstring& path)
{
    std::wstring full(path.size() + MAX_PATH, L'\0');
    const auto size = static_cast<DWORD>(full.size());
    const DWORD length = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
    if (length == 0 || length >= size)
        return path;
    full.resize(length);
    return full;
}

DWORD_PTR SmallIconInfo(const std::wstring& path, SHFILEINFOW& info)
{
    return SHGetFileInfoW(FullPath(path).c_str(), 0, &info, sizeof(info),
                          SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
}

} // namespace

HIMAGELIST SystemIcon(const std::wstring& path, DWORD attributes, UINT flags, int& index)
{
    SHFILEINFOW info = {};
    const DWORD_PTR list = SHGetFileInfoW(FullPath(path).c_str(), attributes, &info, sizeof(info),
                                          flags | SHGFI_SYSICONINDEX | SHGFI_USEFILEATTRIBUTES);
    index = info.iIcon;
    return reinterpret_cast<HIMAGELIST>(list);
}

HIMAGELIST SmallIcons()
{
    SHFILEINFOW info = {};
    return reinterpret_cast<HIMAGELIST>(SmallIconInfo(L"\\", info));
}

int SmallIconOf(const std::wstring& path)
{
    SHFILEINFOW info = {};
    SmallIconInfo(path, info);
    return info.iIcon;
}

} // namespace os
