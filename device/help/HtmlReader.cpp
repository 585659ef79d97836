#include "device/help/HtmlReader.h"

#include <algorithm>

namespace help
{
namespace
{

bool IsAsciiLetter(Char16 unit)
{
    const Char16 lower = LowerAscii(unit);
    return lower >= TEXT16('a') && lower <= TEXT16('z');
}

bool EndsName(Char16 unit)
{
    return IsHtmlSpace(unit) || unit == TEXT16('>') || unit == TEXT16('/');
}

size_t FindFrom(StringView16 text, StringView16 what, size_t from)
{
    return std::min(text.find(what, from), text.size());
}

// Reads one attribute after the other.
class CAttributes
{
public:
    explicit CAttributes(StringView16 content) : m_content(content) {}

    bool Next(StringView16& name, StringView16& value)
    {
        while (m_at < m_content.size() && (IsHtmlSpace(m_content[m_at]) || m_content[m_at] == '/'))
            ++m_at;
        if (m_at == m_content.size())
            return false;
        const size_t begin = m_at;
        // A stray "=" is a name of its own, so that each turn moves on.
        do
            ++m_at;
        while (m_at < m_content.size() && m_content[m_at] != '=' && !EndsName(m_content[m_at]));
        name = m_content.substr(begin, m_at - begin);
        SkipSpace();
        value = {};
        if (m_at < m_content.size() && m_content[m_at] == '=')
        {
            ++m_at;
            SkipSpace();
            value = Value();
        }
        return true;
    }

private:
    void SkipSpace()
    {
        while (m_at < m_content.size() && IsHtmlSpace(m_content[m_at]))
            ++m_at;
    }

    StringView16 Value()
    {
        if (m_at == m_content.size())
            return {};
        const Char16 quote = m_content[m_at];
        const bool isQuoted = quote == '"' || quote == '\'';
        const size_t begin = isQuoted ? ++m_at : m_at;
        while (m_at < m_content.size() &&
               (isQuoted ? m_content[m_at] != quote : !IsHtmlSpace(m_content[m_at])))
            ++m_at;
        const StringView16 value = m_content.substr(begin, m_at - begin);
        if (isQuoted && m_at < m_content.size())
            ++m_at;
        return value;
    }

    StringView16 m_content;
    size_t m_at = 0;
};

} // namespace

Char16 LowerAscii(Char16 unit)
{
    return unit >= 'A' && unit <= 'Z' ? static_cast<Char16>(unit + ('a' - 'A')) : unit;
}

String16 LowerAscii(StringView16 text)
{
    String16 lower(text);
    for (Char16& unit : lower)
        unit = LowerAscii(unit);
    return lower;
}

bool IsHtmlSpace(Char16 unit)
{
    return unit == ' ' || (unit >= '\t' && unit <= '\r');
}

bool CHtmlReader::Next(HtmlToken& token)
{
    while (m_at < m_html.size())
    {
        if (m_html[m_at] == '<')
        {
            if (TakeMarkup(token))
                return true;
            continue;
        }
        const size_t begin = m_at;
        m_at = FindFrom(m_html, TEXT16("<"), m_at);
        token = {TokenKind::Text, {}, m_html.substr(begin, m_at - begin)};
        return true;
    }
    return false;
}

// Stands at "<": a tag, something to leave out (false), or just the character.
bool CHtmlReader::TakeMarkup(HtmlToken& token)
{
    const Char16 next = m_at + 1 < m_html.size() ? m_html[m_at + 1] : Char16{0};
    const Char16 afterNext = m_at + 2 < m_html.size() ? m_html[m_at + 2] : Char16{0};
    if (next == '!' || next == '?')
    {
        SkipDeclaration();
        return false;
    }
    if (IsAsciiLetter(next) || (next == '/' && IsAsciiLetter(afterNext)))
    {
        TakeTag(token);
        return true;
    }
    token = {TokenKind::Text, {}, m_html.substr(m_at, 1)};
    ++m_at;
    return true;
}

void CHtmlReader::TakeTag(HtmlToken& token)
{
    const bool isClosing = m_html[m_at + 1] == '/';
    const size_t begin = m_at + (isClosing ? 2 : 1);
    size_t nameEnd = begin;
    while (nameEnd < m_html.size() && !EndsName(m_html[nameEnd]))
        ++nameEnd;
    const size_t end = EndOfTag(nameEnd);
    token.Kind = isClosing ? TokenKind::Close : TokenKind::Open;
    token.Name = LowerAscii(m_html.substr(begin, nameEnd - begin));
    token.Content = m_html.substr(nameEnd, end - nameEnd);
    m_at = std::min(end + 1, m_html.size());
}

// Where the ">" is that isn't within quotation marks.
size_t CHtmlReader::EndOfTag(size_t from) const
{
    Char16 quote = 0;
    for (size_t i = from; i < m_html.size(); ++i)
    {
        const Char16 unit = m_html[i];
        if (quote != 0)
            quote = unit == quote ? Char16{0} : quote;
        else if (unit == '"' || unit == '\'')
            quote = unit;
        else if (unit == '>')
            return i;
    }
    return m_html.size();
}

void CHtmlReader::SkipDeclaration()
{
    const bool isComment = m_html.compare(m_at, 4, TEXT16("<!--")) == 0;
    const StringView16 end = isComment ? TEXT16("-->") : TEXT16(">");
    m_at = std::min(FindFrom(m_html, end, m_at + 2) + end.size(), m_html.size());
}

void CHtmlReader::SkipBehind(StringView16 name)
{
    while (m_at < m_html.size())
    {
        m_at = FindFrom(m_html, TEXT16("</"), m_at);
        const size_t begin = std::min(m_at + 2, m_html.size());
        if (LowerAscii(m_html.substr(begin, name.size())) == name)
        {
            m_at = std::min(FindFrom(m_html, TEXT16(">"), begin) + 1, m_html.size());
            return;
        }
        m_at = begin;
    }
}

String16 AttributeOf(StringView16 content, StringView16 name)
{
    CAttributes attributes(content);
    StringView16 found;
    StringView16 value;
    while (attributes.Next(found, value))
        if (found.size() == name.size() && LowerAscii(found) == name)
            return DecodeEntities(value);
    return {};
}

} // namespace help
