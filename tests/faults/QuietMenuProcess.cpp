#include "tests/faults/QuietMenuProcess.h"

#include "include/TavLumenarDialogs.h"

namespace
{

LRESULT CALLBACK Answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COPYDATA)
        return reinterpret_cast<const COPYDATASTRUCT*>(lParam)->dwData ==
               TAVLUMENAR_REQUEST_IS_SHOWN;
    return DefWindowProcW(window, message, wParam, lParam);
}

} // namespace

CQuietMenuProcess::CQuietMenuProcess()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Answer;
    windowClass.lpszClassName = TAVLUMENAR_MENU_WINDOW_CLASS;
    RegisterClassW(&windowClass);
    m_window = CreateWindowExW(0, TAVLUMENAR_MENU_WINDOW_CLASS, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                               nullptr, nullptr, nullptr);
}

CQuietMenuProcess::~CQuietMenuProcess()
{
    DestroyWindow(m_window);
    UnregisterClassW(TAVLUMENAR_MENU_WINDOW_CLASS, nullptr);
}
