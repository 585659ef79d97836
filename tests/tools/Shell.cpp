#include "tests/tools/Shell.h"

#include <cstdio>

#include <sys/wait.h>

ToolRun RunShell(const std::string& command)
{
    FILE* pipe = popen(("{ " + command + "; } 2>&1").c_str(), "r");
    if (pipe == nullptr)
        return {-1, {}, {}};
    std::string out;
    char block[4096];
    for (size_t got = fread(block, 1, sizeof(block), pipe); got > 0;
         got = fread(block, 1, sizeof(block), pipe))
        out.append(block, got);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, out, {}};
}
