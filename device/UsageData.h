// The arithmetic of counting what is launched, over the module's rating lists. Values only; the
// registry side is Usage.h.
#pragma once

#include "menu/RatingData.h"

namespace usage
{

// The usage part of a weight.
constexpr uint16_t kMostUses = 0x7FFF;

constexpr uint16_t UsesOf(uint16_t weight)
{
    return static_cast<uint16_t>(weight & kMostUses);
}

// Counts one more use of the entry of that name, a new one if need be, and moves it before the
// entries of smaller weight that stand in front of it. Pins stay as they are; the count stops at
// kMostUses.
void Raise(Ratings::EntryList& entries, StringView16 name, Ratings::FoldFunction fold);

// How often the entry of that name was used; 0 for one that isn't in the list.
uint16_t UsesOf(const Ratings::EntryList& entries, StringView16 name, Ratings::FoldFunction fold);

} // namespace usage
