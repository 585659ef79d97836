// The grammar of the translation file. Pure: no windows.h.
//
// One entry per line: the English text, a bar, the translation. A second bar ends the translation.
// A backslash is an escape: \n is a line feed, \r a carriage return, and before anything else it
// stands for that character itself, so that texts can hold bars, backslashes and line ends. Lines
// without a bar and entries with an empty side are ignored. Blanks belong to the texts. A zero
// character ends the file.
#pragma once

#include "platform/Char16.h"

// Parses the text from `text` up to `end` in place; *end must be writable and becomes zero. Returns
// how many entries there are: afterwards they stand one behind the other from `text` on, in the
// file's order, each as key, zero, value, zero. Nothing behind `end` is touched.
size_t ParseTranslation(Char16* text, Char16* end);
