#include "tools/citydb/RegionNames.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/Table.h"
#include "tools/citydb/Text.h"

#include <nlohmann/json.hpp>

namespace citydb
{

namespace
{

constexpr uint64_t kFileLimit = 64 << 20;

} // namespace

void CRegionNames::Load(const std::filesystem::path& file)
{
    const std::string text = ReadFile(file, kFileLimit);
    if (LooksLikeJson(text))
        LoadJson(file, text);
    else
        LoadTable(file, text);
}

const String16* CRegionNames::Find(const std::string& code) const
{
    const auto found = m_names.find(code);
    return found == m_names.end() ? nullptr : &found->second;
}

void CRegionNames::LoadJson(const std::filesystem::path& file, const std::string& text)
{
    size_t row = 0;
    try
    {
        for (const nlohmann::json& region : nlohmann::json::parse(text))
        {
            ++row;
            Add(region.at("code"), region.at("name"),
                file.string() + ": row " + std::to_string(row));
        }
    }
    catch (const nlohmann::json::exception& error)
    {
        throw CInputError(file.string() + ": behind row " + std::to_string(row) + ": " +
                          error.what());
    }
}

void CRegionNames::LoadTable(const std::filesystem::path& file, const std::string& text)
{
    CTableLines lines(text);
    while (lines.Next())
    {
        const std::string place = file.string() + ":" + std::to_string(lines.Number());
        const std::vector<std::string_view>& columns = lines.Columns();
        if (columns.size() < 2)
            throw CInputError(place + ": a code and a name are expected");
        Add(std::string(columns[0]), std::string(columns[1]), place);
    }
}

void CRegionNames::Add(const std::string& code, const std::string& name, const std::string& place)
{
    const std::optional<String16> text = ToUtf16(name);
    if (!text || text->find(u'\0') != String16::npos)
        throw CInputError(place + ": the region's name is no valid UTF-8 text");
    if (!text->empty())
        m_names[code] = *text;
}

} // namespace citydb
