// The numbers of the image format, for the code that writes and checks images.
#pragma once

#include <cstdint>

namespace citydb
{

constexpr uint32_t kImageVersion = 2;
constexpr uint32_t kImageTableCount = 4;
constexpr uint32_t kImageHeaderSize = 8; // version and table count
constexpr uint32_t kImageEntrySize = 12;
constexpr uint32_t kImageDirectoryEnd = kImageHeaderSize + kImageTableCount * kImageEntrySize;
// Areas, subareas, details, cities: the fields that are read, and nothing behind them.
constexpr uint32_t kImageRecordSizes[kImageTableCount] = {8, 8, 176, 20};

} // namespace citydb
