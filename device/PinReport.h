// The home screen's own words for changes of what is pinned; RegistryReport.cpp asks here first.
#pragma once

#include <string>
#include <vector>

#include "device/RegistrySnapshot.h"

namespace report
{

// True for the key of the global list, which holds the pins.
bool IsPinList(const std::wstring& path);

// One sentence for each entry that was pinned or unpinned, and one for the list itself. Empty when
// the pins are the same: other changes have no special words.
std::vector<std::wstring> DescribePins(const RegistrySnapshot& before,
                                       const RegistrySnapshot& after);

} // namespace report
