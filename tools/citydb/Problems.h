// What the builder has to tell about single rows of its sources: rows that it leaves out, and names
// that a host gets cut.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace citydb
{

// Where a row stands in its source.
struct SourcePlace
{
    std::string_view File; // must outlive the place
    size_t Line = 0;       // from 1
    size_t Row = 0;        // from 1; 0 in a table, where the line says it all
};

// "cities.json:1: row 17"
std::string Describe(const SourcePlace& place);

class CProblems
{
public:
    enum Kind
    {
        RowLeftOut,
        LongName,
        KindCount
    };

    void Add(Kind kind, const SourcePlace& place, const std::string& what);

    size_t Count(Kind kind) const { return m_lines[kind].size(); }
    const std::vector<std::string>& Lines(Kind kind) const { return m_lines[kind]; }

    // Writes for each kind its count and the first `limit` lines; what isn't shown is counted.
    // With a limit of 0 the counts alone.
    void Print(std::ostream& out, size_t limit) const;
    // Writes all lines into a file; throws CInputError.
    void WriteReport(const std::filesystem::path& path) const;

private:
    std::array<std::vector<std::string>, KindCount> m_lines;
};

} // namespace citydb
