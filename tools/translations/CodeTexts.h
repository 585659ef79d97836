// The texts of the code: what the translator is called with, and tables of texts that it is called
// with at run time.
#pragma once

#include "tools/translations/Extraction.h"
#include "tools/translations/Lexer.h"

#include <map>
#include <string>

namespace translations
{

// A source file of the code.
struct CodeFile
{
    std::string Name; // from the project's folder
    std::vector<Token> Words;
};

// Named texts of the headers, for calls that name a constant. A name that stands for different
// texts in different headers is not among them.
using Constants = std::map<std::string, std::string>;
Constants CollectConstants(const std::vector<CodeFile>& files);

// The texts of one file. Throws citydb::CInputError for a call with a constant that isn't known.
std::vector<SourceText> CodeTexts(const CodeFile& file, const Constants& fromHeaders);

} // namespace translations
