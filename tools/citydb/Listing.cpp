#include "tools/citydb/Listing.h"

#include "dialogs/city/CityImage.h"
#include "tools/citydb/Identifiers.h"
#include "tools/citydb/ListedCity.h"
#include "tools/citydb/Subareas.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <map>
#include <numeric>
#include <tuple>
#include <unordered_map>

namespace citydb
{

namespace
{

std::vector<ListedCity> ListAll(const std::vector<CityRow>& rows, bool plainSpellings)
{
    std::vector<ListedCity> cities;
    cities.reserve(rows.size());
    for (const CityRow& row : rows)
    {
        ListedCity city;
        city.Row = &row;
        city.Name = ToUtf16(row.Name).value_or(String16());
        city.MainName = city.Name;
        cities.push_back(city);
        if (!plainSpellings)
            continue;
        city.Name = PlainSpelling(city.MainName);
        city.IsPlain = true;
        if (city.Name != city.MainName)
            cities.push_back(std::move(city));
    }
    return cities;
}

// One record of the area or the subarea table.
struct Region
{
    String16 Name;
    std::string Code;
};

// Regions with numbers in the order of their names.
class CRegionTable
{
public:
    void Add(const std::string& code, const String16& name) { m_regions.emplace(code, name); }

    // Numbers what was added.
    void Close()
    {
        std::vector<std::tuple<std::string, std::string, String16>> sorted;
        for (const auto& [code, name] : m_regions)
            sorted.emplace_back(OrderKey(name), code, name);
        std::sort(sorted.begin(), sorted.end());
        for (const auto& [key, code, name] : sorted)
        {
            m_numbers[code] = static_cast<uint32_t>(m_sorted.size());
            m_sorted.push_back({name, code});
        }
    }

    uint32_t NumberOf(const std::string& code) const
    {
        const auto found = m_numbers.find(code);
        return found == m_numbers.end() ? kNoCityRecord : found->second;
    }

    const std::vector<Region>& Sorted() const { return m_sorted; }

private:
    std::map<std::string, String16> m_regions;
    std::unordered_map<std::string, uint32_t> m_numbers;
    std::vector<Region> m_sorted;
};

// The two letters of a country as a number: they are its bytes in the image.
uint32_t AreaIdentifier(const std::string& country)
{
    uint32_t identifier = 0;
    for (size_t i = 0; i < std::min<size_t>(country.size(), 4); ++i)
        identifier |= static_cast<uint32_t>(static_cast<unsigned char>(country[i])) << (8 * i);
    return identifier;
}

// Makes the tables of rows whose regions are chosen.
class CTableMaker
{
public:
    CTableMaker(const std::vector<ListedCity>& cities, const CCountries& countries,
                const ListingOptions& options)
        : m_cities(cities), m_options(options)
    {
        for (const ListedCity& city : cities)
        {
            const std::string* name = countries.Find(city.Row->Country);
            m_areas.Add(city.Row->Country, ToUtf16(*name).value_or(String16()));
            if (!city.RegionCode.empty())
                m_subareas.Add(city.RegionCode, city.Region);
        }
        m_areas.Close();
        m_subareas.Close();
    }

    ImageTables Make()
    {
        ImageTables tables;
        for (const Region& area : m_areas.Sorted())
            tables.Areas.push_back({AreaIdentifier(area.Code), area.Name});
        for (const Region& subarea : m_subareas.Sorted())
            tables.Subareas.push_back({HashOf(subarea.Code), subarea.Name});
        for (const size_t position : Order())
            AddCity(m_cities[position], tables);
        tables.NamesInOrder = m_options.Order == CityOrder::Name;
        return tables;
    }

private:
    std::vector<size_t> Order() const
    {
        std::vector<size_t> order(m_cities.size());
        std::iota(order.begin(), order.end(), size_t{0});
        if (m_options.Order == CityOrder::Source)
            return order;
        std::vector<std::string> keys;
        keys.reserve(m_cities.size());
        for (const ListedCity& city : m_cities)
            keys.push_back(OrderKey(city.MainName));
        std::sort(order.begin(), order.end(),
                  [&](size_t left, size_t right)
                  {
                      const uint32_t ranks[] = {SizeRank(left), SizeRank(right)};
                      return ranks[0] != ranks[1] ? ranks[0] < ranks[1]
                                                  : IsBefore(left, right, keys);
                  });
        return order;
    }

    // 0 for the largest city there could be; unknown sizes come last. The same for all in an order
    // by name.
    uint32_t SizeRank(size_t position) const
    {
        const uint32_t people = m_cities[position].Row->Population;
        return m_options.Order == CityOrder::Population ? ~people - 1 : 0;
    }

    // Rows without accents follow the main rows of their name, so that equal names stay together
    // and the first row of an identifier is the main one.
    bool IsBefore(size_t left, size_t right, const std::vector<std::string>& keys) const
    {
        const ListedCity& a = m_cities[left];
        const ListedCity& b = m_cities[right];
        const uint32_t areas[] = {m_areas.NumberOf(a.Row->Country),
                                  m_areas.NumberOf(b.Row->Country)};
        const uint32_t parts[] = {m_subareas.NumberOf(a.RegionCode),
                                  m_subareas.NumberOf(b.RegionCode)};
        return std::tie(keys[left], a.MainName, a.IsPlain, areas[0], parts[0], a.Row->Identifier) <
               std::tie(keys[right], b.MainName, b.IsPlain, areas[1], parts[1], b.Row->Identifier);
    }

    void AddCity(const ListedCity& city, ImageTables& tables)
    {
        const uint32_t identifier = city.Row->Identifier;
        uint32_t details = kNoCityRecord;
        if (m_options.Details)
        {
            const auto next = static_cast<uint32_t>(tables.Details.size());
            const auto [known, isNew] = m_details.emplace(identifier, next);
            if (isNew)
                tables.Details.push_back({identifier, PackDetails(*city.Row)});
            details = known->second;
        }
        tables.Cities.push_back({identifier, city.Name, m_areas.NumberOf(city.Row->Country),
                                 m_subareas.NumberOf(city.RegionCode), details});
    }

    const std::vector<ListedCity>& m_cities;
    const ListingOptions& m_options;
    CRegionTable m_areas;
    CRegionTable m_subareas;
    std::unordered_map<uint32_t, uint32_t> m_details; // by the city's identifier
};

} // namespace

Listing MakeListing(const std::vector<CityRow>& rows, const CCountries& countries,
                    const CRegionNames& regions, const ListingOptions& options)
{
    std::vector<ListedCity> cities = ListAll(rows, options.PlainSpellings);
    Listing listing;
    listing.PlainRows = cities.size() - rows.size();
    listing.Alike = ChooseSubareas(cities, regions);
    listing.Tables = CTableMaker(cities, countries, options).Make();
    return listing;
}

} // namespace citydb
