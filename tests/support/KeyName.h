// The name by which the system itself knows an open registry key.
#pragma once

#include "platform/Win.h"

#include <string>

// The full path of an open key, beginning with "\Registry"; empty when the system doesn't tell.
std::wstring SystemPathOf(HKEY key);
