// Verifies the detail bytes of one city.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace citydb
{

// Takes kDetailsSize bytes and tells each field that can't be right.
std::vector<std::string> FindDetailFaults(const uint8_t* bytes);

} // namespace citydb
