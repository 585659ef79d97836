#include "tests/native/FailingAllocation.h"
#include "tests/native/Translations.h"

#include <gtest/gtest.h>

#include <chrono>
#include <deque>
#include <string>

namespace
{

String16 Numbered(const char16_t* name, unsigned number)
{
    const std::string digits = std::to_string(number);
    return name + String16(digits.begin(), digits.end());
}

// Keeps the texts that a map only points to.
class CTexts
{
public:
    Char16* operator()(String16 text)
    {
        m_texts.push_back(std::move(text));
        return m_texts.back().data();
    }

private:
    std::deque<String16> m_texts;
};

// "key N" in numbers from 0 up.
void StoreNumbered(CLocalizerMap& map, CTexts& texts, unsigned from, unsigned to)
{
    for (unsigned i = from; i < to; ++i)
        map.Store({texts(Numbered(u"key ", i))}, texts(Numbered(u"value ", i)));
}

String16 Found(const CLocalizerMap& map, const String16& key)
{
    Char16* value = nullptr;
    return map.Find({key.c_str()}, value) ? String16(value) : String16(u"(none)");
}

String16 Lines(unsigned from, unsigned to)
{
    String16 lines;
    for (unsigned i = from; i < to; ++i)
        lines += Numbered(u"key ", i) + u"|" + Numbered(u"value ", i) + u"\n";
    return lines;
}

TEST(LocalizerMap, IsEmptyWithoutATableAtFirst)
{
    const CLocalizerMap map;
    EXPECT_EQ(10u, map.InitialBits);
    EXPECT_EQ(0u, map.Bits);
    EXPECT_EQ(0u, map.Count);
    EXPECT_EQ(nullptr, map.Table);
    EXPECT_EQ(u"(none)", Found(map, u"anything"));
}

TEST(LocalizerMap, TheFirstEntryGetsATableOf1024Slots)
{
    CLoadedTexts texts(u"a|1");
    EXPECT_EQ(10u, texts.Map.Bits);
    EXPECT_EQ(1u, texts.Map.Count);
    EXPECT_NE(nullptr, texts.Map.Table);
}

TEST(LocalizerMap, HashIsFiveTimesTheRestPlusThirtySevenTimesEachUnit)
{
    const CLocalizerMap map;
    EXPECT_EQ(0u, map.Hash({nullptr}));
    EXPECT_EQ(0u, map.Hash({u""}));
    EXPECT_EQ(37u * 'a', map.Hash({u"a"}));
    EXPECT_EQ((37u * 'a' * 5u + 37u * 'b') * 5u + 37u * 0x20AC, map.Hash({u"ab\u20AC"}));
}

TEST(LocalizerMap, HashWrapsAt32Bits)
{
    const String16 text(40, u'\uFFFF');
    uint64_t expected = 0;
    for (const Char16 unit : text)
        expected = (5 * expected + 37 * static_cast<uint64_t>(unit)) % (uint64_t{1} << 32);
    EXPECT_EQ(expected, CLocalizerMap().Hash({text.c_str()}));
}

TEST(LocalizerMap, AnEntryStandsInItsHomeSlotOfItsGroup)
{
    CLoadedTexts texts(u"Done|Fertig");
    const uint32_t hash = (((u'D' * 5u + u'o') * 5u + u'n') * 5u + u'e') * 37u;
    const uint32_t slot = (hash * 0x9E3779B9u) >> 22;
    const CLocalizerMap::Group& group = texts.Map.Table[slot / 32];
    EXPECT_EQ(1u << (slot % 32), group.Used);
    EXPECT_EQ(u"Done", String16(group.Pairs[slot % 32].PairKey.Text));
    EXPECT_EQ(u"Fertig", String16(group.Pairs[slot % 32].PairValue));
}

TEST(LocalizerMap, CollidingKeysStandInTheNextSlotsAndWrapAround)
{
    CTexts texts;
    CLocalizerMap map;
    // 37c x golden falls on the last slot of 1,024 for this unit.
    Char16 unit = 1;
    while (((37u * unit * 0x9E3779B9u) >> 22) != 1023)
        ++unit;
    const String16 last(1, unit);
    map.Store({texts(last)}, texts(u"first"));
    // The same hash from two units: 5a + b = unit.
    const String16 other = {static_cast<Char16>((unit - 1) / 5),
                            static_cast<Char16>(unit - (unit - 1) / 5 * 5)};
    ASSERT_EQ(map.Hash({last.c_str()}), map.Hash({other.c_str()}));
    map.Store({texts(other)}, texts(u"second"));
    EXPECT_EQ(1u << 31, map.Table[31].Used);
    EXPECT_EQ(1u, map.Table[0].Used);
    EXPECT_EQ(u"first", Found(map, last));
    EXPECT_EQ(u"second", Found(map, other));
}

TEST(LocalizerMap, TextsWithTheSameHashAreKeptApart)
{
    CLoadedTexts texts(u"af|1\nba|2");
    ASSERT_EQ(texts.Map.Hash({u"af"}), texts.Map.Hash({u"ba"}));
    EXPECT_EQ(u"1", texts[u"af"]);
    EXPECT_EQ(u"2", texts[u"ba"]);
}

TEST(LocalizerMap, KeysAreComparedWithRegardToCaseAndLength)
{
    CLoadedTexts texts(u"Done|1");
    EXPECT_EQ(u"1", texts[u"Done"]);
    EXPECT_EQ(u"", texts[u"done"]);
    EXPECT_EQ(u"", texts[u"Don"]);
    EXPECT_EQ(u"", texts[u"Done "]);
    EXPECT_EQ(u"", texts[u" Done"]);
}

TEST(LocalizerMap, ALaterEntryWithTheSameKeyReplacesTheValue)
{
    CLoadedTexts texts(u"a|1\nb|2\na|3");
    EXPECT_EQ(u"3", texts[u"a"]);
    EXPECT_EQ(2u, texts.Map.Count);
}

TEST(LocalizerMap, TheTableIsNeverMoreThanHalfFull)
{
    CTexts texts;
    CLocalizerMap map;
    StoreNumbered(map, texts, 0, 512);
    EXPECT_EQ(10u, map.Bits);
    EXPECT_EQ(512u, map.Count);
    StoreNumbered(map, texts, 512, 513);
    EXPECT_EQ(11u, map.Bits);
    EXPECT_EQ(513u, map.Count);
}

TEST(LocalizerMap, AFullTableStillReplacesValuesWithoutGrowing)
{
    CTexts texts;
    CLocalizerMap map;
    StoreNumbered(map, texts, 0, 512);
    map.Store({texts(u"key 7")}, texts(u"new"));
    EXPECT_EQ(10u, map.Bits);
    EXPECT_EQ(512u, map.Count);
    EXPECT_EQ(u"new", Found(map, u"key 7"));
}

TEST(LocalizerMap, GrowingKeepsEveryEntry)
{
    CTexts texts;
    CLocalizerMap map;
    StoreNumbered(map, texts, 0, 5000);
    EXPECT_EQ(14u, map.Bits);
    EXPECT_EQ(5000u, map.Count);
    for (unsigned i = 0; i < 5000; ++i)
        ASSERT_EQ(Numbered(u"value ", i), Found(map, Numbered(u"key ", i)));
    EXPECT_EQ(u"(none)", Found(map, u"key 5000"));
}

TEST(LocalizerMap, GrowingToTheSameSizeDoesNothing)
{
    CLoadedTexts texts(u"a|1");
    const auto* const table = texts.Map.Table;
    EXPECT_TRUE(texts.Map.Grow(10));
    EXPECT_EQ(table, texts.Map.Table);
}

TEST(LocalizerMap, LoadingAFileGivesTheCapacityThatStoringOneByOneGives)
{
    for (const unsigned entries : {1u, 511u, 512u, 513u, 1024u, 1025u, 2000u, 4097u})
    {
        CTexts texts;
        CLocalizerMap map;
        StoreNumbered(map, texts, 0, entries);
        const CLoadedTexts loaded(Lines(0, entries));
        EXPECT_EQ(map.Bits, loaded.Map.Bits) << entries;
        EXPECT_EQ(map.Count, loaded.Map.Count) << entries;
    }
}

TEST(LocalizerMap, DuplicateLinesDontCountForTheCapacity)
{
    const CLoadedTexts texts(Lines(0, 500) + Lines(0, 500) + Lines(0, 500));
    EXPECT_EQ(10u, texts.Map.Bits);
    EXPECT_EQ(500u, texts.Map.Count);
    for (unsigned i = 0; i < 500; ++i)
        ASSERT_EQ(Numbered(u"value ", i), texts[Numbered(u"key ", i).c_str()]);
}

TEST(LocalizerMap, AFileWithoutEntriesGetsNoTable)
{
    const CLoadedTexts texts(u"; nothing\n");
    EXPECT_EQ(0u, texts.Map.Bits);
    EXPECT_EQ(nullptr, texts.Map.Table);
}

TEST(LocalizerMap, ClearFreesTheTable)
{
    CLoadedTexts texts(u"a|1");
    texts.Map.Clear();
    EXPECT_EQ(0u, texts.Map.Bits);
    EXPECT_EQ(0u, texts.Map.Count);
    EXPECT_EQ(nullptr, texts.Map.Table);
    EXPECT_EQ(u"", texts[u"a"]);
}

// The same map with a limit that a test reaches quickly.
class CSmallMap : public CGenericMap<STRING_WRAPPER, Char16*, 6>
{
public:
    CSmallMap() : CGenericMap(5) {}
    uint32_t Hash(const STRING_WRAPPER& key) const override { return CLocalizerMap().Hash(key); }
};

TEST(LocalizerMap, T9EntriesBeyondTheLargestTableAreDropped)
{
    CTexts texts;
    CSmallMap map;
    for (unsigned i = 0; i < 32; ++i)
        EXPECT_TRUE(map.Store({texts(Numbered(u"k", i))}, texts(Numbered(u"v", i))));
    EXPECT_FALSE(map.Store({texts(u"one more")}, texts(u"x")));
    EXPECT_EQ(6u, map.Bits);
    EXPECT_EQ(32u, map.Count);
    Char16* value = nullptr;
    EXPECT_FALSE(map.Find({u"one more"}, value));
    EXPECT_TRUE(map.Store({texts(u"k5")}, texts(u"new"))) << "a known key needs no room";
    EXPECT_TRUE(map.Find({u"k5"}, value));
    EXPECT_EQ(u"new", String16(value));
}

TEST(LocalizerMap, T9TheLimitIs2To24Slots)
{
    CLocalizerMap map;
    EXPECT_FALSE(map.Grow(25));
    EXPECT_EQ(0u, map.Bits);
}

TEST(LocalizerMap, T10SixteenThousandCollidingKeysAreLoadedInBoundedTime)
{
    // Fourteen times one of two blocks of the same hash.
    String16 lines;
    for (unsigned number = 0; number < 0x4000; ++number)
    {
        for (unsigned bit = 0; bit < 14; ++bit)
            lines += (number >> bit) & 1 ? u"af" : u"ba";
        lines += u"|x\n";
    }
    const auto begin = std::chrono::steady_clock::now();
    const CLoadedTexts texts(lines);
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
    EXPECT_EQ(0x4000u, texts.Map.Count);
    EXPECT_LT(seconds.count(), 30);
}

TEST(LocalizerMap, T11ATableIsNeverSmallerThanAGroup)
{
    class CTinyMap : public CGenericMap<STRING_WRAPPER, Char16*>
    {
    public:
        CTinyMap() : CGenericMap(0) {}
        uint32_t Hash(const STRING_WRAPPER&) const override { return 0xFFFFFFFF; }
    };
    CTexts texts;
    CTinyMap map;
    EXPECT_TRUE(map.Store({texts(u"a")}, texts(u"1")));
    EXPECT_EQ(5u, map.Bits);
}

TEST(LocalizerMap, WithoutMemoryForATableNothingIsStored)
{
    const CFailingAllocation failing(0);
    const CLoadedTexts texts(u"a|1\nb|2");
    EXPECT_EQ(0u, texts.Map.Count);
    EXPECT_EQ(nullptr, texts.Map.Table);
    EXPECT_LT(0, CFailingAllocation::Refused());
}

TEST(LocalizerMap, WithoutMemoryToGrowTheNewEntriesAreDroppedAndTheOldOnesStay)
{
    CTexts texts;
    CLocalizerMap map;
    StoreNumbered(map, texts, 0, 512);
    {
        const CFailingAllocation failing(1024 * sizeof(CLocalizerMap::SlotPair));
        StoreNumbered(map, texts, 512, 520);
        EXPECT_EQ(8, CFailingAllocation::Refused());
    }
    EXPECT_EQ(10u, map.Bits);
    EXPECT_EQ(512u, map.Count);
    EXPECT_EQ(u"value 511", Found(map, u"key 511"));
    EXPECT_EQ(u"(none)", Found(map, u"key 512"));
    StoreNumbered(map, texts, 600, 601);
    EXPECT_EQ(11u, map.Bits) << "memory is back";
}

TEST(LocalizerMap, WithoutMemoryForTheWholeFileAsManyEntriesAsFitAreLoaded)
{
    const CFailingAllocation failing(2048 * sizeof(CLocalizerMap::SlotPair));
    const CLoadedTexts texts(Lines(0, 5000));
    EXPECT_EQ(10u, texts.Map.Bits);
    EXPECT_EQ(512u, texts.Map.Count);
    EXPECT_EQ(u"value 0", texts[u"key 0"]);
    EXPECT_EQ(u"value 511", texts[u"key 511"]);
}

} // namespace
