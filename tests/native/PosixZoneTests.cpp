// The rules of time zones: reading them, and which offset holds when, at the very seconds of the
// changes.
#include "device/PosixZone.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace zones
{
namespace
{

// Seconds since 1970 of a date and a time of day, UTC; counted on the fingers of one hand rather
// than with the code under test.
int64_t Utc(int year, int month, int day, int hour, int minute, int second)
{
    static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const auto isLeap = [](int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; };
    int64_t days = day - 1;
    for (int y = 1970; y < year; ++y)
        days += isLeap(y) ? 366 : 365;
    for (int m = 1; m < month; ++m)
        days += lengths[m - 1] + (m == 2 && isLeap(year) ? 1 : 0);
    return ((days * 24 + hour) * 60 + minute) * 60 + second;
}

constexpr int kHour = 3600;

class PosixZone : public testing::Test
{
protected:
    static int OffsetOf(const char* rules, int64_t utc)
    {
        Zone zone;
        EXPECT_TRUE(Parse(rules, zone)) << rules;
        return OffsetAt(zone, utc);
    }

    // The offset changes from one to the other at exactly that second.
    static void ExpectChange(const char* rules, int64_t utc, int before, int after)
    {
        EXPECT_EQ(before, OffsetOf(rules, utc - 1)) << rules << " a second before";
        EXPECT_EQ(after, OffsetOf(rules, utc)) << rules;
    }

    static bool IsRefused(const std::string& rules)
    {
        Zone zone;
        zone.Standard = 4711;
        const bool isRefused = !Parse(rules, zone);
        EXPECT_TRUE(!isRefused || zone.Standard == 4711) << rules;
        return isRefused;
    }
};

} // namespace

TEST_F(PosixZone, WithoutSummerTimeTheOffsetIsTheSameAllYear)
{
    EXPECT_EQ(5 * kHour + 1800, OffsetOf("IST-5:30", Utc(2006, 1, 1, 0, 0, 0)));
    EXPECT_EQ(5 * kHour + 1800, OffsetOf("IST-5:30", Utc(2006, 7, 1, 0, 0, 0)));
    EXPECT_EQ(-10 * kHour, OffsetOf("HST10", Utc(2006, 7, 1, 0, 0, 0)));
}

TEST_F(PosixZone, ANameInAngleBracketsMayHoldDigitsAndSigns)
{
    EXPECT_EQ(3 * kHour, OffsetOf("<+03>-3", 0));
    EXPECT_EQ(-(3 * kHour + 1800), OffsetOf("<-0330>3:30", 0));
}

TEST_F(PosixZone, SecondsCountInAnOffset)
{
    EXPECT_EQ(-(kHour + 2 * 60 + 3), OffsetOf("ABC1:02:03", 0));
}

TEST_F(PosixZone, SummerTimeIsAnHourAheadUnlessTheRulesSayOtherwise)
{
    EXPECT_EQ(2 * kHour, OffsetOf("CET-1CEST,M3.5.0,M10.5.0/3", Utc(2006, 7, 1, 0, 0, 0)));
    const char* lordHowe = "<+1030>-10:30<+11>-11,M10.1.0,M4.1.0";
    EXPECT_EQ(11 * kHour, OffsetOf(lordHowe, Utc(2024, 1, 1, 0, 0, 0)));
    EXPECT_EQ(10 * kHour + 1800, OffsetOf(lordHowe, Utc(2024, 7, 1, 0, 0, 0)));
}

TEST_F(PosixZone, TheLastSundayIsFoundInMonthsOfFourAndOfFive)
{
    // 26 March and 29 October 2006, 25 March and 28 October 2007: one o'clock UTC all over Europe.
    const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    ExpectChange(berlin, Utc(2006, 3, 26, 1, 0, 0), kHour, 2 * kHour);
    ExpectChange(berlin, Utc(2006, 10, 29, 1, 0, 0), 2 * kHour, kHour);
    ExpectChange(berlin, Utc(2007, 3, 25, 1, 0, 0), kHour, 2 * kHour);
    ExpectChange("WET0WEST,M3.5.0/1,M10.5.0", Utc(2024, 3, 31, 1, 0, 0), 0, kHour);
}

TEST_F(PosixZone, TheSecondSundayIsTheAmericanOne)
{
    const char* newYork = "EST5EDT,M3.2.0,M11.1.0";
    ExpectChange(newYork, Utc(2024, 3, 10, 7, 0, 0), -5 * kHour, -4 * kHour);
    ExpectChange(newYork, Utc(2024, 11, 3, 6, 0, 0), -4 * kHour, -5 * kHour);
}

TEST_F(PosixZone, OnTheSouthernHalfSummerGoesOverTheTurnOfTheYear)
{
    const char* sydney = "AEST-10AEDT,M10.1.0,M4.1.0/3";
    ExpectChange(sydney, Utc(2024, 4, 6, 16, 0, 0), 11 * kHour, 10 * kHour);
    ExpectChange(sydney, Utc(2024, 10, 5, 16, 0, 0), 10 * kHour, 11 * kHour);
    EXPECT_EQ(11 * kHour, OffsetOf(sydney, Utc(2023, 12, 31, 23, 59, 59)));
    EXPECT_EQ(11 * kHour, OffsetOf(sydney, Utc(2024, 1, 1, 0, 0, 0)));
}

TEST_F(PosixZone, SummerTimeMayBeTheEarlierOne)
{
    const char* dublin = "IST-1GMT0,M10.5.0,M3.5.0/1";
    ExpectChange(dublin, Utc(2024, 3, 31, 1, 0, 0), 0, kHour);
    ExpectChange(dublin, Utc(2024, 10, 27, 1, 0, 0), kHour, 0);
}

TEST_F(PosixZone, TimesOfTheChangeMayBeNegativeOrBeyondTheDay)
{
    // Saturday 22:00 there, which is the last Sunday in March, one o'clock UTC.
    const char* nuuk = "<-02>2<-01>,M3.5.0/-1,M10.5.0/0";
    ExpectChange(nuuk, Utc(2024, 3, 31, 1, 0, 0), -2 * kHour, -kHour);
    // The Friday behind the fourth Thursday, at two in the morning.
    const char* jerusalem = "IST-2IDT,M3.4.4/26,M10.5.0";
    ExpectChange(jerusalem, Utc(2024, 3, 29, 0, 0, 0), 2 * kHour, 3 * kHour);
    // Midnight behind the last Thursday of October.
    const char* cairo = "EET-2EEST,M4.5.5/0,M10.5.4/24";
    ExpectChange(cairo, Utc(2024, 10, 31, 21, 0, 0), 3 * kHour, 2 * kHour);
}

TEST_F(PosixZone, DaysOfTheYearCountWithAndWithoutTheLeapDay)
{
    // Day 60 without the leap day is 1 March in every year; day 60 with it is not.
    ExpectChange("AAA0BBB,J60/0,J300/0", Utc(2024, 3, 1, 0, 0, 0), 0, kHour);
    ExpectChange("AAA0BBB,J60/0,J300/0", Utc(2023, 3, 1, 0, 0, 0), 0, kHour);
    ExpectChange("AAA0BBB,60/0,300/0", Utc(2024, 3, 1, 0, 0, 0), 0, kHour);
    ExpectChange("AAA0BBB,60/0,300/0", Utc(2023, 3, 2, 0, 0, 0), 0, kHour);
}

TEST_F(PosixZone, TimesBefore1970AndFarAwayHaveAnOffset)
{
    const char* berlin = "CET-1CEST,M3.5.0,M10.5.0/3";
    // 1 July 1969, and the end of what counts.
    EXPECT_EQ(2 * kHour, OffsetOf(berlin, -184 * int64_t{86400}));
    EXPECT_EQ(kHour, OffsetOf(berlin, INT64_MAX));
    EXPECT_EQ(kHour, OffsetOf(berlin, INT64_MIN));
}

TEST_F(PosixZone, WhatIsNotARuleIsRefused)
{
    for (const char* rules : {"",
                              "C",
                              "CE-1",
                              "CET",
                              "CET-",
                              "CET-25",
                              "CET-1:60",
                              "CET-1:00:60",
                              "<+03-3",
                              "<>-3",
                              "CET-1CEST",
                              "CET-1CEST,M3.5.0",
                              "CET-1CEST,M3.5.0,",
                              "CET-1CEST,M13.5.0,M10.5.0",
                              "CET-1CEST,M0.5.0,M10.5.0",
                              "CET-1CEST,M3.6.0,M10.5.0",
                              "CET-1CEST,M3.5.7,M10.5.0",
                              "CET-1CEST,M3.5.0/168,M10.5.0",
                              "CET-1CEST,J0,J365",
                              "CET-1CEST,J1,J366",
                              "CET-1CEST,0,366",
                              "CET-1CEST,M3.5.0,M10.5.0/3 ",
                              "CET-1CEST,M3.5.0,M10.5.0,",
                              "CET-1 ",
                              "CET--1",
                              "CET-1111",
                              "\n"})
        EXPECT_TRUE(IsRefused(rules)) << rules;
}

TEST_F(PosixZone, AnyCutOfALineIsReadOrRefusedAndNoByteBreaksIt)
{
    const std::string line = "<+1245>-12:45<+1345>,M9.5.0/2:45,M4.1.0/3:45";
    for (size_t length = 0; length < line.size(); ++length)
        IsRefused(line.substr(0, length));
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i)
    {
        std::string changed = line;
        for (int change = 0; change < 3; ++change)
            changed[random() % changed.size()] = static_cast<char>(random());
        Zone zone;
        if (Parse(changed, zone))
            OffsetAt(zone, static_cast<int64_t>(random()) * 4);
    }
}

TEST_F(PosixZone, ATableGivesTheLineOfAWholeName)
{
    const std::string_view table = "Europe/Berlin CET-1\nEurope/Berlin2 X\nEtc/Z UTC0";
    EXPECT_EQ("CET-1", FindRules(table, "Europe/Berlin"));
    EXPECT_EQ("UTC0", FindRules(table, "Etc/Z"));
    EXPECT_EQ("", FindRules(table, "Europe/Ber"));
    EXPECT_EQ("", FindRules(table, ""));
    EXPECT_EQ("", FindRules("", "Etc/Z"));
    EXPECT_EQ("", FindRules("\n\n", ""));
}

} // namespace zones
