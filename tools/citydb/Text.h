// Texts of the builder: UTF-8 in the sources, UTF-16 in the image.
#pragma once

#include "platform/Char16.h"

#include <optional>
#include <string>
#include <string_view>

namespace citydb
{

// Nothing when the bytes are not valid UTF-8.
std::optional<String16> ToUtf16(std::string_view utf8);

// Broken pairs become U+FFFD.
std::string ToUtf8(StringView16 text);

// The text without accents and with Latin letters spelt in ASCII ("Łódź" gives "Lodz"); other
// scripts stay.
String16 PlainSpelling(StringView16 text);

// The lower-case form of each of the 65,536 code units.
const Char16* FoldTable();

// The text with every code unit folded.
String16 Fold(StringView16 text);

// A key whose bytes compare as the texts are ordered in a list for readers: marks in front of the
// first letter or digit count least.
std::string OrderKey(StringView16 text);

} // namespace citydb
