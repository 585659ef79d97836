// What Text.cpp asks each system for.
#pragma once

#include "platform/Char16.h"

#include <string>

namespace citydb
{

// A key whose bytes compare as readers order the texts; empty for an empty text.
std::string CollationKey(StringView16 text);

// True for one code unit that is a letter or digit by itself.
bool IsLetterOrDigit(Char16 unit);

} // namespace citydb
