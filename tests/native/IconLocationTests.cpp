// Splitting an image path into a file and an icon's index.
#include "ui/IconLocation.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{

constexpr int32_t kLargest = 2147483647;
constexpr int32_t kSmallest = -kLargest - 1;

void ExpectParts(StringView16 path, StringView16 file, int32_t index)
{
    const auto location = SplitIconLocation(path);
    ASSERT_TRUE(location.has_value());
    EXPECT_EQ(file, location->File);
    EXPECT_EQ(index, location->Index);
}

} // namespace

TEST(IconLocation, WithoutACommaIsNone)
{
    EXPECT_FALSE(SplitIconLocation(TEXT16("")).has_value());
    EXPECT_FALSE(SplitIconLocation(TEXT16("\\windows\\a.exe")).has_value());
}

TEST(IconLocation, IsAFileAndAnIndex)
{
    ExpectParts(TEXT16("\\windows\\a.dll,7"), TEXT16("\\windows\\a.dll"), 7);
}

TEST(IconLocation, MayHaveANegativeIndex)
{
    ExpectParts(TEXT16("a.dll,-5"), TEXT16("a.dll"), -5);
}

TEST(IconLocation, IsSplitAtTheFirstOfTwoCommas)
{
    ExpectParts(TEXT16("a,12,b"), TEXT16("a"), 12);
    ExpectParts(TEXT16("a,b,12"), TEXT16("a"), 0);
    ExpectParts(TEXT16("a,,3"), TEXT16("a"), 0);
}

TEST(IconLocation, OfACommaAloneIsNoFileAndTheFirstIcon)
{
    ExpectParts(TEXT16(","), TEXT16(""), 0);
}

TEST(IconLocation, OfAnIndexAloneHasNoFile)
{
    ExpectParts(TEXT16(",99999999999"), TEXT16(""), kLargest);
}

TEST(IconLocation, OfAnyTextEndsWithinIt)
{
    // Without a terminator behind it: the sanitizers see a step too far.
    for (const StringView16 text : {StringView16(TEXT16("a,")), StringView16(TEXT16("a, ")),
                                    StringView16(TEXT16("a,-")), StringView16(TEXT16("a,-1"))})
    {
        const std::vector<Char16> exact(text.begin(), text.end());
        const auto location = SplitIconLocation({exact.data(), exact.size()});
        ASSERT_TRUE(location.has_value());
        EXPECT_EQ(text.back() == TEXT16('1') ? -1 : 0, location->Index);
    }
}

TEST(LeadingNumber, IgnoresWhatFollowsIt)
{
    EXPECT_EQ(12, LeadingNumber(TEXT16("12abc")));
    EXPECT_EQ(12, LeadingNumber(TEXT16("12 34")));
    EXPECT_EQ(-12, LeadingNumber(TEXT16("-12,5")));
}

TEST(LeadingNumber, SkipsWhiteSpace)
{
    EXPECT_EQ(5, LeadingNumber(TEXT16(" \t\r\n\v\f5")));
    EXPECT_EQ(0, LeadingNumber(TEXT16("- 5")));
}

TEST(LeadingNumber, MayHaveOneSign)
{
    EXPECT_EQ(5, LeadingNumber(TEXT16("+5")));
    EXPECT_EQ(-5, LeadingNumber(TEXT16("-5")));
    EXPECT_EQ(0, LeadingNumber(TEXT16("+-5")));
    EXPECT_EQ(0, LeadingNumber(TEXT16("--5")));
}

TEST(LeadingNumber, IsZeroWithoutDigits)
{
    EXPECT_EQ(0, LeadingNumber(TEXT16("")));
    EXPECT_EQ(0, LeadingNumber(TEXT16("-")));
    EXPECT_EQ(0, LeadingNumber(TEXT16("x1")));
    EXPECT_EQ(0, LeadingNumber(TEXT16(".5")));
}

TEST(LeadingNumber, BecomesTheNearestThatFits)
{
    EXPECT_EQ(kLargest, LeadingNumber(TEXT16("2147483647")));
    EXPECT_EQ(kLargest, LeadingNumber(TEXT16("2147483648")));
    EXPECT_EQ(kSmallest, LeadingNumber(TEXT16("-2147483648")));
    EXPECT_EQ(kSmallest, LeadingNumber(TEXT16("-2147483649")));
    EXPECT_EQ(kLargest, LeadingNumber(String16(1000, TEXT16('9'))));
    EXPECT_EQ(kSmallest, LeadingNumber(TEXT16("-") + String16(1000, TEXT16('9'))));
}
