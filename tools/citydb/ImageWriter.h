// Writes the tables of a database as the image that the picker reads in place.
#pragma once

#include "platform/Char16.h"
#include "tools/citydb/Details.h"

#include <cstdint>
#include <vector>

namespace citydb
{

struct ImageRegion
{
    uint32_t Identifier;
    String16 Name;
};

struct ImageDetails
{
    uint32_t Identifier; // of the city
    DetailBytes Bytes;
};

struct ImageCity
{
    uint32_t Identifier;
    String16 Name;
    uint32_t Area;    // position in Areas
    uint32_t Subarea; // position in Subareas, or kNoCityRecord
    uint32_t Details; // position in Details, or kNoCityRecord
};

struct ImageTables
{
    std::vector<ImageRegion> Areas;
    std::vector<ImageRegion> Subareas;
    std::vector<ImageDetails> Details;
    std::vector<ImageCity> Cities;
    // Equal names stand side by side: then each text is stored once although the names lie in the
    // order of the table, which makes searching quick. Otherwise a text is shared wherever it
    // occurs again.
    bool NamesInOrder = false;
};

// Throws CInputError when the image would not fit into 32-bit offsets.
std::vector<uint8_t> WriteImage(const ImageTables& tables);

} // namespace citydb
