#include "menu/ProgramScanData.h"

#include <algorithm>
#include <cassert>

namespace programs
{
namespace
{

constexpr StringView16 kShortcut = TEXT16(".lnk");
constexpr StringView16 kProgram = TEXT16(".exe");

bool EndsWith(StringView16 name, StringView16 lowerExtension, FoldFunction fold)
{
    if (name.size() <= lowerExtension.size())
        return false;
    const StringView16 end = name.substr(name.size() - lowerExtension.size());
    return std::equal(end.begin(), end.end(), lowerExtension.begin(),
                      [fold](Char16 unit, Char16 lower) { return fold(unit) == lower; });
}

} // namespace

bool IsProgramFile(StringView16 name, FoldFunction fold)
{
    return EndsWith(name, kShortcut, fold) || EndsWith(name, kProgram, fold);
}

String16 DisplayText(StringView16 path)
{
    size_t separator = path.rfind(Char16{'\\'});
    if (separator == StringView16::npos)
        separator = path.rfind(Char16{'/'});
    const StringView16 name = separator == StringView16::npos ? path : path.substr(separator + 1);
    return String16(name.substr(0, name.rfind(Char16{'.'})));
}

bool FitsRequest(StringView16 path)
{
    return path.size() < kPathSize;
}

FilterRequest MakeRequest(StringView16 path)
{
    assert(FitsRequest(path));
    FilterRequest request = {};
    std::copy(path.begin(), path.end(), request.Path);
    return request;
}

} // namespace programs
