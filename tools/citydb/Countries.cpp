#include "tools/citydb/Countries.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"

#include <nlohmann/json.hpp>

namespace citydb
{

namespace
{

constexpr uint64_t kFileLimit = 16 << 20;

} // namespace

CCountries::CCountries(const std::filesystem::path& file)
{
    const std::string text = ReadFile(file, kFileLimit);
    try
    {
        const nlohmann::json table = nlohmann::json::parse(text);
        for (const nlohmann::json& country : table.at("3166-1"))
        {
            const std::string name = country.at("name");
            m_names[country.at("alpha_2")] = country.value("common_name", name);
        }
    }
    catch (const nlohmann::json::exception& error)
    {
        throw CInputError(file.string() + ": is no table of countries: " + error.what());
    }
    // In use for years, but not assigned by the standard.
    m_names.emplace("XK", "Kosovo");
}

const std::string* CCountries::Find(const std::string& code) const
{
    const auto found = m_names.find(code);
    return found == m_names.end() ? nullptr : &found->second;
}

} // namespace citydb
