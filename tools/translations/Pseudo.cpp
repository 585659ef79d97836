#include "tools/translations/Pseudo.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace translations
{

namespace
{

struct Accent
{
    char Plain;
    const char* Accented;
    bool IsVowel;
};

constexpr std::array kAccents = {
    Accent{'a', "á", true},  Accent{'e', "é", true},  Accent{'i', "í", true},
    Accent{'o', "ö", true},  Accent{'u', "ú", true},  Accent{'y', "ý", true},
    Accent{'A', "Å", true},  Accent{'E', "É", true},  Accent{'I', "Î", true},
    Accent{'O', "Ö", true},  Accent{'U', "Ü", true},  Accent{'Y', "Ý", true},
    Accent{'c', "ç", false}, Accent{'d', "ď", false}, Accent{'g', "ğ", false},
    Accent{'l', "ł", false}, Accent{'n', "ñ", false}, Accent{'r', "ř", false},
    Accent{'t', "ť", false}, Accent{'z', "ž", false}, Accent{'C', "Ç", false},
    Accent{'D', "Ď", false}, Accent{'G', "Ğ", false}, Accent{'L', "Ł", false},
    Accent{'N', "Ñ", false}, Accent{'R', "Ř", false}, Accent{'T', "Ť", false},
    Accent{'Z', "Ž", false},
};

constexpr std::string_view kBlanks = " \t\n";

const Accent* FindAccent(char c)
{
    for (const Accent& accent : kAccents)
        if (accent.Plain == c)
            return &accent;
    return nullptr;
}

// A character of the text, which may be written several times.
struct Piece
{
    std::string Text;
    bool MayRepeat = false;
};

std::vector<Piece> PiecesOf(std::string_view text)
{
    std::vector<Piece> pieces;
    for (size_t i = 0; i < text.size(); ++i)
    {
        const Accent* const accent = FindAccent(text[i]);
        const bool goesOn = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
        if (text[i] == '%' && i + 1 < text.size())
            pieces.push_back({std::string(text.substr(i++, 2))});
        else if (accent)
            pieces.push_back({accent->Accented, accent->IsVowel});
        else if (goesOn && !pieces.empty())
            pieces.back().Text += text[i];
        else
            pieces.push_back({std::string(1, text[i])});
    }
    return pieces;
}

// How many characters a text is short of 40 % more, placeholders counted as two.
size_t Lacking(size_t length)
{
    return (length * 2 + 4) / 5;
}

std::string Lengthened(const std::vector<Piece>& pieces, size_t lacking)
{
    size_t vowels = 0;
    for (const Piece& piece : pieces)
        vowels += piece.MayRepeat ? 1u : 0u;
    const size_t shares = std::max<size_t>(vowels, 1);
    std::string text;
    size_t seen = 0;
    for (const Piece& piece : pieces)
    {
        text += piece.Text;
        if (!piece.MayRepeat)
            continue;
        // Spread evenly, what is left over at the first ones.
        const size_t extra = lacking / shares + (seen++ < lacking % shares ? 1 : 0);
        for (size_t i = 0; i < extra; ++i)
            text += piece.Text;
    }
    for (size_t i = 0; vowels == 0 && i < lacking; ++i)
        text += "~";
    return text;
}

} // namespace

std::string PseudoText(const std::string& english)
{
    const size_t first = english.find_first_not_of(kBlanks);
    if (first == std::string::npos)
        return english;
    const size_t behind = english.find_last_not_of(kBlanks) + 1;
    const std::string inner = english.substr(first, behind - first);
    return english.substr(0, first) + "[" + Lengthened(PiecesOf(inner), Lacking(inner.size())) +
           "]" + english.substr(behind);
}

} // namespace translations
