#include "tools/citydb/DetailsCheck.h"

#include "tools/citydb/Details.h"

#include <algorithm>

namespace citydb
{

namespace
{

constexpr int32_t kMillion = 1000000;

// Printable ASCII, then zeros to the end; at least one zero.
template <size_t Count>
bool IsPaddedAscii(const uint16_t (&units)[Count])
{
    const uint16_t* end = std::find(units, units + Count, uint16_t{0});
    return end != units + Count &&
           std::all_of(units, end, [](uint16_t unit) { return unit > 0x20 && unit < 0x7F; }) &&
           std::all_of(end, units + Count, [](uint16_t unit) { return unit == 0; });
}

bool IsCountryCode(const uint16_t (&units)[4])
{
    const auto isCapital = [](uint16_t unit) { return unit >= 'A' && unit <= 'Z'; };
    return isCapital(units[0]) && isCapital(units[1]) && units[2] == 0 && units[3] == 0;
}

} // namespace

std::vector<std::string> FindDetailFaults(const uint8_t* bytes)
{
    const CITYDETAILS details = UnpackDetails(bytes);
    if (details.version != TAVLUMENAR_CITY_DETAILS_VERSION)
        return {"details version " + std::to_string(details.version) + " instead of 1"};
    std::vector<std::string> faults;
    const auto latitude = details.latitude;
    const auto longitude = details.longitude;
    if (latitude < -90 * kMillion || latitude > 90 * kMillion)
        faults.push_back("latitude " + std::to_string(latitude) + " is out of range");
    if (longitude < -180 * kMillion || longitude > 180 * kMillion)
        faults.push_back("longitude " + std::to_string(longitude) + " is out of range");
    if (!IsCountryCode(details.country))
        faults.push_back("the country is no code of two letters");
    if (!IsPaddedAscii(details.timeZone))
        faults.push_back("the time zone is no text padded with zeros");
    if (!std::all_of(std::begin(details.reserved), std::end(details.reserved),
                     [](uint8_t byte) { return byte == 0; }))
        faults.push_back("the reserved bytes are not 0");
    return faults;
}

} // namespace citydb
