// A row of the list while the tables are being made.
#pragma once

#include "platform/Char16.h"
#include "tools/citydb/CityRow.h"

#include <string>

namespace citydb
{

struct ListedCity
{
    const CityRow* Row = nullptr;
    String16 Name;
    String16 MainName;    // the name of the place's main row
    bool IsPlain = false; // a spelling without accents; stands behind the main row
    // The region that tells it from others of its name: its code and its text; empty when none does
    // or none is needed.
    std::string RegionCode;
    String16 Region;
};

} // namespace citydb
