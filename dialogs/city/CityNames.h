// The names of all cities where they stand in the image, ordered by their places, so that they can
// be searched in one go over the memory instead of name by name. Used by CCitySearch.
#pragma once

#include "dialogs/city/CityImage.h"
#include "dialogs/city/UnitScan.h"

#include <vector>

// A text to look for, and the lower-case form of each of the 65,536 units. Nothing is copied.
struct FoldedText
{
    StringView16 Text; // already lower-cased
    const Char16* Fold;
    const CFoldedUnits& Units; // of that table
};

// One bit per city.
using CityMarks = std::vector<uint64_t>;

inline bool IsMarked(const CityMarks& marks, uint32_t city)
{
    return (marks[city / 64] >> (city % 64) & 1) != 0;
}

// The names whose offsets are all even, or all odd: together they are one row of units.
struct NameRow
{
    const uint8_t* Units = nullptr;
    const uint32_t* Starts = nullptr; // in units, in rising order
    size_t Count = 0;
    const uint32_t* Blocks = nullptr; // for each block of units, how many names start before it
    bool IsTidy = false;              // each name ends right before the next one
    size_t End = 0;                   // where the zero behind the last name stands, in units
};

// Allocation failures leave as std::bad_alloc.
class CCityNames
{
public:
    // No names.
    CCityNames() = default;
    // The image must outlive the object and have `count` cities.
    CCityNames(const CCityImage& image, uint32_t count);
    // Moving leaves the vectors' memory where it is; the rows point into it.
    CCityNames(CCityNames&&) = default;
    CCityNames& operator=(CCityNames&&) = default;
    CCityNames(const CCityNames&) = delete;
    CCityNames& operator=(const CCityNames&) = delete;

    // The first city whose name lies outside the image; the number of cities when there is none.
    uint32_t FirstBroken() const { return m_firstBroken; }

    // The address of a city's name; throws CTavException with 0x84000001 when it lies outside the
    // image. The city is one of the image's.
    const uint8_t* NameOf(uint32_t city) const;

    // Writes the numbers of the cities whose names contain the text, in table order, and returns
    // how many they are. Cities whose names lie outside the image are left out. The text isn't
    // empty, and `cities` has room for all cities.
    uint32_t List(const FoldedText& text, uint32_t* cities) const;
    // The same cities as marks.
    CityMarks Mark(const FoldedText& text) const;

private:
    // True when the names stand in the image one behind the other as in the table, all readable and
    // at even offsets.
    bool IsInTableOrder() const
    {
        return m_order.empty() && m_rows[1].Count == 0 && m_firstBroken == m_count;
    }
    uint32_t OffsetOf(uint32_t city) const;
    void ReadStarts();
    void Sort();
    void FindRows();
    template <class Sink>
    void Find(const FoldedText& text, Sink sink) const;

    CCityImage m_image;
    // The first city's record, and the bytes from one to the next.
    const uint8_t* m_records = nullptr;
    size_t m_recordSize = 0;
    uint32_t m_count = 0;
    uint32_t m_firstBroken = 0;
    // Where each readable name starts, in rising order: first the even row's, then the odd one's.
    std::vector<uint32_t> m_starts;
    // The cities that they belong to; empty when that is just the table's order.
    std::vector<uint32_t> m_order;
    // Counted from the row's first unit.
    std::vector<uint32_t> m_blocks[2];
    NameRow m_rows[2];
};
