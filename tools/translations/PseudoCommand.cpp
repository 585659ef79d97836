// `translations pseudo`: makes the pseudo-language out of the template.
#include "tools/translations/Commands.h"

#include "tools/translations/Catalog.h"
#include "tools/translations/Check.h"
#include "tools/translations/Pseudo.h"

#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace translations
{

namespace
{

// A private variant of English, as language codes write it.
constexpr const char* kLanguage = "en@pseudo";

struct PseudoArguments
{
    std::string Pattern;
    std::string Out;
};

int RunPseudo(const PseudoArguments& arguments, std::ostream& out)
{
    std::vector<Entry> entries = ReadCatalog(arguments.Pattern).Entries;
    for (Entry& entry : entries)
        if (!IsSwitch(entry.English))
            entry.Translation = PseudoText(entry.English);
    WriteCatalog(arguments.Out, kLanguage, entries);
    out << arguments.Out << ": " << entries.size() << " texts\n";
    return 0;
}

} // namespace

void AddPseudoCommand(CLI::App& app, std::ostream& out, Command& chosen)
{
    CLI::App* command = app.add_subcommand(
        "pseudo", "make a language of accented, longer texts in brackets, for tests");
    const auto arguments = std::make_shared<PseudoArguments>();
    command->add_option("template", arguments->Pattern, "every text that a language needs")
        ->required()
        ->option_text("FILE.pot");
    command->add_option("--out", arguments->Out, "the translation to write")
        ->required()
        ->option_text("CODE.po");
    command->callback([arguments, &out, &chosen]
                      { chosen = [arguments, &out] { return RunPseudo(*arguments, out); }; });
}

} // namespace translations
