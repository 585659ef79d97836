// Reads the places of a JSON array while it is parsed, so that each row knows its line and no tree
// of millions of nodes is built.
#include "tools/citydb/Sources.h"

#include "tools/citydb/Errors.h"

#include <nlohmann/json.hpp>

namespace citydb
{

namespace
{

// Where the parser is in the text.
struct Cursor
{
    const char* Position;
    size_t Line = 1;
};

// Feeds the parser and counts the lines on the way.
class CCountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = char;

    CCountingIterator(const char* position, Cursor* cursor) : m_position(position), m_cursor(cursor)
    {
    }

    char operator*() const { return *m_position; }
    CCountingIterator& operator++()
    {
        if (*m_position == '\n')
            ++m_cursor->Line;
        m_cursor->Position = ++m_position;
        return *this;
    }
    CCountingIterator operator++(int)
    {
        CCountingIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const CCountingIterator& other) const { return m_position == other.m_position; }
    bool operator!=(const CCountingIterator& other) const { return !(*this == other); }

private:
    const char* m_position;
    Cursor* m_cursor;
};

// Receives the parser's events. A row is an object directly in the outer array.
class CRowEvents : public nlohmann::json_sax<nlohmann::json>
{
public:
    CRowEvents(const std::string& file, const std::string& text, const Cursor& cursor,
               CRowCollector& collector, CProgress& progress)
        : m_file(file), m_text(text), m_cursor(cursor), m_collector(collector), m_progress(progress)
    {
    }

    bool null() override { return m_depth == kRowDepth || TakeOther(); }
    bool boolean(bool) override { return TakeOther(); }
    bool number_integer(number_integer_t) override { return TakeOther(); }
    bool number_unsigned(number_unsigned_t) override { return TakeOther(); }
    bool number_float(number_float_t, const string_t&) override { return TakeOther(); }
    bool binary(binary_t&) override { return TakeOther(); }

    bool string(string_t& value) override
    {
        if (!IsField())
            return TakeOther();
        if (std::string* field = Field())
            *field = value;
        return true;
    }

    bool key(string_t& name) override
    {
        if (IsField())
            m_key = name;
        return true;
    }

    bool start_object(std::size_t) override
    {
        if (m_depth == kRowDepth - 1)
            BeginRow();
        else
            TakeOther();
        ++m_depth;
        return true;
    }

    bool end_object() override
    {
        if (--m_depth == kRowDepth - 1 && m_isInRow)
            TakeRow();
        return true;
    }

    bool start_array(std::size_t) override
    {
        if (m_depth > 0)
            TakeOther();
        ++m_depth;
        return true;
    }

    bool end_array() override
    {
        --m_depth;
        return true;
    }

    bool parse_error(std::size_t, const std::string&,
                     const nlohmann::detail::exception& error) override
    {
        throw CInputError(m_file + ":" + std::to_string(m_cursor.Line) + ": behind row " +
                          std::to_string(m_row) + ": " + error.what());
    }

private:
    // Brackets around a row's fields.
    static constexpr size_t kRowDepth = 2;

    // True between the braces of a row, but not deeper.
    bool IsField() const { return m_isInRow && m_depth == kRowDepth; }

    // Something else than a text in a row or a row in the array.
    bool TakeOther()
    {
        if (m_depth == 0)
            throw CInputError(m_file + ": is no array of places");
        if (m_depth == kRowDepth - 1)
            m_collector.Refuse({m_file, m_cursor.Line, ++m_row}, "it is no object");
        else if (IsField() && Field() != nullptr)
            m_bad = "\"" + m_key + "\" is no text";
        return true;
    }

    void BeginRow()
    {
        m_isInRow = true;
        m_place = {m_file, m_cursor.Line, ++m_row};
        m_fields.clear();
        m_bad.clear();
    }

    std::string* Field()
    {
        static const char* const kNames[] = {"name", "lat", "lng", "country", "admin1", "admin2"};
        for (const char* name : kNames)
        {
            if (m_key == name)
                return &m_fields[m_key];
        }
        return nullptr;
    }

    void TakeRow()
    {
        m_isInRow = false;
        m_progress.Show(static_cast<size_t>(m_cursor.Position - m_text.data()));
        if (!m_bad.empty())
        {
            m_collector.Refuse(m_place, m_bad);
            return;
        }
        RawRow raw;
        raw.Name = m_fields["name"];
        raw.Latitude = m_fields["lat"];
        raw.Longitude = m_fields["lng"];
        raw.Country = m_fields["country"];
        raw.Region1 = m_fields["admin1"];
        raw.Region2 = m_fields["admin2"];
        m_collector.Take(raw, m_place);
    }

    const std::string& m_file;
    const std::string& m_text;
    const Cursor& m_cursor;
    CRowCollector& m_collector;
    CProgress& m_progress;

    size_t m_depth = 0;
    bool m_isInRow = false;
    size_t m_row = 0;
    SourcePlace m_place;
    std::string m_key;
    std::string m_bad; // why the current row can't be taken
    std::map<std::string, std::string> m_fields;
};

} // namespace

void ReadJsonSource(const std::string& file, const std::string& text, CRowCollector& collector,
                    CProgress& progress)
{
    Cursor cursor{text.data()};
    CRowEvents events(file, text, cursor, collector, progress);
    const CCountingIterator begin(text.data(), &cursor);
    const CCountingIterator end(text.data() + text.size(), &cursor);
    nlohmann::json::sax_parse(begin, end, &events);
}

} // namespace citydb
