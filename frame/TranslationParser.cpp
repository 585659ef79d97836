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

    size_t Run()
    {
        size_t entries = 0;
        while (*m_read != 0)
            if (TakeLine())
                ++entries;
        return entries;
    }

private:
    // Copies one entry; takes back what it has written of a line that isn't one.
    bool TakeLine()
    {
        Char16* const key = m_write;
        CopyField();
        const bool hasBar = *m_read == kBar;
        bool complete = false;
        if (hasBar)
        {
            *m_write++ = 0;
            ++m_read;
            const Char16* const value = m_write;
            CopyField();
            complete = *key != 0 && value != m_write;
        }
        // Only now is there surely room for the zero: it may stand where the line went on.
        SkipLine();
        if (complete)
            *m_write++ = 0;
        else
            m_write = key;
        return complete;
    }

    // Copies up to an unescaped bar, a line end or the end of the text. What ends a field is looked
    // for before escapes are read. A backslash as the text's last character is dropped.
    void CopyField()
    {
        for (;; ++m_read)
        {
            Char16 c = *m_read;
            if (IsSpecial(c))
            {
                if (c != kEscape || *++m_read == 0)
                    return;
                c = Unescaped(*m_read);
            }
            *m_write++ = c;
        }
    }

    void SkipLine()
    {
        while (*m_read != 0 && !IsLineEnd(*m_read))
            ++m_read;
        while (IsLineEnd(*m_read))
            ++m_read;
    }

    Char16* m_read;
    Char16* m_write;
};

} // namespace

size_t ParseTranslation(Char16* text, Char16* end)
{
    *end = 0;
    return CParser(text).Run();
}
