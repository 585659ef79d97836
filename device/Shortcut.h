// Shortcut files as the handheld writes them: one line of ANSI text,
//   LENGTH#"TARGET"?ICONFILE,-ICON
// where LENGTH counts the characters behind the '#', and the part from '?' on is optional.
#pragma once

#include "platform/Char16.h"

#include <string>
#include <string_view>

namespace shortcut
{

struct Shortcut
{
    String16 Target;
    // Empty when the shortcut names no icon of its own.
    String16 IconFile;
    int Icon = 0;
};

// Reads the text of a shortcut file. False for anything that is not one; `found` is then untouched.
bool Parse(StringView16 text, Shortcut& found);

// The text of a shortcut file.
String16 Format(const Shortcut& shortcut);

} // namespace shortcut
