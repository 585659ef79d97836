#include "device/help/HelpArguments.h"

#include <algorithm>

#include "device/help/HtmlReader.h"

namespace help
{
namespace
{

constexpr const Char16* kBook = TEXT16("TavLumenar.htm");
constexpr const Char16* kContents = TEXT16("Main_Contents");

StringView16 Trimmed(StringView16 text)
{
    while (!text.empty() && IsHtmlSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsHtmlSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

// Takes the first word, or what stands in the first quotation marks, off `rest`.
StringView16 TakeWord(StringView16& rest)
{
    rest = Trimmed(rest);
    const bool isQuoted = !rest.empty() && rest[0] == '"';
    if (isQuoted)
        rest.remove_prefix(1);
    const StringView16 ends = isQuoted ? TEXT16("\"") : TEXT16(" \t\r\n");
    const size_t end = std::min(rest.find_first_of(ends), rest.size());
    const StringView16 word = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    rest = Trimmed(rest);
    return word;
}

bool EqualAscii(StringView16 left, StringView16 right)
{
    return left.size() == right.size() && LowerAscii(left) == LowerAscii(right);
}

bool IsProgramName(StringView16 word)
{
    const size_t slash = word.find_last_of(TEXT16("\\/"));
    const StringView16 name = slash == StringView16::npos ? word : word.substr(slash + 1);
    return EqualAscii(name, TEXT16("PegHelp.exe")) || EqualAscii(name, TEXT16("PegHelp"));
}

// Leaves the program's name out, if there is one.
void SkipProgram(StringView16& rest, StringView16 program)
{
    rest = Trimmed(rest);
    // A path with blanks that nobody has put into quotation marks.
    const bool isOwnPath = !program.empty() &&
                           EqualAscii(rest.substr(0, program.size()), program) &&
                           (rest.size() == program.size() || IsHtmlSpace(rest[program.size()]));
    if (isOwnPath)
    {
        rest = Trimmed(rest.substr(program.size()));
        return;
    }
    StringView16 behind = rest;
    const StringView16 word = TakeWord(behind);
    if (IsProgramName(word) || EqualAscii(word, program))
        rest = behind;
}

void TakeOptions(StringView16& rest, HelpRequest& request)
{
    for (;;)
    {
        StringView16 behind = rest;
        const StringView16 word = TakeWord(behind);
        if (word == TEXT16("--window"))
            request.OwnWindow = true;
        else if (word == TEXT16("--picture"))
        {
            request.OwnWindow = true;
            request.PictureFile = TakeWord(behind);
        }
        else
            return;
        rest = behind;
    }
}

bool LooksLikeFile(StringView16 text)
{
    return text.find_first_of(TEXT16(".\\/:")) != StringView16::npos;
}

// Quotation marks around all of it or only around the page's name, and none within.
String16 Unquoted(StringView16 text)
{
    String16 plain(text);
    plain.erase(std::remove(plain.begin(), plain.end(), Char16{'"'}), plain.end());
    return String16(Trimmed(plain));
}

} // namespace

HelpRequest ReadTarget(StringView16 target)
{
    const String16 plain = Unquoted(target);
    const size_t mark = plain.find('#');
    HelpRequest request;
    if (mark != String16::npos)
    {
        request.File = plain.substr(0, mark);
        request.Topic = plain.substr(mark + 1);
    }
    else if (LooksLikeFile(plain))
        request.File = plain;
    else
        request.Topic = plain;
    if (request.File.empty())
        request.File = kBook;
    if (request.Topic.empty())
        request.Topic = kContents;
    return request;
}

HelpRequest ReadHelpRequest(StringView16 commandLine, StringView16 program)
{
    SkipProgram(commandLine, program);
    HelpRequest options;
    TakeOptions(commandLine, options);
    HelpRequest request = ReadTarget(commandLine);
    request.OwnWindow = options.OwnWindow;
    request.PictureFile = options.PictureFile;
    return request;
}

} // namespace help
