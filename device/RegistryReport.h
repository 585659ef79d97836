// Tells in words what changed between two snapshots of the registry: what `./run --dialog` prints
// after a dialog has ended.
#pragma once

#include <string>
#include <vector>

#include "device/RegistrySnapshot.h"

namespace report
{

// One sentence per change, ordered by key path; empty when nothing changed. Changes of the menu's
// customisation layer, of the pins, of the Now screen's plug-ins and of its layout are told in
// their own words, all others as key, value, before and after.
std::vector<std::wstring> DescribeChanges(const RegistrySnapshot& before,
                                          const RegistrySnapshot& after);

// A value as text: a number, a quoted text, or the bytes of anything else (at most 16 of them).
std::wstring ValueInWords(const RegistryValue& value);

} // namespace report
