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
    Pairs pairs;
    for (const TranslationEntry& entry :
         ParseTranslation(buffer.data(), buffer.data() + text.size()))
        pairs.emplace_back(entry.English, entry.Translation);
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
        Map.StoreAll(ParseTranslation(m_buffer.data(), end));
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
