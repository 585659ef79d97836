// The countries' names by their codes, from Debian's iso-codes.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace citydb
{

class CCountries
{
public:
    // Reads the ISO 3166-1 table of iso-codes and adds the codes that sources use beyond it. Throws
    // CInputError.
    explicit CCountries(const std::filesystem::path& file);

    // The name in UTF-8, the common one where there is one; null for an unknown code.
    const std::string* Find(const std::string& code) const;

private:
    std::map<std::string, std::string> m_names;
};

} // namespace citydb
