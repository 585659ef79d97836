// Rating lists as values: stored bytes, moves by weight, numbers, and display slots.
#include "menu/RatingData.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <string>

namespace Ratings
{
namespace
{

Char16 FoldAscii(Char16 unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char16>(unit + ('a' - 'A')) : unit;
}

String16 Wide(const std::string& text)
{
    return String16(text.begin(), text.end());
}

// One entry per letter, numbered 0, 1, 2 ... with these weights.
EntryList Listed(const std::string& letters, const std::vector<uint16_t>& weights)
{
    EntryList entries;
    for (size_t i = 0; i < letters.size(); ++i)
        entries.push_back({Wide(letters.substr(i, 1)), static_cast<uint16_t>(i), weights[i]});
    return entries;
}

std::string Letters(const EntryList& entries)
{
    std::string letters;
    for (const CEntry& entry : entries)
        letters.append(entry.Name.begin(), entry.Name.end());
    return letters;
}

// The letters by slot.
std::string Shown(const EntryList& entries, const CPlacement& placement)
{
    std::string letters;
    for (const size_t entry : placement.Slots)
        letters += static_cast<char>(entries[entry].Name[0]);
    return letters;
}

// The "Index" value.

TEST(RatingIndex, PairsOfLittleEndianWordsAreNumberAndWeight)
{
    const uint8_t data[] = {0x02, 0x01, 0x05, 0x80, 0xFF, 0xFF, 0x00, 0x00};
    const EntryList entries = DecodeIndex(data, sizeof(data));
    ASSERT_EQ(2u, entries.size());
    EXPECT_EQ(0x0102, entries[0].Number);
    EXPECT_EQ(0x8005, entries[0].Weight);
    EXPECT_TRUE(entries[0].IsPinned());
    EXPECT_TRUE(entries[0].Name.empty());
    EXPECT_EQ(kNoNumber, entries[1].Number);
    EXPECT_FALSE(entries[1].IsPinned());
}

TEST(RatingIndex, SixBytesAreOneEntry)
{
    const uint8_t data[6] = {1, 0, 2, 0, 3, 0};
    EXPECT_EQ(1u, DecodeIndex(data, sizeof(data)).size());
}

TEST(RatingIndex, OnlyWholePairsAreReadWhateverTheSize)
{
    const std::vector<uint8_t> full(12, 1);
    for (size_t size = 0; size <= full.size(); ++size)
    {
        // A block of exactly that size: reading past it would be seen.
        const std::vector<uint8_t> data(full.begin(),
                                        full.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(size / 4, DecodeIndex(data.data(), data.size()).size()) << size;
    }
    EXPECT_TRUE(DecodeIndex(nullptr, 0).empty());
}

TEST(RatingIndex, WritingPacksNumberAndWeightInListOrder)
{
    EntryList entries = {{Wide("a"), 0x0201, 0x8004}, {Wide("b"), 0, 7}};
    EXPECT_EQ((std::vector<uint8_t>{0x01, 0x02, 0x04, 0x80, 0, 0, 7, 0}), EncodeIndex(entries));
}

TEST(RatingIndex, EntriesWithoutNumberAreLeftOut)
{
    EntryList entries = {{Wide("a"), kNoNumber, 4}, {Wide("b"), 3, 7}};
    EXPECT_EQ((std::vector<uint8_t>{3, 0, 7, 0}), EncodeIndex(entries));
    EXPECT_TRUE(EncodeIndex({}).empty());
}

TEST(RatingIndex, AListOfMoreThanAQuarterMillionPairsIsRead)
{
    const std::vector<uint8_t> data(1048580, 9);
    EXPECT_EQ(262145u, DecodeIndex(data.data(), data.size()).size());
}

// The "Layout" value.

TEST(RatingLayout, WordsAreEntryNumbersBySlot)
{
    const uint8_t data[] = {1, 2, 3, 4};
    EXPECT_EQ((std::vector<uint16_t>{0x0201, 0x0403}), DecodeLayout(data, sizeof(data)));
    EXPECT_EQ(std::vector<uint8_t>(data, data + 4), EncodeLayout({0x0201, 0x0403}));
}

TEST(RatingLayout, AnOddNumberOfBytesIsNotRead)
{
    const uint8_t data[] = {1, 2, 3};
    EXPECT_TRUE(DecodeLayout(data, 3).empty());
    EXPECT_TRUE(DecodeLayout(data, 1).empty());
    EXPECT_TRUE(DecodeLayout(nullptr, 0).empty());
}

// Names.

TEST(RatingNames, EntriesAreFoundIgnoringCaseAndTheFirstOneCounts)
{
    EntryList entries = Listed("xab", {0, 0, 0});
    entries.push_back({Wide("A"), 3, 0});
    EXPECT_EQ(1u, FindByName(entries, Wide("A"), FoldAscii));
    EXPECT_EQ(4u, FindByName(entries, Wide("c"), FoldAscii));
    EXPECT_EQ(4u, FindByName(entries, Wide("ab"), FoldAscii));
    EXPECT_EQ(4u, FindByName(entries, Wide(""), FoldAscii));
}

TEST(RatingNames, AValueIsNamedByItsNumberInDecimal)
{
    EXPECT_EQ(Wide("0"), ValueName(0));
    EXPECT_EQ(Wide("10"), ValueName(10));
    EXPECT_EQ(Wide("32768"), ValueName(32768));
    EXPECT_EQ(Wide("65535"), ValueName(65535));
}

// Pinning.

TEST(RatingPin, AnUnknownNameIsAppendedPinnedAndMovedAboveTheUnpinned)
{
    EntryList entries = Listed("abc", {0x8003, 9, 0});
    Pin(entries, Wide("n"), FoldAscii);
    EXPECT_EQ("anbc", Letters(entries));
    EXPECT_EQ(kNoNumber, entries[1].Number);
    EXPECT_EQ(0x8000, entries[1].Weight);
}

TEST(RatingPin, AnEntryKeepsItsUsageWeightAndStopsAtAnEqualOrGreaterOne)
{
    EntryList entries = Listed("abcd", {0x8009, 0x8005, 7, 5});
    Pin(entries, Wide("D"), FoldAscii);
    EXPECT_EQ("abdc", Letters(entries));
    EXPECT_EQ(0x8005, entries[2].Weight);
    EXPECT_EQ(3, entries[2].Number);
}

TEST(RatingPin, AnEntryCanMoveToTheHead)
{
    EntryList entries = Listed("abc", {9, 8, 7});
    Pin(entries, Wide("c"), FoldAscii);
    EXPECT_EQ("cab", Letters(entries));
}

TEST(RatingPin, TheMoveStopsAtTheFirstGreaterWeightEvenIfSmallerOnesFollow)
{
    EntryList entries = Listed("abc", {1, 0x8009, 5});
    Pin(entries, Wide("c"), FoldAscii);
    EXPECT_EQ("abc", Letters(entries));
}

TEST(RatingPin, APinnedEntryStaysWhereItIs)
{
    EntryList entries = Listed("abc", {1, 0x8005, 2});
    Pin(entries, Wide("b"), FoldAscii);
    EXPECT_EQ("abc", Letters(entries));
    EXPECT_EQ(0x8005, entries[1].Weight);
}

TEST(RatingPin, TheFirstEntryOfAnEmptyListIsPinned)
{
    EntryList entries;
    Pin(entries, Wide("a"), FoldAscii);
    EXPECT_EQ("a", Letters(entries));
}

TEST(RatingUnpin, AnEntryMovesBehindTheGreaterWeightsOnly)
{
    EntryList entries = Listed("abcde", {0x8005, 0x8001, 9, 5, 4});
    Unpin(entries, Wide("A"), FoldAscii);
    EXPECT_EQ("bcade", Letters(entries));
    EXPECT_EQ(5, entries[2].Weight);
}

TEST(RatingUnpin, AnEntryCanMoveToTheTail)
{
    EntryList entries = Listed("abc", {0x8000, 9, 5});
    Unpin(entries, Wide("a"), FoldAscii);
    EXPECT_EQ("bca", Letters(entries));
}

TEST(RatingUnpin, AMissingOrUnpinnedEntryChangesNothing)
{
    EntryList entries = Listed("abc", {1, 9, 5});
    Unpin(entries, Wide("a"), FoldAscii);
    Unpin(entries, Wide("z"), FoldAscii);
    EXPECT_EQ("abc", Letters(entries));
    EntryList none;
    Unpin(none, Wide("a"), FoldAscii);
    EXPECT_TRUE(none.empty());
}

// Trimming.

TEST(RatingTrim, OfTwentyFiveEntriesTheThreeUnusedAtTheEndGo)
{
    std::vector<uint16_t> weights(25, 10);
    weights[21] = 4;
    weights[22] = weights[23] = weights[24] = 0;
    EntryList entries = Listed("abcdefghijklmnopqrstuvwxy", weights);
    Trim(entries);
    EXPECT_EQ("abcdefghijklmnopqrstuv", Letters(entries));
}

TEST(RatingTrim, UnusedEntriesUpToTwentyStay)
{
    EntryList entries = Listed("abcdefghijklmnopqrstuvwxy", std::vector<uint16_t>(25, 0));
    Trim(entries);
    EXPECT_EQ(20u, entries.size());
    Trim(entries);
    EXPECT_EQ(20u, entries.size());
}

TEST(RatingTrim, AnUnusedEntryBeforeAUsedOneStays)
{
    std::vector<uint16_t> weights(25, 0);
    weights[24] = 1;
    EntryList entries = Listed("abcdefghijklmnopqrstuvwxy", weights);
    Trim(entries);
    EXPECT_EQ(25u, entries.size());
}

TEST(RatingTrim, APinnedEntryIsNotUnused)
{
    std::vector<uint16_t> weights(21, 0x8000);
    EntryList entries = Listed("abcdefghijklmnopqrstu", weights);
    Trim(entries);
    EXPECT_EQ(21u, entries.size());
}

// Numbers.

TEST(RatingNumbers, NewEntriesTakeTheNumbersThatTheOthersLeave)
{
    EntryList entries = Listed("abc", {0, 0, 0});
    entries[0].Number = 4;
    entries[1].Number = 1;
    entries[2].Number = kNoNumber;
    CFreeNumbers numbers(entries);
    EXPECT_EQ(0, numbers.Next());
    EXPECT_EQ(2, numbers.Next());
    EXPECT_EQ(3, numbers.Next());
    EXPECT_EQ(5, numbers.Next());
}

TEST(RatingNumbers, TheLastNumberIsFFFEThenThereAreNone)
{
    EntryList entries(0xFFFE);
    for (size_t i = 0; i < entries.size(); ++i)
        entries[i].Number = static_cast<uint16_t>(i);
    CFreeNumbers numbers(entries);
    EXPECT_EQ(0xFFFE, numbers.Next());
    EXPECT_EQ(kNoNumber, numbers.Next());
    EXPECT_EQ(kNoNumber, numbers.Next());
}

TEST(RatingNumbers, EqualNumbersCountOnce)
{
    EntryList entries = Listed("abc", {0, 0, 0});
    entries[1].Number = entries[2].Number = 0;
    CFreeNumbers numbers(entries);
    EXPECT_EQ(1, numbers.Next());
}

// Slots.

TEST(RatingSlots, WithoutHintsEachBandFillsFromItsLastSlotDown)
{
    const EntryList entries = Listed("abcde", {0x8002, 0x8001, 3, 2, 1});
    std::vector<uint16_t> hints;
    const CPlacement placement = Place(entries, 5, hints);
    EXPECT_EQ("baedc", Shown(entries, placement));
    EXPECT_EQ(2u, placement.Pinned);
    EXPECT_TRUE(placement.HintsChanged);
    EXPECT_EQ((std::vector<uint16_t>{1, 0, 4, 3, 2}), hints);
}

TEST(RatingSlots, EntriesGoWhereTheyWereShown)
{
    const EntryList entries = Listed("abcde", {0x8002, 0x8001, 3, 2, 1});
    std::vector<uint16_t> hints = {0, 1, 3, 2, 4};
    const CPlacement placement = Place(entries, 5, hints);
    EXPECT_EQ("abdce", Shown(entries, placement));
    EXPECT_FALSE(placement.HintsChanged);
    EXPECT_EQ((std::vector<uint16_t>{0, 1, 3, 2, 4}), hints);
}

TEST(RatingSlots, AnEntryThatWasPinnedMovesToTheHighestFreeSlotOfItsBand)
{
    // b was shown in slot 0 and isn't pinned any more.
    const EntryList entries = Listed("abcd", {0x8002, 5, 3, 2});
    std::vector<uint16_t> hints = {1, 0, 2, 9};
    const CPlacement placement = Place(entries, 4, hints);
    EXPECT_EQ("adcb", Shown(entries, placement));
    EXPECT_EQ((std::vector<uint16_t>{0, 3, 2, 1}), hints);
}

TEST(RatingSlots, TheHighestFreeSlotGoesToTheFirstUnplacedEntry)
{
    const EntryList entries = Listed("abcd", {4, 3, 2, 1});
    std::vector<uint16_t> hints = {9, 9, 2, 9};
    EXPECT_EQ("dbca", Shown(entries, Place(entries, 4, hints)));
}

TEST(RatingSlots, OnlyTheLastSlotOfANumberCounts)
{
    const EntryList entries = Listed("ab", {2, 1});
    // Slot 5 lies outside the band, so that slot 0 doesn't help.
    std::vector<uint16_t> hints = {0, 9, 9, 9, 9, 0};
    EXPECT_EQ("ba", Shown(entries, Place(entries, 2, hints)));
    EXPECT_EQ((std::vector<uint16_t>{1, 0, 9, 9, 9, 0}), hints);
}

TEST(RatingSlots, AtMostCountEntriesAreTakenFromTheHead)
{
    const EntryList entries = Listed("abcd", {0x8001, 3, 2, 0x8001});
    std::vector<uint16_t> hints;
    EXPECT_EQ("ab", Shown(entries, Place(entries, 2, hints)));
    hints.clear();
    const CPlacement placement = Place(entries, 3, hints);
    EXPECT_EQ("acb", Shown(entries, placement));
    EXPECT_EQ(1u, placement.Pinned) << "the pinned one behind isn't taken";
}

TEST(RatingSlots, CountsOfZeroAndBeyondTheListAreBounded)
{
    const EntryList entries = Listed("ab", {2, 1});
    std::vector<uint16_t> hints;
    EXPECT_TRUE(Place(entries, 0, hints).Slots.empty());
    EXPECT_FALSE(Place(entries, 0, hints).HintsChanged);
    EXPECT_EQ(2u, Place(entries, 0xFFFFFFFF, hints).Slots.size());
    EXPECT_TRUE(Place({}, 0xFFFFFFFF, hints).Slots.empty());
}

TEST(RatingSlots, AnUnpinnedEntryBeforeAPinnedOneStandsInThePinnedBand)
{
    const EntryList entries = Listed("abc", {7, 0x8001, 5});
    std::vector<uint16_t> hints;
    const CPlacement placement = Place(entries, 3, hints);
    EXPECT_EQ(1u, placement.Pinned);
    EXPECT_EQ("acb", Shown(entries, placement));
}

TEST(RatingSlots, EntriesOfOneNumberGetSlotsOfTheirOwn)
{
    EntryList entries = Listed("abc", {3, 2, 1});
    entries[1].Number = entries[2].Number = 0;
    std::vector<uint16_t> hints = {0, 0, 0};
    EXPECT_EQ("cba", Shown(entries, Place(entries, 3, hints)));
}

TEST(RatingSlots, LongHintsKeepTheirTailAndShortOnesGrow)
{
    const EntryList entries = Listed("abc", {3, 2, 1});
    std::vector<uint16_t> longHints = {9, 9, 9, 9, 7};
    Place(entries, 3, longHints);
    EXPECT_EQ((std::vector<uint16_t>{2, 1, 0, 9, 7}), longHints);
    std::vector<uint16_t> shortHints = {1};
    EXPECT_EQ("bca", Shown(entries, Place(entries, 3, shortHints)));
    EXPECT_EQ((std::vector<uint16_t>{1, 2, 0}), shortHints);
}

// The placing rules in their simplest form, slot searches and all.
std::vector<size_t> PlacedStepByStep(const EntryList& entries, size_t count,
                                     std::vector<uint16_t>& hints)
{
    const size_t taken = std::min(count, entries.size());
    size_t pinned = 0;
    for (size_t i = 0; i < taken; ++i)
        pinned += entries[i].IsPinned() ? 1 : 0;
    constexpr size_t kNone = static_cast<size_t>(-1);
    std::vector<size_t> slots(taken, kNone);
    const size_t bounds[] = {0, pinned, taken};
    for (int band = 0; band < 2; ++band)
    {
        std::vector<size_t> unplaced;
        for (size_t entry = bounds[band]; entry < bounds[band + 1]; ++entry)
        {
            size_t slot = hints.size();
            while (slot > 0 && hints[slot - 1] != entries[entry].Number)
                --slot;
            const bool inBand = slot > bounds[band] && slot <= bounds[band + 1];
            if (inBand && slots[slot - 1] == kNone)
                slots[slot - 1] = entry;
            else
                unplaced.push_back(entry);
        }
        for (const size_t entry : unplaced)
        {
            size_t slot = bounds[band + 1] - 1;
            while (slots[slot] != kNone)
                --slot;
            slots[slot] = entry;
            hints.resize(std::max(hints.size(), slot + 1), 0);
            hints[slot] = entries[entry].Number;
        }
    }
    return slots;
}

TEST(RatingSlots, PlacingIsWhatTheStepByStepSearchGives)
{
    std::mt19937 random(20240611);
    const auto upTo = [&](unsigned limit) { return static_cast<uint16_t>(random() % (limit + 1)); };
    for (int round = 0; round < 5000; ++round)
    {
        EntryList entries(upTo(12));
        for (CEntry& entry : entries)
            entry = {String16(), upTo(14), static_cast<uint16_t>(upTo(1) ? 0x8000 : 0)};
        std::vector<uint16_t> hints(upTo(16));
        for (uint16_t& hint : hints)
            hint = upTo(14);
        std::vector<uint16_t> expectedHints = hints;
        const size_t count = upTo(14);
        const std::vector<size_t> expected = PlacedStepByStep(entries, count, expectedHints);
        ASSERT_EQ(expected, Place(entries, count, hints).Slots) << round;
        ASSERT_EQ(expectedHints, hints) << round;
    }
}

TEST(RatingSlots, HugeListsAndHintsArePlacedInLinearTime)
{
    EntryList entries(262144);
    for (size_t i = 0; i < entries.size(); ++i)
        entries[i].Number = static_cast<uint16_t>(i);
    std::vector<uint16_t> hints(524288, 7);
    const CPlacement placement = Place(entries, entries.size(), hints);
    std::vector<size_t> sorted = placement.Slots;
    std::sort(sorted.begin(), sorted.end());
    std::vector<size_t> all(entries.size());
    std::iota(all.begin(), all.end(), size_t{0});
    EXPECT_EQ(all, sorted);
}

} // namespace
} // namespace Ratings
