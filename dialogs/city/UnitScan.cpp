#include "dialogs/city/UnitScan.h"

#include "platform/Bytes.h"

namespace
{

constexpr size_t kAllUnits = 0x10000;

bool IsOneBit(unsigned bits)
{
    return bits != 0 && (bits & (bits - 1)) == 0;
}

} // namespace

void CUnitClass::Add(Char16 unit)
{
    const auto value = static_cast<uint16_t>(unit);
    if (Contains(value))
        return;
    for (size_t i = 0; i < m_count; ++i)
    {
        Test& test = m_tests[i];
        const auto difference = static_cast<uint16_t>(test.Value ^ value);
        if (test.Ignored == 0 && IsOneBit(difference))
        {
            test = {difference, static_cast<uint16_t>(value | difference)};
            return;
        }
    }
    if (m_count == kMostTests)
    {
        m_isExact = false;
        m_count = 1;
        m_tests[0] = {0xFFFF, 0xFFFF};
        return;
    }
    m_tests[m_count++] = {0, value};
}

uint64_t ScanFewUnits(const uint8_t* units, size_t count, const UnitPattern& pattern)
{
    uint64_t mark = 0;
    for (size_t i = 0; i < count; ++i)
    {
        const uint8_t* const unit = units + 2 * i;
        if (pattern.First.Contains(bytes::GetU16LE(unit)) &&
            pattern.Last.Contains(bytes::GetU16LE(unit + 2 * pattern.Distance)))
            mark |= uint64_t{1} << i;
    }
    return mark;
}

CFoldedUnits::CFoldedUnits(const Char16* fold)
{
    for (size_t i = 0; i < kAllUnits; ++i)
    {
        const auto unit = static_cast<Char16>(i);
        if (fold[i] != unit)
            m_changed.push_back({unit, fold[i]});
    }
}

CUnitClass CFoldedUnits::UnitsFoldedTo(Char16 folded) const
{
    CUnitClass units;
    bool isOwnForm = true;
    for (const Pair& pair : m_changed)
    {
        if (pair.Folded == folded)
            units.Add(pair.Unit);
        isOwnForm = isOwnForm && pair.Unit != folded;
    }
    if (isOwnForm)
        units.Add(folded);
    return units;
}
