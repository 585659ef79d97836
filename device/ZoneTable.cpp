#include "device/ZoneTable.h"

#include <algorithm>

#include "platform/Win.h"

#include "device/resource.h"

namespace zones
{
namespace
{

std::string_view Table()
{
    const HMODULE program = GetModuleHandleW(nullptr);
    const HRSRC found = FindResourceW(program, MAKEINTRESOURCEW(IDR_ZONES), RT_RCDATA);
    const HGLOBAL loaded = found ? LoadResource(program, found) : nullptr;
    const void* const bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes)
        return {};
    return {static_cast<const char*>(bytes), SizeofResource(program, found)};
}

// Names of zones are plain letters; anything else becomes a character that none has.
std::string ToAscii(const std::wstring& text)
{
    std::string ascii;
    for (const wchar_t unit : text)
        ascii += unit > L' ' && unit < 0x7F ? static_cast<char>(unit) : '?';
    return ascii;
}

} // namespace

bool Find(const std::wstring& name, Zone& zone)
{
    return Parse(FindRules(Table(), ToAscii(name)), zone);
}

} // namespace zones
