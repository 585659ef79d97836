#include "tests/tools/TempFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

CTempFolder::CTempFolder()
{
    std::string name = (std::filesystem::temp_directory_path() / "citydb-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no folder for the test");
    m_path = name;
}

CTempFolder::~CTempFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string CTempFolder::Write(const std::string& name, const std::string& content) const
{
    std::ofstream(m_path / name, std::ios::binary) << content;
    return File(name);
}

std::string Slurp(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}
