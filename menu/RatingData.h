// The arithmetic of rating lists: the bytes of a stored list, moving entries by weight, numbering
// them, and placing them in display slots. Values only; the registry side is Rating.h.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/Char16.h"

namespace Ratings
{

// The top bit of a weight marks a pinned entry; the other bits are the usage weight.
constexpr uint16_t kPinnedBit = 0x8000;
// The number of an entry that was never saved.
constexpr uint16_t kNoNumber = 0xFFFF;
// Saving drops unused entries from the end of a longer list.
constexpr size_t kUsualLength = 20;

// One launch target: "l:" and a file path, or "m:" and a menu's key path.
struct CEntry
{
    String16 Name;
    // The name is stored in the value of this number.
    uint16_t Number;
    uint16_t Weight;

    bool IsPinned() const { return (Weight & kPinnedBit) != 0; }
};

// The most used entry comes first, pinned ones before all others.
using EntryList = std::vector<CEntry>;

// Gives the lower-case form of a code unit: names are compared by it.
using FoldFunction = Char16 (*)(Char16);

// Reads the entries of an "Index" value; half a pair at the end is left out. The names are empty.
EntryList DecodeIndex(const uint8_t* data, size_t size);
// Makes the bytes of an "Index" value from the entries that have a number, 4 for each.
std::vector<uint8_t> EncodeIndex(const EntryList& entries);

// Reads a "Layout" value: entry numbers by display slot. An odd number of bytes gives none.
std::vector<uint16_t> DecodeLayout(const uint8_t* data, size_t size);
// Makes the bytes of a "Layout" value.
std::vector<uint8_t> EncodeLayout(const std::vector<uint16_t>& hints);

// The position of the first entry of that name, ignoring case; the list's size when there is none.
size_t FindByName(const EntryList& entries, StringView16 name, FoldFunction fold);

// Pins the entry of that name, a new one if need be, and moves it before the entries of smaller
// weight that stand in front of it. A pinned entry stays as it is.
void Pin(EntryList& entries, StringView16 name, FoldFunction fold);
// Takes the pin from the entry of that name, if it has one, and moves it behind the entries of
// greater weight that follow it.
void Unpin(EntryList& entries, StringView16 name, FoldFunction fold);

// Drops entries of weight 0 from the end while the list is longer than kUsualLength.
void Trim(EntryList& entries);

// Hands out the numbers that the entries of a list leave free, smallest first.
class CFreeNumbers
{
public:
    explicit CFreeNumbers(const EntryList& entries);
    // kNoNumber once all are in use.
    uint16_t Next();

private:
    std::vector<bool> m_used;
    size_t m_next = 0;
};

// The value name that a number has in the registry: decimal, without leading zeros.
String16 ValueName(uint16_t number);

// What stands in the display slots.
struct CPlacement
{
    // By slot: the position of the entry in the list. As many slots as entries were taken.
    std::vector<size_t> Slots;
    // How many of the taken entries are pinned; the slots below belong to the pinned band.
    size_t Pinned = 0;
    // A hint was set: the hints are to be stored.
    bool HintsChanged = false;
};

// Places the first `count` entries, or all when there are fewer. An entry goes where it was shown
// last if that slot is in its band and free; the others take the band's free slots from the highest
// down, in list order, and `hints` learns their places.
CPlacement Place(const EntryList& entries, size_t count, std::vector<uint16_t>& hints);

} // namespace Ratings
