#include "tools/citydb/Commands.h"

#include "tools/citydb/Errors.h"

#include <filesystem>
#include <new>
#include <ostream>

#include <CLI/CLI.hpp>

namespace citydb
{

namespace
{

constexpr int kBadInput = 1;
constexpr int kBadUsage = 2;

} // namespace

int RunProgram(int argc, const char* const* argv, Console& console)
{
    CLI::App app("Builds, checks and searches the city database of the dialogs.", "citydb");
    app.require_subcommand(1);
    // A leading slash begins a path on every system.
    app.allow_windows_style_options(false);
    Command chosen;
    AddBuildCommand(app, console, chosen);
    AddCheckCommand(app, console, chosen);
    AddListCommand(app, console, chosen);
    AddShowCommand(app, console, chosen);
    try
    {
        app.parse(argc, argv);
        const int code = chosen();
        if (!console.Out.flush())
            throw CInputError("the output can't be written");
        return code;
    }
    catch (const CLI::ParseError& error)
    {
        return app.exit(error, console.Out, console.Err) == 0 ? 0 : kBadUsage;
    }
    catch (const CUsageError& error)
    {
        console.Err << "citydb: " << error.what() << '\n';
        return kBadUsage;
    }
    catch (const CInputError& error)
    {
        console.Err << "citydb: " << error.what() << '\n';
        return kBadInput;
    }
    catch (const std::filesystem::filesystem_error& error)
    {
        console.Err << "citydb: " << error.what() << '\n';
        return kBadInput;
    }
    catch (const std::bad_alloc&)
    {
        console.Err << "citydb: the memory doesn't suffice\n";
        return kBadInput;
    }
}

} // namespace citydb
