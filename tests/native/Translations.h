// What the tests of the translation file share: parsing a text in a buffer of exactly its size, so
// that the address sanitizer sees every step beyond it.
#pragma once

#include "frame/LocalizerMap.h"
#include "frame/TranslationParser.h"

#include <string>
#include <utility>
#include <vector>

using Pairs = std::vector<std::pair<String16, String16>>;

// The entries of a translation text, in its order, duplicates included.
inline Pairs Parsed(StringView16 text)
{
    std::vector<Char16> buffer(text.begin(), text.end());
    buffer.push_back('x');
    const size_t count = ParseTranslation(buffer.data(), buffer.data() + text.size());
    Pairs pairs;
    const Char16* position = buffer.data();
    for (size_t i = 0; i < count; ++i)
    {
        const String16 key(position);
        position += key.size() + 1;
        const String16 value(position);
        position += value.size() + 1;
        pairs.emplace_back(key, value);
    }
    return pairs;
}

// A translation text in a map of its own.
class CLoadedTexts
{
public:
    explicit CLoadedTexts(StringView16 text) : m_buffer(text.begin(), text.end())
    {
        m_buffer.push_back(0);
        Char16* const end = m_buffer.data() + text.size();
        Map.StorePairs(m_buffer.data(), ParseTranslation(m_buffer.data(), end));
    }

    // The translation, empty when there is none.
    String16 operator[](const Char16* text) const
    {
        Char16* translation = nullptr;
        return Map.Find({text}, translation) ? String16(translation) : String16();
    }

    CLocalizerMap Map;

private:
    std::vector<Char16> m_buffer;
};
