// `citydb check`: verifies a database of any form.
#include "tools/citydb/Commands.h"

#include "tools/citydb/Archive.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/ImageCheck.h"

#include <algorithm>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace citydb
{

namespace
{

constexpr size_t kFaultsShown = 20;

struct CheckArguments
{
    std::string File;
    bool Verbose = false;
};

void PrintFaults(const CheckArguments& arguments, const CheckResult& result, std::ostream& out)
{
    const size_t known = result.Faults.size();
    const size_t shown = arguments.Verbose ? known : std::min(known, kFaultsShown);
    for (size_t i = 0; i < shown; ++i)
        out << arguments.File << ": " << result.Faults[i] << '\n';
    if (shown < result.FaultCount)
        out << "... and " << result.FaultCount - shown << " more\n";
}

int RunCheck(const CheckArguments& arguments, Console& console)
{
    const CLoadedImage image = ReadArchive(PathOf(arguments.File));
    const CheckResult result = CheckImage(image.Data(), image.Size());
    PrintFaults(arguments, result, console.Out);
    if (result.FaultCount > 0)
        return 1;
    console.Out << arguments.File << ": good: " << result.Counts[3] << " cities, "
                << result.Counts[0] << " areas, " << result.Counts[1] << " subareas, "
                << result.Counts[2] << " details\n";
    if (result.LongNames > 0)
        console.Out << "  " << result.LongNames << " names that a host's record cuts\n";
    if (!result.NamesInOrder)
        console.Out << "  the names don't lie in the order of the cities: searching is slower\n";
    return 0;
}

} // namespace

void AddCheckCommand(CLI::App& app, Console& console, Command& chosen)
{
    CLI::App* command =
        app.add_subcommand("check", "verify a database and say precisely what is wrong and where");
    const auto arguments = std::make_shared<CheckArguments>();
    command->add_option("file", arguments->File, "an image, a zip archive or a folder")
        ->required()
        ->option_text("FILE");
    command->add_flag("--verbose", arguments->Verbose, "print all faults, not just the first 20");
    command->callback(
        [arguments, &console, &chosen]
        { chosen = [arguments, &console] { return RunCheck(*arguments, console); }; });
}

} // namespace citydb
