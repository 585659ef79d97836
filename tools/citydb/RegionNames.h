// The names of first- and second-level regions by the sources' codes: "CH.ZH", "CH.ZH.112".
#pragma once

#include "platform/Char16.h"

#include <filesystem>
#include <string>
#include <unordered_map>

namespace citydb
{

class CRegionNames
{
public:
    // Adds the names of a file: a JSON array of objects with "code" and "name", or a table whose
    // first two tab-separated columns are these. Throws CInputError, naming the line or the row.
    void Load(const std::filesystem::path& file);

    // Null when the code has no name.
    const String16* Find(const std::string& code) const;

private:
    void LoadJson(const std::filesystem::path& file, const std::string& text);
    void LoadTable(const std::filesystem::path& file, const std::string& text);
    void Add(const std::string& code, const std::string& name, const std::string& place);

    std::unordered_map<std::string, String16> m_names;
};

} // namespace citydb
