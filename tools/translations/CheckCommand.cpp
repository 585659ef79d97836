// `translations check`: says what is missing or wrong in translations, and where.
#include "tools/translations/Commands.h"

#include "tools/translations/Check.h"

#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace translations
{

namespace
{

struct CheckArguments
{
    std::vector<std::string> Files;
    std::string Pattern;
};

bool Check(const std::string& file, const Catalog& pattern, std::ostream& out)
{
    const Catalog catalog = ReadCatalog(file);
    std::vector<std::string> faults = EntryFaults(catalog);
    const std::vector<std::string> coverage = CoverageFaults(catalog, pattern);
    faults.insert(faults.end(), coverage.begin(), coverage.end());
    for (const std::string& fault : faults)
        out << fault << '\n';
    if (faults.empty())
        out << file << ": good: " << catalog.Entries.size() << " texts\n";
    return faults.empty();
}

int RunCheck(const CheckArguments& arguments, std::ostream& out)
{
    const Catalog pattern = ReadCatalog(arguments.Pattern);
    bool good = true;
    for (const std::string& file : arguments.Files)
        good &= Check(file, pattern, out);
    return good ? 0 : 1;
}

} // namespace

void AddCheckCommand(CLI::App& app, std::ostream& out, Command& chosen)
{
    CLI::App* command = app.add_subcommand(
        "check", "find missing and unused translations, differing placeholders and the like");
    const auto arguments = std::make_shared<CheckArguments>();
    command->add_option("--template", arguments->Pattern, "every text that a language needs")
        ->required()
        ->option_text("FILE.pot");
    command->add_option("files", arguments->Files, "translations")
        ->required()
        ->option_text("CODE.po ...");
    command->callback([arguments, &out, &chosen]
                      { chosen = [arguments, &out] { return RunCheck(*arguments, out); }; });
}

} // namespace translations
