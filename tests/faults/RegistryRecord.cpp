#include "tests/faults/RegistryRecord.h"

#include "tests/support/KeyName.h"

namespace
{

const wchar_t* TextOf(UINT_PTR argument)
{
    const auto* const text = reinterpret_cast<const wchar_t*>(argument);
    return text ? text : L"";
}

HKEY KeyOf(UINT_PTR argument)
{
    return reinterpret_cast<HKEY>(argument);
}

std::wstring HexOf(const BYTE* data, size_t size)
{
    constexpr wchar_t kDigits[] = L"0123456789abcdef";
    std::wstring hex;
    for (size_t i = 0; i < size; ++i)
        hex += {kDigits[data[i] >> 4], kDigits[data[i] & 15]};
    return hex;
}

std::wstring DescribeCreation(const UINT_PTR* arguments)
{
    const auto* const disposition = reinterpret_cast<const DWORD*>(arguments[8]);
    if (disposition && *disposition == REG_OPENED_EXISTING_KEY)
        return {};
    return L"create " + SystemPathOf(*reinterpret_cast<const HKEY*>(arguments[7]));
}

std::wstring DescribeValue(const UINT_PTR* arguments)
{
    return L"set " + SystemPathOf(KeyOf(arguments[0])) + L"|" + TextOf(arguments[1]) + L"=" +
           HexOf(reinterpret_cast<const BYTE*>(arguments[4]), static_cast<DWORD>(arguments[5]));
}

} // namespace

std::wstring DescribeWrite(WriteKind kind, const UINT_PTR* arguments)
{
    switch (kind)
    {
    case WriteKind::CreateKey:
        return DescribeCreation(arguments);
    case WriteKind::SetValue:
        return DescribeValue(arguments);
    case WriteKind::DeleteKey:
        return L"delete " + SystemPathOf(KeyOf(arguments[0])) + L"\\" + TextOf(arguments[1]);
    case WriteKind::DeleteValue:
        return L"clear " + SystemPathOf(KeyOf(arguments[0])) + L"|" + TextOf(arguments[1]);
    case WriteKind::None:
        break;
    }
    return {};
}
