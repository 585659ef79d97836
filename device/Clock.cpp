#include "device/Clock.h"

#include "platform/Win.h"

namespace clockwork
{
namespace
{

bool g_frozen = false;

SYSTEMTIME Now()
{
    SYSTEMTIME now = {};
    if (!g_frozen)
    {
        GetLocalTime(&now);
        return now;
    }
    now.wYear = 2006;
    now.wMonth = 6;
    now.wDay = 12;
    now.wDayOfWeek = 1;
    now.wHour = 10;
    now.wMinute = 8;
    return now;
}

} // namespace

void Freeze()
{
    g_frozen = true;
}

std::wstring TimeText()
{
    const SYSTEMTIME now = Now();
    wchar_t text[64];
    const int length = GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS, &now, nullptr, text, 64);
    return length > 0 ? std::wstring(text) : std::wstring();
}

std::wstring DateText()
{
    const SYSTEMTIME now = Now();
    wchar_t text[128];
    const int length = GetDateFormatW(LOCALE_USER_DEFAULT, 0, &now, L"dddd, d MMMM", text, 128);
    return length > 0 ? std::wstring(text) : std::wstring();
}

} // namespace clockwork
