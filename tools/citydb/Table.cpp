#include "tools/citydb/Table.h"

namespace citydb
{

bool CTableLines::Next()
{
    while (!m_rest.empty())
    {
        std::string_view line = TakeLine();
        if (line.empty() || line[0] == '#')
            continue;
        m_columns.clear();
        for (size_t tab = line.find('\t'); tab != std::string_view::npos; tab = line.find('\t'))
        {
            m_columns.push_back(line.substr(0, tab));
            line.remove_prefix(tab + 1);
        }
        m_columns.push_back(line);
        return true;
    }
    return false;
}

std::string_view CTableLines::TakeLine()
{
    const size_t end = m_rest.find('\n');
    std::string_view line = m_rest.substr(0, end);
    m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
    ++m_number;
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

bool LooksLikeJson(std::string_view text)
{
    const size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && (text[first] == '[' || text[first] == '{');
}

} // namespace citydb
