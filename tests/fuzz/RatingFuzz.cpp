// Fuzzing the arithmetic of rating lists. A case is one byte for the number of display slots, one
// for the length of the "Index" value, that value, the "Layout" value up to a byte of 0xFE, and
// then operations, a byte each: pin or unpin one of eight names, trim, number, or place.
#include "menu/RatingData.h"

#include <algorithm>
#include <cstdlib>
#include <set>

namespace
{

using namespace Ratings;

constexpr uint8_t kLayoutEnd = 0xFE;

void Check(bool condition)
{
    if (!condition)
        std::abort();
}

Char16 Fold(Char16 unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char16>(unit + ('a' - 'A')) : unit;
}

// Eight names, each in both cases.
String16 NameOf(uint8_t operation)
{
    return String16(1, static_cast<Char16>((operation & 8 ? 'A' : 'a') + (operation & 7)));
}

// What an operation on one entry must leave alone: the others and their order.
EntryList Without(const EntryList& entries, StringView16 name)
{
    EntryList others = entries;
    const size_t position = FindByName(others, name, Fold);
    if (position < others.size())
        others.erase(others.begin() + static_cast<std::ptrdiff_t>(position));
    return others;
}

bool SameEntries(const EntryList& left, const EntryList& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const CEntry& a, const CEntry& b)
                      { return a.Name == b.Name && a.Number == b.Number && a.Weight == b.Weight; });
}

void CheckPin(EntryList& entries, const String16& name)
{
    const size_t before = FindByName(entries, name, Fold);
    const bool wasPinned = before < entries.size() && entries[before].IsPinned();
    const EntryList others = Without(entries, name);
    Pin(entries, name, Fold);
    const size_t position = FindByName(entries, name, Fold);
    Check(position < entries.size() && entries[position].IsPinned());
    Check(position <= before);
    Check(SameEntries(others, Without(entries, name)));
    if (wasPinned)
        return;
    Check(position == 0 || entries[position - 1].Weight >= entries[position].Weight);
    for (size_t passed = position + 1; passed <= before && passed < entries.size(); ++passed)
        Check(entries[passed].Weight < entries[position].Weight);
}

void CheckUnpin(EntryList& entries, const String16& name)
{
    const size_t before = FindByName(entries, name, Fold);
    const EntryList old = entries;
    const EntryList others = Without(entries, name);
    Unpin(entries, name, Fold);
    if (before == old.size() || !old[before].IsPinned())
    {
        Check(SameEntries(old, entries));
        return;
    }
    Check(entries.size() == old.size());
    const auto usage = static_cast<uint16_t>(old[before].Weight & ~kPinnedBit);
    for (size_t position = before; position < entries.size(); ++position)
        if (entries[position].Name == old[before].Name && entries[position].Weight == usage)
            return;
    Check(false);
}

void CheckTrim(EntryList& entries)
{
    const EntryList old = entries;
    Trim(entries);
    Check(entries.size() <= old.size());
    Check(entries.size() == old.size() || entries.size() >= kUsualLength);
    Check(entries.size() <= kUsualLength || entries.back().Weight != 0);
    Check(SameEntries(entries, EntryList(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(
                                                                        entries.size()))));
}

void CheckNumbers(EntryList& entries)
{
    std::set<uint16_t> used;
    for (const CEntry& entry : entries)
        used.insert(entry.Number);
    CFreeNumbers numbers(entries);
    for (CEntry& entry : entries)
    {
        if (entry.Number != kNoNumber)
            continue;
        entry.Number = numbers.Next();
        Check(entry.Number != kNoNumber && used.insert(entry.Number).second);
        Check(ValueName(entry.Number).size() <= 5);
    }
    const std::vector<uint8_t> stored = EncodeIndex(entries);
    Check(stored.size() == entries.size() * 4);
    Check(EncodeIndex(DecodeIndex(stored.data(), stored.size())) == stored);
}

void CheckPlace(const EntryList& entries, size_t count, std::vector<uint16_t>& hints)
{
    const std::vector<uint16_t> before = hints;
    const CPlacement placement = Place(entries, count, hints);
    const size_t taken = std::min(count, entries.size());
    Check(placement.Slots.size() == taken && placement.Pinned <= taken);
    Check(placement.HintsChanged || hints == before);
    Check(hints.size() >= before.size() && hints.size() <= std::max(before.size(), taken));
    std::vector<bool> seen(taken, false);
    for (size_t slot = 0; slot < taken; ++slot)
    {
        const size_t entry = placement.Slots[slot];
        Check(entry < taken && !seen[entry]);
        seen[entry] = true;
        Check((slot < placement.Pinned) == (entry < placement.Pinned));
        Check(hints.size() > slot && hints[slot] == entries[entry].Number);
    }
    // What was learnt is followed; equal numbers alone can't tell their slots apart.
    std::set<uint16_t> numbers;
    for (size_t entry = 0; entry < taken; ++entry)
        numbers.insert(entries[entry].Number);
    for (size_t slot = taken; slot < hints.size(); ++slot)
        numbers.erase(hints[slot]);
    if (numbers.size() == taken)
    {
        const CPlacement again = Place(entries, count, hints);
        Check(!again.HintsChanged && again.Slots == placement.Slots);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const uint8_t* const end = data + size;
    const size_t slots = data[0];
    const size_t indexSize = std::min<size_t>(data[1], size - 2);
    data += 2;
    EntryList entries = DecodeIndex(data, indexSize);
    Check(entries.size() == indexSize / 4);
    for (size_t i = 0; i < entries.size(); ++i)
        entries[i].Name = NameOf(static_cast<uint8_t>(i));
    data += indexSize;
    const uint8_t* const layoutEnd = std::find(data, end, kLayoutEnd);
    const auto layoutSize = static_cast<size_t>(layoutEnd - data);
    std::vector<uint16_t> hints = DecodeLayout(data, layoutSize);
    Check(hints.size() == (layoutSize % 2 == 0 ? layoutSize / 2 : 0));

    for (data = layoutEnd; data < end; ++data)
    {
        switch (*data >> 4)
        {
        case 0:
            CheckPin(entries, NameOf(*data));
            break;
        case 1:
            CheckUnpin(entries, NameOf(*data));
            break;
        case 2:
            CheckTrim(entries);
            break;
        case 3:
            CheckNumbers(entries);
            break;
        default:
            CheckPlace(entries, slots, hints);
        }
    }
    return 0;
}
