// Runs citydb's commands: in the test's own process, or as a program.
#pragma once

#include "tests/tools/Shell.h"

#include <string>
#include <vector>

// Calls the program's code with these arguments.
ToolRun RunTool(const std::vector<std::string>& arguments);

// Where the project's sources are.
std::string SourcePath(const std::string& name);
// The built program.
std::string ToolPath();
