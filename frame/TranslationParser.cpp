#include "frame/TranslationParser.h"

#include <array>

namespace
{

constexpr Char16 kBar = '|';
constexpr Char16 kEscape = '\\';
constexpr Char16 kCarriageReturn = 13;
constexpr Char16 kLineFeed = 10;

// The characters that end a field, and the escape; all others are copied as they are.
constexpr std::array<bool, 128> SpecialCharacters()
{
    std::array<bool, 128> special = {};
    for (const Char16 c : {Char16{0}, kCarriageReturn, kLineFeed, kEscape, kBar})
        special[c] = true;
    return special;
}

constexpr std::array<bool, 128> kSpecial = SpecialCharacters();

bool IsSpecial(Char16 c)
{
    return c < kSpecial.size() && kSpecial[c];
}

bool IsLineEnd(Char16 c)
{
    return c == kCarriageReturn || c == kLineFeed;
}

Char16 Unescaped(Char16 c)
{
    if (c == 'n')
        return kLineFeed;
    if (c == 'r')
        return kCarriageReturn;
    return c;
}

// Reads ahead of where it writes: texts only get shorter. The zero at the end of the text stops
// every loop.
class CParser
{
public:
    explicit CParser(Char16* text) : m_read(text), m_write(text) {}

    std::vector<TranslationEntry> Run()
    {
        std::vector<TranslationEntry> entries;
        while (*m_read != 0)
        {
            const TranslationEntry entry = TakeLine();
            if (entry.English && *entry.English != 0 && *entry.Translation != 0)
                entries.push_back(entry);
        }
        return entries;
    }

private:
    // Both texts are null for a line without a bar.
    TranslationEntry TakeLine()
    {
        Char16* const english = TakeField();
        const bool hasBar = *m_read == kBar;
        if (!hasBar)
        {
            SkipLine();
            return {nullptr, nullptr};
        }
        *m_write++ = 0;
        ++m_read;
        Char16* const translation = TakeField();
        // Only now is there surely room for the zero: it may stand where the line went on.
        SkipLine();
        *m_write++ = 0;
        return {english, translation};
    }

    // Copies up to an unescaped bar, a line end or the end of the text, and returns where the copy
    // begins. What ends a field is looked for before escapes are read. A backslash as the text's
    // last character is dropped.
    Char16* TakeField()
    {
        Char16* const begin = m_write;
        const Char16* read = m_read;
        Char16* write = m_write;
        for (;; ++read)
        {
            Char16 c = *read;
            if (IsSpecial(c))
            {
                if (c != kEscape || *++read == 0)
                    break;
                c = Unescaped(*read);
            }
            *write++ = c;
        }
        m_read = read;
        m_write = write;
        return begin;
    }

    void SkipLine()
    {
        while (*m_read != 0 && !IsLineEnd(*m_read))
            ++m_read;
        while (IsLineEnd(*m_read))
            ++m_read;
    }

    const Char16* m_read;
    Char16* m_write;
};

} // namespace

std::vector<TranslationEntry> ParseTranslation(Char16* text, Char16* end)
{
    *end = 0;
    return CParser(text).Run();
}
