#include "tools/translations/Lexer.h"

#include "tools/citydb/Errors.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <cctype>

namespace translations
{

namespace
{

bool IsWordCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

bool IsLiteralPrefix(std::string_view word)
{
    return word == "L" || word == "u" || word == "U" || word == "u8";
}

class CLexer
{
public:
    CLexer(std::string_view source, Language language, const std::string& file)
        : m_source(source), m_language(language), m_file(file)
    {
    }

    std::vector<Token> Run()
    {
        while (m_at < m_source.size())
            TakeNext();
        return std::move(m_tokens);
    }

private:
    char Peek(size_t ahead = 0) const
    {
        return m_at + ahead < m_source.size() ? m_source[m_at + ahead] : '\0';
    }

    char Take()
    {
        const char c = Peek();
        ++m_at;
        if (c == '\n')
        {
            ++m_line;
            m_lineHasToken = false;
        }
        return c;
    }

    void TakeNext()
    {
        const char c = Peek();
        if (std::isspace(static_cast<unsigned char>(c)))
            Take();
        else if (c == '/' && Peek(1) == '/')
            SkipDirectiveOrComment();
        else if (c == '/' && Peek(1) == '*')
            SkipBlockComment();
        else if (c == '#' && !m_lineHasToken)
            SkipDirectiveOrComment();
        else if (c == '"')
            TakeString();
        else if (c == '\'')
            SkipCharacter();
        else if (IsWordCharacter(c))
            TakeWord();
        else
            Add(Token::Type::Mark, std::string(1, Take()), m_line);
    }

    void Add(Token::Type type, std::string text, size_t line)
    {
        m_lineHasToken = true;
        m_tokens.push_back({type, std::move(text), line});
    }

    // Both go on in the next line after a backslash.
    void SkipDirectiveOrComment()
    {
        while (m_at < m_source.size() && Peek() != '\n')
        {
            if (Take() == '\\' && Peek() == '\r')
                Take();
            if (Peek() == '\n' && Before() == '\\')
                Take();
        }
    }

    char Before() const
    {
        const size_t last = m_at - 1 - (m_source[m_at - 1] == '\r' ? 1 : 0);
        return m_source[last];
    }

    void SkipBlockComment()
    {
        const size_t end = m_source.find("*/", m_at + 2);
        const size_t behind = end == std::string_view::npos ? m_source.size() : end + 2;
        while (m_at < behind)
            Take();
    }

    void SkipCharacter()
    {
        const size_t line = m_line;
        Take();
        while (Peek() != '\'')
        {
            if (Peek() == '\n' || m_at >= m_source.size())
                Fail(line);
            if (Take() == '\\')
                Take();
        }
        Take();
    }

    void TakeWord()
    {
        const size_t line = m_line;
        const bool isNumber = std::isdigit(static_cast<unsigned char>(Peek()));
        std::string word;
        // An apostrophe within a number separates its digits.
        while (IsWordCharacter(Peek()) || (isNumber && Peek() == '\'' && IsWordCharacter(Peek(1))))
            word += Take();
        if (m_language == Language::Code && Peek() == '"' && word.size() <= 3 && word.back() == 'R')
            SkipRawString(line);
        else if (m_language == Language::Resources || Peek() != '"' || !IsLiteralPrefix(word))
            Add(Token::Type::Word, word, line);
    }

    // No text to translate is written that way.
    void SkipRawString(size_t line)
    {
        Take();
        std::string end = ")";
        while (Peek() != '(' && m_at < m_source.size())
            end += Take();
        end += '"';
        const size_t place = m_source.find(end, m_at);
        if (place == std::string_view::npos)
            Fail(line);
        while (m_at < place + end.size())
            Take();
    }

    void TakeString()
    {
        const size_t line = m_line;
        std::string text;
        Take();
        for (;;)
        {
            if (m_at >= m_source.size() || Peek() == '\n')
                Fail(line);
            const char c = Take();
            if (c == '\\')
                AppendEscaped(text);
            else if (c != '"')
                text += c;
            else if (m_language == Language::Resources && Peek() == '"')
                text += Take();
            else
                break;
        }
        const bool goesOn = m_language == Language::Code && !m_tokens.empty() &&
                            m_tokens.back().Is == Token::Type::String;
        if (goesOn)
            m_tokens.back().Text += text;
        else
            Add(Token::Type::String, text, line);
    }

    void AppendEscaped(std::string& text)
    {
        const char c = Take();
        if (c == 'x' || c == 'u')
            return AppendCodeUnit(text, c == 'u' ? 4 : std::string::npos);
        constexpr std::string_view kNames = "nrt0";
        constexpr std::string_view kValues("\n\r\t\0", 4);
        const size_t name = kNames.find(c);
        text += name == std::string_view::npos ? c : kValues[name];
    }

    void AppendCodeUnit(std::string& text, size_t digits)
    {
        unsigned value = 0;
        for (size_t i = 0; i < digits && std::isxdigit(static_cast<unsigned char>(Peek())); ++i)
            value =
                value * 16 + static_cast<unsigned>(std::stoi(std::string(1, Take()), nullptr, 16));
        text += citydb::ToUtf8(String16(1, static_cast<Char16>(value)));
    }

    [[noreturn]] void Fail(size_t line) const
    {
        throw citydb::CInputError(m_file + ":" + std::to_string(line) + ": a text without its end");
    }

    std::string_view m_source;
    Language m_language;
    const std::string& m_file;
    std::vector<Token> m_tokens;
    size_t m_at = 0;
    size_t m_line = 1;
    bool m_lineHasToken = false;
};

} // namespace

std::vector<Token> Tokens(std::string_view source, Language language, const std::string& file)
{
    return CLexer(source, language, file).Run();
}

} // namespace translations
