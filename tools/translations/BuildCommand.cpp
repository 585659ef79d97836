// `translations build`: makes the files that the device reads.
#include "tools/translations/Commands.h"

#include "tools/citydb/Files.h"
#include "tools/translations/Check.h"
#include "tools/translations/DeviceFile.h"

#include <algorithm>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace translations
{

namespace
{

constexpr const char* kDeviceFile = "TavLumenar.txt";

struct BuildArguments
{
    std::vector<std::string> Files;
    std::string Out;
};

// Whether the file could be made.
bool Build(const std::filesystem::path& file, const std::filesystem::path& folder,
           std::ostream& out)
{
    const Catalog catalog = ReadCatalog(file);
    const std::vector<std::string> faults = EntryFaults(catalog);
    for (const std::string& fault : faults)
        out << fault << '\n';
    if (!faults.empty())
        return false;
    const std::filesystem::path target = folder / file.stem() / kDeviceFile;
    std::filesystem::create_directories(target.parent_path());
    citydb::WriteFile(target, MakeDeviceFile(catalog));
    const auto count = std::count_if(catalog.Entries.begin(), catalog.Entries.end(),
                                     [](const Entry& entry) { return !entry.Translation.empty(); });
    out << target.string() << ": " << count << " texts in " << catalog.Encoding << '\n';
    return true;
}

int RunBuild(const BuildArguments& arguments, std::ostream& out)
{
    bool good = true;
    for (const std::string& name : arguments.Files)
    {
        const std::filesystem::path file = name;
        const std::filesystem::path folder = arguments.Out;
        good &= Build(file, arguments.Out.empty() ? file.parent_path() : folder, out);
    }
    return good ? 0 : 1;
}

} // namespace

void AddBuildCommand(CLI::App& app, std::ostream& out, Command& chosen)
{
    CLI::App* command = app.add_subcommand(
        "build", "make CODE/TavLumenar.txt of every CODE.po; untranslated texts stay English");
    const auto arguments = std::make_shared<BuildArguments>();
    command->add_option("files", arguments->Files, "translations")
        ->required()
        ->option_text("CODE.po ...");
    command->add_option("--out", arguments->Out, "the folder to write to (default: the file's own)")
        ->option_text("FOLDER");
    command->callback([arguments, &out, &chosen]
                      { chosen = [arguments, &out] { return RunBuild(*arguments, out); }; });
}

} // namespace translations
