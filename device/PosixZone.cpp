#include "device/PosixZone.h"

namespace zones
{
namespace
{

constexpr int kHour = 3600;
constexpr int64_t kDay = 86400;
// The largest amounts of hours: of an offset, and of a time of change.
constexpr int kMostOffsetHours = 24;
constexpr int kMostTimeHours = 167;
// Beyond these seconds (some 30,000 years) there are no rules.
constexpr int64_t kFarAway = 1000000000000;

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsLeapYear(int64_t year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// Days from 1 January 1970 to 1 January of a year.
int64_t DayOfYearsBegin(int64_t year)
{
    const int64_t before = year - 1;
    const auto floored = [](int64_t number, int64_t by)
    { return number / by - (number % by < 0 ? 1 : 0); };
    constexpr int64_t kDaysTo1970 = 719162;
    return before * 365 + floored(before, 4) - floored(before, 100) + floored(before, 400) -
           kDaysTo1970;
}

int64_t YearOf(int64_t seconds)
{
    const int64_t day = seconds / kDay - (seconds % kDay < 0 ? 1 : 0);
    // A guess that is at most a year off, put right.
    int64_t year = 1970 + day * 400 / 146097;
    while (DayOfYearsBegin(year) > day)
        --year;
    while (DayOfYearsBegin(year + 1) <= day)
        ++year;
    return year;
}

constexpr int kMonthLengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

int LengthOf(int month, bool isLeap)
{
    return kMonthLengths[month - 1] + (month == 2 && isLeap ? 1 : 0);
}

// Days from 1 January of the year to the weekday that the change names.
int64_t WeekdayOf(const Change& change, int64_t year)
{
    const bool isLeap = IsLeapYear(year);
    int64_t first = 0;
    for (int month = 1; month < change.Month; ++month)
        first += LengthOf(month, isLeap);
    // 1 January 1970 was a Thursday.
    const int64_t weekday = ((DayOfYearsBegin(year) + first + 4) % 7 + 7) % 7;
    int64_t day = (change.Number - weekday + 7) % 7 + 7 * (change.Week - 1);
    if (day >= LengthOf(change.Month, isLeap))
        day -= 7;
    return first + day;
}

int64_t DayOf(const Change& change, int64_t year)
{
    switch (change.Kind)
    {
    case Change::Day::OfMonth:
        return WeekdayOf(change, year);
    case Change::Day::WithoutLeapDay:
        return change.Number - 1 + (change.Number >= 60 && IsLeapYear(year) ? 1 : 0);
    default:
        return change.Number;
    }
}

// The moment of a change, UTC; `offset` is what the clocks show before it.
int64_t MomentOf(const Change& change, int64_t year, int offset)
{
    return (DayOfYearsBegin(year) + DayOf(change, year)) * kDay + change.Time - offset;
}

// Takes the parts of a line off its front. Each answers false when the part isn't there.
class CRuleReader
{
public:
    explicit CRuleReader(std::string_view text) : m_text(text) {}

    bool IsAtEnd() const { return m_text.empty(); }
    bool NextIs(char c) const { return !m_text.empty() && m_text.front() == c; }

    bool Skip(char c)
    {
        if (!NextIs(c))
            return false;
        m_text.remove_prefix(1);
        return true;
    }

    // "CET", or "<+03>" for a zone without a word of its own.
    bool SkipName()
    {
        const bool isQuoted = Skip('<');
        size_t length = 0;
        while (length < m_text.size() && IsOfName(m_text[length], isQuoted))
            ++length;
        m_text.remove_prefix(length);
        return length >= 3 && (!isQuoted || Skip('>'));
    }

    bool ReadNumber(int smallest, int largest, int& number)
    {
        int value = 0;
        size_t length = 0;
        for (; length < m_text.size() && length < 3 && IsDigit(m_text[length]); ++length)
            value = value * 10 + (m_text[length] - '0');
        m_text.remove_prefix(length);
        if (length == 0 || value < smallest || value > largest)
            return false;
        number = value;
        return true;
    }

    // "[+-]hh[:mm[:ss]]", in seconds.
    bool ReadTime(int mostHours, int& seconds)
    {
        const bool isNegative = Skip('-');
        if (!isNegative)
            Skip('+');
        int hours = 0;
        int minutes = 0;
        int rest = 0;
        if (!ReadNumber(0, mostHours, hours))
            return false;
        if (Skip(':') && !ReadNumber(0, 59, minutes))
            return false;
        if (Skip(':') && !ReadNumber(0, 59, rest))
            return false;
        const int total = hours * kHour + minutes * 60 + rest;
        seconds = isNegative ? -total : total;
        return true;
    }

    bool ReadChange(Change& change)
    {
        if (!Skip(',') || !ReadDay(change))
            return false;
        return !Skip('/') || ReadTime(kMostTimeHours, change.Time);
    }

private:
    static bool IsOfName(char c, bool isQuoted)
    {
        return IsLetter(c) || (isQuoted && (IsDigit(c) || c == '+' || c == '-'));
    }

    bool ReadDay(Change& change)
    {
        if (Skip('J'))
        {
            change.Kind = Change::Day::WithoutLeapDay;
            return ReadNumber(1, 365, change.Number);
        }
        if (!Skip('M'))
        {
            change.Kind = Change::Day::OfYear;
            return ReadNumber(0, 365, change.Number);
        }
        change.Kind = Change::Day::OfMonth;
        return ReadNumber(1, 12, change.Month) && Skip('.') && ReadNumber(1, 5, change.Week) &&
               Skip('.') && ReadNumber(0, 6, change.Number);
    }

    std::string_view m_text;
};

// What stands behind the standard time.
bool ReadSummer(CRuleReader& reader, Zone& zone)
{
    zone.HasSummer = true;
    zone.Summer = zone.Standard + kHour;
    if (!reader.SkipName())
        return false;
    if (!reader.NextIs(','))
    {
        // Offsets count westward in the line.
        int west = 0;
        if (!reader.ReadTime(kMostOffsetHours, west))
            return false;
        zone.Summer = -west;
    }
    return reader.ReadChange(zone.Begin) && reader.ReadChange(zone.End);
}

} // namespace

bool Parse(std::string_view rules, Zone& zone)
{
    CRuleReader reader(rules);
    Zone found;
    int west = 0;
    if (!reader.SkipName() || !reader.ReadTime(kMostOffsetHours, west))
        return false;
    found.Standard = -west;
    if (!reader.IsAtEnd() && !ReadSummer(reader, found))
        return false;
    if (!reader.IsAtEnd())
        return false;
    zone = found;
    return true;
}

int OffsetAt(const Zone& zone, int64_t utc)
{
    if (!zone.HasSummer || utc < -kFarAway || utc > kFarAway)
        return zone.Standard;
    const int64_t year = YearOf(utc + zone.Standard);
    const int64_t begin = MomentOf(zone.Begin, year, zone.Standard);
    const int64_t end = MomentOf(zone.End, year, zone.Summer);
    const bool isSummer = begin < end ? utc >= begin && utc < end : utc >= begin || utc < end;
    return isSummer ? zone.Summer : zone.Standard;
}

std::string_view FindRules(std::string_view table, std::string_view name)
{
    while (!table.empty())
    {
        const std::string_view line = table.substr(0, table.find('\n'));
        table.remove_prefix(line.size() < table.size() ? line.size() + 1 : line.size());
        if (!name.empty() && line.size() > name.size() && line[name.size()] == ' ' &&
            line.substr(0, name.size()) == name)
            return line.substr(name.size() + 1);
    }
    return {};
}

} // namespace zones
