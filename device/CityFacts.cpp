#include "device/CityFacts.h"

#include "device/CityReport.h"
#include "device/PosixZone.h"
#include "device/ZoneTable.h"

namespace
{

constexpr int kMillion = 1000000;
// Two digits behind the point are a good kilometre.
constexpr int kHundredth = kMillion / 100;

std::wstring Degrees(int32_t millionths, const wchar_t* positive, const wchar_t* negative)
{
    const int size = millionths < 0 ? -millionths : millionths;
    const int hundredths = (size + kHundredth / 2) / kHundredth;
    std::wstring fraction = std::to_wstring(hundredths % 100);
    fraction.insert(0, 2 - fraction.size(), L'0');
    return std::to_wstring(hundredths / 100) + L"." + fraction + L"\u00B0 " +
           (millionths < 0 ? negative : positive);
}

bool IsWithin(int32_t millionths, int degrees)
{
    return millionths >= -degrees * kMillion && millionths <= degrees * kMillion;
}

std::wstring PositionOf(const CITYDETAILS& details)
{
    if (!IsWithin(details.latitude, 90) || !IsWithin(details.longitude, 180))
        return {};
    return Degrees(details.latitude, L"N", L"S") + L", " + Degrees(details.longitude, L"E", L"W");
}

std::optional<int> SecondsEastOf(const CITYDETAILS& details, int64_t utc)
{
    zones::Zone zone;
    if (!zones::Find(report::TimeZoneOf(details), zone))
        return std::nullopt;
    return zones::OffsetAt(zone, utc);
}

} // namespace

CityFacts FactsOf(const CITYINFO& city, int64_t utc)
{
    CityFacts facts;
    facts.Place = report::CityPlace(city);
    if (const std::optional<CITYDETAILS> details = report::DetailsOf(city))
    {
        facts.SecondsEast = SecondsEastOf(*details, utc);
        facts.Position = PositionOf(*details);
    }
    return facts;
}
