// A registry of the test's own: maps a predefined root onto a fresh key for the life of the object.
#pragma once

#include "platform/Win.h"

#include <string>
#include <vector>

// Redirects HKEY_LOCAL_MACHINE (or another root) of this process to an empty key and deletes that
// key with all its contents at the end. The real root is never touched.
class CRegistrySandbox
{
public:
    explicit CRegistrySandbox(HKEY root = HKEY_LOCAL_MACHINE);
    ~CRegistrySandbox();
    CRegistrySandbox(const CRegistrySandbox&) = delete;
    CRegistrySandbox& operator=(const CRegistrySandbox&) = delete;

    // Helpers on keys below the root, with or without a leading backslash; they create what is
    // missing and fail the running test when the system refuses.
    void SetDword(const wchar_t* path, const wchar_t* name, DWORD value);
    void SetText(const wchar_t* path, const wchar_t* name, const std::wstring& text);
    void SetRaw(const wchar_t* path, const wchar_t* name, DWORD type, const void* data, DWORD size);
    void CreateKey(const wchar_t* path);

    bool KeyExists(const wchar_t* path) const;
    bool ValueExists(const wchar_t* path, const wchar_t* name) const;
    // The value, or `absent` when there is none of that type.
    DWORD Dword(const wchar_t* path, const wchar_t* name, DWORD absent = 0xDEADBEEF) const;
    std::wstring Text(const wchar_t* path, const wchar_t* name,
                      const wchar_t* absent = L"(absent)") const;
    // The value's bytes, empty when it is missing.
    std::string Raw(const wchar_t* path, const wchar_t* name, DWORD* type = nullptr) const;
    // Everything below `path` as sorted lines "key|value=data": two snapshots compare whole states.
    std::wstring Dump(const wchar_t* path) const;
    // The same with the values' types: texts in quotation marks, numbers as decimals, everything
    // else as "type T: bytes".
    std::wstring TypedDump(const wchar_t* path) const;

    // The key that stands in for the root, below HKEY_CURRENT_USER: another process of the test
    // can map it too.
    const std::wstring& BackingPath() const { return m_path; }

private:
    HKEY m_root;
    HKEY m_key = nullptr;
    std::wstring m_path;
};

// What is different between two dumps: lines that are only in the second one behind "+", lines that
// are only in the first one behind "-", sorted.
std::vector<std::wstring> DumpDifference(const std::wstring& before, const std::wstring& after);

// Maps `root` of this process onto the key that another process's sandbox made. Returns success.
bool JoinRegistrySandbox(HKEY root, const std::wstring& backingPath);
