// `citydb list`: searches as the dialog does, with the dialog's own code.
#include "tools/citydb/Commands.h"

#include "dialogs/city/CitySearch.h"
#include "tools/citydb/Database.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <ostream>

#include <CLI/CLI.hpp>

namespace citydb
{

namespace
{

// As many characters the dialog reads from its edit.
constexpr size_t kSearchUnits = 31;

struct ListArguments
{
    std::string File;
    std::string Text;
    uint32_t Limit = std::numeric_limits<uint32_t>::max();
};

void List(const ListArguments& arguments, const String16& text, Console& console)
{
    const CDatabase database(PathOf(arguments.File));
    CCitySearch search(FoldTable());
    search.Attach(database.Image());
    const uint32_t found = search.Search(text, true, 0);
    for (uint32_t i = 0; i < std::min(found, arguments.Limit); ++i)
    {
        const CityRecord city = database.Image().City(search.At(i));
        console.Out << city.Identifier << '\t' << database.NameOf(city) << '\t'
                    << database.AreaOf(city) << '\n';
    }
    console.Err << found << " of " << search.CityCount() << " cities\n";
}

int RunList(const ListArguments& arguments, Console& console)
{
    const std::optional<String16> text = ToUtf16(arguments.Text);
    if (!text)
        throw CUsageError("the text is no valid UTF-8");
    GuardBrokenImage(arguments.File,
                     [&] { List(arguments, Fold(text->substr(0, kSearchUnits)), console); });
    return 0;
}

} // namespace

void AddListCommand(CLI::App& app, Console& console, Command& chosen)
{
    CLI::App* command = app.add_subcommand(
        "list", "print the cities whose names contain a text, as the dialog finds them");
    const auto arguments = std::make_shared<ListArguments>();
    command->add_option("file", arguments->File, "an image, a zip archive or a folder")
        ->required()
        ->option_text("FILE");
    command
        ->add_option("text", arguments->Text, "what to look for; without it all cities are listed")
        ->option_text("TEXT");
    command->add_option("--limit", arguments->Limit, "print no more than so many cities");
    command->footer(
        "Each line holds the identifier, the name and the area, with tabs between them.");
    command->callback([arguments, &console, &chosen]
                      { chosen = [arguments, &console] { return RunList(*arguments, console); }; });
}

} // namespace citydb
