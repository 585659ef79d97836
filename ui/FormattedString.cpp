#include "ui/FormattedString.h"

#include "frame/Localizer.h"
#include "frame/Module.h"
#include "frame/TextFormat.h"

namespace
{

template <class Value>
std::wstring Format(UINT id, const Value& value)
{
    constexpr int kSize = 1024;
    wchar_t english[kSize] = {};
    LoadStringW(ModuleInstance(), id, english, kSize);
    return FormatText(GetLocalizer().LoadTranslatedString(id), english, value);
}

} // namespace

std::wstring FormattedString(UINT id, const std::wstring& value)
{
    return Format(id, value);
}

std::wstring FormattedString(UINT id, int value)
{
    return Format(id, value);
}
