#include "tests/native/Translations.h"

#include <gtest/gtest.h>

namespace
{

const Pairs kNothing;

TEST(TranslationParser, TakesOneEntryFromEachLine)
{
    EXPECT_EQ((Pairs{{u"Done", u"Fertig"}, {u"Cancel", u"Abbrechen"}}),
              Parsed(u"Done|Fertig\r\nCancel|Abbrechen\r\n"));
}

TEST(TranslationParser, LinesMayEndInCarriageReturnLineFeedOrBoth)
{
    const Pairs three = {{u"a", u"1"}, {u"b", u"2"}, {u"c", u"3"}};
    EXPECT_EQ(three, Parsed(u"a|1\rb|2\rc|3"));
    EXPECT_EQ(three, Parsed(u"a|1\nb|2\nc|3"));
    EXPECT_EQ(three, Parsed(u"a|1\r\nb|2\r\nc|3"));
}

TEST(TranslationParser, BlankLinesDisappear)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}, {u"b", u"2"}}), Parsed(u"\r\n\na|1\n\r\n\r\r\nb|2\n\n"));
}

TEST(TranslationParser, TheLastLineNeedsNoLineEnd)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}}), Parsed(u"a|1"));
}

TEST(TranslationParser, ALineWithoutABarStoresNothing)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}}), Parsed(u"; a comment\na|1\nno bar here"));
}

TEST(TranslationParser, AnEntryWithAnEmptySideStoresNothing)
{
    EXPECT_EQ((Pairs{{u"c", u"3"}}), Parsed(u"a|\n|2\n|\n||\na||x\nc|3"));
}

TEST(TranslationParser, ASecondBarEndsTheTranslation)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}, {u"b", u"2"}}), Parsed(u"a|1|ignored|too\nb|2|"));
}

TEST(TranslationParser, BlanksBelongToTheTexts)
{
    EXPECT_EQ((Pairs{{u" a ", u"\t1 "}}), Parsed(u" a |\t1 \n"));
}

TEST(TranslationParser, BackslashNBecomesALineFeedAndBackslashRACarriageReturn)
{
    EXPECT_EQ((Pairs{{u"one\ntwo\r", u"eins\nzwei\r"}}), Parsed(u"one\\ntwo\\r|eins\\nzwei\\r\n"));
}

TEST(TranslationParser, BackslashBarGivesATextThatContainsABar)
{
    EXPECT_EQ((Pairs{{u"a|b", u"1|2"}}), Parsed(u"a\\|b|1\\|2|x\n"));
}

TEST(TranslationParser, ADoubledBackslashGivesOne)
{
    EXPECT_EQ((Pairs{{u"a\\n", u"\\"}}), Parsed(u"a\\\\n|\\\\\n"));
}

TEST(TranslationParser, ABackslashBeforeAnyOtherCharacterDisappears)
{
    EXPECT_EQ((Pairs{{u"abN", u"\u20AC"}}), Parsed(u"a\\b\\N|\\\u20AC\n"));
}

TEST(TranslationParser, EscapesArentReadInTheIgnoredRestOfALine)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}, {u"b", u"2"}}), Parsed(u"a|1|rest\\\nb|2"));
}

TEST(TranslationParser, AnEscapedFirstCharacterMakesASideThatIsNotEmpty)
{
    EXPECT_EQ((Pairs{{u"\n", u"|"}}), Parsed(u"\\n|\\|"));
}

TEST(TranslationParser, T1ALoneBackslashAtTheEndIsDropped)
{
    EXPECT_EQ(kNothing, Parsed(u"\\"));
    EXPECT_EQ(kNothing, Parsed(u"abc\\"));
    EXPECT_EQ((Pairs{{u"a", u"b"}}), Parsed(u"a|b\\"));
    EXPECT_EQ(kNothing, Parsed(u"a|\\"));
}

TEST(TranslationParser, T2ABackslashBeforeALineEndLetsTheLineGoOn)
{
    EXPECT_EQ((Pairs{{u"a\rb\nc", u"1\n2"}}), Parsed(u"a\\\rb\\\nc|1\\\n2\nd"));
}

TEST(TranslationParser, T5AZeroCharacterEndsTheFile)
{
    using namespace std::string_view_literals;
    EXPECT_EQ((Pairs{{u"a", u"1"}}), Parsed(u"a|1\0b|2\nc|3"sv));
    EXPECT_EQ((Pairs{{u"a", u"1"}}), Parsed(u"a|1\\\0b|2\nc|3"sv));
    EXPECT_EQ(kNothing, Parsed(u"\0a|1"sv));
    EXPECT_EQ(kNothing, Parsed(u"a\0|1"sv));
}

TEST(TranslationParser, AnEmptyTextHasNoEntries)
{
    EXPECT_EQ(kNothing, Parsed(u""));
}

TEST(TranslationParser, AllCodeUnitsBeyondAsciiArePlainCharacters)
{
    String16 line;
    for (unsigned unit = 0x80; unit <= 0xFFFF; ++unit)
        line += static_cast<Char16>(unit);
    EXPECT_EQ((Pairs{{line, line}}), Parsed(line + u"|" + line + u"\n"));
}

TEST(TranslationParser, AVeryLongLineIsTakenWhole)
{
    const String16 key(100000, u'k');
    const String16 value(200000, u'v');
    EXPECT_EQ((Pairs{{key, value}}), Parsed(key + u"|" + value));
}

TEST(TranslationParser, DuplicateKeysAreReportedInTheirOrder)
{
    EXPECT_EQ((Pairs{{u"a", u"1"}, {u"a", u"2"}}), Parsed(u"a|1\na|2"));
}

} // namespace
