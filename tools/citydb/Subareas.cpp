#include "tools/citydb/Subareas.h"

#include "tools/citydb/Text.h"

#include <algorithm>
#include <map>
#include <unordered_map>

namespace citydb
{

namespace
{

// The rows that show one name in one country.
using Namesakes = std::vector<ListedCity*>;

// True when the rows are of one place only.
bool IsOnePlace(const Namesakes& rows)
{
    return std::all_of(rows.begin(), rows.end(),
                       [&](const ListedCity* row) { return row->Row == rows[0]->Row; });
}

std::map<String16, Namesakes> ByRegion(const Namesakes& rows)
{
    std::map<String16, Namesakes> parts;
    for (ListedCity* row : rows)
        parts[row->Region].push_back(row);
    return parts;
}

void GiveFirstLevel(ListedCity& city, const CRegionNames& regions)
{
    const std::string code = city.Row->Country + '.' + city.Row->Region1;
    if (const String16* name = regions.Find(code))
    {
        city.RegionCode = code;
        city.Region = *name;
    }
}

void GiveSecondLevel(ListedCity& city, const CRegionNames& regions)
{
    const CityRow& row = *city.Row;
    const std::string code = row.Country + '.' + row.Region1 + '.' + row.Region2;
    const String16* name = regions.Find(code);
    if (name == nullptr || *name == city.Region)
        return;
    city.RegionCode = code;
    city.Region = city.Region.empty() ? *name : *name + TEXT16(", ") + city.Region;
}

// Returns how many rows nothing tells apart.
size_t TellApart(const Namesakes& rows, const CRegionNames& regions)
{
    for (ListedCity* row : rows)
        GiveFirstLevel(*row, regions);
    for (const auto& [region, part] : ByRegion(rows))
    {
        if (IsOnePlace(part))
            continue;
        for (ListedCity* row : part)
            GiveSecondLevel(*row, regions);
    }
    size_t alike = 0;
    for (const auto& [region, part] : ByRegion(rows))
        alike += IsOnePlace(part) ? 0 : part.size();
    return alike;
}

} // namespace

size_t ChooseSubareas(std::vector<ListedCity>& cities, const CRegionNames& regions)
{
    std::unordered_map<String16, Namesakes> names;
    for (ListedCity& city : cities)
    {
        const std::string& country = city.Row->Country;
        names[String16(country.begin(), country.end()) + Fold(city.Name)].push_back(&city);
    }
    size_t alike = 0;
    for (const auto& [name, rows] : names)
        alike += IsOnePlace(rows) ? 0 : TellApart(rows, regions);
    return alike;
}

} // namespace citydb
