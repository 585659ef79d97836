// The translation file that the device reads: one "English|translation" a line, in UTF-16 or in
// the language's ANSI code page.
#pragma once

#include "tools/translations/Catalog.h"

#include <cstdint>
#include <vector>

namespace translations
{

// UTF-8 in another encoding; nothing of what the encoding lacks gets in.
struct Encoded
{
    std::string Bytes;
    std::string Lacking; // the characters, in UTF-8; empty when all are there
};

// `encoding` is a name that iconv knows. Throws citydb::CInputError for any other.
Encoded Encode(const std::string& text, const std::string& encoding);

// The whole file: every finished translation, with its byte-order mark when it is in UTF-16.
// Backslashes, bars and line ends in texts are written as escapes. Throws citydb::CInputError for
// a character that the encoding lacks.
std::vector<uint8_t> MakeDeviceFile(const Catalog& catalog);

} // namespace translations
