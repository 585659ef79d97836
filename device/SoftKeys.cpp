#include "device/SoftKeys.h"

#include <aygshell.h>

#include "device/resource.h"

namespace
{

void SetButtonText(HWND bar, UINT command, const std::wstring& text)
{
    std::wstring buffer = text;
    TBBUTTONINFOW info = {};
    info.cbSize = sizeof(info);
    info.dwMask = TBIF_TEXT;
    info.pszText = buffer.data();
    SendMessageW(bar, TB_SETBUTTONINFOW, command, reinterpret_cast<LPARAM>(&info));
}

} // namespace

void CSoftKeys::Create(HWND window)
{
    SHMENUBARINFO info = {};
    info.cbSize = sizeof(info);
    info.hwndParent = window;
    info.dwFlags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON;
    info.nToolBarId = IDR_SHELL_KEYS;
    info.hInstRes = GetModuleHandleW(nullptr);
    if (SHCreateMenuBar(&info))
        m_bar = info.hwndMB;
}

void CSoftKeys::SetTexts(const std::wstring& left, const std::wstring& right)
{
    if (!m_bar)
        return;
    SetButtonText(m_bar, ID_LEFT_KEY, left);
    SetButtonText(m_bar, ID_RIGHT_KEY, right);
}

int CSoftKeys::Top() const
{
    RECT area = {};
    if (!m_bar || !GetWindowRect(m_bar, &area))
        return GetSystemMetrics(SM_CYSCREEN);
    return area.top;
}
