// The registry as the handheld offers it, on systems that are stricter: key paths may begin with a
// backslash, an access mask of 0 asks for whatever the user may do, and both word sizes see the
// 64-bit view. Every registry call of the project goes through here, so this is also where calls
// are counted.
#pragma once

#include "platform/Win.h"

#include <string>

namespace os
{

// How many system calls of each kind this process has made through this seam.
struct RegistryCallCounts
{
    unsigned open = 0;
    unsigned create = 0;
    unsigned query = 0;
    unsigned set = 0;
    unsigned enumerate = 0;
    unsigned deleteKey = 0;
    unsigned deleteValue = 0;
    unsigned flush = 0;
    unsigned close = 0;

    unsigned Total() const
    {
        return open + create + query + set + enumerate + deleteKey + deleteValue + flush + close;
    }
};

// The counts since the process began; subtract two snapshots to measure one piece of work.
RegistryCallCounts CountedRegistryCalls();

// All functions return a Win32 error code, ERROR_SUCCESS (0) when they succeed.

// Opens the key `path` below `root` (a predefined or an open key). `access` 0 asks for all rights
// that the user has. *key is null on failure; the caller closes it with CloseKey.
LONG OpenKey(HKEY root, const wchar_t* path, REGSAM access, HKEY* key);

// Opens or creates the key `path` with any missing parents. *disposition tells which it was.
LONG CreateKey(HKEY root, const wchar_t* path, REGSAM access, HKEY* key, DWORD* disposition);

// Reads a value: `type`, `data` and `size` as RegQueryValueExW takes them, each may be null.
LONG QueryValue(HKEY key, const wchar_t* name, DWORD* type, void* data, DWORD* size);

// Writes `size` bytes of `data` as the value `name`.
LONG SetValue(HKEY key, const wchar_t* name, DWORD type, const void* data, DWORD size);

// Deletes the value `name`.
LONG DeleteValue(HKEY key, const wchar_t* name);

// Gives the name of the subkey at position `index`; ERROR_NO_MORE_ITEMS behind the last one.
// Names of any length are returned whole.
LONG EnumKey(HKEY key, DWORD index, std::wstring& name);

// Gives the name of the value at position `index`; ERROR_NO_MORE_ITEMS behind the last one.
LONG EnumValue(HKEY key, DWORD index, std::wstring& name);

// Deletes the subkey `name` of `parent` with everything below it. A registry link is deleted as
// such: what it points to stays. Stops at the first failure.
LONG DeleteKeyTree(HKEY parent, const wchar_t* name);

// Writes the key's changes to persistent storage.
LONG FlushKey(HKEY key);

// Closes the key; null is allowed and gives ERROR_INVALID_HANDLE.
LONG CloseKey(HKEY key);

} // namespace os
