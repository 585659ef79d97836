// The columns of a GeoNames dump, in their order.
#include "tools/citydb/Sources.h"

#include "tools/citydb/Files.h"
#include "tools/citydb/Table.h"

namespace citydb
{

namespace
{

constexpr uint64_t kFileLimit = uint64_t{2} << 30;

enum Column : size_t
{
    GeonameId = 0,
    Name = 1,
    Latitude = 4,
    Longitude = 5,
    FeatureClass = 6,
    Country = 8,
    Region1 = 10,
    Region2 = 11,
    Population = 14,
    TimeZone = 17,
    ColumnCount = 19
};

// Dumps also hold mountains, rivers and shops; a table without classes holds places only.
bool IsPlace(std::string_view featureClass)
{
    return featureClass.empty() || featureClass == "P";
}

void TakeLine(const CTableLines& line, const SourcePlace& place, CRowCollector& collector)
{
    const std::vector<std::string_view>& columns = line.Columns();
    if (columns.size() != ColumnCount)
    {
        collector.Refuse(place, std::to_string(columns.size()) + " columns instead of " +
                                    std::to_string(ColumnCount));
        return;
    }
    if (!IsPlace(columns[FeatureClass]))
    {
        collector.Refuse(place, "its feature class is \"" + std::string(columns[FeatureClass]) +
                                    "\", not that of a populated place");
        return;
    }
    RawRow raw;
    raw.Identifier = columns[GeonameId];
    raw.Name = columns[Name];
    raw.Latitude = columns[Latitude];
    raw.Longitude = columns[Longitude];
    raw.Country = columns[Country];
    raw.Region1 = columns[Region1];
    raw.Region2 = columns[Region2];
    raw.Population = columns[Population];
    raw.TimeZone = columns[TimeZone];
    collector.Take(raw, place);
}

} // namespace

void ReadTableSource(const std::string& file, const std::string& text, CRowCollector& collector,
                     CProgress& progress)
{
    CTableLines lines(text);
    while (lines.Next())
    {
        progress.Show(text.size() - lines.Remaining());
        TakeLine(lines, {file, lines.Number(), 0}, collector);
    }
}

void ReadSource(const std::string& file, CRowCollector& collector, CProgress& progress)
{
    const std::string text = ReadFile(PathOf(file), kFileLimit);
    progress.Begin("reading " + file, text.size());
    if (LooksLikeJson(text))
        ReadJsonSource(file, text, collector, progress);
    else
        ReadTableSource(file, text, collector, progress);
    progress.End();
}

} // namespace citydb
