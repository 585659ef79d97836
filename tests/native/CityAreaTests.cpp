// The list's second column: area and subarea, cut to the list's buffer.
#include "tests/native/CityImages.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr Char16 kUntouched = 0x2A2A;

// "England (Kent)" for the first city, "England" for the second one.
CHeldImage Sample()
{
    CCityImageBuilder builder;
    builder.Area(u"England");
    builder.Subarea(u"Kent");
    builder.City({1, builder.Text(u"Dover"), 0, 0, kNoCityRecord});
    builder.City({2, builder.Text(u"York"), 0, kNoCityRecord, kNoCityRecord});
    return CHeldImage(builder.Build());
}

// What a buffer of that many characters holds afterwards.
String16 Formatted(const CCityImage& image, const CityRecord& city, size_t size)
{
    // Exactly as large as is said: a character more would show.
    std::vector<Char16> buffer(size, kUntouched);
    FormatCityArea(image, city, buffer.data(), buffer.size());
    return String16(buffer.begin(), buffer.end());
}

bool IsBroken(const CCityImage& image, const CityRecord& city, size_t size)
{
    try
    {
        Formatted(image, city, size);
        return false;
    }
    catch (const CTavException& exception)
    {
        return exception.Code() == kTavBroken;
    }
}

String16 WithZeros(const Char16* text, size_t zeros)
{
    return text + String16(zeros, u'\0');
}

TEST(CityArea, ASubareaStandsInParenthesesBehindTheArea)
{
    const CHeldImage image = Sample();
    const String16 text = Formatted(image.View(), image.View().City(0), 80);
    EXPECT_EQ(WithZeros(u"England (Kent)", 1), text.substr(0, 15));
}

TEST(CityArea, WithoutASubareaTheAreaStandsAlone)
{
    const CHeldImage image = Sample();
    EXPECT_EQ(WithZeros(u"England", 13), Formatted(image.View(), image.View().City(1), 20));
}

TEST(CityArea, TheWholeRestOfTheBufferIsClearedBehindAnAreaOnly)
{
    const CHeldImage image = Sample();
    const String16 both = Formatted(image.View(), image.View().City(0), 18);
    EXPECT_EQ(u"England (Kent)" + String16({0, kUntouched, kUntouched, 0}), both);
}

TEST(CityArea, LongTextIsCutSilently)
{
    const CHeldImage image = Sample();
    const CityRecord city = image.View().City(0);
    EXPECT_EQ(WithZeros(u"England (Kent)", 1), Formatted(image.View(), city, 15));
    EXPECT_EQ(WithZeros(u"England (Kent", 1), Formatted(image.View(), city, 14));
    EXPECT_EQ(WithZeros(u"England (", 1), Formatted(image.View(), city, 10));
    EXPECT_EQ(WithZeros(u"England", 1), Formatted(image.View(), city, 8));
    EXPECT_EQ(WithZeros(u"Engl", 1), Formatted(image.View(), city, 5));
    EXPECT_EQ(WithZeros(u"Engl", 1), Formatted(image.View(), image.View().City(1), 5));
    EXPECT_EQ(WithZeros(u"England", 1), Formatted(image.View(), image.View().City(1), 8));
}

TEST(CityArea, TheSmallestBuffersHoldATerminatorOrNothing)
{
    const CHeldImage image = Sample();
    for (const uint32_t city : {0u, 1u})
    {
        EXPECT_EQ(WithZeros(u"", 1), Formatted(image.View(), image.View().City(city), 1));
        EXPECT_EQ(u"", Formatted(image.View(), image.View().City(city), 0));
    }
    FormatCityArea(image.View(), image.View().City(0), nullptr, 0);
}

TEST(CityArea, AnEmptySubareaKeepsItsParentheses)
{
    CCityImageBuilder builder;
    builder.Area(u"");
    builder.Subarea(u"");
    builder.City({1, 0, 0, 0, kNoCityRecord});
    const CHeldImage image(builder.Build());
    EXPECT_EQ(WithZeros(u" ()", 1), Formatted(image.View(), image.View().City(0), 4));
}

TEST(CityArea, RecordNumbersOutOfRangeAreBroken)
{
    const CHeldImage image = Sample();
    EXPECT_TRUE(IsBroken(image.View(), {1, 0, 1, kNoCityRecord, 0}, 20));
    EXPECT_TRUE(IsBroken(image.View(), {1, 0, kNoCityRecord, 0, 0}, 20));
    EXPECT_TRUE(IsBroken(image.View(), {1, 0, 0, 1, 0}, 20));
    EXPECT_TRUE(IsBroken(image.View(), {1, 0, 0, 1, 0}, 0));
    EXPECT_TRUE(IsBroken(CCityImage(), {1, 0, 0, kNoCityRecord, 0}, 20));
}

TEST(CityArea, ANameOutsideTheImageIsBroken)
{
    for (const size_t table : {0u, 1u})
    {
        CCityImageBuilder builder;
        builder.Area(u"England");
        builder.Subarea(u"Kent");
        Bytes bytes = builder.Build();
        const uint32_t record = bytes::GetU32LE(bytes.data() + FirstRecordField(table));
        SetField(bytes, record + 4, static_cast<uint32_t>(bytes.size()) - 1);
        EXPECT_TRUE(IsBroken(CHeldImage(bytes).View(), {1, 0, 0, 0, 0}, 20)) << table;
    }
}

TEST(CityArea, OnlyAHalfRecordInTheImageIsBroken)
{
    CCityImageBuilder builder;
    builder.Area(u"England");
    Bytes bytes = builder.Build();
    SetField(bytes, FirstRecordField(0), static_cast<uint32_t>(bytes.size()) - 7);
    EXPECT_TRUE(IsBroken(CHeldImage(bytes).View(), {1, 0, 0, kNoCityRecord, 0}, 20));
}

} // namespace
