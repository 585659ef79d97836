#include "menu/MenuPaths.h"

#include "frame/TavException.h"
#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

namespace
{

constexpr std::wstring_view kMenuRoot = kMenuRootPath;
constexpr std::wstring_view kSharedRoot = kSharedRootPath;
constexpr std::wstring_view kCustomizeRoot = kCustomizeRootPath;

std::wstring Joined(std::wstring_view front, std::wstring_view back)
{
    std::wstring text;
    text.reserve(front.size() + back.size());
    text.append(front).append(back);
    return text;
}

} // namespace

bool IsCustomizePath(std::wstring_view keyPath)
{
    return os::BeginsNoCase(keyPath, kCustomizeRoot);
}

bool IsProductPath(std::wstring_view keyPath)
{
    return os::BeginsNoCase(keyPath, kMenuRoot);
}

std::wstring MirrorPath(std::wstring_view keyPath)
{
    if (IsProductPath(keyPath))
        return Joined(kCustomizeRoot, keyPath.substr(kMenuRoot.size()));
    if (os::BeginsNoCase(keyPath, kSharedRoot))
        return Joined(kCustomizeRoot, keyPath.substr(kSharedRoot.size()));
    return std::wstring(keyPath);
}

std::wstring SharedPath(std::wstring_view keyPath)
{
    return Joined(kSharedRoot, keyPath.substr(kMenuRoot.size()));
}

std::wstring ChildPath(std::wstring_view keyPath, std::wstring_view name)
{
    std::wstring path;
    path.reserve(keyPath.size() + 1 + name.size());
    path.append(keyPath).append(1, L'\\').append(name);
    return path;
}

std::wstring KeyNameOf(const std::wstring& keyPath)
{
    const size_t backslash = keyPath.rfind(L'\\');
    if (backslash == std::wstring::npos || backslash + 1 == keyPath.size())
        ThrowBroken();
    return keyPath.substr(backslash + 1);
}

std::wstring LinkText(const std::wstring& path)
{
    const size_t backslash = path.rfind(L'\\');
    const size_t begin = backslash == std::wstring::npos ? 0 : backslash + 1;
    const size_t dot = path.find(L'.', begin);
    return path.substr(begin, dot == std::wstring::npos ? dot : dot - begin);
}
