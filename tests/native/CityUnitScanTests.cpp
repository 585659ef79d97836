// The scan over many units: both implementations give the marks that asking about each unit gives.
#include "dialogs/city/UnitScan.h"
#include "tests/native/CityImages.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

CUnitClass ClassOf(std::initializer_list<Char16> units)
{
    CUnitClass found;
    for (const Char16 unit : units)
        found.Add(unit);
    return found;
}

std::vector<UnitScan*> Scans()
{
#ifdef __SSE2__
    return {ScanUnitsPortable, ScanUnitsSse2};
#else
    return {ScanUnitsPortable};
#endif
}

TEST(CityUnitClass, HoldsWhatWasAddedAndNothingElse)
{
    const std::vector<std::vector<Char16>> sets = {
        {'l', 'L'}, {'L', 'l'}, {'k', 'K', 0x212A},   {'k', 0x212A, 'K'}, {0xE5, 0xC5, 0x212B},
        {1, 2},     {0xFFFF},   {'a', 'b', 'c', 'd'}, {'x', 'x'},         {0x8000, 0}};
    for (const std::vector<Char16>& set : sets)
    {
        CUnitClass units;
        for (const Char16 unit : set)
            units.Add(unit);
        EXPECT_TRUE(units.IsExact());
        for (unsigned unit = 0; unit < 0x10000; ++unit)
            ASSERT_EQ(std::find(set.begin(), set.end(), unit) != set.end(),
                      units.Contains(static_cast<uint16_t>(unit)))
                << unit;
    }
}

TEST(CityUnitClass, BothCasesOfALetterNeedOneTest)
{
    EXPECT_EQ(1u, ClassOf({'l', 'L'}).Count());
    EXPECT_EQ(1u, ClassOf({0x430, 0x410}).Count());
    EXPECT_EQ(2u, ClassOf({'k', 'K', 0x212A}).Count());
}

TEST(CityUnitClass, TooManyUnitsMakeEveryUnitAMember)
{
    const CUnitClass units = ClassOf({1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 1024, 0x7000});
    EXPECT_FALSE(units.IsExact());
    EXPECT_EQ(1u, units.Count());
    for (unsigned unit = 0; unit < 0x10000; ++unit)
        ASSERT_TRUE(units.Contains(static_cast<uint16_t>(unit)));
}

TEST(CityUnitClass, TheUnitsFoldedToALetterAreItsCases)
{
    const CFoldedUnits table(TestFold());
    const auto members = [&table](Char16 folded)
    {
        const CUnitClass units = table.UnitsFoldedTo(folded);
        String16 found;
        for (unsigned unit = 0; unit < 0x10000; ++unit)
            if (units.Contains(static_cast<uint16_t>(unit)))
                found += static_cast<Char16>(unit);
        return found;
    };
    EXPECT_EQ(u"Ll", members(u'l'));
    EXPECT_EQ(u"Kk\u212A", members(u'k'));
    EXPECT_EQ(u"\u00C5\u00E5\u212B", members(u'\u00E5'));
    EXPECT_EQ(u"-", members(u'-'));
    EXPECT_EQ(u"\uFFFF", members(u'\uFFFF'));
    EXPECT_EQ(u"", members(u'L'));
    EXPECT_TRUE(table.UnitsFoldedTo(u'L').IsEmpty());
}

TEST(CityUnitScan, EveryImplementationMarksWhatEachUnitSays)
{
    std::mt19937 random(7);
    const CUnitClass classes[] = {
        ClassOf({'l', 'L'}), ClassOf({'k', 'K', 0x212A}),
        ClassOf({'a'}),      ClassOf({0x8000, 0x7FFF, 0}),
        ClassOf({'n', 'N'}), ClassOf({1, 2, 4, 8, 16, 32, 64, 128, 256, 512, 1024})};
    static constexpr Char16 kUnits[] = u"lLkK\u212AanN\u8000\u7FFF\u6C6C\u4C00\u806C\u8061";
    for (int round = 0; round < 3000; ++round)
    {
        const size_t blocks = random() % 4;
        const size_t distance = random() % 3 == 0 ? random() % 200 : random() % 8;
        const size_t odd = random() % 2;
        // Exactly what may be read.
        std::vector<uint8_t> block(odd + 2 * (blocks * kUnitsPerBlock + distance));
        for (size_t i = odd; i < block.size(); i += 2)
            bytes::PutU16LE(block.data() + i,
                            static_cast<uint16_t>(kUnits[random() % std::size(kUnits)]));
        const UnitPattern pattern = {classes[random() % std::size(classes)],
                                     classes[random() % std::size(classes)], distance};
        const uint8_t* const units = block.data() + odd;
        std::vector<uint64_t> expected;
        for (size_t i = 0; i < blocks; ++i)
            expected.push_back(
                ScanFewUnits(units + 2 * i * kUnitsPerBlock, kUnitsPerBlock, pattern));
        for (UnitScan* const scan : Scans())
        {
            std::vector<uint64_t> marks(blocks, 0x5555);
            scan(units, blocks, pattern, marks.data());
            ASSERT_EQ(expected, marks) << "round " << round;
        }
    }
}

TEST(CityUnitScan, AMarkNeedsBothEnds)
{
    Char16 units[kUnitsPerBlock + 2] = {};
    units[0] = 'l';
    units[2] = 'n';
    units[5] = 'L';
    units[63] = 'l';
    units[65] = 'N';
    const UnitPattern pattern = {ClassOf({'l', 'L'}), ClassOf({'n', 'N'}), 2};
    const auto* const data = reinterpret_cast<const uint8_t*>(units);
    EXPECT_EQ(uint64_t{1} << 63 | 1, ScanFewUnits(data, kUnitsPerBlock, pattern));
    EXPECT_EQ(1u, ScanFewUnits(data, 63, pattern));
    for (UnitScan* const scan : Scans())
    {
        uint64_t mark = 0;
        scan(data, 1, pattern, &mark);
        EXPECT_EQ(uint64_t{1} << 63 | 1, mark);
    }
}

} // namespace
