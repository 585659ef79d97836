// Tab-separated tables, line by line.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace citydb
{

// Walks over a text that outlives it. Empty lines and those that begin with '#' are passed over.
class CTableLines
{
public:
    explicit CTableLines(std::string_view text) : m_rest(text) {}

    // Goes to the next line; false at the end.
    bool Next();

    // From 1.
    size_t Number() const { return m_number; }
    const std::vector<std::string_view>& Columns() const { return m_columns; }
    // The bytes that are still to come.
    size_t Remaining() const { return m_rest.size(); }

private:
    std::string_view TakeLine();

    std::string_view m_rest;
    size_t m_number = 0;
    std::vector<std::string_view> m_columns;
};

// True when the first character that isn't white space begins a JSON array or object.
bool LooksLikeJson(std::string_view text);

} // namespace citydb
