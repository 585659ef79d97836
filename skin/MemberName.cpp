#include "skin/MemberName.h"

#include <algorithm>

namespace skin
{

namespace
{

bool IsSeparator(Char16 unit)
{
    return unit == TEXT16('\\') || unit == TEXT16('/');
}

// Two dots or more, which the system takes as "up", also with spaces between or behind them.
bool GoesUp(StringView16 part)
{
    const auto dots = std::count(part.begin(), part.end(), TEXT16('.'));
    const auto spaces = std::count(part.begin(), part.end(), TEXT16(' '));
    return dots >= 2 && static_cast<size_t>(dots + spaces) == part.size();
}

} // namespace

bool StaysInFolder(StringView16 name)
{
    if (name.empty() || IsSeparator(name.front()) || name.find(TEXT16(':')) != name.npos)
        return false;
    while (!name.empty())
    {
        const auto end = std::find_if(name.begin(), name.end(), IsSeparator);
        const auto length = static_cast<size_t>(end - name.begin());
        if (GoesUp(name.substr(0, length)))
            return false;
        name.remove_prefix(std::min(length + 1, name.size()));
    }
    return true;
}

} // namespace skin
