// What the home screen tells about a city's record.
#include "device/CityFacts.h"

#include <gtest/gtest.h>

#include <cstring>

#include "device/Clock.h"
#include "device/ZoneTable.h"
#include "include/TavLumenarCityDetails.h"

namespace
{

// 12 June 2006, 12:00 UTC, and half a year later.
constexpr int64_t kSummer = 1150113600;
constexpr int64_t kWinter = kSummer + 183 * int64_t{86400};

class CityFactsOf : public testing::Test
{
protected:
    CityFactsOf()
    {
        lstrcpynW(reinterpret_cast<wchar_t*>(m_city.name), L"Lisbon", 31);
        m_city.identifier = 1;
        m_city.hasDetails = 1;
        m_details.version = TAVLUMENAR_CITY_DETAILS_VERSION;
        m_details.latitude = 38716700;
        m_details.longitude = -9139000;
        m_details.country[0] = L'P';
        m_details.country[1] = L'T';
        SetZone(L"Europe/Lisbon");
    }

    void SetZone(const wchar_t* name)
    {
        memset(m_details.timeZone, 0, sizeof(m_details.timeZone));
        for (size_t i = 0; name[i] != 0; ++i)
            m_details.timeZone[i] = name[i];
    }

    CityFacts Facts(int64_t utc)
    {
        memcpy(m_city.details, &m_details, sizeof(m_details));
        return FactsOf(m_city, utc);
    }

    CITYINFO m_city = {};
    CITYDETAILS m_details = {};
};

} // namespace

TEST_F(CityFactsOf, ACityWithDetailsHasItsTimeAndItsPlaceOnTheGlobe)
{
    const CityFacts facts = Facts(kSummer);
    EXPECT_EQ(L"Lisbon, PT", facts.Place);
    EXPECT_EQ(L"38.72\u00B0 N, 9.14\u00B0 W", facts.Position);
    EXPECT_EQ(3600, facts.SecondsEast);
    EXPECT_EQ(0, Facts(kWinter).SecondsEast);
}

TEST_F(CityFactsOf, TheOtherHalvesOfTheGlobeHaveTheOtherLetters)
{
    m_details.latitude = -33868820;
    m_details.longitude = 151209290;
    EXPECT_EQ(L"33.87\u00B0 S, 151.21\u00B0 E", Facts(kSummer).Position);
}

TEST_F(CityFactsOf, APositionOffTheGlobeIsLeftOut)
{
    m_details.latitude = 90000001;
    EXPECT_EQ(L"", Facts(kSummer).Position);
    m_details.latitude = INT32_MIN;
    EXPECT_EQ(L"", Facts(kSummer).Position);
    m_details.latitude = 90000000;
    m_details.longitude = -180000000;
    EXPECT_EQ(L"90.00\u00B0 N, 180.00\u00B0 W", Facts(kSummer).Position);
}

TEST_F(CityFactsOf, AnUnknownZoneGivesNoTime)
{
    for (const wchar_t* name : {L"", L"Europe/Atlantis", L"Europe/Lisbo", L"Europe/Lisbon WET"})
    {
        SetZone(name);
        EXPECT_FALSE(Facts(kSummer).SecondsEast.has_value()) << name;
    }
}

TEST_F(CityFactsOf, ARecordWithoutDetailsGivesItsNameAlone)
{
    m_city.hasDetails = 0;
    const CityFacts facts = Facts(kSummer);
    EXPECT_EQ(L"Lisbon", facts.Place);
    EXPECT_EQ(L"", facts.Position);
    EXPECT_FALSE(facts.SecondsEast.has_value());
}

TEST_F(CityFactsOf, DetailsOfAnotherVersionAreNotRead)
{
    m_details.version = 2;
    const CityFacts facts = Facts(kSummer);
    EXPECT_EQ(L"Lisbon", facts.Place);
    EXPECT_EQ(L"", facts.Position);
    EXPECT_FALSE(facts.SecondsEast.has_value());
}

TEST_F(CityFactsOf, NoCityGivesNothing)
{
    EXPECT_EQ(L"", FactsOf({}, kSummer).Place);
}

TEST(ZoneTable, EveryLineCanBeRead)
{
    for (const wchar_t* name : {L"Africa/Cairo", L"America/New_York", L"America/Nuuk",
                                L"Antarctica/Troll", L"Asia/Jerusalem", L"Asia/Kathmandu",
                                L"Australia/Lord_Howe", L"Europe/Dublin", L"Pacific/Chatham"})
    {
        zones::Zone zone;
        EXPECT_TRUE(zones::Find(name, zone)) << name;
    }
}

TEST(Clock, AFrozenDeviceTellsTheTimeOfOtherPlacesInTheSameMoment)
{
    clockwork::Freeze();
    EXPECT_EQ(clockwork::TimeText(), clockwork::TimeTextAt(3600));
    const std::wstring morning = clockwork::TimeTextAt(3600 + 12 * 3600);
    EXPECT_NE(clockwork::TimeText(), morning);
    // It is still the same day at 22:08, and another one at 00:08: the weekday says so.
    EXPECT_EQ(0u, clockwork::TimeTextAt(15 * 3600).find(L"Tue "));
}
