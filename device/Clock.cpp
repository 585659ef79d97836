#include "device/Clock.h"

#include "platform/Win.h"

namespace clockwork
{
namespace
{

bool g_frozen = false;

// The fixed morning's device is an hour east of UTC.
constexpr int kFrozenSecondsEast = 3600;
// File times count from 1601 in units of 100 nanoseconds.
constexpr int64_t kFileTimeOf1970 = 116444736000000000;
constexpr int64_t kUnitsPerSecond = 10000000;

SYSTEMTIME FrozenNow()
{
    SYSTEMTIME now = {};
    now.wYear = 2006;
    now.wMonth = 6;
    now.wDay = 12;
    now.wDayOfWeek = 1;
    now.wHour = 10;
    now.wMinute = 8;
    return now;
}

SYSTEMTIME Now()
{
    if (g_frozen)
        return FrozenNow();
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    return now;
}

int64_t ToSeconds(const FILETIME& time)
{
    ULARGE_INTEGER units;
    units.LowPart = time.dwLowDateTime;
    units.HighPart = time.dwHighDateTime;
    return (static_cast<int64_t>(units.QuadPart) - kFileTimeOf1970) / kUnitsPerSecond;
}

SYSTEMTIME ToSystemTime(int64_t seconds)
{
    ULARGE_INTEGER units;
    units.QuadPart = static_cast<ULONGLONG>(seconds * kUnitsPerSecond + kFileTimeOf1970);
    const FILETIME time = {units.LowPart, units.HighPart};
    SYSTEMTIME parts = {};
    FileTimeToSystemTime(&time, &parts);
    return parts;
}

std::wstring TimeTextOf(const SYSTEMTIME& time)
{
    wchar_t text[64];
    const int length =
        GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &time, nullptr, text, 64);
    return length > 0 ? std::wstring(text) : std::wstring();
}

std::wstring DateTextOf(const SYSTEMTIME& date, const wchar_t* format)
{
    wchar_t text[128];
    const int length = GetDateFormatW(LOCALE_USER_DEFAULT, 0, &date, format, text, 128);
    return length > 0 ? std::wstring(text) : std::wstring();
}

} // namespace

void Freeze()
{
    g_frozen = true;
}

std::wstring TimeText()
{
    return TimeTextOf(Now());
}

std::wstring TimeTextAt(int secondsEast)
{
    const SYSTEMTIME there = ToSystemTime(UtcSeconds() + secondsEast);
    const std::wstring time = TimeTextOf(there);
    return there.wDay == Now().wDay ? time : DateTextOf(there, L"ddd") + L" " + time;
}

std::wstring DateText()
{
    return DateTextOf(Now(), L"dddd, d MMMM");
}

int64_t UtcSeconds()
{
    FILETIME time = {};
    GetSystemTimeAsFileTime(&time);
    if (!g_frozen)
        return ToSeconds(time);
    const SYSTEMTIME frozen = FrozenNow();
    SystemTimeToFileTime(&frozen, &time);
    return ToSeconds(time) - kFrozenSecondsEast;
}

} // namespace clockwork
