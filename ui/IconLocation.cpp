#include "ui/IconLocation.h"

#include <algorithm>
#include <limits>

namespace
{

bool IsWhiteSpace(Char16 unit)
{
    return unit == TEXT16(' ') || (unit >= TEXT16('\t') && unit <= TEXT16('\r'));
}

bool IsDigit(Char16 unit)
{
    return unit >= TEXT16('0') && unit <= TEXT16('9');
}

} // namespace

int32_t LeadingNumber(StringView16 text)
{
    size_t i = 0;
    while (i < text.size() && IsWhiteSpace(text[i]))
        ++i;
    const bool isNegative = i < text.size() && text[i] == TEXT16('-');
    if (i < text.size() && (isNegative || text[i] == TEXT16('+')))
        ++i;
    // One more than the largest number, since the smallest one reaches that far.
    constexpr int64_t kLimit = int64_t{std::numeric_limits<int32_t>::max()} + 1;
    int64_t number = 0;
    for (; i < text.size() && IsDigit(text[i]); ++i)
        number = std::min(number * 10 + (text[i] - TEXT16('0')), kLimit);
    return static_cast<int32_t>(isNegative ? -number : std::min(number, kLimit - 1));
}

std::optional<IconLocation> SplitIconLocation(StringView16 path)
{
    const size_t comma = path.find(TEXT16(','));
    if (comma == StringView16::npos)
        return std::nullopt;
    return IconLocation{String16(path.substr(0, comma)), LeadingNumber(path.substr(comma + 1))};
}
