// The sample device's usage lists: one per rated menu, and the global list of the home screen.
#pragma once

#include "device/SampleMenu.h"

#include <cstdint>

namespace sample
{

// Bit 15 of a weight marks a pinned entry.
constexpr uint16_t kPinned = 0x8000;

struct RatingEntry
{
    uint16_t Number;
    uint16_t Weight;
    // "l:" and a file path, or "m:" and a menu key path.
    const wchar_t* Name;
};

struct RatingList
{
    const wchar_t* Name;
    Table<RatingEntry> Entries;
    // How often the list was saved.
    uint32_t Timestamp;
    // The entry number last shown in each slot; empty means that there is no such value.
    Table<uint16_t> Layout;
};

Table<RatingList> RatingLists();

} // namespace sample
