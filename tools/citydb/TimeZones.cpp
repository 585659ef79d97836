#include "tools/citydb/TimeZones.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Table.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace citydb
{

namespace
{

constexpr uint64_t kFileLimit = 1 << 20;
constexpr double kDegree = 0.017453292519943295;

bool IsDigits(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

} // namespace

double ReadIsoAngle(const std::string& text, size_t degreeDigits)
{
    const std::string digits = text.empty() ? text : text.substr(1);
    const bool hasSign = !text.empty() && (text[0] == '+' || text[0] == '-');
    const size_t rest = digits.size() - std::min(digits.size(), degreeDigits);
    if (!hasSign || !IsDigits(digits) || (rest != 2 && rest != 4))
        throw std::invalid_argument("angle");
    double angle = std::stod(digits.substr(0, degreeDigits));
    angle += std::stod(digits.substr(degreeDigits, 2)) / 60;
    if (rest == 4)
        angle += std::stod(digits.substr(degreeDigits + 2)) / 3600;
    return text[0] == '-' ? -angle : angle;
}

CTimeZones::CTimeZones(const std::filesystem::path& file)
{
    const std::string text = ReadFile(file, kFileLimit);
    CTableLines lines(text);
    while (lines.Next())
    {
        const std::vector<std::string_view>& columns = lines.Columns();
        try
        {
            const std::string where(columns.at(1));
            const size_t middle = where.find_first_of("+-", 1);
            const Point point =
                PointAt(ReadIsoAngle(where.substr(0, middle), 2),
                        ReadIsoAngle(where.substr(std::min(middle, where.size())), 3));
            m_zones[std::string(columns[0])].push_back({std::string(columns.at(2)), point});
        }
        catch (const std::logic_error&)
        {
            throw CInputError(file.string() + ":" + std::to_string(lines.Number()) +
                              ": a country, a position and a zone are expected");
        }
    }
    // Keeps the time of Belgrade and has no entry of its own.
    const auto serbia = m_zones.find("RS");
    if (serbia != m_zones.end())
        m_zones.emplace("XK", serbia->second);
}

std::string CTimeZones::Nearest(const std::string& country, int32_t latitude,
                                int32_t longitude) const
{
    const auto zones = m_zones.find(country);
    if (zones == m_zones.end())
        return {};
    const Point here = PointAt(latitude / 1e6, longitude / 1e6);
    const auto closeness = [&](const Zone& zone)
    { return here[0] * zone.Where[0] + here[1] * zone.Where[1] + here[2] * zone.Where[2]; };
    return std::max_element(zones->second.begin(), zones->second.end(),
                            [&](const Zone& left, const Zone& right)
                            { return closeness(left) < closeness(right); })
        ->Name;
}

CTimeZones::Point CTimeZones::PointAt(double latitude, double longitude)
{
    const double ring = std::cos(latitude * kDegree);
    return {ring * std::cos(longitude * kDegree), ring * std::sin(longitude * kDegree),
            std::sin(latitude * kDegree)};
}

} // namespace citydb
