// The scan with SSE2: eight units in each step.
#include "dialogs/city/UnitScan.h"

#ifdef __SSE2__

#include <emmintrin.h>

namespace
{

constexpr size_t kUnitsPerVector = 8;

// A class's tests, spread over vectors. `kTests` of 0 means as many as the class has.
template <size_t kTests>
class CVectorClass
{
public:
    explicit CVectorClass(const CUnitClass& units) : m_count(units.Count())
    {
        for (size_t i = 0; i < m_count; ++i)
        {
            m_ignored[i] = _mm_set1_epi16(static_cast<short>(units[i].Ignored));
            m_values[i] = _mm_set1_epi16(static_cast<short>(units[i].Value));
        }
    }

    // All ones in each lane whose unit is in the class.
    __m128i Contains(__m128i units) const
    {
        __m128i inside = Passes(units, 0);
        const size_t count = kTests == 0 ? m_count : kTests;
        for (size_t i = 1; i < count; ++i)
            inside = _mm_or_si128(inside, Passes(units, i));
        return inside;
    }

private:
    __m128i Passes(__m128i units, size_t test) const
    {
        return _mm_cmpeq_epi16(_mm_or_si128(units, m_ignored[test]), m_values[test]);
    }

    size_t m_count;
    __m128i m_ignored[CUnitClass::kMostTests];
    __m128i m_values[CUnitClass::kMostTests];
};

__m128i Load(const uint8_t* units)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(units));
}

template <size_t kTests>
void Scan(const uint8_t* units, size_t count, const UnitPattern& pattern, uint64_t* marks)
{
    const CVectorClass<kTests> firstClass(pattern.First);
    const CVectorClass<kTests> lastClass(pattern.Last);
    const size_t distance = 2 * pattern.Distance;
    const auto inVector = [&](const uint8_t* from)
    {
        return _mm_and_si128(firstClass.Contains(Load(from)),
                             lastClass.Contains(Load(from + distance)));
    };
    for (size_t block = 0; block < count; ++block)
    {
        uint64_t mark = 0;
        for (unsigned part = 0; part < kUnitsPerBlock / (2 * kUnitsPerVector); ++part)
        {
            const __m128i low = inVector(units);
            const __m128i high = inVector(units + 2 * kUnitsPerVector);
            const int bits = _mm_movemask_epi8(_mm_packs_epi16(low, high));
            mark |= static_cast<uint64_t>(bits) << (2 * kUnitsPerVector * part);
            units += 4 * kUnitsPerVector;
        }
        marks[block] = mark;
    }
}

} // namespace

void ScanUnitsSse2(const uint8_t* units, size_t count, const UnitPattern& pattern, uint64_t* marks)
{
    const bool single = pattern.First.Count() == 1 && pattern.Last.Count() == 1;
    (single ? Scan<1> : Scan<0>)(units, count, pattern, marks);
}

#endif
