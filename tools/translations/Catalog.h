// PO files, the format that translators' programs speak: one language's translations, or the
// template that all of them begin with.
#pragma once

#include "tools/translations/Extraction.h"

#include <filesystem>
#include <string>
#include <vector>

namespace translations
{

struct Entry
{
    std::string English;
    std::string Translation; // empty while there is none
    std::string Note;
    std::vector<std::string> Files; // where the text is shown
    size_t Line = 0;                // in the PO file, from 1
    bool Fuzzy = false;             // a guess that no translator has looked at
    bool HasContext = false;
    bool HasPlural = false;
};

struct Catalog
{
    std::string File; // as it was named by the caller
    // The encoding of the translation file for the device, from the header's field
    // "X-Device-Encoding"; "UTF-16LE" without one.
    std::string Encoding;
    std::vector<Entry> Entries; // without obsolete ones
};

// True for keys that ask the translator for a setting of the language instead of a text: their
// names begin with an underscore, and they may stay empty.
bool IsSwitch(const std::string& english);

// Reads a PO file in UTF-8. Throws citydb::CInputError, one "FILE:LINE: what" for each mistake.
Catalog ReadCatalog(const std::filesystem::path& path);

// One entry for each text, with all its places.
std::vector<Entry> MergeTexts(const std::vector<SourceText>& texts);

// Writes entries as a PO file whose header names `language`, the empty text for a template.
// Throws citydb::CInputError.
void WriteCatalog(const std::filesystem::path& path, const std::string& language,
                  const std::vector<Entry>& entries);

} // namespace translations
