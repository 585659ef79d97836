// Reading a city image in place: what each look-up gives, and that nothing outside is read whatever
// the image holds.
#include "dialogs/city/CitySearch.h"
#include "tests/native/CityImages.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

// One of everything: two areas, a subarea, details, and a city with and one without them.
CCityImageBuilder SampleBuilder()
{
    CCityImageBuilder builder;
    builder.Area(u"England");
    builder.Area(u"Norway");
    builder.Subarea(u"Kent");
    builder.Details(10);
    builder.City({501, builder.Text(u"Dover"), 0, 0, 0});
    builder.City({502, builder.Text(u"Oslo"), 1, kNoCityRecord, kNoCityRecord});
    return builder;
}

Bytes Sample()
{
    return SampleBuilder().Build();
}

template <class Action>
bool IsBroken(Action action)
{
    try
    {
        action();
        return false;
    }
    catch (const CTavException& exception)
    {
        return exception.Code() == kTavBroken;
    }
}

String16 TextAt(const CCityImage& image, uint32_t offset)
{
    String16 text;
    for (const Char16* at = image.StringAt(offset); CityUnit(at) != 0; ++at)
        text += CityUnit(at);
    return text;
}

bool IsUsable(const Bytes& bytes)
{
    // A block of exactly this size: a step beyond it shows.
    const std::vector<uint8_t> block(bytes);
    return CCityImage::IsUsable(block.data(), block.size());
}

TEST(CityImage, OnlyVersionTwoIsUsable)
{
    EXPECT_TRUE(IsUsable({2, 0, 0, 0}));
    EXPECT_FALSE(IsUsable({1, 0, 0, 0, 4, 0, 0, 0}));
    EXPECT_FALSE(IsUsable({3, 0, 0, 0, 4, 0, 0, 0}));
    EXPECT_FALSE(IsUsable({2, 0, 0, 1, 4, 0, 0, 0}));
    EXPECT_FALSE(IsUsable({0, 0, 0, 2}));
}

TEST(CityImage, ABlockTooShortForAVersionIsNotUsable)
{
    EXPECT_FALSE(IsUsable({}));
    EXPECT_FALSE(IsUsable({2}));
    EXPECT_FALSE(IsUsable({2, 0, 0}));
    EXPECT_FALSE(CCityImage::IsUsable(nullptr, 0));
    EXPECT_FALSE(CCityImage::IsUsable(nullptr, 100));
}

TEST(CityImage, WithoutAnImageEveryLookUpIsBroken)
{
    const CCityImage image;
    EXPECT_FALSE(image.IsPresent());
    EXPECT_TRUE(IsBroken([&] { image.Descriptor(0); }));
    EXPECT_TRUE(IsBroken([&] { image.Record(0, 0, 0); }));
    EXPECT_TRUE(IsBroken([&] { image.StringAt(0); }));
    EXPECT_TRUE(IsBroken([&] { image.CityCount(); }));
    EXPECT_TRUE(IsBroken([&] { image.City(0); }));
    EXPECT_TRUE(IsBroken([&] { image.DetailsOf(0); }));
}

TEST(CityImage, TheDirectoryIsReadFieldByField)
{
    const CHeldImage held(Sample());
    const CityTable areas = held.View().Descriptor(CCityImage::Areas);
    EXPECT_EQ(2u, areas.RecordCount);
    EXPECT_EQ(8u, areas.RecordSize);
    const CityTable cities = held.View().Descriptor(CCityImage::Cities);
    EXPECT_EQ(held.View().Size() - 40, cities.FirstRecord);
    EXPECT_EQ(2u, cities.RecordCount);
    EXPECT_EQ(20u, cities.RecordSize);
}

TEST(CityImage, ATableNumberAtTheTableCountIsBroken)
{
    Bytes bytes = Sample();
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(4); }));
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(0xFFFFFFFF); }));
    SetField(bytes, 4, 3);
    EXPECT_FALSE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(2); }));
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(3); }));
}

TEST(CityImage, ADirectoryEntryOutsideTheImageIsBroken)
{
    Bytes bytes = Sample();
    SetField(bytes, 4, 0xFFFFFFFF);
    const auto entries = static_cast<uint32_t>((bytes.size() - 8) / 12);
    EXPECT_FALSE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(entries - 1); }));
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(entries); }));
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Descriptor(0xFFFFFFFE); }));
    for (size_t size = 0; size < 20; ++size)
    {
        const CHeldImage cut(Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size)));
        EXPECT_TRUE(IsBroken([&] { cut.View().Descriptor(0); })) << size;
    }
}

TEST(CityImage, ARecordNumberAtTheRecordCountIsBroken)
{
    const CHeldImage held(Sample());
    EXPECT_FALSE(IsBroken([&] { held.View().Record(CCityImage::Areas, 1, 8); }));
    EXPECT_TRUE(IsBroken([&] { held.View().Record(CCityImage::Areas, 2, 8); }));
    EXPECT_TRUE(IsBroken([&] { held.View().Record(CCityImage::Areas, 0xFFFFFFFF, 8); }));
    EXPECT_TRUE(IsBroken([&] { held.View().City(2); }));
    EXPECT_TRUE(IsBroken([&] { held.View().DetailsOf(1); }));
}

TEST(CityImage, TheNeededBytesOfARecordLieInTheImage)
{
    const CHeldImage held(Sample());
    EXPECT_FALSE(IsBroken([&] { held.View().Record(CCityImage::Cities, 1, 20); }));
    EXPECT_TRUE(IsBroken([&] { held.View().Record(CCityImage::Cities, 1, 21); }));
}

TEST(CityImage, ATableBehindTheImageIsBroken)
{
    Bytes bytes = Sample();
    const auto size = static_cast<uint32_t>(bytes.size());
    for (const uint32_t first : {size - 7, size, size + 1, 0xFFFFFFFFu})
    {
        SetField(bytes, FirstRecordField(0), first);
        EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Record(0, 0, 8); })) << first;
    }
    SetField(bytes, FirstRecordField(0), size - 8);
    EXPECT_FALSE(IsBroken([&] { CHeldImage(bytes).View().Record(0, 0, 8); }));
}

TEST(CityImage, ARecordsPlaceDoesNotWrapAround)
{
    Bytes bytes = Sample();
    SetField(bytes, RecordCountField(0), 0xFFFFFFFF);
    SetField(bytes, RecordSizeField(0), 0x80000000);
    EXPECT_FALSE(IsBroken([&] { CHeldImage(bytes).View().Record(0, 0, 8); }));
    // In 32 bits this would be the first record again.
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Record(0, 2, 8); }));
    SetField(bytes, RecordSizeField(0), 0xFFFFFFFF);
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().Record(0, 0xFFFFFFFE, 8); }));
}

TEST(CityImage, RecordsMayOverlap)
{
    Bytes bytes = Sample();
    SetField(bytes, RecordSizeField(0), 0);
    SetField(bytes, RecordCountField(0), 0xFFFFFFFF);
    const CHeldImage held(bytes);
    EXPECT_EQ(held.View().Record(0, 0, 8), held.View().Record(0, 0xFFFFFFFE, 8));
}

TEST(CityImage, LongerRecordsAreReadByTheirOwnSize)
{
    CCityImageBuilder builder;
    builder.PlaceSize = 12;
    builder.DetailsSize = 200;
    builder.CitySize = 33;
    builder.Area(u"A");
    builder.Details(1);
    builder.Details(50);
    builder.City({7, builder.Text(u"One"), 0, kNoCityRecord, 0});
    builder.City({8, builder.Text(u"Two"), 0, kNoCityRecord, 1});
    const CHeldImage held(builder.Build());
    EXPECT_EQ(2u, held.View().CityCount());
    EXPECT_EQ(8u, held.View().City(1).Identifier);
    EXPECT_EQ(u"Two", TextAt(held.View(), held.View().City(1).Name));
    EXPECT_EQ(50, held.View().DetailsOf(1)[0]);
}

TEST(CityImage, ACityHasItsFiveFields)
{
    const CHeldImage held(Sample());
    const CityRecord city = held.View().City(1);
    EXPECT_EQ(502u, city.Identifier);
    EXPECT_EQ(u"Oslo", TextAt(held.View(), city.Name));
    EXPECT_EQ(1u, city.Area);
    EXPECT_EQ(kNoCityRecord, city.Subarea);
    EXPECT_EQ(kNoCityRecord, city.Details);
}

TEST(CityImage, DetailsAreTheBytesBehindTheFirstField)
{
    const CHeldImage held(Sample());
    const uint8_t* const details = held.View().DetailsOf(0);
    for (size_t i = 0; i < kCityDetailsSize; ++i)
        EXPECT_EQ(static_cast<uint8_t>(10 + i), details[i]);
}

TEST(CityImage, DetailsThatReachOutOfTheImageAreBroken)
{
    Bytes bytes = Sample();
    const auto size = static_cast<uint32_t>(bytes.size());
    SetField(bytes, FirstRecordField(2), size - 176);
    EXPECT_FALSE(IsBroken([&] { CHeldImage(bytes).View().DetailsOf(0); }));
    SetField(bytes, FirstRecordField(2), size - 175);
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().DetailsOf(0); }));
}

TEST(CityImage, CityRecordsShorterThanTheirFieldsAreBroken)
{
    for (const uint32_t recordSize : {0u, 1u, 19u})
    {
        Bytes bytes = Sample();
        SetField(bytes, RecordSizeField(3), recordSize);
        SetField(bytes, RecordCountField(3), recordSize == 0 ? 0xFFFFFFFF : 2);
        EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().CityCount(); })) << recordSize;
    }
}

TEST(CityImage, ACityCountThatTheTableCannotHoldIsBroken)
{
    for (const uint32_t count : {3u, 0x3FFFFFFFu, 0xFFFFFFFFu})
    {
        Bytes bytes = Sample();
        SetField(bytes, RecordCountField(3), count);
        EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().CityCount(); })) << count;
    }
    Bytes bytes = Sample();
    SetField(bytes, FirstRecordField(3), static_cast<uint32_t>(bytes.size()) + 1);
    SetField(bytes, RecordCountField(3), 0);
    EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().CityCount(); }));
}

TEST(CityImage, FewerThanFourTablesHoldNoCities)
{
    for (const uint32_t tables : {0u, 1u, 2u, 3u})
    {
        Bytes bytes = Sample();
        SetField(bytes, 4, tables);
        EXPECT_TRUE(IsBroken([&] { CHeldImage(bytes).View().CityCount(); })) << tables;
    }
}

TEST(CityImage, AnEmptyCityTableAtTheVeryEndHoldsNone)
{
    EXPECT_EQ(0u, CHeldImage(CCityImageBuilder{}.Build()).View().CityCount());
}

TEST(CityImage, ATextStartsInsideTheImage)
{
    const CHeldImage held(Sample());
    const auto size = static_cast<uint32_t>(held.View().Size());
    EXPECT_FALSE(IsBroken([&] { held.View().StringAt(size - 2); }));
    EXPECT_TRUE(IsBroken([&] { held.View().StringAt(size - 1); }));
    EXPECT_TRUE(IsBroken([&] { held.View().StringAt(size); }));
    EXPECT_TRUE(IsBroken([&] { held.View().StringAt(0xFFFFFFFF); }));
}

TEST(CityImage, ATextAtAnOddOffsetIsRead)
{
    CCityImageBuilder builder;
    builder.Raw({0});
    const uint32_t offset = builder.Text(u"Odd");
    ASSERT_EQ(1u, offset % 2);
    EXPECT_EQ(u"Odd", TextAt(CHeldImage(builder.Build()).View(), offset));
}

TEST(CityImage, ATextWithoutAZeroEndsWithTheImage)
{
    Bytes bytes = Sample();
    const auto offset = static_cast<uint32_t>(bytes.size());
    bytes.insert(bytes.end(), {'x', 0, 'y', 0});
    EXPECT_EQ(u"xy", TextAt(CHeldImage(bytes).View(), offset));
    bytes.push_back('z');
    EXPECT_EQ(u"xyz", TextAt(CHeldImage(bytes).View(), offset));
}

TEST(CityImage, AnEmptyAndAHugeNameAreRead)
{
    CCityImageBuilder builder;
    builder.City(u"");
    builder.City(String16(1000000, u'x') + u"y");
    const CHeldImage held(builder.Build());
    EXPECT_EQ(u"", TextAt(held.View(), held.View().City(0).Name));
    CCitySearch search(TestFold());
    search.Attach(held.View());
    EXPECT_EQ(1u, search.Search(u"xy", true, 0));
    EXPECT_EQ(1u, search.At(0));
}

// Everything that the picker does with an image.
void UseWhole(const CCityImage& image)
{
    CCitySearch search(TestFold());
    search.Attach(image);
    uint32_t shown = search.Search({}, true, 0);
    for (const Char16* const text : {u"o", u"os", u"s"})
        shown = search.Search(text, false, shown);
}

void UseCities(const CCityImage& image)
{
    const uint32_t count = image.CityCount();
    for (uint32_t i = 0; i < count; ++i)
    {
        const CityRecord city = image.City(i);
        TextAt(image, city.Name);
        Char16 area[40];
        FormatCityArea(image, city, area, std::size(area));
        if (city.Details != kNoCityRecord)
        {
            const uint8_t* const details = image.DetailsOf(city.Details);
            EXPECT_EQ(kCityDetailsSize, Bytes(details, details + kCityDetailsSize).size());
        }
    }
}

void UseDamaged(const Bytes& bytes)
{
    const CHeldImage held(bytes);
    for (const auto use : {UseWhole, UseCities})
    {
        try
        {
            use(held.View());
        }
        catch (const CTavException& exception)
        {
            EXPECT_EQ(kTavBroken, exception.Code());
        }
    }
}

TEST(CityImageMutation, EveryTruncationIsHarmless)
{
    const Bytes bytes = Sample();
    for (size_t size = 0; size <= bytes.size(); ++size)
        UseDamaged(Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size)));
}

TEST(CityImageMutation, EveryChangedByteIsHarmless)
{
    const Bytes bytes = Sample();
    for (size_t i = 0; i < bytes.size(); ++i)
        for (const unsigned value : {0x00u, 0xFFu, 0x7Fu, 0x80u, bytes[i] + 1u, bytes[i] - 1u})
        {
            Bytes changed = bytes;
            changed[i] = static_cast<uint8_t>(value);
            UseDamaged(changed);
        }
}

} // namespace
