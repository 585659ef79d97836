// Whether the tests have the time to be thorough: ./test --long.
#pragma once

#include <cstdlib>

inline bool IsLongRun()
{
    const char* const isLong = std::getenv("TAV_LONG");
    return isLong && *isLong;
}
