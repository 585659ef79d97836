// `citydb show`: prints one city's records decoded.
#include "tools/citydb/Commands.h"

#include "tools/citydb/Database.h"
#include "tools/citydb/Details.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace citydb
{

namespace
{

struct ShowArguments
{
    std::string File;
    uint32_t Identifier = 0;
};

std::string Degrees(int32_t millionths)
{
    char text[16];
    const long long magnitude = millionths < 0 ? -static_cast<long long>(millionths) : millionths;
    std::snprintf(text, sizeof(text), "%s%lld.%06lld", millionths < 0 ? "-" : "",
                  magnitude / 1000000, magnitude % 1000000);
    return text;
}

template <size_t Count>
std::string PaddedText(const uint16_t (&units)[Count])
{
    const uint16_t* end = std::find(units, units + Count, uint16_t{0});
    return ToUtf8(String16(units, end));
}

void PrintDetails(const uint8_t* bytes, std::ostream& out)
{
    const CITYDETAILS details = UnpackDetails(bytes);
    out << "  details version  " << details.version << '\n';
    if (details.version != TAVLUMENAR_CITY_DETAILS_VERSION)
        return;
    const uint32_t people = details.population;
    out << "  latitude         " << Degrees(details.latitude) << '\n'
        << "  longitude        " << Degrees(details.longitude) << '\n'
        << "  population       "
        << (people == TAVLUMENAR_CITY_POPULATION_UNKNOWN ? "unknown" : std::to_string(people))
        << '\n'
        << "  country          " << PaddedText(details.country) << '\n'
        << "  time zone        " << PaddedText(details.timeZone) << '\n';
}

void PrintCity(const CDatabase& database, uint32_t record, std::ostream& out)
{
    const CityRecord city = database.Image().City(record);
    out << "record " << record << '\n'
        << "  identifier       " << city.Identifier << '\n'
        << "  name             " << database.NameOf(city) << '\n'
        << "  area             " << database.AreaOf(city) << '\n';
    if (city.Details == kNoCityRecord)
        out << "  details          none\n";
    else
        PrintDetails(database.Image().DetailsOf(city.Details), out);
}

void Show(const ShowArguments& arguments, Console& console)
{
    const CDatabase database(PathOf(arguments.File));
    const uint32_t count = database.Image().CityCount();
    bool isFound = false;
    for (uint32_t record = 0; record < count; ++record)
    {
        if (database.Image().City(record).Identifier != arguments.Identifier)
            continue;
        PrintCity(database, record, console.Out);
        isFound = true;
    }
    if (!isFound)
        throw CInputError(arguments.File + ": has no city " + std::to_string(arguments.Identifier));
}

} // namespace

void AddShowCommand(CLI::App& app, Console& console, Command& chosen)
{
    CLI::App* command = app.add_subcommand("show", "print the records of one city decoded");
    const auto arguments = std::make_shared<ShowArguments>();
    command->add_option("file", arguments->File, "an image, a zip archive or a folder")
        ->required()
        ->option_text("FILE");
    command->add_option("id", arguments->Identifier, "the city's identifier, as list prints it")
        ->required()
        ->option_text("ID");
    command->callback(
        [arguments, &console, &chosen]
        {
            chosen = [arguments, &console]
            {
                GuardBrokenImage(arguments->File, [&] { Show(*arguments, console); });
                return 0;
            };
        });
}

} // namespace citydb
