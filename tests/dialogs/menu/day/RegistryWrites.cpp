#include "tests/dialogs/menu/day/RegistryWrites.h"

namespace
{

constexpr const char* kLibrary = "advapi32.dll";

int g_count;
int g_deadly;

void CountWrite()
{
    if (++g_count == g_deadly)
        TerminateProcess(GetCurrentProcess(), kEndedAtWrite);
}

bool Exists(HKEY root, const wchar_t* path, REGSAM access)
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(root, path, 0, access, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

LSTATUS WINAPI SetValueCounted(HKEY key, const wchar_t* name, DWORD reserved, DWORD type,
                               const BYTE* data, DWORD size)
{
    CountWrite();
    return RegSetValueExW(key, name, reserved, type, data, size);
}

LSTATUS WINAPI DeleteValueCounted(HKEY key, const wchar_t* name)
{
    CountWrite();
    return RegDeleteValueW(key, name);
}

LSTATUS WINAPI CreateKeyCounted(HKEY root, const wchar_t* path, DWORD reserved, wchar_t* className,
                                DWORD options, REGSAM access, SECURITY_ATTRIBUTES* security,
                                HKEY* key, DWORD* disposition)
{
    if (!Exists(root, path, access))
        CountWrite();
    return RegCreateKeyExW(root, path, reserved, className, options, access, security, key,
                           disposition);
}

LSTATUS WINAPI DeleteKeyCounted(HKEY key, const wchar_t* name)
{
    CountWrite();
    return RegDeleteKeyW(key, name);
}

// Before the first patch is in place.
HMODULE StartCounting(HMODULE module, int deadly)
{
    g_count = 0;
    g_deadly = deadly;
    return module;
}

} // namespace

CRegistryWrites::CRegistryWrites(HMODULE module, int deadly)
    : m_setValue(StartCounting(module, deadly), kLibrary, "RegSetValueExW", SetValueCounted),
      m_deleteValue(module, kLibrary, "RegDeleteValueW", DeleteValueCounted),
      m_createKey(module, kLibrary, "RegCreateKeyExW", CreateKeyCounted),
      m_deleteKey(module, kLibrary, "RegDeleteKeyW", DeleteKeyCounted)
{
}

int CRegistryWrites::Count() const
{
    return g_count;
}
