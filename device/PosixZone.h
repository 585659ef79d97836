// The rules of a time zone in one line, as the tz database ends each of its files:
// "CET-1CEST,M3.5.0,M10.5.0/3". Values only; the home screen tells a city's time with them.
#pragma once

#include <cstdint>
#include <string_view>

namespace zones
{

// When the clocks are changed each year.
struct Change
{
    enum class Day
    {
        WithoutLeapDay, // "J60": 1 to 365, 1 March is always 60
        OfYear,         // "59": 0 to 365, 29 February counts
        OfMonth,        // "M3.5.0": a weekday of a month, week 5 is the last
    };

    Day Kind = Day::OfYear;
    int Month = 1;
    int Week = 1;
    // The day's number, or 0 (Sunday) to 6.
    int Number = 0;
    // Seconds after that day's midnight on the clock before the change; may be before that day or
    // days after it.
    int Time = 2 * 3600;
};

struct Zone
{
    // Seconds east of UTC, in the part of the year that counts as standard and in the other one.
    int Standard = 0;
    int Summer = 0;
    bool HasSummer = false;
    // Summer time begins and ends; in the other order in the year's course on the southern half of
    // the globe.
    Change Begin;
    Change End;
};

// Reads a line of rules. False, with `zone` untouched, for anything that isn't one; summer time
// without the days of its changes isn't.
bool Parse(std::string_view rules, Zone& zone);

// How many seconds east of UTC the zone's clocks are at a time in seconds since 1970 began, UTC.
int OffsetAt(const Zone& zone, int64_t utc);

// The rules of the zone of that name in a table of "NAME RULES" lines; empty when there are none.
std::string_view FindRules(std::string_view table, std::string_view name);

} // namespace zones
