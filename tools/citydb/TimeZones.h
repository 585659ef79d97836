// Guesses the time zone of places whose source doesn't tell it.
#pragma once

#include "tools/citydb/CityRow.h"

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace citydb
{

// The zones of each country with the position of their principal place.
class CTimeZones
{
public:
    // Reads the tz database's zone.tab. Throws CInputError, naming the line.
    explicit CTimeZones(const std::filesystem::path& file);

    // The zone of the country whose principal place lies nearest on the globe; empty when the
    // country has none. An approximation: zones have no straight borders.
    std::string Nearest(const std::string& country, int32_t latitude, int32_t longitude) const;

private:
    // A point on the unit sphere: the nearest one has the largest dot product.
    using Point = std::array<double, 3>;
    struct Zone
    {
        std::string Name;
        Point Where;
    };

    static Point PointAt(double latitude, double longitude);

    std::map<std::string, std::vector<Zone>> m_zones;
};

// Reads one of the two halves of "+513030-0000731": sign, degrees of `degreeDigits` digits, minutes
// and maybe seconds. Returns degrees; throws std::invalid_argument.
double ReadIsoAngle(const std::string& text, size_t degreeDigits);

} // namespace citydb
