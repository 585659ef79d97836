#include "tools/citydb/Details.h"

#include "dialogs/city/CityImage.h"
#include "platform/Bytes.h"

#include <algorithm>
#include <cstddef>

namespace citydb
{

static_assert(kDetailsSize == kCityDetailsSize, "fixed by the image");
static_assert(offsetof(CITYDETAILS, latitude) == 4, "fixed by the hosts");
static_assert(offsetof(CITYDETAILS, longitude) == 8, "fixed by the hosts");
static_assert(offsetof(CITYDETAILS, population) == 12, "fixed by the hosts");
static_assert(offsetof(CITYDETAILS, country) == 16, "fixed by the hosts");
static_assert(offsetof(CITYDETAILS, timeZone) == 24, "fixed by the hosts");
static_assert(offsetof(CITYDETAILS, reserved) == 120, "fixed by the hosts");

namespace
{

void PutText(uint8_t* to, size_t units, const std::string& ascii)
{
    for (size_t i = 0; i < std::min(units, ascii.size()); ++i)
        bytes::PutU16LE(to + 2 * i, static_cast<unsigned char>(ascii[i]));
}

template <size_t Count>
void GetText(const uint8_t* from, uint16_t (&units)[Count])
{
    for (size_t i = 0; i < Count; ++i)
        units[i] = bytes::GetU16LE(from + 2 * i);
}

} // namespace

DetailBytes PackDetails(const CityRow& row)
{
    DetailBytes block{};
    uint8_t* p = block.data();
    bytes::PutU32LE(p, TAVLUMENAR_CITY_DETAILS_VERSION);
    bytes::PutU32LE(p + offsetof(CITYDETAILS, latitude), static_cast<uint32_t>(row.Latitude));
    bytes::PutU32LE(p + offsetof(CITYDETAILS, longitude), static_cast<uint32_t>(row.Longitude));
    bytes::PutU32LE(p + offsetof(CITYDETAILS, population), row.Population);
    PutText(p + offsetof(CITYDETAILS, country), 4, row.Country);
    PutText(p + offsetof(CITYDETAILS, timeZone), 48, row.TimeZone);
    return block;
}

CITYDETAILS UnpackDetails(const uint8_t* p)
{
    CITYDETAILS details{};
    details.version = bytes::GetU32LE(p);
    details.latitude = static_cast<int32_t>(bytes::GetU32LE(p + offsetof(CITYDETAILS, latitude)));
    details.longitude = static_cast<int32_t>(bytes::GetU32LE(p + offsetof(CITYDETAILS, longitude)));
    details.population = bytes::GetU32LE(p + offsetof(CITYDETAILS, population));
    GetText(p + offsetof(CITYDETAILS, country), details.country);
    GetText(p + offsetof(CITYDETAILS, timeZone), details.timeZone);
    std::copy_n(p + offsetof(CITYDETAILS, reserved), sizeof(details.reserved), details.reserved);
    return details;
}

} // namespace citydb
