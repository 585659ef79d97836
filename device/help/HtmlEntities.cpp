// The characters that entities stand for.
#include "device/help/HtmlReader.h"

#include <cstdint>

namespace help
{
namespace
{

constexpr Char16 kReplacement = 0xFFFD;
// No entity that is known here is longer; what is longer is text.
constexpr size_t kLongestEntity = 10;

struct Entity
{
    StringView16 Name;
    Char16 Unit;
};

constexpr Entity kEntities[] = {
    {TEXT16("amp"), '&'},       {TEXT16("lt"), '<'},       {TEXT16("gt"), '>'},
    {TEXT16("quot"), '"'},      {TEXT16("apos"), '\''},    {TEXT16("nbsp"), 0x00A0},
    {TEXT16("copy"), 0x00A9},   {TEXT16("laquo"), 0x00AB}, {TEXT16("raquo"), 0x00BB},
    {TEXT16("middot"), 0x00B7}, {TEXT16("times"), 0x00D7}, {TEXT16("ndash"), 0x2013},
    {TEXT16("mdash"), 0x2014},  {TEXT16("lsquo"), 0x2018}, {TEXT16("rsquo"), 0x2019},
    {TEXT16("ldquo"), 0x201C},  {TEXT16("rdquo"), 0x201D}, {TEXT16("bull"), 0x2022},
    {TEXT16("hellip"), 0x2026}, {TEXT16("larr"), 0x2190},  {TEXT16("uarr"), 0x2191},
    {TEXT16("rarr"), 0x2192},   {TEXT16("darr"), 0x2193},
};

void AppendCodePoint(uint32_t point, String16& text)
{
    const bool isCharacter = point != 0 && point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
    if (!isCharacter)
        text += kReplacement;
    else if (point < 0x10000)
        text += static_cast<Char16>(point);
    else
    {
        text += static_cast<Char16>(0xD800 + ((point - 0x10000) >> 10));
        text += static_cast<Char16>(0xDC00 + (point & 0x3FF));
    }
}

int DigitOf(Char16 unit, int base)
{
    const Char16 lower = LowerAscii(unit);
    int digit = -1;
    if (unit >= '0' && unit <= '9')
        digit = unit - '0';
    else if (lower >= 'a' && lower <= 'f')
        digit = lower - 'a' + 10;
    return digit < base ? digit : -1;
}

// Takes "#8226" or "#x2022"; false when that is no number.
bool AppendNumber(StringView16 name, String16& text)
{
    const bool isHex = name.size() > 1 && LowerAscii(name[1]) == 'x';
    const StringView16 digits = name.substr(isHex ? 2 : 1);
    uint32_t point = 0;
    for (const Char16 unit : digits)
    {
        const int digit = DigitOf(unit, isHex ? 16 : 10);
        if (digit < 0)
            return false;
        point = point * (isHex ? 16U : 10U) + static_cast<uint32_t>(digit);
    }
    if (digits.empty())
        return false;
    AppendCodePoint(point, text);
    return true;
}

bool AppendEntity(StringView16 name, String16& text)
{
    if (!name.empty() && name[0] == '#')
        return AppendNumber(name, text);
    for (const Entity& entity : kEntities)
        if (entity.Name == name)
        {
            text += entity.Unit;
            return true;
        }
    return false;
}

// Where the entity that begins at `ampersand` has its semicolon; 0 when there is none near.
size_t EndOfEntity(StringView16 text, size_t ampersand)
{
    for (size_t i = ampersand + 1; i < text.size() && i - ampersand <= kLongestEntity; ++i)
        if (text[i] == ';')
            return i;
    return 0;
}

} // namespace

String16 DecodeEntities(StringView16 text)
{
    String16 decoded;
    decoded.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i)
    {
        const Char16 unit = text[i];
        const size_t end = unit == '&' ? EndOfEntity(text, i) : 0;
        if (end != 0 && AppendEntity(text.substr(i + 1, end - i - 1), decoded))
            i = end;
        else
            decoded += unit < ' ' && !IsHtmlSpace(unit) ? kReplacement : unit;
    }
    return decoded;
}

} // namespace help
