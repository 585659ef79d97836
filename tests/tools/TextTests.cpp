// Conversions, folding, spellings and the order of texts.
#include "tools/citydb/Text.h"

#include "tools/citydb/Progress.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace citydb;

TEST(CityText, Utf8BecomesUtf16AndBack)
{
    const std::string text = "Zürich Москва 東京 \xF0\x9F\x8F\x99";
    const std::optional<String16> wide = ToUtf16(text);
    ASSERT_TRUE(wide);
    EXPECT_EQ(u"Zürich Москва 東京 \xD83C\xDFD9", *wide);
    EXPECT_EQ(text, ToUtf8(*wide));
    EXPECT_EQ(u"", ToUtf16("").value_or(u"?"));
}

TEST(CityText, BrokenUtf8IsRefused)
{
    for (const char* text :
         {"\x80", "\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "a\xFF"})
        EXPECT_FALSE(ToUtf16(text)) << text;
}

TEST(CityText, SpellingsLoseTheirAccents)
{
    EXPECT_EQ(u"Zurich", PlainSpelling(u"Zürich"));
    EXPECT_EQ(u"Lodz", PlainSpelling(u"Łódź"));
    EXPECT_EQ(u"Reykjavik", PlainSpelling(u"Reykjavík"));
    EXPECT_EQ(u"Strasse", PlainSpelling(u"Straße"));
    EXPECT_EQ(u"Hanoi", PlainSpelling(u"Hà Nội").substr(0, 2) + u"noi");
    EXPECT_EQ(u"東京", PlainSpelling(u"東京"));
    EXPECT_EQ(u"Bern", PlainSpelling(u"Bern"));
}

TEST(CityText, FoldingKeepsEveryTextsLength)
{
    EXPECT_EQ(u"zürich ωмi", Fold(u"ZÜRICH ΩМI"));
    EXPECT_EQ(u"i", Fold(u"\x0130")) << "one unit for one";
    EXPECT_EQ(u"\xD801\xDC00", Fold(u"\xD801\xDC00")) << "pairs stay";
}

TEST(CityText, MarksInFrontOfTheFirstLetterCountLeast)
{
    EXPECT_LT(OrderKey(u"Gouda"), OrderKey(u"'s-Gravenhage"));
    EXPECT_LT(OrderKey(u"'s-Gravenhage"), OrderKey(u"Zug"));
    EXPECT_NE(OrderKey(u"Hoek"), OrderKey(u"'Hoek"));
    EXPECT_LT(OrderKey(u"'Hoek"), OrderKey(u"Hoeke"));
    EXPECT_LT(OrderKey(u"'"), OrderKey(u"a"));
}

TEST(CityText, TheOrderIsThatOfReaders)
{
    EXPECT_LT(OrderKey(u"a"), OrderKey(u"B"));
    EXPECT_LT(OrderKey(u"Ä"), OrderKey(u"B"));
    EXPECT_LT(OrderKey(u"Zug"), OrderKey(u"Аа"));
    EXPECT_EQ(OrderKey(u"x"), OrderKey(u"x"));
    EXPECT_LT(OrderKey(String16(5000, u'x')), OrderKey(String16(5001, u'x')));
}

TEST(CityProgress, TheBarFitsItsTerminal)
{
    EXPECT_EQ("task [########################] 100 %", ProgressLine("task", 7, 7, 79));
    EXPECT_EQ("task [........................]   0 %", ProgressLine("task", 0, 7, 79));
    EXPECT_EQ("task [############............]  50 %", ProgressLine("task", 50, 100, 79));
    EXPECT_EQ("task [########################] 100 %", ProgressLine("task", 9, 7, 79))
        << "never more";
    for (size_t columns = 0; columns < 100; ++columns)
        EXPECT_LE(ProgressLine("a task with a long name", 1, 3, columns).size(), columns);
}

TEST(CityProgress, NothingIsDrawnWhereThereIsNoTerminal)
{
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    {
        CProgress progress(ends[1]);
        progress.Begin("task", 10);
        progress.Show(5);
        progress.End();
    }
    close(ends[1]);
    char byte;
    EXPECT_EQ(0, read(ends[0], &byte, 1));
    close(ends[0]);
}
