#include "tools/translations/CodeTexts.h"

#include "tools/citydb/Errors.h"

#include <array>
#include <cctype>
#include <set>

namespace translations
{

namespace
{

// A function with a text to translate among its arguments.
struct TextCall
{
    std::string_view Function;
    std::string_view File; // the only file where it is one; empty for all
    size_t Argument;       // from 0
    const char* Note;
};

constexpr std::array kCalls = {
    TextCall{"TranslateText", "", 0, "text made in code"},
    TextCall{"TranslateToString", "", 0, "text made in code"},
    TextCall{"TranslateTextToBuffer", "", 0, "text made in code"},
    TextCall{"Translate", "", 0, "text of the device"},
    TextCall{"Product", "device/SampleMenu.cpp", 1, "item of the launcher menu"},
    TextCall{"Shared", "device/SampleMenu.cpp", 1, "item of the launcher menu"},
    TextCall{"Own", "device/SamplePlugins.cpp", 1, "plug-in of the Now screen"},
};

bool EndsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Headers that hold nothing but texts.
bool IsTable(const std::string& file)
{
    return file.rfind("device/", 0) == 0 && EndsWith(file, "Texts.h");
}

// Named as constants are: kSomething.
bool IsConstant(const Token& token)
{
    return token.Is == Token::Type::Word && token.Text.size() > 1 && token.Text[0] == 'k' &&
           std::isupper(static_cast<unsigned char>(token.Text[1]));
}

// kName = "text" and kName[] = "text".
Constants ConstantsOf(const CodeFile& file)
{
    Constants found;
    const std::vector<Token>& words = file.Words;
    for (size_t i = 0; i + 2 < words.size(); ++i)
    {
        if (!IsConstant(words[i]))
            continue;
        size_t next = i + 1;
        if (next + 3 < words.size() && words[next].IsMark('[') && words[next + 1].IsMark(']'))
            next += 2;
        if (next + 1 < words.size() && words[next].IsMark('=') &&
            words[next + 1].Is == Token::Type::String)
            found[words[i].Text] = words[next + 1].Text;
    }
    return found;
}

using Range = std::pair<size_t, size_t>;

// The words of argument `wanted` of the call whose bracket stands at `open`; empty without one.
Range ArgumentAt(const std::vector<Token>& words, size_t open, size_t wanted)
{
    size_t depth = 0;
    size_t argument = 0;
    size_t begin = open + 1;
    for (size_t i = open; i < words.size(); ++i)
    {
        const bool opens = words[i].IsMark('(') || words[i].IsMark('{') || words[i].IsMark('[');
        const bool closes = words[i].IsMark(')') || words[i].IsMark('}') || words[i].IsMark(']');
        depth += opens ? 1u : 0u;
        const bool ends = depth == 1 && (closes || words[i].IsMark(','));
        if (ends && argument == wanted)
            return {begin, i};
        if (ends && closes)
            break;
        if (ends)
        {
            ++argument;
            begin = i + 1;
        }
        depth -= closes ? 1u : 0u;
    }
    return {open, open};
}

class CCodeTexts
{
public:
    CCodeTexts(const CodeFile& file, const Constants& fromHeaders)
        : m_file(file), m_own(ConstantsOf(file)), m_fromHeaders(fromHeaders)
    {
    }

    std::vector<SourceText> Run()
    {
        for (size_t i = 0; i + 1 < m_file.Words.size(); ++i)
            if (m_file.Words[i].Is == Token::Type::Word && m_file.Words[i + 1].IsMark('('))
                for (const TextCall& call : kCalls)
                    if (IsCall(call, m_file.Words[i]))
                        TakeCall(call, ArgumentAt(m_file.Words, i + 1, call.Argument));
        return std::move(m_texts);
    }

private:
    bool IsCall(const TextCall& call, const Token& word) const
    {
        return word.Text == call.Function && (call.File.empty() || call.File == m_file.Name);
    }

    // Texts and constants in the argument; anything else is data of the run time.
    void TakeCall(const TextCall& call, Range argument)
    {
        for (size_t i = argument.first; i < argument.second; ++i)
        {
            const Token& word = m_file.Words[i];
            if (word.Is == Token::Type::String)
                m_texts.push_back({word.Text, call.Note, m_file.Name, word.Line});
            else if (IsConstant(word) && !IsOpened(m_file.Words[i + 1]))
                TakeConstant(call, word);
        }
    }

    // Behind the name of a table, a record or a function: which text it is, the run time decides.
    static bool IsOpened(const Token& next)
    {
        return next.IsMark('[') || next.IsMark('.') || next.IsMark('-') || next.IsMark('(');
    }

    void TakeConstant(const TextCall& call, const Token& word)
    {
        for (const Constants* constants : {&m_own, &m_fromHeaders})
        {
            const auto found = constants->find(word.Text);
            if (found == constants->end())
                continue;
            m_texts.push_back({found->second, call.Note, m_file.Name, word.Line});
            return;
        }
        throw citydb::CInputError(m_file.Name + ":" + std::to_string(word.Line) +
                                  ": which text is " + word.Text +
                                  "? It is no constant of this file or of a header");
    }

    const CodeFile& m_file;
    const Constants m_own;
    const Constants& m_fromHeaders;
    std::vector<SourceText> m_texts;
};

} // namespace

Constants CollectConstants(const std::vector<CodeFile>& files)
{
    Constants all;
    std::set<std::string> ambiguous;
    for (const CodeFile& file : files)
    {
        if (!EndsWith(file.Name, ".h"))
            continue;
        for (const auto& [name, text] : ConstantsOf(file))
            if (!all.emplace(name, text).second && all[name] != text)
                ambiguous.insert(name);
    }
    for (const std::string& name : ambiguous)
        all.erase(name);
    return all;
}

std::vector<SourceText> CodeTexts(const CodeFile& file, const Constants& fromHeaders)
{
    if (!IsTable(file.Name))
        return CCodeTexts(file, fromHeaders).Run();
    std::vector<SourceText> texts;
    for (const Token& word : file.Words)
        if (word.Is == Token::Type::String)
            texts.push_back({word.Text, "text of the device", file.Name, word.Line});
    return texts;
}

} // namespace translations
