#include "platform/aygshell/Sip.h"

#include <atomic>

#include "aygshell.h"

#include "platform/Handles.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/SipPanel.h"

namespace shell
{

namespace
{

// The handheld has one panel for all programs; here it is one for all threads of the process.
std::atomic<bool> g_isUp{false};

// A window that does not answer for so long, in milliseconds, misses the announcement.
constexpr UINT kAnswerTime = 500;

BOOL CALLBACK TellWindow(HWND window, LPARAM /*unused*/)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    DWORD_PTR result = 0;
    if (process == GetCurrentProcessId())
        SendMessageTimeoutW(window, WM_SETTINGCHANGE, SPI_SETSIPINFO, 0, SMTO_ABORTIFHUNG,
                            kAnswerTime, &result);
    return TRUE;
}

DWORD WINAPI AnnounceThread(void* /*unused*/)
{
    EnumWindows(TellWindow, 0);
    FreeLibraryAndExitThread(Instance(), 0);
    return 0;
}

// WM_SETTINGCHANGE can't be posted, and sending it from here would run the windows' layout in the
// middle of whatever the caller is doing; so a short-lived thread sends it. The thread holds the
// DLL in memory until its end.
void Announce()
{
    HMODULE self = nullptr;
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                            reinterpret_cast<LPCWSTR>(&AnnounceThread), &self))
        return;
    const UniqueKernelHandle thread(CreateThread(nullptr, 0, AnnounceThread, nullptr, 0, nullptr));
    if (!thread)
        FreeLibrary(self);
}

BOOL GetInfo(SIPINFO& info)
{
    const bool up = IsInputPanelUp();
    info.fdwFlags = SIPF_DOCKED | (up ? SIPF_ON : SIPF_OFF);
    info.rcSipRect = PanelRect();
    info.rcVisibleDesktop = WorkArea();
    if (up)
        info.rcVisibleDesktop.bottom = info.rcSipRect.top;
    return TRUE;
}

} // namespace

bool IsInputPanelUp()
{
    return g_isUp;
}

void SetInputPanel(bool up)
{
    const bool changed = g_isUp.exchange(up) != up;
    // Another thread may change its mind meanwhile: what is on the screen ends as the state is.
    bool shown = false;
    do
    {
        shown = g_isUp;
        ShowSipPanel(shown);
    } while (shown != g_isUp);
    if (changed)
        Announce();
}

} // namespace shell

BOOL WINAPI SHSipInfo(UINT action, UINT /*param*/, void* data, UINT /*winIni*/)
{
    using namespace shell;
    SIPINFO* info = static_cast<SIPINFO*>(data);
    if (info == nullptr || info->cbSize != sizeof *info)
        return Fail(ERROR_INVALID_PARAMETER);
    if (action == SPI_GETSIPINFO)
        return GetInfo(*info);
    if (action != SPI_SETSIPINFO)
        return Fail(ERROR_INVALID_PARAMETER);
    SetInputPanel((info->fdwFlags & SIPF_ON) != 0);
    return TRUE;
}
