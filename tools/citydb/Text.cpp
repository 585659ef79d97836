#include "tools/citydb/Text.h"

#include "tools/citydb/SystemText.h"

#include <algorithm>

namespace citydb
{
namespace
{

// A half of a character outside the first plane counts as a letter.
bool IsHalf(Char16 unit)
{
    return (unit & 0xF800) == 0xD800;
}

// From the first letter or digit on; the whole text when there is none.
StringView16 WithoutFirstMarks(StringView16 text)
{
    const auto first =
        std::find_if(text.begin(), text.end(),
                     [](Char16 unit) { return IsHalf(unit) || IsLetterOrDigit(unit); });
    const auto marks = static_cast<size_t>(first - text.begin());
    return marks < text.size() ? text.substr(marks) : text;
}

} // namespace

String16 Fold(StringView16 text)
{
    String16 folded(text);
    for (Char16& unit : folded)
        unit = FoldTable()[unit];
    return folded;
}

std::string OrderKey(StringView16 text)
{
    // The whole text tells apart what differs in its first marks only.
    return CollationKey(WithoutFirstMarks(text)) + CollationKey(text);
}

} // namespace citydb
