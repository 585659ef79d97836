#include "platform/os/WindowClass.h"

namespace os
{

std::wstring HandheldClassName(HWND window)
{
    wchar_t name[257] = {};
    GetClassNameW(window, name, 257);
    std::wstring spelling(name);
    if (spelling == L"Static")
        return L"static";
    if (spelling == L"ComboBox")
        return L"combobox";
    return spelling;
}

} // namespace os
