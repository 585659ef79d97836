#include "tests/support/IconWatch.h"

#include <shellapi.h>

#include <algorithm>
#include <mutex>

namespace
{

constexpr UINT kSmallIconPlace = 0x4001;

// The dialogs' thread writes, the test's reads.
std::mutex g_mutex;
std::vector<std::wstring> g_paths;
bool g_areSmall;
DWORD_PTR(WINAPI* g_original)(const wchar_t*, DWORD, SHFILEINFOW*, UINT, UINT);

// A path's number is the place of its first question.
int NumberOf(const std::wstring& path)
{
    return static_cast<int>(std::find(g_paths.begin(), g_paths.end(), path) - g_paths.begin());
}

DWORD_PTR WINAPI Answer(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                        UINT flags)
{
    const DWORD_PTR list = g_original(path, attributes, info, size, flags);
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_areSmall =
        g_areSmall && flags == kSmallIconPlace && attributes == 0 && size == sizeof(SHFILEINFOW);
    g_paths.push_back(path);
    info->iIcon = NumberOf(path);
    return list;
}

HMODULE Prepared(HMODULE module)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    void** const slot = FindImport(module, "shell32.dll", "SHGetFileInfoW");
    g_original = slot ? reinterpret_cast<decltype(g_original)>(*slot) : nullptr;
    g_paths.clear();
    g_areSmall = true;
    return module;
}

} // namespace

CIconWatch::CIconWatch(HMODULE module)
    : m_patch(Prepared(module), "shell32.dll", "SHGetFileInfoW", Answer)
{
}

int CIconWatch::IconOf(const std::wstring& path)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    for (const std::wstring& asked : g_paths)
        if (asked == path ||
            (asked.size() == path.size() + 2 && asked.compare(2, path.size(), path) == 0))
            return NumberOf(asked);
    return -1;
}

size_t CIconWatch::Questions()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_paths.size();
}

bool CIconWatch::AreAllForSmallIcons()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_areSmall && !g_paths.empty();
}
