// The texts of a resource script: captions, controls, menu items and strings.
#pragma once

#include "tools/translations/Extraction.h"
#include "tools/translations/Lexer.h"

namespace translations
{

// Throws citydb::CInputError for a text behind a keyword that isn't known, so that none is missed.
std::vector<SourceText> ResourceTexts(const std::vector<Token>& tokens, const std::string& file);

} // namespace translations
