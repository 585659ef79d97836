// Runs programs as a person would in a terminal.
#pragma once

#include <string>

struct ToolRun
{
    int Code;
    std::string Out;
    std::string Err; // together with Out when a program was run
};

// Runs a shell command and waits for its end.
ToolRun RunShell(const std::string& command);
