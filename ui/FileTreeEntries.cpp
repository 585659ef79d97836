#include "ui/FileTreeEntries.h"

#include <algorithm>

namespace filetree
{
namespace
{

constexpr Char16 kSeparator = '\\';

bool EqualsFolded(StringView16 text, StringView16 lower, FoldFunction fold)
{
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [fold](Char16 unit, Char16 lowerUnit) { return fold(unit) == lowerUnit; });
}

} // namespace

String16 JoinPath(StringView16 folder, StringView16 name)
{
    String16 path(folder);
    if (!path.empty() && path.back() != kSeparator)
        path += kSeparator;
    return path.append(name);
}

bool SplitPath(StringView16 path, StringView16& folder, StringView16& name)
{
    const size_t separator = path.rfind(kSeparator);
    if (separator == StringView16::npos)
        return false;
    folder = path.substr(0, separator);
    name = path.substr(separator + 1);
    return true;
}

bool IsListedFile(StringView16 name, bool isHidden, FoldFunction fold)
{
    const size_t dot = name.rfind(Char16{'.'});
    if (dot == StringView16::npos)
        return true;
    const StringView16 extension = name.substr(dot + 1);
    return EqualsFolded(extension, TEXT16("exe"), fold) ||
           EqualsFolded(extension, TEXT16("lnk"), fold) ||
           (EqualsFolded(extension, TEXT16("dll"), fold) && !isHidden);
}

} // namespace filetree
