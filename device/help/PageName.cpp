#include "device/help/PageName.h"

#include <algorithm>

#include "device/help/HtmlReader.h"

namespace help
{
namespace
{

// The system's longest path, with its end.
constexpr size_t kLongestName = 259;

bool IsSlash(Char16 unit)
{
    return unit == '\\' || unit == '/';
}

bool IsLetter(Char16 unit)
{
    const Char16 lower = LowerAscii(unit);
    return lower >= 'a' && lower <= 'z';
}

bool HasBadCharacter(StringView16 name)
{
    return std::any_of(name.begin(), name.end(),
                       [](Char16 unit) {
                           return unit < ' ' ||
                                  StringView16(TEXT16("<>:\"|?*")).find(unit) != StringView16::npos;
                       });
}

bool ClimbsOut(StringView16 name)
{
    size_t begin = 0;
    for (size_t i = 0; i <= name.size(); ++i)
    {
        if (i < name.size() && !IsSlash(name[i]))
            continue;
        // The system takes ".. " and "..." for ".." as well.
        const StringView16 part = name.substr(begin, i - begin);
        const bool isDots =
            part.size() > 1 && part.find_first_not_of(TEXT16(". ")) == StringView16::npos;
        if (isDots && part[0] == '.')
            return true;
        begin = i + 1;
    }
    return false;
}

bool EndsWith(StringView16 text, StringView16 end)
{
    return text.size() > end.size() && LowerAscii(text.substr(text.size() - end.size())) == end;
}

} // namespace

PageName JudgePageName(StringView16 name)
{
    const bool hasDrive = name.size() > 1 && IsLetter(name[0]) && name[1] == ':';
    const StringView16 path = hasDrive ? name.substr(2) : name;
    const bool isRooted = !path.empty() && IsSlash(path[0]);
    if (name.size() > kLongestName || name.empty())
        return PageName::Malformed;
    if (isRooted && path.size() > 1 && IsSlash(path[1]))
        return PageName::ForeignPlace;
    if (hasDrive && !isRooted)
        return PageName::ForeignPlace;
    if (HasBadCharacter(path))
        return PageName::Malformed;
    if (ClimbsOut(path))
        return PageName::LeavesFolder;
    if (!EndsWith(path, TEXT16(".htm")) && !EndsWith(path, TEXT16(".html")))
        return PageName::NoPage;
    return isRooted ? PageName::Absolute : PageName::Relative;
}

bool IsOwnTarget(StringView16 target)
{
    const size_t mark = std::min(target.find('#'), target.size());
    const StringView16 file = target.substr(0, mark);
    return file.empty() || JudgePageName(file) == PageName::Relative;
}

} // namespace help
