#include "frame/TextFormat.h"

namespace
{

constexpr Char16 kPercent = '%';

// What follows the percent sign at `position`; 0 at the end of the text.
Char16 SpecifierAt(StringView16 format, size_t position)
{
    return position + 1 < format.size() ? format[position + 1] : Char16{0};
}

// Where the next specifier begins, at `from` or behind it; "%%" is none. npos without one.
size_t FindSpecifier(StringView16 format, size_t from)
{
    for (size_t i = format.find(kPercent, from); i != StringView16::npos;
         i = format.find(kPercent, i + 2))
        if (SpecifierAt(format, i) != kPercent)
            return i;
    return StringView16::npos;
}

// The letters behind the format's percent signs, in their order.
String16 SpecifiersOf(StringView16 format)
{
    String16 letters;
    for (size_t i = FindSpecifier(format, 0); i != StringView16::npos;
         i = FindSpecifier(format, i + 1))
        letters += SpecifierAt(format, i);
    return letters;
}

void AppendPlain(String16& text, StringView16 format)
{
    for (size_t i = 0; i < format.size(); ++i)
    {
        text += format[i];
        if (format[i] == kPercent && SpecifierAt(format, i) == kPercent)
            ++i;
    }
}

String16 Format(StringView16 translated, StringView16 english, Char16 specifier, StringView16 value)
{
    const bool alike = SpecifiersOf(translated) == SpecifiersOf(english);
    const StringView16 format = alike ? translated : english;
    String16 text;
    const size_t place = FindSpecifier(format, 0);
    if (place == StringView16::npos || SpecifierAt(format, place) != specifier)
    {
        AppendPlain(text, format);
        return text;
    }
    AppendPlain(text, format.substr(0, place));
    text += value;
    AppendPlain(text, format.substr(place + 2));
    return text;
}

} // namespace

String16 FormatText(StringView16 translated, StringView16 english, StringView16 value)
{
    return Format(translated, english, Char16{'s'}, value);
}

String16 FormatText(StringView16 translated, StringView16 english, int value)
{
    return Format(translated, english, Char16{'d'}, DecimalText(value));
}

String16 DecimalText(int value)
{
    // Without a sign, so that the smallest number has an opposite.
    auto rest = static_cast<unsigned>(value);
    if (value < 0)
        rest = 0u - rest;
    String16 digits;
    do
        digits.insert(digits.begin(), static_cast<Char16>('0' + rest % 10));
    while ((rest /= 10) != 0);
    return value < 0 ? Char16{'-'} + digits : digits;
}
