// Fuzzes the translation file's parser and map: what they make of any bytes is compared, entry by
// entry, with a plain second reading of the grammar.
#include "frame/LocalizerMap.h"
#include "frame/TranslationParser.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

namespace
{

using Entries = std::vector<std::pair<String16, String16>>;

// The file as text: UTF-16 behind FF FE, otherwise one byte is one character.
String16 TextOfFile(const uint8_t* data, size_t size)
{
    if (size < 2 || data[0] != 0xFF || data[1] != 0xFE)
        return String16(data, data + size);
    String16 text;
    for (size_t i = 2; i + 1 < size; i += 2)
        text += static_cast<Char16>(data[i] | data[i + 1] << 8);
    return text;
}

// Reads the grammar the slow way: by searching in a copy of the text, nothing in place.
class CPlainReading
{
public:
    explicit CPlainReading(const String16& text) : m_text(text.substr(0, text.find(u'\0'))) {}

    Entries Read()
    {
        Entries entries;
        while (m_at < m_text.size())
        {
            const String16 key = Field();
            const bool hasBar = m_at < m_text.size() && m_text[m_at] == u'|';
            if (hasBar)
                ++m_at;
            const String16 value = hasBar ? Field() : String16();
            m_at = std::min(m_text.find_first_of(u"\r\n", m_at), m_text.size());
            m_at = std::min(m_text.find_first_not_of(u"\r\n", m_at), m_text.size());
            if (!key.empty() && !value.empty())
                entries.emplace_back(key, value);
        }
        return entries;
    }

private:
    String16 Field()
    {
        String16 field;
        for (;;)
        {
            const size_t stop = std::min(m_text.find_first_of(u"|\r\n\\", m_at), m_text.size());
            field += m_text.substr(m_at, stop - m_at);
            m_at = stop;
            if (stop == m_text.size() || m_text[stop] != u'\\')
                return field;
            m_at = stop + 1;
            if (m_at == m_text.size())
                return field;
            const Char16 escaped = m_text[m_at++];
            field += escaped == u'n' ? u'\n' : escaped == u'r' ? u'\r' : escaped;
        }
    }

    String16 m_text;
    size_t m_at = 0;
};

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "differs from the plain reading: %s\n", what);
    std::abort();
}

void CheckEntries(const std::vector<TranslationEntry>& entries, const Entries& expected)
{
    Require(entries.size() == expected.size(), "number of entries");
    for (size_t i = 0; i < entries.size(); ++i)
    {
        Require(expected[i].first == entries[i].English, "key");
        Require(expected[i].second == entries[i].Translation, "value");
    }
}

uint32_t ExpectedBits(size_t count)
{
    uint32_t bits = count == 0 ? 0 : 10;
    while (bits != 0 && count > size_t{1} << (bits - 1))
        ++bits;
    return bits;
}

void CheckMap(const CLocalizerMap& map, const Entries& expected)
{
    const std::map<String16, String16> last = [&]
    {
        std::map<String16, String16> values;
        for (const auto& [key, value] : expected)
            values[key] = value;
        return values;
    }();
    Require(map.Count == last.size(), "number of keys");
    Require(map.Bits == ExpectedBits(last.size()), "capacity");
    for (const auto& [key, value] : last)
    {
        Char16* found = nullptr;
        Require(map.Find({key.c_str()}, found), "missing key");
        Require(value == found, "translation");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const String16 text = TextOfFile(data, size);
    const Entries expected = CPlainReading(text).Read();

    std::vector<Char16> buffer(text.begin(), text.end());
    buffer.push_back(u'|');
    const auto entries = ParseTranslation(buffer.data(), buffer.data() + text.size());
    CheckEntries(entries, expected);

    CLocalizerMap map;
    map.StoreAll(entries);
    CheckMap(map, expected);
    return 0;
}
