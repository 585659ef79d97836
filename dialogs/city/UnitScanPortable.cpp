// The scan with plain words: four units in each step.
#include "dialogs/city/UnitScan.h"

#include <cstring>

namespace
{

constexpr size_t kUnitsPerWord = 4;
constexpr uint64_t kEachUnit = 0x0001000100010001;
constexpr uint64_t kLowBits = 0x7FFF * kEachUnit;

uint64_t Load(const uint8_t* units)
{
    uint64_t word;
    std::memcpy(&word, units, sizeof(word));
    return word;
}

// The highest bit of each unit that is in the class.
uint64_t Contains(const CUnitClass& units, uint64_t word)
{
    uint64_t inside = 0;
    for (size_t i = 0; i < units.Count(); ++i)
    {
        const uint64_t rest = (word | units[i].Ignored * kEachUnit) ^ (units[i].Value * kEachUnit);
        // Adding carries into the highest bit exactly where one of the lower ones is set.
        inside |= ~(((rest & kLowBits) + kLowBits) | rest | kLowBits);
    }
    return inside;
}

// One bit per unit from the highest bit of each.
uint64_t Gather(uint64_t highest)
{
    return (highest >> 15 & 1) | (highest >> 30 & 2) | (highest >> 45 & 4) | (highest >> 60 & 8);
}

} // namespace

void ScanUnitsPortable(const uint8_t* units, size_t count, const UnitPattern& pattern,
                       uint64_t* marks)
{
    const size_t distance = 2 * pattern.Distance;
    for (size_t block = 0; block < count; ++block)
    {
        uint64_t mark = 0;
        for (unsigned part = 0; part < kUnitsPerBlock / kUnitsPerWord; ++part)
        {
            // Most words hold no first unit; there is nothing more to look at then.
            if (const uint64_t first = Contains(pattern.First, Load(units)))
            {
                const uint64_t both = first & Contains(pattern.Last, Load(units + distance));
                mark |= Gather(both) << (kUnitsPerWord * part);
            }
            units += sizeof(uint64_t);
        }
        marks[block] = mark;
    }
}
