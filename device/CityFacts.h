// What the home screen tells about the chosen city: its name, its time and where it lies.
#pragma once

#include <optional>
#include <string>

#include "include/TavLumenarDialogs.h"

struct CityFacts
{
    // "Lisbon, PT"; empty when no city was chosen.
    std::wstring Place;
    // How far its clocks are east of UTC now; nothing when its time zone is unknown.
    std::optional<int> SecondsEast;
    // "38.72° N, 9.14° W"; empty when unknown or not on the globe.
    std::wstring Position;
};

// The facts of a record at a time in seconds since 1970 began, UTC. A record without details, or
// with details of a layout that isn't known here, gives its name alone.
CityFacts FactsOf(const CITYINFO& city, int64_t utc);
