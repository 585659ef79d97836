#include "tools/citydb/RowCollector.h"

#include "dialogs/city/CityImage.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <stdexcept>

namespace citydb
{

namespace
{

// What is wrong with a row; never leaves this file.
class CBadRow : public std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// Characters of a name that fit into a host's record.
constexpr size_t kRecordNameUnits = 31;
constexpr size_t kTimeZoneUnits = 47;

std::string Quoted(std::string_view text)
{
    constexpr size_t kShown = 80;
    return '"' + std::string(text.substr(0, kShown)) + (text.size() > kShown ? "...\"" : "\"");
}

bool IsControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

String16 ReadName(std::string_view name)
{
    if (std::all_of(name.begin(), name.end(), [](char c) { return c == ' '; }))
        throw CBadRow("it has no name");
    if (std::find(name.begin(), name.end(), '\0') != name.end())
        throw CBadRow("its name holds a NUL");
    if (std::any_of(name.begin(), name.end(), IsControl))
        throw CBadRow("its name holds a control character");
    const std::optional<String16> text = ToUtf16(name);
    if (!text)
        throw CBadRow("its name is no valid UTF-8");
    return *text;
}

int32_t ReadDegrees(std::string_view text, double limit, const char* what)
{
    double degrees = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), degrees);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(degrees))
        throw CBadRow(std::string(what) + " " + Quoted(text) + " is no number");
    if (degrees < -limit || degrees > limit)
        throw CBadRow(std::string(what) + " " + Quoted(text) + " is out of range");
    return static_cast<int32_t>(std::lround(degrees * 1e6));
}

// Numbers that hold 32 bits at most; `largest` is the last valid one.
uint32_t ReadNumber(std::string_view text, uint32_t largest, const char* what)
{
    uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number > largest)
        throw CBadRow(std::string(what) + " " + Quoted(text) + " is no number from 0 to " +
                      std::to_string(largest));
    return static_cast<uint32_t>(number);
}

uint32_t ReadIdentifier(std::string_view text)
{
    if (text.empty())
        return 0;
    const uint32_t identifier = ReadNumber(text, 0xFFFFFFFE, "identifier");
    if (identifier == 0)
        throw CBadRow("identifier 0 stands for no city");
    return identifier;
}

uint32_t ReadPopulation(std::string_view text)
{
    // The source writes 0 where it doesn't know.
    const uint32_t count = text.empty() ? 0 : ReadNumber(text, 0xFFFFFFFE, "population");
    return count == 0 ? TAVLUMENAR_CITY_POPULATION_UNKNOWN : count;
}

std::string ReadTimeZone(std::string_view text)
{
    const auto isPlain = [](char c) { return c > ' ' && c < 0x7F; };
    if (text.size() > kTimeZoneUnits || !std::all_of(text.begin(), text.end(), isPlain))
        throw CBadRow("time zone " + Quoted(text) + " is no zone's name");
    return std::string(text);
}

std::string ReadCountry(std::string_view code, const CCountries& countries)
{
    if (countries.Find(std::string(code)) == nullptr)
        throw CBadRow("country " + Quoted(code) + " is unknown");
    return std::string(code);
}

} // namespace

void CRowCollector::Take(const RawRow& raw, const SourcePlace& place)
{
    CityRow row;
    String16 name;
    try
    {
        name = ReadName(raw.Name);
        row.Name = raw.Name;
        row.Identifier = ReadIdentifier(raw.Identifier);
        row.Latitude = ReadDegrees(raw.Latitude, 90, "latitude");
        row.Longitude = ReadDegrees(raw.Longitude, 180, "longitude");
        row.Country = ReadCountry(raw.Country, m_countries);
        row.Region1 = raw.Region1;
        row.Region2 = raw.Region2;
        row.Population = ReadPopulation(raw.Population);
        row.TimeZone = ReadTimeZone(raw.TimeZone);
        row.Place = place;
    }
    catch (const CBadRow& bad)
    {
        Refuse(place, bad.what());
        return;
    }
    if (name.size() > kRecordNameUnits)
    {
        m_problems.Add(CProblems::LongName, place,
                       "name of " + std::to_string(name.size()) +
                           " units, kept whole; a record takes " +
                           std::to_string(kRecordNameUnits) + ": " + Quoted(raw.Name));
    }
    m_rows.push_back(std::move(row));
}

void CRowCollector::Refuse(const SourcePlace& place, const std::string& why)
{
    m_problems.Add(CProblems::RowLeftOut, place, why);
}

} // namespace citydb
