// Chooses the regions that tell places of one name apart.
#pragma once

#include "tools/citydb/ListedCity.h"
#include "tools/citydb/RegionNames.h"

#include <vector>

namespace citydb
{

// Gives a region to every row whose name, regardless of case, another place of its country has too:
// the first-level region, and where two of them share that as well, the second-level one with the
// first behind it ("Clark County, Ohio"). A region without a name can't be given. Returns how many
// rows still look like another place's.
size_t ChooseSubareas(std::vector<ListedCity>& cities, const CRegionNames& regions);

} // namespace citydb
