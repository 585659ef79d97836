// The program's commands. Each adds itself to the command line and, when it is chosen, runs and
// gives the exit code: 0 for good, 1 for bad input; they throw citydb::CInputError.
#pragma once

#include <functional>
#include <iosfwd>

namespace CLI
{
class App;
}

namespace translations
{

using Command = std::function<int()>;

// Each sets `chosen` when the command line asks for it and prints to `out`, which outlives it.
void AddExtractCommand(CLI::App& app, std::ostream& out, Command& chosen);
void AddBuildCommand(CLI::App& app, std::ostream& out, Command& chosen);
void AddCheckCommand(CLI::App& app, std::ostream& out, Command& chosen);
void AddPseudoCommand(CLI::App& app, std::ostream& out, Command& chosen);

// The whole program; returns the exit code, 2 for a command line that can't be obeyed.
int RunProgram(int argc, const char* const* argv, std::ostream& out, std::ostream& err);

} // namespace translations
