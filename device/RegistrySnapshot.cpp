#include "device/RegistrySnapshot.h"

#include "platform/Win.h"

#include "device/Keys.h"
#include "frame/VORegistry.h"
#include "platform/Bytes.h"
#include "platform/os/Registry.h"
#include "platform/os/Text.h"

namespace
{

RegistryValue ReadValue(HKEY key, const std::wstring& name)
{
    RegistryValue value;
    DWORD type = 0;
    DWORD size = 0;
    if (os::QueryValue(key, name.c_str(), &type, nullptr, &size) != ERROR_SUCCESS)
        return value;
    value.Data.resize(size);
    os::QueryValue(key, name.c_str(), &type, value.Data.data(), &size);
    value.Type = type;
    return value;
}

} // namespace

bool CaseFreeLess::operator()(const std::wstring& left, const std::wstring& right) const
{
    return os::CompareNoCase(left, right) < 0;
}

void AddToSnapshot(const std::wstring& path, RegistrySnapshot& snapshot)
{
    const CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0);
    if (!key.Key)
        return;
    RegistryValues& values = snapshot[path];
    std::wstring name;
    for (DWORD i = 0; os::EnumValue(key.Key, i, name) == ERROR_SUCCESS; ++i)
        values[name] = ReadValue(key.Key, name);
    std::wstring below;
    for (DWORD i = 0; key.EnumKey(i, name); ++i)
    {
        below = path;
        below += L'\\';
        below += name;
        AddToSnapshot(below, snapshot);
    }
}

RegistrySnapshot TakeSnapshot()
{
    RegistrySnapshot snapshot;
    AddToSnapshot(keys::kProduct, snapshot);
    AddToSnapshot(keys::kSharedComponent, snapshot);
    snapshot.erase(keys::kDevice);
    return snapshot;
}

RegistryValue NumberValue(uint32_t number)
{
    RegistryValue value{REG_DWORD, std::vector<uint8_t>(4)};
    bytes::PutU32LE(value.Data.data(), number);
    return value;
}

RegistryValue TextValue(const std::wstring& text)
{
    RegistryValue value{REG_SZ, std::vector<uint8_t>((text.size() + 1) * 2)};
    for (size_t i = 0; i < text.size(); ++i)
        bytes::PutU16LE(&value.Data[i * 2], text[i]);
    return value;
}

uint32_t NumberOf(const RegistryValue* value, uint32_t absent)
{
    if (!value || value->Data.size() > 4)
        return absent;
    uint32_t number = 0;
    for (size_t i = 0; i < value->Data.size(); ++i)
        number |= static_cast<uint32_t>(value->Data[i]) << (8 * i);
    return number;
}

std::wstring TextOf(const RegistryValue* value)
{
    std::wstring text;
    if (!value || value->Type != REG_SZ)
        return text;
    for (size_t i = 0; i + 1 < value->Data.size(); i += 2)
    {
        const uint16_t unit = bytes::GetU16LE(&value->Data[i]);
        if (unit == 0)
            break;
        text += static_cast<wchar_t>(unit);
    }
    return text;
}

const RegistryValue* FindValue(const RegistrySnapshot& snapshot, const std::wstring& path,
                               const std::wstring& name)
{
    const auto key = snapshot.find(path);
    if (key == snapshot.end())
        return nullptr;
    const auto value = key->second.find(name);
    return value == key->second.end() ? nullptr : &value->second;
}
