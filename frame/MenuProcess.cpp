#include "frame/MenuProcess.h"

#include "include/TavLumenarDialogs.h"

namespace
{

constexpr UINT kPatience = 5000;

HWND g_window;
bool g_hasTimedOut;

// Systems differ in whether they name a time-out.
bool IsTimeOut(DWORD error)
{
    return error == ERROR_SUCCESS || error == ERROR_TIMEOUT;
}

} // namespace

void RefreshMenuProcess()
{
    g_window = FindWindowW(TAVLUMENAR_MENU_WINDOW_CLASS, nullptr);
    g_hasTimedOut = false;
}

bool AskMenuProcess(ULONG_PTR code, const void* record, DWORD size)
{
    if (!g_window || g_hasTimedOut)
        return false;
    COPYDATASTRUCT data = {code, size, const_cast<void*>(record)};
    DWORD_PTR answer = 0;
    SetLastError(ERROR_SUCCESS);
    if (!SendMessageTimeoutW(g_window, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data),
                             SMTO_ABORTIFHUNG, kPatience, &answer))
    {
        g_hasTimedOut = IsTimeOut(GetLastError());
        return false;
    }
    return answer != 0;
}

bool HasMenuProcessTimedOut()
{
    return g_hasTimedOut;
}
