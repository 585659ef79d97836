#include "tools/translations/Commands.h"

#include "tools/citydb/Errors.h"

#include <filesystem>
#include <new>
#include <ostream>

#include <CLI/CLI.hpp>

namespace translations
{

namespace
{

constexpr int kBadInput = 1;
constexpr int kBadUsage = 2;

} // namespace

int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& err)
{
    CLI::App app("Collects the texts to translate, and makes and checks translation files.",
                 "translations");
    app.require_subcommand(1);
    Command chosen;
    AddExtractCommand(app, out, chosen);
    AddBuildCommand(app, out, chosen);
    AddCheckCommand(app, out, chosen);
    AddPseudoCommand(app, out, chosen);
    try
    {
        app.parse(argc, argv);
        const int code = chosen();
        if (!out.flush())
            throw citydb::CInputError("the output can't be written");
        return code;
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error, out, err) == 0 ? 0 : kBadUsage;
    }
    catch (const citydb::CInputError& error)
    {
        err << "translations: " << error.what() << '\n';
    }
    catch (const std::filesystem::filesystem_error& error)
    {
        err << "translations: " << error.what() << '\n';
    }
    catch (const std::bad_alloc&)
    {
        err << "translations: the memory doesn't suffice\n";
    }
    return kBadInput;
}

} // namespace translations
