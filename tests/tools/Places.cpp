#include "tests/tools/Places.h"

std::string Line(const Place& place)
{
    return place.Identifier + "\t" + place.Name + "\t\t\t" + place.Latitude + "\t" +
           place.Longitude + "\tP\tPPL\t" + place.Country + "\t\t" + place.Region1 + "\t" +
           place.Region2 + "\t\t\t" + place.Population + "\t\t\t" + place.TimeZone +
           "\t2024-01-01\n";
}

std::string Object(const Place& place)
{
    return R"({"name":")" + place.Name + R"(","lat":")" + place.Latitude + R"(","lng":")" +
           place.Longitude + R"(","country":")" + place.Country + R"(","admin1":")" +
           place.Region1 + R"(","admin2":")" + place.Region2 + "\"}";
}

std::string Table(const std::vector<Place>& places)
{
    std::string text;
    for (const Place& place : places)
        text += Line(place);
    return text;
}

std::string Array(const std::vector<Place>& places)
{
    std::string text = "[";
    for (const Place& place : places)
        text += (text.size() > 1 ? ",\n" : "") + Object(place);
    return text + "]";
}
