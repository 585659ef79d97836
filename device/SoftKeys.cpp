#include "device/SoftKeys.h"

#include <aygshell.h>

#include "device/TopBar.h"
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

constexpr UINT_PTR kRoomSubclass = 1;

void FitBetweenBars(HWND window, HWND bar)
{
    RECT keys = {};
    GetWindowRect(bar, &keys);
    const int top = CTopBar::Height();
    SetWindowPos(window, nullptr, 0, top, GetSystemMetrics(SM_CXSCREEN), keys.top - top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    // What stands in it may stand elsewhere in another shape.
    InvalidateRect(window, nullptr, FALSE);
}

LRESULT CALLBACK KeepBetweenBars(HWND window, UINT message, WPARAM wparam, LPARAM lparam,
                                 UINT_PTR id, DWORD_PTR bar)
{
    if (message == WM_DISPLAYCHANGE)
    {
        const HWND keys = reinterpret_cast<HWND>(bar);
        // The bar first: the windows hear of a new screen in no particular order.
        SendMessageW(keys, message, wparam, lparam);
        FitBetweenBars(window, keys);
    }
    if (message == WM_NCDESTROY)
        RemoveWindowSubclass(window, KeepBetweenBars, id);
    return DefSubclassProc(window, message, wparam, lparam);
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
    if (!SHCreateMenuBar(&info))
        return;
    m_bar = info.hwndMB;
    FitBetweenBars(window, GetParent(m_bar));
    SetWindowSubclass(window, KeepBetweenBars, kRoomSubclass,
                      reinterpret_cast<DWORD_PTR>(GetParent(m_bar)));
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
