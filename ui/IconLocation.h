// The two parts of an image path that names an icon within a file: "file,index".
#pragma once

#include "platform/Char16.h"

#include <cstdint>
#include <optional>

struct IconLocation
{
    String16 File;
    // Negative for a resource's number instead of a position.
    int32_t Index;
};

// Splits an image path at its first comma. Nothing for a path without one.
std::optional<IconLocation> SplitIconLocation(StringView16 path);

// The decimal number at the start of a text: white space, a sign, digits; whatever follows is
// ignored, and no digits are 0. A number that doesn't fit becomes the nearest one that does.
int32_t LeadingNumber(StringView16 text);
