// Reads a file of places, whichever of the two formats it has.
#pragma once

#include "tools/citydb/Progress.h"
#include "tools/citydb/RowCollector.h"

#include <string>

namespace citydb
{

// Adds the places of `file` to the collector. `file` must outlive the rows, which name it. Throws
// CInputError when the file can't be read or is not of its format as a whole.
void ReadSource(const std::string& file, CRowCollector& collector, CProgress& progress);

// The two formats; `text` is the file's content.

// An array of objects with "name", "lat", "lng", "country", "admin1" and "admin2".
void ReadJsonSource(const std::string& file, const std::string& text, CRowCollector& collector,
                    CProgress& progress);
// The 19 columns of a GeoNames dump.
void ReadTableSource(const std::string& file, const std::string& text, CRowCollector& collector,
                     CProgress& progress);

} // namespace citydb
