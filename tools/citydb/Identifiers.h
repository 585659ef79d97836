// Gives every place an identifier that stays the same from build to build.
#pragma once

#include "tools/citydb/CityRow.h"
#include "tools/citydb/Problems.h"

#include <string>
#include <vector>

namespace citydb
{

// What makes a place the same place: country, regions, name and position, as one text.
std::string PlaceKey(const CityRow& row);

// FNV-1a, 32 bits.
uint32_t HashOf(const std::string& text);

// Rows that bring an identifier keep it; the others get a hash of their place key. Where two hashes
// agree, or one is taken or reserved, the place whose key comes first keeps it and the rest are
// hashed again, so that the order of the rows never matters. A place that is there twice, or an
// identifier that two rows bring, stays with its first row; the other is left out and named.
void AssignIdentifiers(std::vector<CityRow>& rows, CProblems& problems);

} // namespace citydb
