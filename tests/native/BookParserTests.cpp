// HTML into blocks of runs: what a page of help is made of.
#include "device/help/Book.h"

#include <gmock/gmock.h>

#include <chrono>

#include "device/help/BookText.h"

namespace
{

using help::BlockKind;
using help::Book;
using help::ParseBook;
using testing::ElementsAre;

String16 TextOf(const help::Block& block)
{
    String16 text = block.Mark;
    for (const help::Run& run : block.Runs)
        text += run.Text;
    return text;
}

// The blocks' texts, with their marks in front.
std::vector<String16> TextsOf(StringView16 html)
{
    std::vector<String16> texts;
    for (const help::Block& block : ParseBook(html).Blocks)
        texts.push_back(TextOf(block));
    return texts;
}

String16 Repeated(StringView16 part, size_t times)
{
    String16 text;
    text.reserve(part.size() * times);
    for (size_t i = 0; i < times; ++i)
        text += part;
    return text;
}

String16 Decoded(const std::string& bytes)
{
    return help::DecodePage(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

// Hostile pages are read in about this time or less, sanitizers included.
constexpr std::chrono::seconds kPatience(5);

Book ParsedInTime(const String16& html)
{
    const auto begin = std::chrono::steady_clock::now();
    Book book = ParseBook(html);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, kPatience);
    return book;
}

} // namespace

TEST(BookParser, ParagraphsAndHeadingsBecomeBlocksOfTheirKinds)
{
    const Book book = ParseBook(u"<h1>One</h1><p>two</p><h2>Three</h2><h3>Four</h3><h4>Five</h4>");
    ASSERT_EQ(5u, book.Blocks.size());
    EXPECT_EQ(BlockKind::Heading1, book.Blocks[0].Kind);
    EXPECT_EQ(BlockKind::Paragraph, book.Blocks[1].Kind);
    EXPECT_EQ(BlockKind::Heading2, book.Blocks[2].Kind);
    EXPECT_EQ(BlockKind::Heading3, book.Blocks[3].Kind);
    EXPECT_EQ(BlockKind::Heading3, book.Blocks[4].Kind);
}

TEST(BookParser, TextAfterAHeadingIsAParagraphAgain)
{
    EXPECT_EQ(BlockKind::Paragraph, ParseBook(u"<h1>One</h1>two").Blocks[1].Kind);
}

TEST(BookParser, WhiteSpaceCollapsesAcrossTags)
{
    EXPECT_THAT(TextsOf(u"<p>\n  one \t two <b> three</b>\r\n four  </p>  \n<p>five</p>"),
                ElementsAre(u"one two three four", u"five"));
}

TEST(BookParser, BoldTextIsARunOfItsOwn)
{
    const Book book = ParseBook(u"<p>a<b>b</b>c<strong>d</strong></p>");
    ASSERT_EQ(4u, book.Blocks[0].Runs.size());
    EXPECT_FALSE(book.Blocks[0].Runs[0].Bold);
    EXPECT_TRUE(book.Blocks[0].Runs[1].Bold);
    EXPECT_FALSE(book.Blocks[0].Runs[2].Bold);
    EXPECT_TRUE(book.Blocks[0].Runs[3].Bold);
}

TEST(BookParser, BoldWithinBoldEndsWithTheOuterOne)
{
    const Book book = ParseBook(u"<b>a<b>b</b>c</b>d");
    ASSERT_EQ(2u, book.Blocks[0].Runs.size());
    EXPECT_EQ(u"abc", book.Blocks[0].Runs[0].Text);
}

TEST(BookParser, ALinkKnowsItsTarget)
{
    const Book book = ParseBook(u"see <a href='#A&amp;B'>this</a> and <A HREF=more.htm>that</A>");
    EXPECT_THAT(book.Links, ElementsAre(u"#A&B", u"more.htm"));
    ASSERT_EQ(4u, book.Blocks[0].Runs.size());
    EXPECT_EQ(-1, book.Blocks[0].Runs[0].Link);
    EXPECT_EQ(0, book.Blocks[0].Runs[1].Link);
    EXPECT_EQ(1, book.Blocks[0].Runs[3].Link);
}

TEST(BookParser, AnAnchorWithoutATargetIsNoLink)
{
    const Book book = ParseBook(u"<a name=\"here\">text</a>");
    EXPECT_TRUE(book.Links.empty());
    EXPECT_EQ(-1, book.Blocks[0].Runs[0].Link);
}

TEST(BookParser, ItemsOfAListHaveBulletsAndThoseOfAnOrderedOneNumbers)
{
    EXPECT_THAT(TextsOf(u"<ul><li>a<li>b</ul><ol><li>c</li><li>d</li></ol>"),
                ElementsAre(u"\u2022a", u"\u2022b", u"1.c", u"2.d"));
}

TEST(BookParser, ListsWithinListsAreIndentedFurther)
{
    const Book book = ParseBook(u"p<ul><li>a<ul><li>b</li></ul></li><li>c</li></ul>q");
    ASSERT_EQ(5u, book.Blocks.size());
    const int indents[] = {0, 1, 2, 1, 0};
    for (size_t i = 0; i < 5; ++i)
        EXPECT_EQ(indents[i], book.Blocks[i].Indent) << i;
}

TEST(BookParser, AnItemWithoutWordsLeavesNoBulletToTheNextBlock)
{
    EXPECT_THAT(TextsOf(u"<ul><li></li></ul><p>a</p>"), ElementsAre(u"a"));
}

TEST(BookParser, TheTermsOfADefinitionListAreBoldAndTheirTextIndented)
{
    const Book book = ParseBook(u"<dl><dt>a</dt><dd>b</dd></dl>");
    ASSERT_EQ(2u, book.Blocks.size());
    EXPECT_TRUE(book.Blocks[0].Runs[0].Bold);
    EXPECT_FALSE(book.Blocks[1].Runs[0].Bold);
    EXPECT_EQ(1, book.Blocks[1].Indent);
}

TEST(BookParser, ABreakIsALineFeedAndSwallowsBlanksBehindIt)
{
    EXPECT_THAT(TextsOf(u"one<br> two<br/>three"), ElementsAre(u"one\ntwo\nthree"));
}

TEST(BookParser, PreformattedTextKeepsItsBlanksAndLines)
{
    EXPECT_THAT(TextsOf(u"<pre>a  b\r\n c</pre>d  e"),
                ElementsAre(u"a\u00A0\u00A0b\n\u00A0c", u"d e"));
}

TEST(BookParser, ARuleIsABlock)
{
    const Book book = ParseBook(u"a<hr>b");
    ASSERT_EQ(3u, book.Blocks.size());
    EXPECT_EQ(BlockKind::Rule, book.Blocks[1].Kind);
}

TEST(BookParser, APictureIsItsDescription)
{
    EXPECT_THAT(TextsOf(u"a <img src=x alt=\"b &lt; c\"> d"), ElementsAre(u"a b < c d"));
}

TEST(BookParser, EntitiesAreTheCharactersTheyStandFor)
{
    EXPECT_THAT(TextsOf(u"&lt;&amp;&gt; &quot;&apos; a&nbsp;b &#65;&#x42;&#X1F600; &hellip;"),
                ElementsAre(u"<&> \"' a\u00A0b AB\U0001F600 \u2026"));
}

TEST(BookParser, WhatIsNoEntityStaysAsItIs)
{
    EXPECT_THAT(TextsOf(u"a & b &c; &amp &; &#; &#x; &#12a; &averylongname;"),
                ElementsAre(u"a & b &c; &amp &; &#; &#x; &#12a; &averylongname;"));
}

TEST(BookParser, NumbersThatAreNoCharacterBecomeTheReplacement)
{
    EXPECT_THAT(TextsOf(u"&#0;&#xD800;&#x110000;&#1;"), ElementsAre(u"\uFFFD\uFFFD\uFFFD\u0001"));
}

TEST(BookParser, ScriptStyleCommentsAndDeclarationsAreLeftOut)
{
    EXPECT_THAT(TextsOf(u"<!DOCTYPE html><?x?>a<!-- <p>b --><style>c</style><SCRIPT>if(d<e)"
                        u"</SCRIPT >f"),
                ElementsAre(u"af"));
}

TEST(BookParser, TheTitleIsNoPartOfThePage)
{
    const Book book = ParseBook(u"<head><title>The &amp; Title</title></head><body>text");
    EXPECT_EQ(u"The & Title", book.Title);
    EXPECT_EQ(1u, book.Blocks.size());
}

TEST(BookParser, ATitleWithoutAnEndDoesNotSwallowThePage)
{
    EXPECT_THAT(TextsOf(u"<title>Title<p>text"), ElementsAre(u"text"));
}

TEST(BookParser, ALessThanSignThatBeginsNoTagIsText)
{
    EXPECT_THAT(TextsOf(u"1 < 2 <3 </ <> <"), ElementsAre(u"1 < 2 <3 </ <> <"));
}

TEST(BookParser, AGreaterThanSignInQuotationMarksDoesNotEndATag)
{
    EXPECT_THAT(TextsOf(u"<p title='a>b'>c"), ElementsAre(u"c"));
}

TEST(BookParser, AnchorsOfAllKindsNameTheirBlock)
{
    const Book book = ParseBook(u"<p>a</p><h2 id=One>b</h2><p>c<span id='Two'>d</span></p>"
                                u"<a name=\"Three\"></a><p>e</p>");
    EXPECT_EQ(1u, help::FindTopic(book, u"One"));
    EXPECT_EQ(2u, help::FindTopic(book, u"Two"));
    EXPECT_EQ(3u, help::FindTopic(book, u"Three"));
    EXPECT_EQ(std::nullopt, help::FindTopic(book, u"Four"));
}

TEST(BookParser, ATopicOfExactlyThatNameComesBeforeOneInOtherLetters)
{
    const Book book = ParseBook(u"<p id=topic>a</p><p id=Topic>b</p>");
    EXPECT_EQ(1u, help::FindTopic(book, u"Topic"));
    EXPECT_EQ(0u, help::FindTopic(book, u"TOPIC"));
}

TEST(BookParser, ATopicMayBeEscaped)
{
    EXPECT_EQ(0u, help::FindTopic(ParseBook(u"<p id='Menu Options'>a</p>"), u"Menu%20Options"));
    EXPECT_EQ(0u, help::FindTopic(ParseBook(u"<p id='100%'>a</p>"), u"100%"));
}

TEST(BookParser, AnAnchorAtTheEndHasABlockToo)
{
    EXPECT_EQ(1u, help::FindTopic(ParseBook(u"<p>a</p><a name=End></a>"), u"End"));
}

TEST(BookParser, AnEmptyPageHasNoBlocks)
{
    EXPECT_TRUE(ParseBook(u"").Blocks.empty());
    EXPECT_TRUE(ParseBook(u" \n<p> </p><ul><li></ul>").Blocks.empty());
}

TEST(BookParser, ALineOfAMillionCharactersIsTakenWhole)
{
    const Book book = ParsedInTime(String16(1000000, u'x'));
    ASSERT_EQ(1u, book.Blocks.size());
    EXPECT_EQ(1000000u, book.Blocks[0].Runs[0].Text.size());
    EXPECT_FALSE(book.Cut);
}

TEST(BookParser, AHundredThousandNestedTagsAreRead)
{
    for (const StringView16 tag : {u"<b>", u"<ul><li>", u"<blockquote>", u"<div>", u"<pre>"})
    {
        const Book book = ParsedInTime(Repeated(tag, 100000) + u"end");
        ASSERT_FALSE(book.Blocks.empty());
        EXPECT_LE(book.Blocks.back().Indent, 6);
    }
}

TEST(BookParser, UnclosedThingsEndWithThePage)
{
    for (const StringView16 html :
         {u"a<", u"a<p", u"a<p x", u"a<p x=", u"a<p x='", u"a</", u"a</p", u"a<!", u"a<!--",
          u"a<!--x", u"a<style>", u"a<style>x</styl", u"a<?", u"a&", u"a&#", u"a&amp"})
        EXPECT_EQ(u'a', TextOf(ParseBook(html).Blocks.at(0))[0]);
}

TEST(BookParser, ManyUnclosedThingsTakeNoLonger)
{
    for (const StringView16 part :
         {u"<a ", u"<!--", u"<style>", u"&", u"</", u"<p x='", u"<a href="})
        ParsedInTime(Repeated(part, 200000));
}

TEST(BookParser, APageWithTooManyPartsIsCutAndSaysSo)
{
    const Book blocks = ParsedInTime(Repeated(u"<p>x", 1000000));
    EXPECT_TRUE(blocks.Cut);
    EXPECT_LE(blocks.Blocks.size(), 50001u);
    EXPECT_TRUE(ParsedInTime(Repeated(u"x<b>x</b>", 300000)).Cut);
    EXPECT_TRUE(ParsedInTime(Repeated(u"<a href=x>", 300000)).Cut);
    EXPECT_TRUE(ParsedInTime(Repeated(u"<i id=x>", 300000)).Cut);
}

TEST(BookParser, ZeroCharactersBecomeTheReplacement)
{
    using namespace std::string_view_literals;
    EXPECT_THAT(TextsOf(u"a\0b"sv), ElementsAre(u"a\uFFFDb"));
}

TEST(PageText, Utf8IsReadWithAndWithoutItsMark)
{
    EXPECT_EQ(u"a\u00FC\u20AC\U0001F600", Decoded("a\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80"));
    EXPECT_EQ(u"a", Decoded("\xEF\xBB\xBF"
                            "a"));
}

TEST(PageText, Utf16IsReadBehindItsMark)
{
    EXPECT_EQ(u"a\u20AC", Decoded(std::string("\xFF\xFE"
                                              "a\0\xAC\x20",
                                              6)));
    EXPECT_EQ(u"a", Decoded(std::string("\xFF\xFE"
                                        "a\0b",
                                        5)));
}

TEST(PageText, BytesThatAreNoUtf8BecomeTheReplacementOneByOne)
{
    EXPECT_EQ(u"\uFFFDa", Decoded("\x80"
                                  "a"));
    EXPECT_EQ(u"\uFFFD\uFFFD", Decoded("\xC0\x80"));
    EXPECT_EQ(u"\uFFFDa", Decoded("\xE2"
                                  "a"));
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD", Decoded("\xED\xA0\x80"));
    EXPECT_EQ(u"\uFFFD\uFFFD", Decoded("\xE2\x82"));
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD", Decoded("\xF4\x90\x80\x80"));
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD", Decoded("\xE0\x80\x80"));
    EXPECT_EQ(u"\uFFFD\uFFFD\uFFFD\uFFFD", Decoded("\xF0\x80\x80\x80"));
    EXPECT_EQ(u"\uFFFD", Decoded("\xFF"));
}
