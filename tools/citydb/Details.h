// The 172 detail bytes of a city, written and read.
#pragma once

#include "tools/citydb/CityRow.h"

#include <array>
#include <cstdint>

namespace citydb
{

constexpr size_t kDetailsSize = sizeof(CITYDETAILS);

using DetailBytes = std::array<uint8_t, kDetailsSize>;

// Country and time zone are ASCII; what doesn't fit is never there, for rows are checked before.
DetailBytes PackDetails(const CityRow& row);

// Reads kDetailsSize bytes at any address, whatever they hold.
CITYDETAILS UnpackDetails(const uint8_t* bytes);

} // namespace citydb
