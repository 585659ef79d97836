#include "tests/tools/Tool.h"

#include "tools/citydb/Commands.h"

#include <cstdio>
#include <sstream>

#include <sys/wait.h>

ToolRun RunTool(const std::vector<std::string>& arguments)
{
    std::vector<const char*> argv = {"citydb"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    citydb::Console console{out, err, -1};
    const int code = citydb::RunProgram(static_cast<int>(argv.size()), argv.data(), console);
    return {code, out.str(), err.str()};
}

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

std::string SourcePath(const std::string& name)
{
    return std::string(TAV_SOURCE_DIR) + "/" + name;
}

std::string ToolPath()
{
    return TAV_CITYDB;
}
