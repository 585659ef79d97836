// One place as the sources tell it, checked and with its numbers read.
#pragma once

#include "include/TavLumenarCityDetails.h"
#include "tools/citydb/Problems.h"

#include <cstdint>
#include <string>

namespace citydb
{

struct CityRow
{
    uint32_t Identifier = 0; // 0 until one is given
    std::string Name;        // valid UTF-8
    int32_t Latitude = 0;    // millionths of a degree
    int32_t Longitude = 0;   // millionths of a degree
    std::string Country;     // ISO 3166-1, two letters
    std::string Region1;     // the source's code of the first-level region, within its country
    std::string Region2;     // the code of the second-level region, within the first
    uint32_t Population = TAVLUMENAR_CITY_POPULATION_UNKNOWN;
    std::string TimeZone; // empty when unknown
    SourcePlace Place;
};

// Identifiers that no city has: hosts use them for "no city".
constexpr bool IsReservedIdentifier(uint32_t identifier)
{
    return identifier == 0 || identifier == 0xFFFFFFFF;
}

} // namespace citydb
