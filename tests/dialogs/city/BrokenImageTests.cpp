// Databases that contradict themselves: the failure leaves the export where it is met.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/FaultCounter.h"

namespace
{

class CityBroken : public CityFixture
{
protected:
    CityBroken() : image(SampleCities().Build()) { module = std::make_unique<CModule>(); }

    void SetCity(uint32_t row, CityField field, uint32_t value)
    {
        SetField(image, PositionOf(image, row, field), value);
    }
    // The failure is met when the list is drawn for the first time.
    void ExpectBrokenAtDrawing()
    {
        folder.InstallAsFolder(image);
        const CFaultCounter faults(module->Handle());
        Call();
        ExpectThrown(kBroken);
        EXPECT_EQ(0, faults.Count());
    }
    void ExpectEmptyList()
    {
        folder.InstallAsFolder(image);
        const CFaultCounter faults(module->Handle());
        Open(10);
        EXPECT_EQ(0, RowCount());
        Type(L"lon");
        EXPECT_EQ(0, RowCount());
        PostCommand(dialog, IDOK);
        ExpectEnd(FALSE);
        EXPECT_EQ(0, faults.Count());
    }

    Bytes image;
};

} // namespace

TEST_F(CityBroken, AnAreaOutOfRangeIsMetAtDrawing)
{
    SetCity(0, FieldArea, 3);
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, NoAreaIsOutOfRangeToo)
{
    SetCity(0, FieldArea, kNoCityRecord);
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, ASubareaOutOfRangeIsMetAtDrawing)
{
    SetCity(1, FieldSubarea, 2);
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, ANameOutsideTheImageIsMetAtDrawing)
{
    SetCity(0, FieldName, static_cast<uint32_t>(image.size()));
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, ANameAtTheVeryEndOfNumbersIsMetAtDrawing)
{
    SetCity(0, FieldName, 0xFFFFFFFF);
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, AnAreasNameOutsideTheImageIsMetAtDrawing)
{
    const size_t areas = bytes::GetU32LE(image.data() + FirstRecordField(0));
    SetField(image, areas + 4, 0x7FFFFFFF);
    ExpectBrokenAtDrawing();
}

TEST_F(CityBroken, DetailsOutOfRangeAreMetAtAccepting)
{
    SetCity(0, FieldDetails, 2);
    folder.InstallAsFolder(image);
    Open();
    Select(0);
    PostCommand(dialog, IDOK);
    ExpectThrown(kBroken);
}

TEST_F(CityBroken, DetailsOutOfRangeAreMetAtATapToo)
{
    SetCity(0, FieldDetails, 2);
    folder.InstallAsFolder(image);
    Open();
    TapScreen(PlaceOf(0));
    ExpectThrown(kBroken);
}

TEST_F(CityBroken, DetailsThatAreTooShortAreMetAtAccepting)
{
    CCityImageBuilder builder;
    builder.Area(L"Here");
    builder.City({1, builder.Text(L"One"), 0, kNoCityRecord, 0});
    image = builder.Build();
    // The details reach to the end of the image, and one byte further.
    SetField(image, FirstRecordField(2), static_cast<uint32_t>(image.size()) - 175);
    SetField(image, RecordCountField(2), 1);
    folder.InstallAsFolder(image);
    Open(1);
    PostCommand(dialog, IDOK);
    ExpectThrown(kBroken);
}

TEST_F(CityBroken, ARowThatIsNotShownIsNotMet)
{
    image = ManyCities(300).Build();
    SetField(image, PositionOf(image, 299, FieldArea), 77);
    folder.InstallAsFolder(image);
    Open(1);
    Done();
    EXPECT_EQ(1u, city.identifier);
}

TEST_F(CityBroken, ScrollingToABrokenRowMeetsIt)
{
    image = ManyCities(300).Build();
    SetField(image, PositionOf(image, 299, FieldArea), 77);
    folder.InstallAsFolder(image);
    Open(1);
    ToList(LVM_ENSUREVISIBLE, 299);
    UpdateWindow(list);
    ExpectThrown(kBroken);
}

TEST_F(CityBroken, SearchingMeetsANameOutsideTheImage)
{
    image = ManyCities(300).Build();
    SetField(image, PositionOf(image, 299, FieldName), 0xFFFFFFF0);
    folder.InstallAsFolder(image);
    Open(1);
    Type(L"town 1");
    ExpectThrown(kBroken);
}

TEST_F(CityBroken, ATableCountThatLeavesNoCitiesGivesAnEmptyList)
{
    for (const uint32_t count : {0u, 1u, 3u})
    {
        SetField(image, 4, count);
        ExpectEmptyList();
    }
}

TEST_F(CityBroken, ADirectoryBehindTheImageGivesAnEmptyList)
{
    image.resize(8);
    SetField(image, 4, 0xFFFFFFFF);
    ExpectEmptyList();
}

TEST_F(CityBroken, MoreCitiesThanTheImageHoldsGiveAnEmptyList)
{
    for (const uint32_t count : {uint32_t{kSampleCount + 1}, 0x3FFFFFFFu, 0xFFFFFFFFu})
    {
        SetField(image, RecordCountField(3), count);
        ExpectEmptyList();
    }
}

TEST_F(CityBroken, CityRecordsWithoutRoomForTheirFieldsGiveAnEmptyList)
{
    for (const uint32_t size : {0u, 1u, 19u})
    {
        SetField(image, RecordSizeField(3), size);
        ExpectEmptyList();
    }
}

TEST_F(CityBroken, CitiesBehindTheImageGiveAnEmptyList)
{
    for (const uint32_t first : {static_cast<uint32_t>(image.size()), 0x80000000u, 0xFFFFFFFFu})
    {
        SetField(image, FirstRecordField(3), first);
        ExpectEmptyList();
    }
}

TEST_F(CityBroken, ANameAtAnOddPlaceIsReadAllTheSame)
{
    CCityImageBuilder builder;
    builder.Area(L"Here");
    builder.Raw({0});
    const uint32_t odd = builder.Text(L"Oddington");
    builder.City({1, odd, 0, kNoCityRecord, kNoCityRecord});
    folder.InstallAsFolder(builder.Build());
    Open(1);
    ASSERT_EQ(1u, odd % 2);
    Type(L"dding");
    EXPECT_EQ(Texts{L"Oddington"}, Names());
    Select(0);
    Done();
    EXPECT_STREQ(L"Oddington", city.name);
}

TEST_F(CityBroken, ANameWithoutAnEndEndsWithTheImage)
{
    image = ManyCities(1).Build();
    const auto end = static_cast<uint32_t>(image.size());
    image.insert(image.end(), {'E', 0, 'n', 0, 'd', 0});
    SetField(image, PositionOf(image, 0, FieldName), end);
    folder.InstallAsFolder(image);
    Open(1);
    EXPECT_EQ(Texts{L"End"}, Names());
    Type(L"nd");
    EXPECT_EQ(1, RowCount());
    Select(0);
    Done();
    EXPECT_STREQ(L"End", city.name);
}

TEST_F(CityBroken, ANameOfAMillionCharactersIsCut)
{
    CCityImageBuilder builder;
    builder.Area(std::wstring(100000, L'a'));
    builder.City(std::wstring(1000000, L'z') + L"y");
    folder.InstallAsFolder(builder.Build());
    Open(1);
    Type(L"zy");
    EXPECT_EQ(1, RowCount());
    UpdateWindow(list);
    Select(0);
    Done();
    EXPECT_EQ(std::wstring(31, L'z'), city.name);
}
