#include "tests/tools/Tool.h"

#include "tools/citydb/Commands.h"

#include <sstream>

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

std::string SourcePath(const std::string& name)
{
    return std::string(TAV_SOURCE_DIR) + "/" + name;
}

std::string ToolPath()
{
    return TAV_CITYDB;
}
