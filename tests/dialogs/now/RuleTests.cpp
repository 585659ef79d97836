// The decisions behind the list, as functions of plain values.
#include "dialogs/now/NowLayout.h"
#include "dialogs/now/PluginRules.h"

#include <gtest/gtest.h>

#include <climits>

TEST(PluginRules, OnlyTheFourKindsAreWellFormed)
{
    for (int32_t kind = KindCalendar; kind <= KindProfile; ++kind)
        EXPECT_FALSE(IsMalformedPlugin(L"text", kind)) << kind;
    for (const int32_t kind : {INT_MIN, -2, -1, 4, 5, 49, INT_MAX})
        EXPECT_TRUE(IsMalformedPlugin(L"text", kind)) << kind;
}

TEST(PluginRules, AnEmptyTextIsMalformedWhateverTheKind)
{
    for (const int32_t kind : {-1, 0, 1, 2, 3, 4})
        EXPECT_TRUE(IsMalformedPlugin(L"", kind)) << kind;
    EXPECT_FALSE(IsMalformedPlugin(L" ", 0));
}

TEST(PluginRules, EachKindHasItsString)
{
    EXPECT_EQ(105u, KindSuffix(0));
    EXPECT_EQ(104u, KindSuffix(1));
    EXPECT_EQ(106u, KindSuffix(2));
    EXPECT_EQ(107u, KindSuffix(3));
}

TEST(PluginRules, OnlyAStoredZeroIsUsed)
{
    EXPECT_TRUE(IsPluginUsed(0));
    EXPECT_FALSE(IsPluginUsed(1));
    EXPECT_FALSE(IsPluginUsed(0xFFFFFFFF));
    EXPECT_FALSE(IsPluginUsed(std::nullopt));
}

TEST(PluginRules, AnItemsDataHoldsPlaceAndKind)
{
    EXPECT_EQ(0x00000000u, PluginItemData(0, 0));
    EXPECT_EQ(0x00030001u, PluginItemData(1, 3));
    EXPECT_EQ(0x0002FFFFu, PluginItemData(0xFFFF, 2));
    EXPECT_EQ(0xFFFFu, KeyPositionOf(0x0002FFFF));
    EXPECT_EQ(1u, KeyPositionOf(0x00030001));
}

// The 65,537th plug-in has the place of the first: more than 16 bits don't fit.
TEST(PluginRules, APlaceIsCutTo16Bits)
{
    EXPECT_EQ(0x00010000u, PluginItemData(65536, 1));
    EXPECT_EQ(0u, KeyPositionOf(PluginItemData(65536, 3)));
    EXPECT_EQ(1u, KeyPositionOf(PluginItemData(65537, 3)));
}

TEST(NowLayoutRules, TheListKeepsItsLeftMarginOnTheRightAndBelow)
{
    const RECT place = NowListPlace({0, 0, 240, 294}, {5, 70, 100, 90});
    EXPECT_EQ(5, place.left);
    EXPECT_EQ(70, place.top);
    EXPECT_EQ(235, place.right);
    EXPECT_EQ(289, place.bottom);
}

TEST(NowLayoutRules, AClientAreaThatBeginsElsewhereMovesTheListAlong)
{
    const RECT place = NowListPlace({10, 20, 250, 314}, {15, 90, 100, 95});
    EXPECT_EQ(15, place.left);
    EXPECT_EQ(90, place.top);
    EXPECT_EQ(245, place.right);
    EXPECT_EQ(309, place.bottom);
}

TEST(NowLayoutRules, TheColumnIsTheListWithoutItsScrollBar)
{
    EXPECT_EQ(213, NowColumnWidth({5, 0, 235, 10}, 17));
    EXPECT_EQ(0, NowColumnWidth({5, 0, 10, 10}, 17));
}

TEST(NowLayoutRules, TheEmptyTextTakesTheWholeWidth)
{
    const RECT place = NowEmptyTextPlace({0, 0, 320, 214}, {30, 100, 90, 116});
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(100, place.top);
    EXPECT_EQ(320, place.right);
    EXPECT_EQ(116, place.bottom);
}
