// The program's commands. Each adds itself to the command line and, when it is chosen, runs and
// gives the exit code: 0 for good, 1 for bad input; they throw CInputError and CUsageError.
#pragma once

#include <functional>
#include <iosfwd>

namespace CLI
{
class App;
}

namespace citydb
{

// What a command talks to.
struct Console
{
    std::ostream& Out;
    std::ostream& Err;
    int ErrFile; // descriptor behind Err, for the progress bar
};

using Command = std::function<int()>;

// Each sets `chosen` when the command line asks for it. The console outlives the command.
void AddBuildCommand(CLI::App& app, Console& console, Command& chosen);
void AddCheckCommand(CLI::App& app, Console& console, Command& chosen);
void AddListCommand(CLI::App& app, Console& console, Command& chosen);
void AddShowCommand(CLI::App& app, Console& console, Command& chosen);

// The whole program; returns the exit code.
int RunProgram(int argc, const char* const* argv, Console& console);

} // namespace citydb
