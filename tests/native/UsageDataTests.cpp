// Counting launches in a rating list.
#include "device/UsageData.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using Ratings::EntryList;

Char16 FoldAscii(Char16 unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char16>(unit + ('a' - 'A')) : unit;
}

// One entry per letter, numbered from 0.
EntryList Listed(const std::string& letters, const std::vector<uint16_t>& weights)
{
    EntryList entries;
    for (size_t i = 0; i < letters.size(); ++i)
        entries.push_back(
            {String16(1, static_cast<Char16>(letters[i])), static_cast<uint16_t>(i), weights[i]});
    return entries;
}

std::string Letters(const EntryList& entries)
{
    std::string letters;
    for (const Ratings::CEntry& entry : entries)
        letters.append(entry.Name.begin(), entry.Name.end());
    return letters;
}

} // namespace

TEST(UsageData, ALaunchRaisesTheWeightByOneIgnoringCase)
{
    EntryList entries = Listed("ab", {9, 4});
    usage::Raise(entries, TEXT16("B"), FoldAscii);
    EXPECT_EQ(5, entries[1].Weight);
    EXPECT_EQ(9, entries[0].Weight);
    EXPECT_EQ(2u, entries.size());
}

TEST(UsageData, WhatIsNotInTheListJoinsItWithOneUse)
{
    EntryList entries = Listed("ab", {3, 0});
    usage::Raise(entries, TEXT16("c"), FoldAscii);
    EXPECT_EQ("acb", Letters(entries));
    EXPECT_EQ(1, entries[1].Weight);
    EXPECT_EQ(Ratings::kNoNumber, entries[1].Number);
}

TEST(UsageData, AnEntryOvertakesSmallerOnesAndStopsBehindEqualOnes)
{
    EntryList entries = Listed("abcd", {6, 5, 4, 4});
    usage::Raise(entries, TEXT16("d"), FoldAscii);
    EXPECT_EQ("abdc", Letters(entries));
    EXPECT_EQ(5, entries[2].Weight);
}

TEST(UsageData, PinnedEntriesStayPinnedAndBeforeAllOthers)
{
    EntryList entries = Listed("abc", {0x8004, 0x8003, 0x7FFE});
    usage::Raise(entries, TEXT16("c"), FoldAscii);
    EXPECT_EQ("abc", Letters(entries));
    usage::Raise(entries, TEXT16("b"), FoldAscii);
    usage::Raise(entries, TEXT16("b"), FoldAscii);
    EXPECT_EQ("bac", Letters(entries));
    EXPECT_EQ(0x8005, entries[0].Weight);
}

TEST(UsageData, TheCountStopsAtItsFifteenBits)
{
    EntryList entries = Listed("ab", {0xFFFF, 0x7FFF});
    usage::Raise(entries, TEXT16("a"), FoldAscii);
    usage::Raise(entries, TEXT16("b"), FoldAscii);
    EXPECT_EQ(0xFFFF, entries[0].Weight);
    EXPECT_EQ(0x7FFF, entries[1].Weight);
}

TEST(UsageData, UsesAreToldWithoutThePin)
{
    const EntryList entries = Listed("ab", {0x8004, 3});
    EXPECT_EQ(4, usage::UsesOf(entries, TEXT16("A"), FoldAscii));
    EXPECT_EQ(3, usage::UsesOf(entries, TEXT16("b"), FoldAscii));
    EXPECT_EQ(0, usage::UsesOf(entries, TEXT16("c"), FoldAscii));
}
