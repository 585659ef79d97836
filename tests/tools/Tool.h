// Runs citydb's commands: in the test's own process, or as a program.
#pragma once

#include <string>
#include <vector>

struct ToolRun
{
    int Code;
    std::string Out;
    std::string Err; // together with Out when a program was run
};

// Calls the program's code with these arguments.
ToolRun RunTool(const std::vector<std::string>& arguments);

// Runs a shell command and waits for its end.
ToolRun RunShell(const std::string& command);

// Where the project's sources are.
std::string SourcePath(const std::string& name);
// The built program.
std::string ToolPath();
