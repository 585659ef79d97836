// Where the words of a help page stand. Every character is 10 wide and every line 20 high here;
// bold ones are 12 wide.
#include "device/help/BookLayout.h"

#include <gmock/gmock.h>

#include <chrono>

namespace
{

using help::Book;
using help::BookLayout;
using help::LayoutMetrics;
using help::TextStyle;
using testing::ElementsAre;

class CFixedMeasure : public help::ITextMeasure
{
public:
    int Width(TextStyle style, Char16 /*unit*/) override
    {
        return style == TextStyle::Bold ? 12 : 10;
    }
    int Height(TextStyle style) override { return style == TextStyle::LargeHeading ? 30 : 20; }
};

// A book with its layout, without margins.
struct Laid
{
    explicit Laid(StringView16 html, int width = 100) : Page(help::ParseBook(html))
    {
        LayoutMetrics metrics;
        metrics.Indent = 15;
        metrics.Gap = 4;
        metrics.HeadingGap = 9;
        CFixedMeasure measure;
        Layout = help::LayOut(Page, width, metrics, measure);
    }

    std::vector<String16> Lines() const
    {
        std::vector<String16> lines;
        for (const help::Line& line : Layout.Lines)
        {
            String16 text;
            for (size_t i = 0; i < line.PieceCount; ++i)
                text += Layout.Pieces[line.FirstPiece + i].Text;
            lines.push_back(text);
        }
        return lines;
    }

    Book Page;
    BookLayout Layout;
};

} // namespace

TEST(BookLayout, WordsThatDoNotFitGoToTheNextLine)
{
    EXPECT_THAT(Laid(u"one two three four").Lines(), ElementsAre(u"one two", u"three four"));
}

TEST(BookLayout, AWordThatEndsAtTheEdgeFits)
{
    EXPECT_THAT(Laid(u"12345 7890 x").Lines(), ElementsAre(u"12345 7890", u"x"));
    EXPECT_THAT(Laid(u"12345 78901 x").Lines(), ElementsAre(u"12345", u"78901 x"));
}

TEST(BookLayout, AWordOfTwoLooksIsNotTornApart)
{
    EXPECT_THAT(Laid(u"12345 78<b>9</b>01").Lines(), ElementsAre(u"12345", u"78901"));
}

TEST(BookLayout, AWordThatIsWiderThanTheLineIsBrokenAtItsEnd)
{
    EXPECT_THAT(Laid(u"ab 123456789012345678901 c").Lines(),
                ElementsAre(u"ab", u"1234567890", u"1234567890", u"1 c"));
}

TEST(BookLayout, ASurrogatePairStaysTogether)
{
    EXPECT_THAT(Laid(u"123456789\U0001F600x", 100).Lines(),
                ElementsAre(u"123456789", u"\U0001F600x"));
}

TEST(BookLayout, ALineIsNeverNarrowerThanOneCharacter)
{
    EXPECT_THAT(Laid(u"abc", 5).Lines(), ElementsAre(u"a", u"b", u"c"));
    EXPECT_THAT(Laid(u"ab", 0).Lines(), ElementsAre(u"a", u"b"));
    EXPECT_THAT(Laid(u"ab", -100).Lines(), ElementsAre(u"a", u"b"));
}

TEST(BookLayout, WordsOfOneLookAreOnePieceWithTheBlanksBetween)
{
    const Laid laid(u"a b <b>c</b>");
    ASSERT_EQ(2u, laid.Layout.Pieces.size());
    EXPECT_EQ(u"a b", laid.Layout.Pieces[0].Text);
    EXPECT_EQ(30, laid.Layout.Pieces[0].Width);
    EXPECT_EQ(40, laid.Layout.Pieces[1].Left);
    EXPECT_EQ(12, laid.Layout.Pieces[1].Width);
}

TEST(BookLayout, ABreakBeginsALineAndTwoLeaveOneEmpty)
{
    EXPECT_THAT(Laid(u"a<br>b<br><br>c").Lines(), ElementsAre(u"a", u"b", u"", u"c"));
}

TEST(BookLayout, BlocksStandBelowEachOtherWithTheirGaps)
{
    const Laid laid(u"<h1>a</h1><p>b</p><h2>c</h2>");
    EXPECT_THAT(laid.Layout.BlockTops, ElementsAre(0, 34, 63));
    EXPECT_EQ(83, laid.Layout.Height);
}

TEST(BookLayout, ItemsStandCloserThanParagraphsAndTheirMarksInTheIndent)
{
    const Laid laid(u"<ul><li>a</li><li>b</li></ul>", 200);
    EXPECT_THAT(laid.Layout.BlockTops, ElementsAre(0, 22));
    ASSERT_EQ(4u, laid.Layout.Pieces.size());
    EXPECT_EQ(u"\u2022", laid.Layout.Pieces[0].Text);
    EXPECT_EQ(-5, laid.Layout.Pieces[0].Left);
    EXPECT_EQ(15, laid.Layout.Pieces[1].Left);
    EXPECT_THAT(laid.Lines(), ElementsAre(u"\u2022a", u"\u2022b"));
}

TEST(BookLayout, AMarkMovesNoPieceOfLaterLines)
{
    EXPECT_THAT(Laid(u"<ol><li>aaaa bbbb cccc</li><li>dd</li></ol>", 75).Lines(),
                ElementsAre(u"1.aaaa", u"bbbb", u"cccc", u"2.dd"));
}

TEST(BookLayout, ALinkKnowsTheLinesItIsOn)
{
    const Laid laid(u"aaaa <a href=x>bbbb cccc dddd</a> <a href=y>e</a>");
    ASSERT_EQ(2u, laid.Layout.Links.size());
    EXPECT_EQ(0, laid.Layout.Links[0].Top);
    EXPECT_EQ(40, laid.Layout.Links[0].Bottom);
    EXPECT_EQ(1, laid.Layout.Links[1].Link);
    EXPECT_EQ(40, laid.Layout.Links[1].Top);
}

TEST(BookLayout, APointFindsItsLink)
{
    const Laid laid(u"ab <a href=x>cd</a> ef");
    EXPECT_EQ(-1, help::LinkAt(laid.Layout, 29, 5));
    EXPECT_EQ(0, help::LinkAt(laid.Layout, 30, 0));
    EXPECT_EQ(0, help::LinkAt(laid.Layout, 49, 19));
    EXPECT_EQ(-1, help::LinkAt(laid.Layout, 50, 5));
    EXPECT_EQ(-1, help::LinkAt(laid.Layout, 35, 20));
    EXPECT_EQ(-1, help::LinkAt(laid.Layout, 35, -1));
}

TEST(BookLayout, TheNextLinkIsLookedForWithinTheGivenLines)
{
    const Laid laid(u"<a href=x>a</a><br>b<br><a href=y>c</a>");
    EXPECT_EQ(0, help::NextLink(laid.Layout, -1, true, 0, 100));
    EXPECT_EQ(1, help::NextLink(laid.Layout, 0, true, 0, 100));
    EXPECT_EQ(-1, help::NextLink(laid.Layout, 0, true, 0, 40));
    EXPECT_EQ(-1, help::NextLink(laid.Layout, 1, true, 0, 100));
    EXPECT_EQ(1, help::NextLink(laid.Layout, -1, false, 0, 100));
    EXPECT_EQ(0, help::NextLink(laid.Layout, 1, false, 0, 100));
    EXPECT_EQ(-1, help::NextLink(laid.Layout, 0, false, 0, 100));
}

TEST(BookLayout, LinesAndBlocksAreFoundByTheirHeight)
{
    const Laid laid(u"<p>a</p><p>b</p>");
    EXPECT_EQ(0u, help::LineAt(laid.Layout, 19));
    EXPECT_EQ(1u, help::LineAt(laid.Layout, 20));
    EXPECT_EQ(2u, help::LineAt(laid.Layout, 44));
    EXPECT_EQ(0u, help::BlockAt(laid.Layout, 23));
    EXPECT_EQ(1u, help::BlockAt(laid.Layout, 24));
    EXPECT_EQ(0u, help::BlockAt(laid.Layout, -5));
}

TEST(BookLayout, AnEmptyBookHasNoLines)
{
    const Laid laid(u"");
    EXPECT_TRUE(laid.Layout.Lines.empty());
    EXPECT_EQ(0u, help::LineAt(laid.Layout, 0));
    EXPECT_EQ(0u, help::BlockAt(laid.Layout, 0));
    EXPECT_EQ(-1, help::LinkAt(laid.Layout, 0, 0));
}

TEST(BookLayout, AMillionCharactersAreLaidOutInTime)
{
    String16 words;
    while (words.size() < 1000000)
        words += u"word ";
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(words.size() / 10, Laid(words).Layout.Lines.size());
    EXPECT_EQ(100000u, Laid(String16(1000000, u'x')).Layout.Lines.size());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}
