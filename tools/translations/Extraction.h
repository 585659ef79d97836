// Finds every text that reaches the translator, in the resource scripts and in the code.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace translations
{

// One place that shows a text.
struct SourceText
{
    std::string English; // UTF-8
    std::string Note;    // what it is, for translators
    std::string File;    // from the project's folder
    size_t Line;         // from 1
};

// The texts of the project in `folder` in the order of its sources, a text once for each place.
// Texts without a letter are left out: nothing is to be translated in them. Throws
// citydb::CInputError, naming file and line, for a place whose text can't be told.
std::vector<SourceText> ExtractTexts(const std::filesystem::path& folder);

} // namespace translations
