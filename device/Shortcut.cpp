#include "device/Shortcut.h"

namespace shortcut
{
namespace
{

bool IsDigit(Char16 unit)
{
    return unit >= TEXT16('0') && unit <= TEXT16('9');
}

// Reads a decimal number of at most nine digits; 0 for an empty text.
int Number(StringView16 digits)
{
    int value = 0;
    for (size_t i = 0; i < digits.size() && i < 9 && IsDigit(digits[i]); ++i)
        value = value * 10 + (digits[i] - TEXT16('0'));
    return value;
}

String16 ToText(int number)
{
    String16 digits;
    for (const char digit : std::to_string(number))
        digits += static_cast<Char16>(digit);
    return digits;
}

// Takes the target, quoted or up to the first blank or '?', from the front of `text`.
StringView16 TakeTarget(StringView16& text)
{
    const bool quoted = !text.empty() && text[0] == TEXT16('"');
    if (quoted)
        text.remove_prefix(1);
    const size_t end = quoted ? text.find(TEXT16('"')) : text.find_first_of(TEXT16(" ?"));
    const StringView16 target = text.substr(0, end);
    text.remove_prefix(target.size());
    if (quoted && !text.empty())
        text.remove_prefix(1);
    return target;
}

} // namespace

bool Parse(StringView16 text, Shortcut& found)
{
    const size_t mark = text.find(TEXT16('#'));
    if (mark == StringView16::npos || mark == 0 || mark > 5)
        return false;
    for (size_t i = 0; i < mark; ++i)
        if (!IsDigit(text[i]))
            return false;
    const auto length = static_cast<size_t>(Number(text.substr(0, mark)));
    text = text.substr(mark + 1).substr(0, length);
    const StringView16 target = TakeTarget(text);
    if (target.empty())
        return false;
    Shortcut shortcut;
    shortcut.Target = target;
    const size_t icon = text.find(TEXT16('?'));
    const size_t comma = text.rfind(TEXT16(",-"));
    if (icon != StringView16::npos && comma != StringView16::npos && comma > icon)
    {
        shortcut.IconFile = text.substr(icon + 1, comma - icon - 1);
        shortcut.Icon = Number(text.substr(comma + 2));
    }
    found = shortcut;
    return true;
}

String16 Format(const Shortcut& shortcut)
{
    String16 text = TEXT16("\"");
    text += shortcut.Target;
    text += TEXT16('"');
    if (!shortcut.IconFile.empty())
    {
        text += TEXT16('?');
        text += shortcut.IconFile;
        text += TEXT16(",-");
        text += ToText(shortcut.Icon);
    }
    return ToText(static_cast<int>(text.size())) + TEXT16('#') + text;
}

} // namespace shortcut
