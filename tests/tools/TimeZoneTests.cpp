// The zones that places get whose source has none.
#include "tools/citydb/TimeZones.h"

#include "tests/tools/TempFolder.h"
#include "tools/citydb/Errors.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace citydb;

namespace
{

CTimeZones System()
{
    return CTimeZones("/usr/share/zoneinfo/zone.tab");
}

} // namespace

TEST(CityTimeZones, AnglesAreReadWithAndWithoutSeconds)
{
    EXPECT_DOUBLE_EQ(51.5, ReadIsoAngle("+5130", 2));
    EXPECT_DOUBLE_EQ(51.508333333333333, ReadIsoAngle("+513030", 2));
    EXPECT_DOUBLE_EQ(-0.125, ReadIsoAngle("-0000730", 3));
    EXPECT_DOUBLE_EQ(-120.25, ReadIsoAngle("-12015", 3));
}

TEST(CityTimeZones, AnglesOfAnotherFormAreRefused)
{
    for (const char* text : {"", "5130", "+", "+51", "+51301", "+51x0", "+5130301", "+-130"})
        EXPECT_THROW(ReadIsoAngle(text, 2), std::invalid_argument) << text;
}

TEST(CityTimeZones, TheOnlyZoneOfACountryIsTaken)
{
    EXPECT_EQ("Europe/Zurich", System().Nearest("CH", 46948090, 7447440));
}

TEST(CityTimeZones, OfSeveralZonesTheNearestIsTaken)
{
    EXPECT_EQ("America/Los_Angeles", System().Nearest("US", 37774930, -122419420));
    EXPECT_EQ("America/New_York", System().Nearest("US", 42358430, -71059770));
    EXPECT_EQ("Australia/Perth", System().Nearest("AU", -31952240, 115861400));
}

TEST(CityTimeZones, TheGlobeIsRound)
{
    CTempFolder folder;
    const CTimeZones zones(folder.Write("zone.tab",
                                        "XX\t+0000+17900\tWest\nXX\t+0000-17000\tEast\n"
                                        "YY\t+8900+00000\tHere\nYY\t+8000+17000\tThere\n"));
    EXPECT_EQ("West", zones.Nearest("XX", 0, -179900000)) << "over the date line";
    EXPECT_EQ("Here", zones.Nearest("YY", 88000000, 170000000)) << "over the pole";
}

TEST(CityTimeZones, AnotherCountrysZoneIsNeverTaken)
{
    EXPECT_EQ("", System().Nearest("QQ", 0, 0));
}

TEST(CityTimeZones, ABrokenTableIsNamedWithItsLine)
{
    CTempFolder folder;
    for (const char* line : {"CH", "CH\t+4723+00832", "CH\tnowhere\tEurope/Zurich", "CH\t+4723\tX"})
    {
        const std::string file = folder.Write("zone.tab", std::string("# head\n") + line + "\n");
        try
        {
            CTimeZones{file};
            ADD_FAILURE() << line;
        }
        catch (const CInputError& error)
        {
            EXPECT_EQ(file + ":2: a country, a position and a zone are expected",
                      std::string(error.what()));
        }
    }
}
