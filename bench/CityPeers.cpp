#include "bench/CityPeers.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace
{

void AppendUtf8(std::string& text, uint32_t point)
{
    const auto more = [&](unsigned shift)
    { text += static_cast<char>(0x80 | (point >> shift & 0x3F)); };
    if (point < 0x80)
    {
        text += static_cast<char>(point);
    }
    else if (point < 0x800)
    {
        text += static_cast<char>(0xC0 | point >> 6);
        more(0);
    }
    else if (point < 0x10000)
    {
        text += static_cast<char>(0xE0 | point >> 12);
        more(6);
        more(0);
    }
    else
    {
        text += static_cast<char>(0xF0 | point >> 18);
        more(12);
        more(6);
        more(0);
    }
}

std::string Utf8Of(const Char16* units)
{
    std::string text;
    for (; CityUnit(units) != 0; ++units)
    {
        uint32_t point = CityUnit(units);
        const uint32_t next = CityUnit(units + 1);
        if (point >= 0xD800 && point < 0xDC00 && next >= 0xDC00 && next < 0xE000)
        {
            point = 0x10000 + ((point - 0xD800) << 10) + (next - 0xDC00);
            ++units;
        }
        AppendUtf8(text, point);
    }
    return text;
}

} // namespace

CCityNameList::CCityNameList(const CCityImage& image)
{
    const uint32_t count = image.CityCount();
    for (uint32_t city = 0; city < count; ++city)
    {
        const Char16* const name = image.StringAt(image.City(city).Name);
        m_units.push_back(name);
        m_utf8.push_back(Utf8Of(name));
    }
    if (count == 0)
        return;
    const auto [first, last] = std::minmax_element(m_units.begin(), m_units.end());
    const Char16* end = *last;
    while (CityUnit(end) != 0)
        ++end;
    m_begin = reinterpret_cast<const uint8_t*>(*first);
    m_end = reinterpret_cast<const uint8_t*>(end);
}

CSqliteNames::CSqliteNames(const std::vector<std::string>& names, const char* createTable)
{
    Require(sqlite3_open(":memory:", &m_database) == SQLITE_OK);
    for (const char* const statement : {createTable, "BEGIN"})
        Require(sqlite3_exec(m_database, statement, nullptr, nullptr, nullptr) == SQLITE_OK);
    sqlite3_stmt* insert = nullptr;
    Require(sqlite3_prepare_v2(m_database, "INSERT INTO cities(name) VALUES(?)", -1, &insert,
                               nullptr) == SQLITE_OK);
    for (const std::string& name : names)
    {
        sqlite3_bind_text(insert, 1, name.c_str(), static_cast<int>(name.size()), SQLITE_STATIC);
        Require(sqlite3_step(insert) == SQLITE_DONE);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    Require(sqlite3_exec(m_database, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK);
    Require(sqlite3_prepare_v2(m_database, "SELECT rowid FROM cities WHERE name LIKE ?", -1,
                               &m_find, nullptr) == SQLITE_OK);
    m_rows.resize(names.size());
}

CSqliteNames::~CSqliteNames()
{
    sqlite3_finalize(m_find);
    sqlite3_close(m_database);
}

uint32_t CSqliteNames::Find(const std::string& text)
{
    const std::string pattern = "%" + text + "%";
    sqlite3_bind_text(m_find, 1, pattern.c_str(), -1, SQLITE_STATIC);
    uint32_t found = 0;
    while (sqlite3_step(m_find) == SQLITE_ROW)
        m_rows[found++] = sqlite3_column_int64(m_find, 0);
    sqlite3_reset(m_find);
    return found;
}

void CSqliteNames::Require(bool condition) const
{
    if (condition)
        return;
    std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(m_database));
    std::exit(2);
}

CLowerCasedBlock::CLowerCasedBlock(const std::vector<std::string>& names)
{
    for (const std::string& name : names)
    {
        for (const char letter : name)
            m_block += letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 0x20) : letter;
        m_block += '\n';
    }
}

uint32_t CLowerCasedBlock::Find(const std::string& text) const
{
    uint32_t found = 0;
    const char* at = m_block.data();
    const char* const end = at + m_block.size();
    while (at != end)
    {
        const auto rest = static_cast<size_t>(end - at);
        const void* const hit = text.size() == 1 ? std::memchr(at, text[0], rest)
                                                 : memmem(at, rest, text.data(), text.size());
        if (!hit)
            break;
        ++found;
        const auto* const place = static_cast<const char*>(hit);
        at = static_cast<const char*>(std::memchr(place, '\n', static_cast<size_t>(end - place))) +
             1;
    }
    return found;
}

uint32_t FindNaively(const CCityNameList& names, const String16& text, const Char16* fold,
                     std::vector<uint32_t>& cities)
{
    uint32_t found = 0;
    Char16 name[256];
    for (uint32_t city = 0; city < names.Units().size(); ++city)
    {
        const Char16* const units = names.Units()[city];
        size_t length = 0;
        for (; length < std::size(name) && CityUnit(units + length) != 0; ++length)
            name[length] = fold[CityUnit(units + length)];
        if (StringView16(name, length).find(text) != StringView16::npos)
            cities[found++] = city;
    }
    return found;
}
