// Takes HTML apart into tags and text, for the parser of the help book. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

namespace help
{

enum class TokenKind
{
    Text,
    Open,
    Close
};

struct HtmlToken
{
    TokenKind Kind = TokenKind::Text;
    // Of a tag: its name in lower case. Empty for text.
    String16 Name;
    // Text as written, with its entities; of a tag what follows the name.
    StringView16 Content;
};

// Walks through a text once. Comments and declarations are left out, also those without an end.
class CHtmlReader
{
public:
    explicit CHtmlReader(StringView16 html) : m_html(html) {}

    // The next tag or stretch of text; false at the end. Its views live as long as the text.
    bool Next(HtmlToken& token);

    // Goes behind the closing tag of `name` (in lower case), or to the end without one.
    void SkipBehind(StringView16 name);

private:
    bool TakeMarkup(HtmlToken& token);
    void TakeTag(HtmlToken& token);
    void SkipDeclaration();
    size_t EndOfTag(size_t from) const;

    StringView16 m_html;
    size_t m_at = 0;
};

// The decoded value of an attribute (`name` in lower case) in what follows a tag's name; empty when
// it is missing.
String16 AttributeOf(StringView16 content, StringView16 name);

// The text with its entities as the characters they stand for. Unknown ones stay as they are;
// numbers that are no character, and control characters other than white space, become U+FFFD.
String16 DecodeEntities(StringView16 text);

// ASCII letters in lower case, everything else as it is.
Char16 LowerAscii(Char16 unit);
String16 LowerAscii(StringView16 text);

bool IsHtmlSpace(Char16 unit);

} // namespace help
