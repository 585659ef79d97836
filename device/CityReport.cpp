#include "device/CityReport.h"

#include <cstring>

namespace report
{
namespace
{

static_assert(sizeof(CITYINFO) == 244, "the record that SelectCity exchanges");
static_assert(sizeof(CITYDETAILS) == sizeof(CITYINFO::details), "the details fill their place");

constexpr int32_t kMillion = 1000000;

// A text of at most `size` units, up to its first zero; control characters are shown as "?".
template <class Unit>
std::wstring TextOf(const Unit* units, size_t size)
{
    std::wstring text;
    for (size_t i = 0; i < size && units[i] != 0; ++i)
        text += units[i] < L' ' ? L'?' : static_cast<wchar_t>(units[i]);
    return text;
}

template <size_t size>
std::wstring FieldText(const uint16_t (&field)[size])
{
    return TextOf(field, size);
}

std::wstring Line(const wchar_t* name, const std::wstring& value)
{
    constexpr size_t kValueColumn = 13;
    std::wstring line = name;
    line.resize(kValueColumn, L' ');
    return L"  " + line + value + L"\n";
}

// Millionths of a degree, such as "38.716700° N".
std::wstring Degrees(int32_t value, int32_t limit, const wchar_t* positive, const wchar_t* negative)
{
    const int64_t size = value < 0 ? -static_cast<int64_t>(value) : value;
    std::wstring fraction = std::to_wstring(size % kMillion);
    fraction.insert(0, 6 - fraction.size(), L'0');
    std::wstring text = std::to_wstring(size / kMillion) + L"." + fraction + L"\u00B0 " +
                        (value < 0 ? negative : positive);
    if (size > static_cast<int64_t>(limit) * kMillion)
        text += L" (out of range)";
    return text;
}

// With a comma before each three digits.
std::wstring Grouped(uint32_t number)
{
    std::wstring text = std::to_wstring(number);
    for (size_t place = text.size(); place > 3; place -= 3)
        text.insert(place - 3, 1, L',');
    return text;
}

std::wstring OrUnknown(const std::wstring& text)
{
    return text.empty() ? L"unknown" : text;
}

std::wstring DetailsInWords(const CITYDETAILS& details)
{
    return Line(L"latitude", Degrees(details.latitude, 90, L"N", L"S")) +
           Line(L"longitude", Degrees(details.longitude, 180, L"E", L"W")) +
           Line(L"population", details.population == TAVLUMENAR_CITY_POPULATION_UNKNOWN
                                   ? L"unknown"
                                   : Grouped(details.population)) +
           Line(L"country", OrUnknown(FieldText(details.country))) +
           Line(L"time zone", OrUnknown(TimeZoneOf(details)));
}

std::wstring DetailsNote(const CITYINFO& city)
{
    if (city.hasDetails != 1)
        return Line(L"has details", city.hasDetails == 0
                                        ? L"no"
                                        : std::to_wstring(city.hasDetails) + L", not 0 or 1");
    if (const std::optional<CITYDETAILS> details = DetailsOf(city))
        return Line(L"has details", L"yes") + DetailsInWords(*details);
    return Line(L"has details", L"yes, in a layout that is not known here");
}

bool Same(const void* left, const void* right, size_t size)
{
    return memcmp(left, right, size) == 0;
}

std::wstring DescribeConfirmed(const CITYINFO& before, const CITYINFO& after)
{
    std::wstring text = L"The record that came back:\n" + CityInWords(after);
    if (after.hasDetails == 0)
        text += Same(before.details, after.details, sizeof(after.details))
                    ? L"  The 172 bytes of details are as they were passed in.\n"
                    : L"  The 172 bytes of details were changed, which they must not be.\n";
    return text;
}

} // namespace

std::optional<CITYDETAILS> DetailsOf(const CITYINFO& city)
{
    CITYDETAILS details;
    memcpy(&details, city.details, sizeof(details));
    if (city.hasDetails != 1 || details.version != TAVLUMENAR_CITY_DETAILS_VERSION)
        return std::nullopt;
    return details;
}

std::wstring TimeZoneOf(const CITYDETAILS& details)
{
    return FieldText(details.timeZone);
}

std::wstring CityPlace(const CITYINFO& city)
{
    std::wstring place = TextOf(city.name, std::size(city.name));
    if (const std::optional<CITYDETAILS> details = DetailsOf(city))
        if (const std::wstring country = FieldText(details->country); !country.empty())
            place += L", " + country;
    return place;
}

std::wstring CityInWords(const CITYINFO& city)
{
    return Line(L"identifier", std::to_wstring(city.identifier)) +
           Line(L"name", TextOf(city.name, std::size(city.name))) + DetailsNote(city);
}

std::wstring DescribeSelection(const CITYINFO& before, const CITYINFO& after, bool confirmed)
{
    const bool knew = !CityPlace(before).empty();
    const std::wstring passed = knew ? L"Passed in as the current city: " + CityPlace(before) +
                                           L" (identifier " + std::to_wstring(before.identifier) +
                                           L").\n"
                                     : L"No city was passed in.\n";
    if (confirmed)
        return passed + DescribeConfirmed(before, after);
    return passed + (Same(&before, &after, sizeof(before))
                         ? L"The record is untouched: all 244 bytes are as they were passed in.\n"
                         : L"The record was changed, which it must not be without Done.\n");
}

} // namespace report
