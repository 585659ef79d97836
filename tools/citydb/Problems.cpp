#include "tools/citydb/Problems.h"

#include "tools/citydb/Files.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <ostream>
#include <sstream>

namespace citydb
{

namespace
{

const char* Heading(size_t kind)
{
    return kind == CProblems::RowLeftOut ? "rows left out" : "names that a host's record cuts";
}

} // namespace

std::string Describe(const SourcePlace& place)
{
    std::string text = std::string(place.File) + ":" + std::to_string(place.Line);
    if (place.Row != 0)
        text += ": row " + std::to_string(place.Row);
    return text;
}

void CProblems::Add(Kind kind, const SourcePlace& place, const std::string& what)
{
    m_lines[kind].push_back(Describe(place) + ": " + what);
}

void CProblems::Print(std::ostream& out, size_t limit) const
{
    for (size_t kind = 0; kind < m_lines.size(); ++kind)
    {
        const std::vector<std::string>& lines = m_lines[kind];
        if (lines.empty())
            continue;
        out << Heading(kind) << ": " << lines.size() << '\n';
        const size_t shown = std::min(limit, lines.size());
        for (size_t i = 0; i < shown; ++i)
            out << "  " << lines[i] << '\n';
        if (shown > 0 && shown < lines.size())
            out << "  ... and " << lines.size() - shown << " more\n";
    }
}

void CProblems::WriteReport(const std::filesystem::path& path) const
{
    std::ostringstream text;
    Print(text, std::numeric_limits<size_t>::max());
    const std::string bytes = text.str();
    WriteFile(path, std::vector<uint8_t>(bytes.begin(), bytes.end()));
}

} // namespace citydb
