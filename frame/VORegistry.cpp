#include "frame/VORegistry.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "platform/Memory.h"
#include "platform/os/Registry.h"

namespace
{

// Most texts fit here and are read with one call; longer ones take a second.
constexpr DWORD kUsualTextBytes = 1024;
// The usual size, the size that the value turned out to have, and three more for a value that
// grows between two reads.
constexpr int kReadAttempts = 5;

// How many characters from here on lie in the same page of memory; at least one, which may reach
// into the next page.
size_t UnitsToPageEnd(const wchar_t* text)
{
    constexpr uintptr_t kPage = 0x1000;
    const uintptr_t bytes = kPage - reinterpret_cast<uintptr_t>(text) % kPage;
    return std::max<size_t>(bytes / sizeof(wchar_t), 1);
}

// A name may be null, which means the key's unnamed value, but not point to nowhere.
bool IsBadName(const wchar_t* name)
{
    return name && !IsReadableString(name);
}

// The text up to its first zero within `bytes` bytes of data; half a character at the end is
// completed with a zero byte. The buffer has room for two characters more.
std::wstring TextOf(wchar_t* buffer, DWORD bytes)
{
    const size_t whole = bytes / sizeof(wchar_t);
    const size_t used = whole + bytes % sizeof(wchar_t);
    if (used > whole)
        buffer[whole] = static_cast<wchar_t>(buffer[whole] & 0xFF);
    buffer[used] = L'\0';
    return std::wstring(buffer);
}

} // namespace

bool IsReadableString(const wchar_t* text)
{
    while (text)
    {
        // Memory is readable page by page, so each page is probed once.
        const size_t units = UnitsToPageEnd(text);
        if (IsBadReadPtr(text, units * sizeof(wchar_t)))
            return false;
        if (std::wstring_view(text, units).find(L'\0') != std::wstring_view::npos)
            return true;
        text += units;
    }
    return false;
}

CVORegistry::CVORegistry(HKEY root, const wchar_t* path, BOOL create, BOOL flushOnClose,
                         REGSAM access)
    : Key(nullptr), Disposition(0), FlushOnClose(flushOnClose), Modified(FALSE)
{
    if (!create)
        os::OpenKey(root, path, access, &Key);
    else if (os::CreateKey(root, path, access, &Key, &Disposition) != ERROR_SUCCESS)
        Modified = TRUE;
}

CVORegistry::~CVORegistry()
{
    if (FlushOnClose && Modified)
        os::FlushKey(Key);
    os::CloseKey(Key);
}

BOOL CVORegistry::GetDWORD(const wchar_t* name, DWORD& value) const
{
    if (IsBadName(name))
        return FALSE;
    DWORD read = 0;
    DWORD size = sizeof(read);
    if (os::QueryValue(Key, name, nullptr, &read, &size) != ERROR_SUCCESS)
        return FALSE;
    value = read;
    return TRUE;
}

BOOL CVORegistry::SetDWORD(const wchar_t* name, DWORD value)
{
    if (!IsReadableString(name))
        return FALSE;
    Modified = TRUE;
    return os::SetValue(Key, name, REG_DWORD, &value, sizeof(value)) == ERROR_SUCCESS;
}

std::wstring CVORegistry::GetString(const wchar_t* name, const wchar_t* defaultText)
{
    if (!IsReadableString(name))
        return std::wstring();

    DWORD size = kUsualTextBytes;
    for (int attempt = 0; attempt < kReadAttempts; ++attempt)
    {
        const auto buffer =
            AllocateZeroed<wchar_t>(static_cast<size_t>(size) / sizeof(wchar_t) + 2);
        if (!buffer)
            break;
        DWORD type = REG_NONE;
        const LONG error = os::QueryValue(Key, name, &type, buffer.get(), &size);
        const bool exists = error == ERROR_SUCCESS || error == ERROR_MORE_DATA;
        if (exists && type != REG_SZ)
            return IsReadableString(defaultText) ? std::wstring(defaultText) : std::wstring();
        if (error == ERROR_SUCCESS)
            return TextOf(buffer.get(), size);
        if (error != ERROR_MORE_DATA)
            break;
    }

    if (!IsReadableString(defaultText))
        return std::wstring();
    SetString(name, defaultText);
    return std::wstring(defaultText);
}

BOOL CVORegistry::SetString(const wchar_t* name, const wchar_t* text)
{
    if (!IsReadableString(name) || !IsReadableString(text))
        return FALSE;
    Modified = TRUE;
    const size_t bytes = (wcslen(text) + 1) * sizeof(wchar_t);
    return os::SetValue(Key, name, REG_SZ, text, static_cast<DWORD>(bytes)) == ERROR_SUCCESS;
}

BOOL CVORegistry::GetBinary(const wchar_t* name, void* buffer, DWORD* size) const
{
    if (IsBadName(name))
        return FALSE;
    if (buffer && size && *size != 0 &&
        (IsBadReadPtr(buffer, *size) || IsBadWritePtr(buffer, *size)))
        return FALSE;
    return os::QueryValue(Key, name, nullptr, buffer, size) == ERROR_SUCCESS;
}

BOOL CVORegistry::SetBinary(const wchar_t* name, const void* data, DWORD size)
{
    if (IsBadName(name) || !data || IsBadReadPtr(data, size))
        return FALSE;
    Modified = TRUE;
    return os::SetValue(Key, name, REG_BINARY, data, size) == ERROR_SUCCESS;
}

BOOL CVORegistry::DeleteValue(const wchar_t* name)
{
    Modified = TRUE;
    return os::DeleteValue(Key, name) == ERROR_SUCCESS;
}

BOOL CVORegistry::EnumKey(DWORD index, std::wstring& name) const
{
    return os::EnumKey(Key, index, name) == ERROR_SUCCESS;
}

BOOL CVORegistry::DeleteKeyTree(const wchar_t* name)
{
    Modified = TRUE;
    return os::DeleteKeyTree(Key, name) == ERROR_SUCCESS;
}
