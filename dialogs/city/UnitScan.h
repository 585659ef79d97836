// Looks over many UTF-16 units at once for the places where a text may begin: the search's inner
// loop. One implementation uses SSE2, the other one only plain words; both give the same marks.
#pragma once

#include "platform/Char16.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// The number of units in a block; each has one bit in the block's mark, the first unit the lowest.
constexpr size_t kUnitsPerBlock = 64;

// A set of units, made for being asked about quickly: a unit is in it when one of the tests holds.
// One test often covers two units, since the cases of most letters differ in one bit.
class CUnitClass
{
public:
    struct Test
    {
        uint16_t Ignored; // bits that are set in the unit before it is compared
        uint16_t Value;
    };
    static constexpr size_t kMostTests = 4;

    // The empty set.
    CUnitClass() = default;

    void Add(Char16 unit);
    bool Contains(uint16_t unit) const
    {
        for (size_t i = 0; i < m_count; ++i)
            if (static_cast<uint16_t>(unit | m_tests[i].Ignored) == m_tests[i].Value)
                return true;
        return false;
    }
    bool IsEmpty() const { return m_count == 0; }
    // False when there were too many units for the tests: then every unit counts as one of the set.
    bool IsExact() const { return m_isExact; }
    size_t Count() const { return m_count; }
    const Test& operator[](size_t test) const { return m_tests[test]; }

private:
    Test m_tests[kMostTests] = {};
    size_t m_count = 0;
    bool m_isExact = true;
};

// What a text can begin at: a unit of `First`, and one of `Last` that stands `Distance` units
// further on. Neither set is empty.
struct UnitPattern
{
    CUnitClass First;
    CUnitClass Last;
    size_t Distance = 0;
};

// Writes one mark for each of `count` blocks from `units` on, which may lie at an odd address.
// Distance units behind the last block must be readable too.
using UnitScan = void(const uint8_t* units, size_t count, const UnitPattern& pattern,
                      uint64_t* marks);
UnitScan ScanUnitsPortable;
#ifdef __SSE2__
UnitScan ScanUnitsSse2;
#endif

// The number of the lowest bit that is set in a mark other than 0.
inline unsigned LowestBit(uint64_t mark)
{
    return static_cast<unsigned>(__builtin_ctzll(mark));
}

// The fastest one that this processor has.
inline void ScanUnits(const uint8_t* units, size_t count, const UnitPattern& pattern,
                      uint64_t* marks)
{
#ifdef __SSE2__
    ScanUnitsSse2(units, count, pattern, marks);
#else
    ScanUnitsPortable(units, count, pattern, marks);
#endif
}

// The mark of fewer units than a block has, up to `count`.
uint64_t ScanFewUnits(const uint8_t* units, size_t count, const UnitPattern& pattern);

// Answers which units have a given lower-case form, without looking at all of them each time.
class CFoldedUnits
{
public:
    // `fold` has an entry for each of the 65,536 units; it is read here only.
    explicit CFoldedUnits(const Char16* fold);

    CUnitClass UnitsFoldedTo(Char16 folded) const;

private:
    struct Pair
    {
        Char16 Unit;
        Char16 Folded;
    };
    // The units that aren't their own lower-case forms.
    std::vector<Pair> m_changed;
};
