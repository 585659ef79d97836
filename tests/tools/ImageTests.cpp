// The bytes that are written, and what `check` says about bytes that are wrong.
#include "tests/tools/SmallImage.h"
#include "tests/tools/ToolFixture.h"
#include "tools/citydb/ImageCheck.h"
#include "tools/citydb/ImageWriter.h"

#include <gmock/gmock.h>

using namespace citydb;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

CityRow Zurich()
{
    CityRow row;
    row.Latitude = 46948090;
    row.Longitude = 7447440;
    row.Population = 134000;
    row.Country = "CH";
    row.TimeZone = "Europe/Zurich";
    return row;
}

ImageTables SmallTables()
{
    ImageTables tables;
    tables.Areas = {{1, u"East"}, {2, u"West"}};
    tables.Subareas = {{3, u"Coast"}};
    tables.Details = {{100, PackDetails(Zurich())}, {200, PackDetails(Zurich())}};
    tables.Cities = {{100, u"Alpha", 0, 0xFFFFFFFF, 0}, {200, u"Beta", 1, 0, 1}};
    return tables;
}

std::vector<std::string> FaultsOf(const std::vector<uint8_t>& image)
{
    return CheckImage(image.data(), image.size()).Faults;
}

// The small image with one field changed.
std::vector<std::string> FaultsWith(uint32_t offset, uint32_t value)
{
    std::vector<uint8_t> image = small::Image();
    small::Put(image, offset, value);
    return FaultsOf(image);
}

} // namespace

TEST(CityImageWriter, TheBytesAreThoseOfAnImageMadeByHand)
{
    EXPECT_EQ(small::Image(), WriteImage(SmallTables()));
    ImageTables ordered = SmallTables();
    ordered.NamesInOrder = true;
    EXPECT_EQ(small::Image(), WriteImage(ordered));
}

TEST(CityImageWriter, InAnOrderByNameOffsetsNeverFall)
{
    ImageTables tables = SmallTables();
    tables.Cities = {{1, u"A", 0, 0xFFFFFFFF, 0xFFFFFFFF},
                     {2, u"B", 0, 0xFFFFFFFF, 0xFFFFFFFF},
                     {3, u"B", 1, 0xFFFFFFFF, 0xFFFFFFFF},
                     {4, u"A", 0, 0xFFFFFFFF, 0xFFFFFFFF}};
    tables.Details.clear();
    tables.NamesInOrder = true;
    const std::vector<uint8_t> ordered = WriteImage(tables);
    EXPECT_TRUE(CheckImage(ordered.data(), ordered.size()).NamesInOrder);
    tables.NamesInOrder = false;
    const std::vector<uint8_t> shared = WriteImage(tables);
    EXPECT_FALSE(CheckImage(shared.data(), shared.size()).NamesInOrder);
    EXPECT_EQ(ordered.size() - 4, shared.size()) << "the second A shares the first one's text";
}

TEST(CityImageWriter, NoRegionsNameStandsBetweenTheCities)
{
    ImageTables tables = SmallTables();
    tables.Cities[0].Name = u"East";
    const std::vector<uint8_t> image = WriteImage(tables);
    EXPECT_THAT(FaultsOf(image), IsEmpty());
    // The area's text is not shared: the city's own one lies among the cities' names.
    EXPECT_EQ(small::kEnd - 2, image.size());
}

TEST(CityImageCheck, AGoodImageHasNoFault)
{
    const std::vector<uint8_t> image = small::Image();
    const CheckResult result = CheckImage(image.data(), image.size());
    EXPECT_THAT(result.Faults, IsEmpty());
    EXPECT_THAT(result.Counts, ElementsAre(2u, 1u, 2u, 2u));
}

TEST(CityImageCheck, LongerRecordsAreGood)
{
    std::vector<uint8_t> image = small::Image();
    // The subareas move behind the texts and get a record of 24 bytes.
    const uint32_t end = static_cast<uint32_t>(image.size());
    image.resize(end + 24);
    small::Put(image, end, 3);
    small::Put(image, end + 4, small::kCoast);
    small::Put(image, 20, end);
    small::Put(image, 28, 24);
    EXPECT_THAT(FaultsOf(image), IsEmpty());
}

TEST(CityImageCheck, EachHeadFieldIsVerified)
{
    EXPECT_THAT(FaultsWith(0, 3), ElementsAre("version at 0x0 is 3 instead of 2"));
    EXPECT_THAT(FaultsWith(4, 3), ElementsAre("table count at 0x4 is 3: four tables are needed"));
    EXPECT_THAT(
        FaultsWith(4, 0xFFFFFFFF),
        ElementsAre("the directory of 4294967295 tables ends (0xBFFFFFFFC) behind the end of "
                    "the image (0x20E)"));
    EXPECT_THAT(FaultsOf({2, 0, 0, 0, 4}),
                ElementsAre("the image ends (0x5) before its head does (0x8)"));
    EXPECT_THAT(FaultsOf({}), ElementsAre("the image ends (0x0) before its head does (0x8)"));
}

TEST(CityImageCheck, EachDirectoryFieldIsVerified)
{
    EXPECT_THAT(
        FaultsWith(8, 0x10),
        ElementsAre("table 0 (areas), directory entry at 0x8: first record 0x10 lies in the "
                    "directory, which ends at 0x38"));
    EXPECT_THAT(
        FaultsWith(20, 0xFFFFFFF0),
        ElementsAre("table 1 (subareas), directory entry at 0x14: first record 0xFFFFFFF0 lies "
                    "behind the end (0x20E)"));
    EXPECT_THAT(FaultsWith(36, 0xFFFFFFFF),
                ElementsAre("table 2 (details), directory entry at 0x20: 4294967295 records of 176 "
                            "bytes end (0xAFFFFFFFA0) behind the end (0x20E)"));
    EXPECT_THAT(
        FaultsWith(40 + 12, 19),
        ElementsAre("table 3 (cities), directory entry at 0x2C: record size 19 is below 20"));
    EXPECT_THAT(
        FaultsWith(40, 175),
        ElementsAre("table 2 (details), directory entry at 0x20: record size 175 is below 176"));
    EXPECT_THAT(FaultsWith(16, 7),
                ElementsAre("table 0 (areas), directory entry at 0x8: record size 7 is below 8"));
    EXPECT_THAT(
        FaultsWith(28, 0),
        ElementsAre("table 1 (subareas), directory entry at 0x14: record size 0 is below 8"));
}

TEST(CityImageCheck, TablesThatOverlapAreNamed)
{
    const std::vector<std::string> faults = FaultsWith(12, 3);
    ASSERT_FALSE(faults.empty());
    EXPECT_EQ("table 1 (subareas) from 0x48 to 0x50 overlaps table 0 (areas) from 0x38 to 0x50",
              faults[0]);
}

TEST(CityImageCheck, EachNameOffsetIsVerified)
{
    EXPECT_THAT(
        FaultsWith(small::kCities + 4, 0xFFFFFFF0),
        ElementsAre("table 3 (cities), record 0 at 0x1B0: name offset 0xFFFFFFF0 lies behind "
                    "the end (0x20E)"));
    EXPECT_THAT(
        FaultsWith(small::kAreas + 8 + 4, small::kEnd - 1),
        ElementsAre("table 0 (areas), record 1 at 0x40: name offset 0x20D lies behind the end "
                    "(0x20E)"));
    EXPECT_THAT(FaultsWith(small::kSubareas + 4, 0x10),
                ElementsAre("table 1 (subareas), record 0 at 0x48: name offset 0x10 lies in the "
                            "directory, which ends at 0x38"));
    EXPECT_THAT(
        FaultsWith(small::kSubareas + 4, small::kDetails + 8),
        ElementsAre("table 1 (subareas), record 0 at 0x48: name offset 0x58 lies in table 2 "
                    "(details) from 0x50 to 0x1B0"));
    EXPECT_THAT(FaultsWith(small::kSubareas + 4, small::kCoast + 1),
                ElementsAre("table 1 (subareas), record 0 at 0x48: name offset 0x1ED is odd"));
    EXPECT_THAT(
        FaultsWith(small::kSubareas + 4, small::kCoast + 10),
        ElementsAre(
            "table 1 (subareas), record 0 at 0x48: name offset 0x1F6 begins an empty text"));
}

TEST(CityImageCheck, ATextWithoutAnEndIsNamedForEveryRecordThatHasIt)
{
    std::vector<uint8_t> image = small::Image();
    image[small::kEnd - 2] = 'x';
    EXPECT_THAT(FaultsOf(image),
                ElementsAre("table 3 (cities), record 1 at 0x1C4: name offset 0x204 "
                            "begins a text without an end: no zero before the end (0x20E)"));
    small::Put(image, small::kSubareas + 4, small::kBeta + 2);
    EXPECT_EQ(2u, FaultsOf(image).size());
}

TEST(CityImageCheck, HalfASurrogatePairIsNamedAndAWholeOneIsGood)
{
    std::vector<uint8_t> image = small::Image();
    image[small::kAlpha] = 0x00;
    image[small::kAlpha + 1] = 0xD8;
    EXPECT_THAT(FaultsOf(image),
                ElementsAre("table 3 (cities), record 0 at 0x1B0: name offset 0x1F8 "
                            "begins a text with half a surrogate pair"));
    image[small::kAlpha + 3] = 0xDC;
    EXPECT_THAT(FaultsOf(image), IsEmpty());
    // Whoever begins in the middle of the pair has its second half alone.
    small::Put(image, small::kSubareas + 4, small::kAlpha + 2);
    EXPECT_EQ(1u, FaultsOf(image).size());
}

TEST(CityImageCheck, EachIndexIsVerified)
{
    EXPECT_THAT(FaultsWith(small::kCities + 8, 2),
                ElementsAre("table 3 (cities), record 0 at 0x1B0: area index 2 is not below the 2 "
                            "records of table 0 (areas)"));
    EXPECT_THAT(
        FaultsWith(small::kCities + 8, 0xFFFFFFFF),
        ElementsAre("table 3 (cities), record 0 at 0x1B0: area index 4294967295 is not below "
                    "the 2 records of table 0 (areas)"));
    EXPECT_THAT(
        FaultsWith(small::kCities + 20 + 12, 1),
        ElementsAre("table 3 (cities), record 1 at 0x1C4: subarea index 1 is not below the 1 "
                    "records of table 1 (subareas)"));
    EXPECT_THAT(
        FaultsWith(small::kCities + 20 + 16, 2),
        ElementsAre("table 3 (cities), record 1 at 0x1C4: details index 2 is not below the 2 "
                    "records of table 2 (details)"));
    EXPECT_THAT(FaultsWith(small::kCities + 20 + 12, 0xFFFFFFFF), IsEmpty());
    EXPECT_THAT(FaultsWith(small::kCities + 20 + 16, 0xFFFFFFFF), IsEmpty());
}

TEST(CityImageCheck, EachIdentifierIsVerified)
{
    EXPECT_THAT(
        FaultsWith(small::kCities + 20, 100),
        ElementsAre("table 3 (cities), record 1 at 0x1C4: identifier 100 has the details of 200",
                    "table 3 (cities), record 1 at 0x1C4: identifier 100 is that of record 0, "
                    "which is another place"));
    std::vector<uint8_t> image = small::Image();
    small::Put(image, small::kCities, 0);
    small::Put(image, small::kDetails, 0);
    EXPECT_THAT(
        FaultsOf(image),
        ElementsAre("table 3 (cities), record 0 at 0x1B0: identifier 0 stands for no city"));
}

TEST(CityImageCheck, ASecondSpellingOfAPlaceIsNoFault)
{
    std::vector<uint8_t> image = small::Image();
    small::Put(image, small::kCities + 20, 100);
    small::Put(image, small::kCities + 20 + 8, 0);
    small::Put(image, small::kCities + 20 + 16, 0);
    EXPECT_THAT(FaultsOf(image), IsEmpty());
}

TEST(CityImageCheck, EachDetailsFieldIsVerified)
{
    const uint32_t block = small::kDetails + 4;
    const std::string where = "table 2 (details), record 0 at 0x50: ";
    EXPECT_THAT(FaultsWith(block, 2), ElementsAre(where + "details version 2 instead of 1"));
    EXPECT_THAT(FaultsWith(block + 4, 90000001),
                ElementsAre(where + "latitude 90000001 is out of range"));
    EXPECT_THAT(FaultsWith(block + 4, 0x80000000),
                ElementsAre(where + "latitude -2147483648 is out of range"));
    EXPECT_THAT(FaultsWith(block + 8, 180000001),
                ElementsAre(where + "longitude 180000001 is out of range"));
    EXPECT_THAT(FaultsWith(block + 16, 'C'),
                ElementsAre(where + "the country is no code of two letters"));
    EXPECT_THAT(FaultsWith(block + 20, 'X'),
                ElementsAre(where + "the country is no code of two letters"));
    EXPECT_THAT(FaultsWith(block + 116, 'X'),
                ElementsAre(where + "the time zone is no text padded with zeros"));
    EXPECT_THAT(FaultsWith(block + 24, 0xE9),
                ElementsAre(where + "the time zone is no text padded with zeros"));
    EXPECT_THAT(FaultsWith(block + 168, 1), ElementsAre(where + "the reserved bytes are not 0"));
    EXPECT_THAT(FaultsWith(block + 12, 0xFFFFFFFF), IsEmpty()) << "an unknown population";
}

TEST(CityImageCheck, AMillionFaultsAreCountedButNotAllKept)
{
    std::vector<uint8_t> image = small::Image();
    const uint32_t first = static_cast<uint32_t>(image.size());
    constexpr uint32_t kCount = 120000;
    image.resize(first + kCount * 20);
    small::Put(image, 44, first);
    small::Put(image, 48, kCount);
    const CheckResult result = CheckImage(image.data(), image.size());
    EXPECT_EQ(kFaultsKept, result.Faults.size());
    EXPECT_GT(result.FaultCount, kFaultsKept);
}

TEST(CityImageCheck, RecordsThatShareOneLongTextTakeNoLonger)
{
    // 200,000 names that each begin one unit further in one text of 400 kB: looked at one by one
    // they would be 20 thousand million units.
    constexpr uint32_t kCount = 200000;
    std::vector<uint8_t> image = small::Image();
    const auto first = static_cast<uint32_t>(image.size());
    const uint32_t texts = first + kCount * 20;
    image.resize(texts + kCount * 2 + 2);
    small::Put(image, 44, first);
    small::Put(image, 48, kCount);
    for (uint32_t i = 0; i < kCount; ++i)
    {
        const uint32_t record = first + i * 20;
        small::Put(image, record, i + 1);
        small::Put(image, record + 4, texts + 2 * i);
        small::Put(image, record + 12, 0xFFFFFFFF);
        small::Put(image, record + 16, 0xFFFFFFFF);
        image[texts + 2 * i] = 'x';
    }
    const CheckResult result = CheckImage(image.data(), image.size());
    EXPECT_THAT(result.Faults, IsEmpty());
    EXPECT_EQ(kCount - 31, result.LongNames);
}
