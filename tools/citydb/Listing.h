// From the places to the tables of a database: which rows the list shows, in which order, and which
// region stands beside a name.
#pragma once

#include "tools/citydb/CityRow.h"
#include "tools/citydb/Countries.h"
#include "tools/citydb/ImageWriter.h"
#include "tools/citydb/RegionNames.h"

#include <vector>

namespace citydb
{

enum class CityOrder
{
    Name,       // as readers expect a list, whatever their language
    Population, // the largest first, unknown ones last
    Source      // as the sources have them
};

struct ListingOptions
{
    CityOrder Order = CityOrder::Name;
    // Adds a row without accents behind the rows of each name that has some.
    bool PlainSpellings = false;
    bool Details = true;
};

struct Listing
{
    ImageTables Tables;
    size_t PlainRows = 0; // rows added for plain spellings
    size_t Alike = 0;     // rows that look like another place's: no region tells them apart
};

// Makes the tables of the places; every row has an identifier and a known country.
Listing MakeListing(const std::vector<CityRow>& rows, const CCountries& countries,
                    const CRegionNames& regions, const ListingOptions& options);

} // namespace citydb
