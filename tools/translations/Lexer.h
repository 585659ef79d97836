// Splits C++ sources and resource scripts into words, texts and marks; the extraction looks for
// texts among them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace translations
{

enum class Language
{
    Code,     // C++: backslash escapes, neighbouring literals are one text
    Resources // resource scripts: a doubled quote stands for a quote, too
};

struct Token
{
    enum class Type
    {
        Word,   // identifiers, keywords and numbers
        String, // a literal: Text is its value in UTF-8
        Mark    // one character of anything else
    };

    Type Is;
    std::string Text;
    size_t Line; // from 1
    bool IsWord(std::string_view text) const { return Is == Type::Word && Text == text; }
    bool IsMark(char mark) const { return Is == Type::Mark && Text[0] == mark; }
};

// The tokens without comments, preprocessor lines and single characters. Throws
// citydb::CInputError, naming `file` and the line, for a literal without an end.
std::vector<Token> Tokens(std::string_view source, Language language, const std::string& file);

} // namespace translations
