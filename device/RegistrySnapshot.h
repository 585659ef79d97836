// A copy of a part of the registry as plain values, so that two states can be compared.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// Orders key paths and value names as the registry finds them: without regard to case.
struct CaseFreeLess
{
    bool operator()(const std::wstring& left, const std::wstring& right) const;
};

struct RegistryValue
{
    // REG_SZ, REG_DWORD, ...
    uint32_t Type = 0;
    std::vector<uint8_t> Data;

    bool operator==(const RegistryValue& other) const
    {
        return Type == other.Type && Data == other.Data;
    }
};

using RegistryValues = std::map<std::wstring, RegistryValue, CaseFreeLess>;
// Key path, with a leading backslash, to the key's values.
using RegistrySnapshot = std::map<std::wstring, RegistryValues, CaseFreeLess>;

// The key `path` of HKEY_LOCAL_MACHINE and everything below it, added to `snapshot`. A missing key
// adds nothing.
void AddToSnapshot(const std::wstring& path, RegistrySnapshot& snapshot);

// What the dialogs can change: the product's and the shared component's keys, without the key that
// the stand-in shell writes itself.
RegistrySnapshot TakeSnapshot();

// Makers and readers of values.
RegistryValue NumberValue(uint32_t number);
RegistryValue TextValue(const std::wstring& text);
// The number of a value of at most four bytes; `absent` for a null pointer or a longer value.
uint32_t NumberOf(const RegistryValue* value, uint32_t absent);
// The text of a REG_SZ up to its first zero; empty for anything else.
std::wstring TextOf(const RegistryValue* value);
// The value `name` of the key `path`, null when there is none.
const RegistryValue* FindValue(const RegistrySnapshot& snapshot, const std::wstring& path,
                               const std::wstring& name);
