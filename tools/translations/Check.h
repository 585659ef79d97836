// What a translator may have got wrong.
#pragma once

#include "tools/translations/Catalog.h"

#include <string>
#include <vector>

namespace translations
{

// Faults of single entries, each as "FILE:LINE: what": unfinished guesses, contexts and plural
// forms, placeholders or outer blanks that differ, texts longer than the dialogs hold, characters
// that the device's encoding lacks.
std::vector<std::string> EntryFaults(const Catalog& catalog);

// Texts of the template that have no translation, and translations of texts that are no more.
std::vector<std::string> CoverageFaults(const Catalog& catalog, const Catalog& pattern);

} // namespace translations
