// Turns the text fields of a source's row into a CityRow, or says what is wrong with it. Used by
// the readers of all source formats.
#pragma once

#include "tools/citydb/CityRow.h"
#include "tools/citydb/Countries.h"
#include "tools/citydb/Problems.h"

#include <string_view>
#include <vector>

namespace citydb
{

// A row's fields as they stand in the source; empty where it has none.
struct RawRow
{
    std::string_view Identifier;
    std::string_view Name;
    std::string_view Latitude; // decimal degrees
    std::string_view Longitude;
    std::string_view Country;
    std::string_view Region1;
    std::string_view Region2;
    std::string_view Population; // empty or 0 when unknown
    std::string_view TimeZone;
};

class CRowCollector
{
public:
    // Both outlive the object.
    CRowCollector(const CCountries& countries, CProblems& problems)
        : m_countries(countries), m_problems(problems)
    {
    }

    // Keeps the row, or leaves it out and says why.
    void Take(const RawRow& raw, const SourcePlace& place);
    // For a row that isn't even one.
    void Refuse(const SourcePlace& place, const std::string& why);

    std::vector<CityRow>& Rows() { return m_rows; }

private:
    const CCountries& m_countries;
    CProblems& m_problems;
    std::vector<CityRow> m_rows;
};

} // namespace citydb
