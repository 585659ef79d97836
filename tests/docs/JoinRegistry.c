/* Linked into the documents' example programs: has them take a test's registry for the machine's,
 * before their own code runs. On its own such a program uses the real one. */
#include "platform/Win.h"

static void Join(HKEY root, const WCHAR* variable)
{
    WCHAR path[256];
    HKEY key;
    const DWORD length = GetEnvironmentVariableW(variable, path, 256);
    if (length == 0 || length >= 256 ||
        RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_ALL_ACCESS | KEY_WOW64_64KEY, &key))
        return;
    RegOverridePredefKey(root, key);
    RegCloseKey(key);
}

/* The machine's first: its stand-in lies below the real user's key. */
__attribute__((constructor)) static void JoinRegistry(void)
{
    Join(HKEY_LOCAL_MACHINE, L"TAV_EXAMPLE_MACHINE");
    Join(HKEY_CURRENT_USER, L"TAV_EXAMPLE_USER");
}
