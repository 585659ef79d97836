#include "tests/support/KeyName.h"

std::wstring SystemPathOf(HKEY key)
{
    using QueryKeyFunction = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    static const auto queryKey = reinterpret_cast<QueryKeyFunction>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryKey")));
    constexpr int kNameInformation = 3;
    struct
    {
        ULONG bytes;
        wchar_t name[1022];
    } information = {};
    ULONG size = 0;
    if (queryKey(key, kNameInformation, &information, sizeof(information), &size) != 0)
        return {};
    return std::wstring(information.name, information.bytes / sizeof(wchar_t));
}
