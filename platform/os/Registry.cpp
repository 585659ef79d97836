#include "platform/os/Registry.h"

#include "platform/Handles.h"

#include <atomic>

namespace os
{
namespace
{

struct AtomicCounts
{
    std::atomic<unsigned> open, create, query, set, enumerate, deleteKey, deleteValue, flush, close;
};

AtomicCounts g_counts;

void Count(std::atomic<unsigned>& counter)
{
    counter.fetch_add(1, std::memory_order_relaxed);
}

// Desktop systems refuse a path that begins with a backslash.
const wchar_t* WithoutLeadingBackslashes(const wchar_t* path)
{
    while (path && *path == L'\\')
        ++path;
    return path;
}

// The handheld ignores the access mask; a desktop key opened with 0 can't even be read.
REGSAM Rights(REGSAM access)
{
    return (access ? access : MAXIMUM_ALLOWED) | KEY_WOW64_64KEY;
}

// The 255 characters that the system allows and the terminator; longer names are met all the same.
constexpr DWORD kUsualNameSize = 256;
constexpr DWORD kLargestNameSize = 0x8000;

struct OwnedKey
{
    using Type = HKEY;
    static Type Null() { return nullptr; }
    static void Close(HKEY key) { CloseKey(key); }
};

LONG DeleteSubkeys(HKEY key)
{
    std::wstring name;
    LONG error = EnumKey(key, 0, name);
    while (error == ERROR_SUCCESS)
    {
        error = DeleteKeyTree(key, name.c_str());
        if (error == ERROR_SUCCESS)
            error = EnumKey(key, 0, name);
    }
    return error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error;
}

bool IsLink(HKEY key)
{
    DWORD type = 0;
    return QueryValue(key, L"SymbolicLinkValue", &type, nullptr, nullptr) == ERROR_SUCCESS &&
           type == REG_LINK;
}

// Deletes the link itself: an opened link can't be deleted by name, that would follow it.
LONG DeleteLink(HKEY link)
{
    using NtDeleteKeyFunction = LONG(WINAPI*)(HANDLE);
    const auto address = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtDeleteKey");
    const auto deleteKey = reinterpret_cast<NtDeleteKeyFunction>(reinterpret_cast<void*>(address));
    Count(g_counts.deleteKey);
    return deleteKey && deleteKey(link) >= 0 ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

} // namespace

RegistryCallCounts CountedRegistryCalls()
{
    RegistryCallCounts counts;
    counts.open = g_counts.open;
    counts.create = g_counts.create;
    counts.query = g_counts.query;
    counts.set = g_counts.set;
    counts.enumerate = g_counts.enumerate;
    counts.deleteKey = g_counts.deleteKey;
    counts.deleteValue = g_counts.deleteValue;
    counts.flush = g_counts.flush;
    counts.close = g_counts.close;
    return counts;
}

LONG OpenKey(HKEY root, const wchar_t* path, REGSAM access, HKEY* key)
{
    *key = nullptr;
    Count(g_counts.open);
    const LONG error = RegOpenKeyExW(root, WithoutLeadingBackslashes(path), 0, Rights(access), key);
    if (error != ERROR_SUCCESS)
        *key = nullptr;
    return error;
}

LONG CreateKey(HKEY root, const wchar_t* path, REGSAM access, HKEY* key, DWORD* disposition)
{
    *key = nullptr;
    Count(g_counts.create);
    const LONG error =
        RegCreateKeyExW(root, WithoutLeadingBackslashes(path), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        Rights(access), nullptr, key, disposition);
    if (error != ERROR_SUCCESS)
        *key = nullptr;
    return error;
}

LONG QueryValue(HKEY key, const wchar_t* name, DWORD* type, void* data, DWORD* size)
{
    Count(g_counts.query);
    return RegQueryValueExW(key, name, nullptr, type, static_cast<BYTE*>(data), size);
}

LONG SetValue(HKEY key, const wchar_t* name, DWORD type, const void* data, DWORD size)
{
    Count(g_counts.set);
    return RegSetValueExW(key, name, 0, type, static_cast<const BYTE*>(data), size);
}

LONG DeleteValue(HKEY key, const wchar_t* name)
{
    Count(g_counts.deleteValue);
    return RegDeleteValueW(key, name);
}

LONG EnumKey(HKEY key, DWORD index, std::wstring& name)
{
    name.resize(kUsualNameSize);
    for (;;)
    {
        auto length = static_cast<DWORD>(name.size());
        Count(g_counts.enumerate);
        const LONG error =
            RegEnumKeyExW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
        if (error == ERROR_MORE_DATA && name.size() < kLargestNameSize)
        {
            name.resize(name.size() * 2);
            continue;
        }
        name.resize(error == ERROR_SUCCESS ? length : 0);
        return error;
    }
}

LONG EnumValue(HKEY key, DWORD index, std::wstring& name)
{
    // The registry's own limit of a value name, and its terminator.
    constexpr DWORD kLongestValueName = 16384;
    name.resize(kLongestValueName);
    DWORD length = kLongestValueName;
    Count(g_counts.enumerate);
    const LONG error =
        RegEnumValueW(key, index, name.data(), &length, nullptr, nullptr, nullptr, nullptr);
    name.resize(error == ERROR_SUCCESS ? length : 0);
    return error;
}

LONG DeleteKeyTree(HKEY parent, const wchar_t* name)
{
    // Running out of memory below leaves here as an exception.
    CUnique<OwnedKey> key;
    Count(g_counts.open);
    LONG error = RegOpenKeyExW(parent, WithoutLeadingBackslashes(name), REG_OPTION_OPEN_LINK,
                               Rights(0), key.put());
    if (error != ERROR_SUCCESS)
        return error;
    if (IsLink(key.get()))
        return DeleteLink(key.get());
    error = DeleteSubkeys(key.get());
    key.reset();
    if (error != ERROR_SUCCESS)
        return error;
    Count(g_counts.deleteKey);
    return RegDeleteKeyW(parent, WithoutLeadingBackslashes(name));
}

LONG FlushKey(HKEY key)
{
    Count(g_counts.flush);
    return RegFlushKey(key);
}

LONG CloseKey(HKEY key)
{
    Count(g_counts.close);
    return RegCloseKey(key);
}

} // namespace os
