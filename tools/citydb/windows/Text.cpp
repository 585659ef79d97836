// Texts through the system's own tables: no library has to come along. Orders and spellings of
// rarely used scripts may differ a little from the ones that the other build takes from ICU.
#include "tools/citydb/SystemText.h"
#include "tools/citydb/Text.h"

#include "platform/Win.h"

#include <algorithm>
#include <vector>

namespace citydb
{

namespace
{

struct Spelling
{
    Char16 Letter;
    const Char16* Plain;
};

// Latin letters that are no letter with an accent, so that decomposing leaves them as they are.
constexpr Spelling kSpellings[] = {
    {L'\u00C6', L"AE"}, {L'\u00D0', L"D"},  {L'\u00D8', L"O"},  {L'\u00DE', L"TH"},
    {L'\u00DF', L"ss"}, {L'\u00E6', L"ae"}, {L'\u00F0', L"d"},  {L'\u00F8', L"o"},
    {L'\u00FE', L"th"}, {L'\u0110', L"D"},  {L'\u0111', L"d"},  {L'\u0126', L"H"},
    {L'\u0127', L"h"},  {L'\u0131', L"i"},  {L'\u0138', L"q"},  {L'\u013F', L"L"},
    {L'\u0140', L"l"},  {L'\u0141', L"L"},  {L'\u0142', L"l"},  {L'\u0149', L"'n"},
    {L'\u014A', L"N"},  {L'\u014B', L"n"},  {L'\u0152', L"OE"}, {L'\u0153', L"oe"},
    {L'\u0166', L"T"},  {L'\u0167', L"t"},  {L'\u017F', L"s"},  {L'\u018F', L"E"},
    {L'\u0259', L"e"},  {L'\u1E9E', L"SS"}, {L'\u2018', L"'"},  {L'\u2019', L"'"},
    {L'\u201C', L"\""}, {L'\u201D', L"\""}, {L'\u2013', L"-"},  {L'\u2014', L"-"},
};

int Length(StringView16 text)
{
    return static_cast<int>(text.size());
}

String16 Mapped(DWORD flags, StringView16 text)
{
    const int size = FoldStringW(flags, text.data(), Length(text), nullptr, 0);
    String16 result(static_cast<size_t>(std::max(size, 0)), L'\0');
    if (size <= 0 || FoldStringW(flags, text.data(), Length(text), result.data(), size) <= 0)
        return String16(text);
    return result;
}

WORD TypeOf(Char16 unit, DWORD kind)
{
    WORD type = 0;
    GetStringTypeW(kind, &unit, 1, &type);
    return type;
}

void AppendPlain(String16& plain, Char16 unit)
{
    const auto found = std::find_if(std::begin(kSpellings), std::end(kSpellings),
                                    [unit](const Spelling& entry) { return entry.Letter == unit; });
    if (found != std::end(kSpellings))
        plain += found->Plain;
    else if (!(TypeOf(unit, CT_CTYPE3) & C3_NONSPACING))
        plain += unit;
}

} // namespace

std::string CollationKey(StringView16 text)
{
    // Marks count as letters do, like in the root order; the default skips hyphens.
    constexpr DWORD kFlags = LCMAP_SORTKEY | SORT_STRINGSORT;
    if (text.empty())
        return std::string();
    const int size = LCMapStringEx(LOCALE_NAME_INVARIANT, kFlags, text.data(), Length(text),
                                   nullptr, 0, nullptr, nullptr, 0);
    std::string key(static_cast<size_t>(std::max(size, 0)), '\0');
    LCMapStringEx(LOCALE_NAME_INVARIANT, kFlags, text.data(), Length(text),
                  reinterpret_cast<wchar_t*>(key.data()), size, nullptr, nullptr, 0);
    return key;
}

bool IsLetterOrDigit(Char16 unit)
{
    return (TypeOf(unit, CT_CTYPE1) & (C1_ALPHA | C1_DIGIT)) != 0;
}

std::optional<String16> ToUtf16(std::string_view utf8)
{
    if (utf8.empty())
        return String16();
    const int bytes = static_cast<int>(utf8.size());
    const int size =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), bytes, nullptr, 0);
    if (size <= 0)
        return std::nullopt;
    String16 text(static_cast<size_t>(size), L'\0');
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), bytes, text.data(), size);
    return text;
}

std::string ToUtf8(StringView16 text)
{
    if (text.empty())
        return std::string();
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), Length(text), nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(std::max(size, 0)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), Length(text), utf8.data(), size, nullptr, nullptr);
    return utf8;
}

String16 PlainSpelling(StringView16 text)
{
    if (std::all_of(text.begin(), text.end(), [](Char16 unit) { return unit < 0x80; }))
        return String16(text);
    String16 plain;
    for (const Char16 unit : Mapped(MAP_COMPOSITE, text))
        AppendPlain(plain, unit);
    return plain.empty() ? plain : Mapped(MAP_PRECOMPOSED, plain);
}

const Char16* FoldTable()
{
    static const std::vector<Char16> table = []
    {
        std::vector<Char16> units(0x10000);
        for (size_t unit = 0; unit < units.size(); ++unit)
            units[unit] = static_cast<Char16>(unit);
        std::vector<Char16> made(units);
        const int count = static_cast<int>(units.size());
        LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_LOWERCASE, units.data(), count, made.data(),
                      count, nullptr, nullptr, 0);
        return made;
    }();
    return table.data();
}

} // namespace citydb
