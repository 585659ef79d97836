#include "ui/ControlText.h"

std::wstring ControlText(HWND control)
{
    const int length = GetWindowTextLengthW(control);
    if (length <= 0)
        return std::wstring();
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    const int copied = GetWindowTextW(control, text.data(), length + 1);
    text.resize(static_cast<size_t>(copied > 0 ? copied : 0));
    return text;
}
