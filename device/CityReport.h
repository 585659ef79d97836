// Puts a city's record into words: what `./run --dialog select-city` prints, and what the home
// screen says about the city. Texts made from values, nothing else.
#pragma once

#include "platform/Win.h"

#include <optional>
#include <string>

#include "include/TavLumenarCityDetails.h"
#include "include/TavLumenarDialogs.h"

namespace report
{

// The record's details; nothing when it has none, or has some of a layout that isn't known here.
std::optional<CITYDETAILS> DetailsOf(const CITYINFO& city);

// The zone's name in the details; empty when it is unknown.
std::wstring TimeZoneOf(const CITYDETAILS& details);

// "Lisbon, PT"; the name alone when the record doesn't say the country, empty without a city.
std::wstring CityPlace(const CITYINFO& city);

// The record's fields, one line each, the details decoded as include/TavLumenarCityDetails.h says.
// Each line begins with two blanks and ends with a line feed. Any 244 bytes can be described.
std::wstring CityInWords(const CITYINFO& city);

// What became of the record that was passed to SelectCity: `before` as it was, `after` as it is
// now. Lines that end with a line feed.
std::wstring DescribeSelection(const CITYINFO& before, const CITYINFO& after, bool confirmed);

} // namespace report
