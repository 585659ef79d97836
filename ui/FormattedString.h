// String resources with a value in them.
#pragma once

#include "platform/Win.h"

#include <string>

// The string resource `id`, translated, with `value` in place of its placeholder. A translation
// whose placeholder differs from the English one is not used.
std::wstring FormattedString(UINT id, const std::wstring& value);
// The same with a number.
std::wstring FormattedString(UINT id, int value);
