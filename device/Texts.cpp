#include "device/Texts.h"

#include "frame/Localizer.h"

namespace texts
{

std::wstring Translate(const wchar_t* text)
{
    return GetLocalizer().TranslateText(text);
}

std::wstring Translate(const wchar_t* text, const std::wstring& value)
{
    std::wstring translated = Translate(text);
    const size_t mark = translated.find(L'%');
    if (mark != std::wstring::npos)
        translated.replace(mark, 2, value);
    return translated;
}

} // namespace texts
