// Switches and small definitions that every header of the window template layer starts from.
#pragma once

#include "platform/Win.h"

#include <cassert>

#define ATLASSERT(condition) assert(condition)
