// `translations extract`: writes the template, every text that a language needs.
#include "tools/translations/Commands.h"

#include "tools/translations/Catalog.h"

#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace translations
{

namespace
{

struct ExtractArguments
{
    std::string Folder = ".";
    std::string Out;
};

int RunExtract(const ExtractArguments& arguments, std::ostream& out)
{
    const std::vector<SourceText> texts = ExtractTexts(arguments.Folder);
    const std::vector<Entry> entries = MergeTexts(texts);
    WriteCatalog(arguments.Out, "", entries);
    out << arguments.Out << ": " << entries.size() << " texts, shown in " << texts.size()
        << " places\n";
    return 0;
}

} // namespace

void AddExtractCommand(CLI::App& app, std::ostream& out, Command& chosen)
{
    CLI::App* command =
        app.add_subcommand("extract", "collect the texts of the resources and the code");
    const auto arguments = std::make_shared<ExtractArguments>();
    command->add_option("--source", arguments->Folder, "the project's folder (default: this one)")
        ->option_text("FOLDER");
    command->add_option("--out", arguments->Out, "the template to write")
        ->required()
        ->option_text("FILE.pot");
    command->callback([arguments, &out, &chosen]
                      { chosen = [arguments, &out] { return RunExtract(*arguments, out); }; });
}

} // namespace translations
