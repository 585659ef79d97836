#include "frame/TextFormat.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

TEST(TextFormat, PutsTheTextIntoTheTranslation)
{
    EXPECT_EQ(u"Optionen (\u00BBSpiele\u00AB)",
              FormatText(u"Optionen (\u00BB%s\u00AB)", u"Menu Options ('%s')", u"Spiele"));
}

TEST(TextFormat, PutsTheNumberIntoTheTranslation)
{
    const char16_t* const english = u"Only %d items may be pinned";
    EXPECT_EQ(u"H\u00F6chstens 20", FormatText(u"H\u00F6chstens %d", english, 20));
    EXPECT_EQ(u"0", FormatText(u"%d", english, 0));
    EXPECT_EQ(u"-2147483648", FormatText(u"%d", english, INT_MIN));
    EXPECT_EQ(u"2147483647", FormatText(u"%d", english, INT_MAX));
}

TEST(TextFormat, T15ATranslationWithoutThePlaceholderGivesWayToEnglish)
{
    EXPECT_EQ(u"Menu ('x')", FormatText(u"Optionen", u"Menu ('%s')", u"x"));
}

TEST(TextFormat, T15ATranslationWithMorePlaceholdersGivesWayToEnglish)
{
    EXPECT_EQ(u"Menu ('x')", FormatText(u"%s %s", u"Menu ('%s')", u"x"));
    EXPECT_EQ(u"Only 3", FormatText(u"%d%d", u"Only %d", 3));
    EXPECT_EQ(u"Only 3", FormatText(u"%d %s", u"Only %d", 3));
}

TEST(TextFormat, T15ATranslationWithOtherPlaceholdersGivesWayToEnglish)
{
    EXPECT_EQ(u"Menu x", FormatText(u"%n", u"Menu %s", u"x"));
    EXPECT_EQ(u"Menu x", FormatText(u"%d", u"Menu %s", u"x"));
    EXPECT_EQ(u"Menu x", FormatText(u"%S", u"Menu %s", u"x"));
    EXPECT_EQ(u"Menu x", FormatText(u"%ls", u"Menu %s", u"x"));
    EXPECT_EQ(u"Only 3", FormatText(u"%1000000d", u"Only %d", 3));
    EXPECT_EQ(u"Only 3", FormatText(u"%s", u"Only %d", 3));
    EXPECT_EQ(u"Only 3", FormatText(u"100% %d", u"Only %d", 3));
}

TEST(TextFormat, APercentSignAtTheEndOfATranslationGivesWayToEnglish)
{
    EXPECT_EQ(u"Only 3", FormatText(u"%d %", u"Only %d", 3));
    EXPECT_EQ(u"Only 3", FormatText(u"%", u"Only %d", 3));
}

TEST(TextFormat, DoubledPercentSignsBecomeOneAndAreNoPlaceholder)
{
    EXPECT_EQ(u"100% of 3", FormatText(u"100%% of %d", u"Only %d", 3));
    EXPECT_EQ(u"3%", FormatText(u"%d%%", u"Only %d", 3));
    EXPECT_EQ(u"%%d 3", FormatText(u"%%%%d %d", u"Only %d", 3));
    EXPECT_EQ(u"Only 3", FormatText(u"%%d", u"Only %d", 3));
}

TEST(TextFormat, TheValueItselfIsNotFormatted)
{
    EXPECT_EQ(u"'%s %n %%'", FormatText(u"'%s'", u"%s", u"%s %n %%"));
}

TEST(TextFormat, AnEmptyTranslationGivesWayToEnglish)
{
    EXPECT_EQ(u"Only 3", FormatText(u"", u"Only %d", 3));
}

TEST(TextFormat, AnEnglishTextWithoutPlaceholderStaysAsItIs)
{
    EXPECT_EQ(u"plain", FormatText(u"%s", u"plain", u"x"));
    EXPECT_EQ(u"schlicht", FormatText(u"schlicht", u"plain", u"x"));
    EXPECT_EQ(u"", FormatText(u"%d", u"", 3)) << "a missing resource";
}

TEST(TextFormat, AValueOfTheOtherKindLeavesThePlaceholder)
{
    EXPECT_EQ(u"%d", FormatText(u"%d", u"%d", u"x"));
    EXPECT_EQ(u"%s", FormatText(u"%s", u"%s", 3));
}

} // namespace
