// Verifies a database: every offset, index, count, record size and text, the details included.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace citydb
{

struct CheckResult
{
    // One line for each fault, with the table, the record and the position, in the order of the
    // image. At most kFaultsKept; FaultCount has them all.
    std::vector<std::string> Faults;
    size_t FaultCount = 0;
    uint32_t Counts[4] = {};  // records of the tables, as far as they could be read
    size_t LongNames = 0;     // city names that a host's record cuts
    bool NamesInOrder = true; // false when searching has to jump about in the names
};

constexpr size_t kFaultsKept = 100000;

// Takes any bytes; needs time and memory in proportion to their number.
CheckResult CheckImage(const uint8_t* image, size_t size);

} // namespace citydb
