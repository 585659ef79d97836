// What the device says about a city's record.
#include "device/CityReport.h"

#include <gmock/gmock.h>

#include <cstring>
#include <iterator>

#include "include/TavLumenarCityDetails.h"

namespace
{

using report::CityInWords;
using report::CityPlace;
using report::DescribeSelection;
using testing::HasSubstr;
using testing::Not;

class CityReport : public testing::Test
{
protected:
    void SetUp() override
    {
        m_city.identifier = 2267057;
        lstrcpynW(m_city.name, L"Lisbon", 32);
        m_details.version = 1;
        m_details.latitude = 38716700;
        m_details.longitude = -9133300;
        m_details.population = 517802;
        Fill(m_details.country, L"PT");
        Fill(m_details.timeZone, L"Europe/Lisbon");
    }

    template <size_t size>
    static void Fill(uint16_t (&field)[size], const std::wstring& text)
    {
        for (size_t i = 0; i < size; ++i)
            field[i] = i < text.size() ? static_cast<uint16_t>(text[i]) : uint16_t(0);
    }

    // The record with the details in it.
    CITYINFO WithDetails() const
    {
        CITYINFO city = m_city;
        city.hasDetails = 1;
        memcpy(city.details, &m_details, sizeof(m_details));
        return city;
    }

    std::wstring Words() const { return CityInWords(WithDetails()); }

    CITYINFO m_city = {};
    CITYDETAILS m_details = {};
};

} // namespace

TEST_F(CityReport, EveryFieldHasALineOfItsOwn)
{
    EXPECT_EQ(L"  identifier   2267057\n"
              L"  name         Lisbon\n"
              L"  has details  yes\n"
              L"  latitude     38.716700\u00B0 N\n"
              L"  longitude    9.133300\u00B0 W\n"
              L"  population   517,802\n"
              L"  country      PT\n"
              L"  time zone    Europe/Lisbon\n",
              Words());
}

TEST_F(CityReport, ACityWithoutDetailsShowsNoneOfTheirBytes)
{
    CITYINFO city = WithDetails();
    city.hasDetails = 0;
    EXPECT_EQ(L"  identifier   2267057\n"
              L"  name         Lisbon\n"
              L"  has details  no\n",
              CityInWords(city));
}

TEST_F(CityReport, SouthAndEastHaveTheirLetters)
{
    m_details.latitude = -33867850;
    m_details.longitude = 151207320;
    EXPECT_THAT(Words(), HasSubstr(L"33.867850\u00B0 S"));
    EXPECT_THAT(Words(), HasSubstr(L"151.207320\u00B0 E"));
}

TEST_F(CityReport, SmallFractionsKeepTheirZerosAndSign)
{
    m_details.latitude = -5;
    m_details.longitude = 0;
    EXPECT_THAT(Words(), HasSubstr(L"0.000005\u00B0 S"));
    EXPECT_THAT(Words(), HasSubstr(L"0.000000\u00B0 E"));
}

TEST_F(CityReport, ThePolesAndTheDateLineAreInRange)
{
    m_details.latitude = -90000000;
    m_details.longitude = 180000000;
    EXPECT_THAT(Words(), Not(HasSubstr(L"out of range")));
}

TEST_F(CityReport, ImpossibleDegreesAreSaidToBeSo)
{
    m_details.latitude = 90000001;
    m_details.longitude = INT32_MIN;
    EXPECT_THAT(Words(), HasSubstr(L"90.000001\u00B0 N (out of range)"));
    EXPECT_THAT(Words(), HasSubstr(L"2147.483648\u00B0 W (out of range)"));
}

TEST_F(CityReport, AnUnknownPopulationIsNoNumber)
{
    m_details.population = TAVLUMENAR_CITY_POPULATION_UNKNOWN;
    EXPECT_THAT(Words(), HasSubstr(L"population   unknown\n"));
}

TEST_F(CityReport, ThePopulationIsGroupedByThousands)
{
    const std::pair<uint32_t, const wchar_t*> cases[] = {
        {0, L" 0\n"}, {999, L" 999\n"}, {1000, L" 1,000\n"}, {22315474, L" 22,315,474\n"}};
    for (const auto& [number, text] : cases)
    {
        m_details.population = number;
        EXPECT_THAT(Words(), HasSubstr(std::wstring(L"population  ") + text));
    }
}

TEST_F(CityReport, AnEmptyCountryOrZoneIsUnknown)
{
    Fill(m_details.country, L"");
    Fill(m_details.timeZone, L"");
    EXPECT_THAT(Words(), HasSubstr(L"country      unknown\n"));
    EXPECT_THAT(Words(), HasSubstr(L"time zone    unknown\n"));
}

TEST_F(CityReport, DetailsOfAnotherVersionAreNotRead)
{
    m_details.version = 2;
    EXPECT_THAT(Words(), HasSubstr(L"yes, in a layout that is not known here\n"));
    EXPECT_THAT(Words(), Not(HasSubstr(L"latitude")));
    EXPECT_EQ(L"Lisbon", CityPlace(WithDetails()));
}

TEST_F(CityReport, AFlagThatIsNeitherIsShownAsItIs)
{
    CITYINFO city = WithDetails();
    city.hasDetails = 7;
    EXPECT_THAT(CityInWords(city), HasSubstr(L"has details  7, not 0 or 1\n"));
}

TEST_F(CityReport, TextsWithoutAnEndStopWithTheirField)
{
    CITYINFO city;
    memset(&city, 0x41, sizeof(city));
    city.hasDetails = 1;
    city.details[0] = 1;
    memset(city.details + 1, 0, 3);
    const std::wstring words = CityInWords(city);
    EXPECT_THAT(words, HasSubstr(L"name         " + std::wstring(32, 0x4141) + L"\n"));
    EXPECT_THAT(words, HasSubstr(L"country      " + std::wstring(4, 0x4141) + L"\n"));
    EXPECT_THAT(words, HasSubstr(L"time zone    " + std::wstring(48, 0x4141) + L"\n"));
}

TEST_F(CityReport, ControlCharactersDontReachTheTerminal)
{
    lstrcpynW(m_city.name, L"A\x1B[2J\n", 32);
    EXPECT_THAT(Words(), HasSubstr(L"name         A?[2J?\n"));
    EXPECT_EQ(L"A?[2J?, PT", CityPlace(WithDetails()));
}

TEST_F(CityReport, APlaceIsTheNameAndTheCountry)
{
    EXPECT_EQ(L"Lisbon, PT", CityPlace(WithDetails()));
}

TEST_F(CityReport, APlaceWithoutACountryIsTheNameAlone)
{
    EXPECT_EQ(L"Lisbon", CityPlace(m_city));
    Fill(m_details.country, L"");
    EXPECT_EQ(L"Lisbon", CityPlace(WithDetails()));
}

TEST_F(CityReport, NoCityIsNoPlace)
{
    EXPECT_EQ(L"", CityPlace({}));
}

TEST_F(CityReport, AConfirmedCityIsToldWithWhatWasPassedIn)
{
    EXPECT_EQ(L"No city was passed in.\nThe record that came back:\n" + Words(),
              DescribeSelection({}, WithDetails(), true));
    EXPECT_THAT(DescribeSelection(WithDetails(), WithDetails(), true),
                HasSubstr(L"Passed in as the current city: Lisbon, PT (identifier 2267057).\n"));
}

TEST_F(CityReport, DetailsThatStayedAsTheyWerePassedInAreToldSo)
{
    CITYINFO after = WithDetails();
    after.hasDetails = 0;
    EXPECT_THAT(DescribeSelection(WithDetails(), after, true),
                HasSubstr(L"The 172 bytes of details are as they were passed in.\n"));
    after.details[171] = 1;
    EXPECT_THAT(DescribeSelection(WithDetails(), after, true),
                HasSubstr(L"The 172 bytes of details were changed, which they must not be.\n"));
}

TEST_F(CityReport, AfterCancelTheRecordIsComparedByteForByte)
{
    EXPECT_THAT(DescribeSelection(m_city, m_city, false),
                HasSubstr(L"The record is untouched: all 244 bytes are as they were passed in.\n"));
    CITYINFO after = m_city;
    after.details[171] = 1;
    EXPECT_THAT(DescribeSelection(m_city, after, false), HasSubstr(L"The record was changed"));
}
