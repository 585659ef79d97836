// CVORegistry: one registry key for the length of a scope, with typed getters and setters.
#pragma once

#include "platform/Win.h"

#include <string>

// Opens or creates one key and closes it at the end of the scope. Nothing here throws or reports
// but std::bad_alloc: a failed open makes every getter fail and every setter return FALSE, and the
// caller goes on with its defaults.
class CVORegistry
{
public:
    // Opens `path` below `root`; with `create`, makes it and its missing parents. `root` may also
    // be the `Key` of another object, which makes `path` relative. With `flushOnClose`, a key that
    // was written to is flushed to persistent storage when the object is destroyed. `access` 0
    // asks for every right that the user has.
    CVORegistry(HKEY root, const wchar_t* path, BOOL create, BOOL flushOnClose, REGSAM access);
    // Flushes if asked and modified, then closes, an unopened key too.
    virtual ~CVORegistry();
    CVORegistry(const CVORegistry&) = delete;
    CVORegistry& operator=(const CVORegistry&) = delete;

    // Reads a value of at most 4 bytes, whatever its type; missing upper bytes read as 0. FALSE
    // and `value` untouched when it is missing or longer.
    BOOL GetDWORD(const wchar_t* name, DWORD& value) const;
    // Writes a REG_DWORD.
    BOOL SetDWORD(const wchar_t* name, DWORD value);

    // Reads a REG_SZ up to its first zero. A value of another type gives `defaultText` and stays.
    // A missing value is created with `defaultText`; with a null default nothing is written and
    // the text is empty.
    std::wstring GetString(const wchar_t* name, const wchar_t* defaultText);
    // Writes a REG_SZ with its terminating zero. FALSE without writing when either is unreadable.
    BOOL SetString(const wchar_t* name, const wchar_t* text);

    // Reads a value of any type into `buffer`; *size is the buffer's size on entry and the data's
    // length on return. A null `buffer` asks for the length alone.
    BOOL GetBinary(const wchar_t* name, void* buffer, DWORD* size) const;
    // Writes a REG_BINARY of `size` bytes.
    BOOL SetBinary(const wchar_t* name, const void* data, DWORD size);

    // Deletes a value. FALSE when it isn't there or can't be deleted.
    BOOL DeleteValue(const wchar_t* name);
    // The name of the subkey at `index`; FALSE behind the last one.
    BOOL EnumKey(DWORD index, std::wstring& name) const;
    // Deletes a direct subkey with all its subkeys; FALSE at the first failure.
    BOOL DeleteKeyTree(const wchar_t* name);

    HKEY Key;
    DWORD Disposition;
    BOOL FlushOnClose;
    // Set by every setter before it writes, and when creating the key fails.
    BOOL Modified;
};

// True when the pointer is not null and both the first character and the terminating zero can
// be read.
bool IsReadableString(const wchar_t* text);
