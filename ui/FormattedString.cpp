#include "ui/FormattedString.h"

#include "frame/Localizer.h"
#include "frame/Module.h"
#include "frame/TextFormat.h"

std::wstring FormattedString(UINT id, const std::wstring& value)
{
    constexpr int kSize = 1024;
    wchar_t english[kSize] = {};
    LoadStringW(ModuleInstance(), id, english, kSize);
    return FormatText(GetLocalizer().LoadTranslatedString(id), english, value);
}
