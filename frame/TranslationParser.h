// The grammar of the translation file. Pure: no windows.h.
//
// One entry per line: the English text, a bar, the translation. A second bar ends the translation.
// A backslash is an escape: \n is a line feed, \r a carriage return, and before anything else it
// stands for that character itself, so that texts can hold bars, backslashes and line ends. Lines
// without a bar and entries with an empty side are ignored. Blanks belong to the texts. A zero
// character ends the file.
#pragma once

#include "platform/Char16.h"

#include <vector>

// Two zero-terminated texts inside the file's buffer, neither of them empty.
struct TranslationEntry
{
    Char16* English;
    Char16* Translation;
};

// Parses the text from `text` up to `end` in place; *end must be writable and becomes zero. Returns
// the entries in the file's order, duplicates included; they live as long as the buffer. Nothing
// behind `end` is touched.
std::vector<TranslationEntry> ParseTranslation(Char16* text, Char16* end);
