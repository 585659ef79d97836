#include "tests/support/FolderWatch.h"

#include <map>
#include <mutex>

namespace
{

// The dialogs' thread writes, the test's reads.
std::mutex g_mutex;
std::vector<std::wstring> g_patterns;
std::vector<std::wstring> g_names;
std::map<std::wstring, DWORD> g_attributes;
// The module may be the test program itself, which then finds the replacements only.
decltype(&FindFirstFileW) g_findFirst;
decltype(&FindNextFileW) g_findNext;

void Note(WIN32_FIND_DATAW& found)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_names.push_back(found.cFileName);
    const auto added = g_attributes.find(found.cFileName);
    if (added != g_attributes.end())
        found.dwFileAttributes |= added->second;
}

HANDLE WINAPI FindFirst(const wchar_t* pattern, WIN32_FIND_DATAW* found)
{
    {
        const std::lock_guard<std::mutex> lock(g_mutex);
        g_patterns.push_back(pattern);
    }
    const HANDLE find = g_findFirst(pattern, found);
    if (find != INVALID_HANDLE_VALUE)
        Note(*found);
    return find;
}

BOOL WINAPI FindNext(HANDLE find, WIN32_FIND_DATAW* found)
{
    const BOOL more = g_findNext(find, found);
    if (more)
        Note(*found);
    return more;
}

template <class Function>
void FindOriginal(HMODULE module, const char* name, Function& original)
{
    void** const slot = FindImport(module, "kernel32.dll", name);
    original = slot ? reinterpret_cast<Function>(*slot) : nullptr;
}

HMODULE Prepared(HMODULE module)
{
    FindOriginal(module, "FindFirstFileW", g_findFirst);
    FindOriginal(module, "FindNextFileW", g_findNext);
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_patterns.clear();
    g_names.clear();
    g_attributes.clear();
    return module;
}

} // namespace

CFolderWatch::CFolderWatch(HMODULE module)
    : m_first(Prepared(module), "kernel32.dll", "FindFirstFileW", FindFirst),
      m_next(module, "kernel32.dll", "FindNextFileW", FindNext)
{
}

std::vector<std::wstring> CFolderWatch::Patterns()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_patterns;
}

std::vector<std::wstring> CFolderWatch::Names()
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    return g_names;
}

void CFolderWatch::AddAttributes(const std::wstring& name, DWORD attributes)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_attributes[name] = attributes;
}
