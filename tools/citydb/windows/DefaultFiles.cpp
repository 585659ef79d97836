#include "tools/citydb/Build.h"

#include "platform/Win.h"

#include "tools/citydb/Text.h"

namespace citydb
{

namespace
{

std::string BesideProgram(const Char16* name)
{
    String16 path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), MAX_PATH);
    // A longer path comes back cut, with the length of the whole room.
    while (length == path.size())
    {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    path.resize(path.find_last_of(L'\\') + 1);
    return ToUtf8(path + L"citydb\\" + name);
}

} // namespace

std::string DefaultCountryFile()
{
    return BesideProgram(L"iso_3166-1.json");
}

std::string DefaultZoneFile()
{
    return BesideProgram(L"zone.tab");
}

} // namespace citydb
