// Formats a value into a translated text without trusting the translation. Pure: no windows.h.
#pragma once

#include "platform/Char16.h"

// `translated` with its first "%s" replaced by `value` and "%%" by one percent sign. A translation
// whose specifiers are not the same ones, in the same order, as those of `english` is not used: the
// English text takes its place. Specifiers beyond the first stay as they are written.
String16 FormatText(StringView16 translated, StringView16 english, StringView16 value);

// The same with a number in decimal for the first "%d".
String16 FormatText(StringView16 translated, StringView16 english, int value);

// A number in decimal digits, as "%d" writes it.
String16 DecimalText(int value);
