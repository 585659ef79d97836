// Start and end of the DLL: its instance and its window classes, with the small tools of Module.h.
#include "platform/aygshell/Module.h"

#include "platform/aygshell/MenuBar.h"
#include "platform/aygshell/SipButton.h"
#include "platform/aygshell/SipPanel.h"
#include "platform/aygshell/SipPref.h"

namespace shell
{

namespace
{

// Set once at attach, before anything else of the DLL can run.
HINSTANCE g_instance;

const wchar_t* const kClasses[] = {kMenuBarClass, kSipButtonClass, kSipPanelClass, kSipPrefClass};

// The classes are there from the start: a dialog template may name SIPPREF before its program
// calls any function.
void RegisterClasses()
{
    RegisterMenuBarClass();
    RegisterSipButtonClass();
    RegisterSipPanelClass();
    RegisterSipPrefClass();
}

void UnregisterClasses()
{
    for (const wchar_t* name : kClasses)
        UnregisterClassW(name, g_instance);
}

} // namespace

HINSTANCE Instance()
{
    return g_instance;
}

bool RegisterShellClass(const wchar_t* name, WNDPROC procedure, UINT style, int extraBytes)
{
    WNDCLASSEXW info{};
    info.cbSize = sizeof info;
    info.style = style;
    info.lpfnWndProc = procedure;
    info.cbWndExtra = extraBytes;
    info.hInstance = g_instance;
    info.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    info.lpszClassName = name;
    return RegisterClassExW(&info) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

bool IsScreenChange(UINT message, WPARAM wParam)
{
    if (message == WM_DISPLAYCHANGE)
        return true;
    return message == WM_SETTINGCHANGE && (wParam == kScreenReset || wParam == SPI_SETWORKAREA);
}

void CloseOpenMenu()
{
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    if (GetGUIThreadInfo(GetCurrentThreadId(), &state) && (state.flags & GUI_INMENUMODE) != 0)
        EndMenu();
}

BOOL Fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

DWORD CheckOwnWindow(HWND window)
{
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    if (thread == 0)
        return ERROR_INVALID_WINDOW_HANDLE;
    return thread == GetCurrentThreadId() ? ERROR_SUCCESS : ERROR_WINDOW_OF_OTHER_THREAD;
}

} // namespace shell

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void* processEnds)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        shell::g_instance = instance;
        shell::RegisterClasses();
    }
    // At the end of the process the system has taken the classes back already.
    if (reason == DLL_PROCESS_DETACH && processEnds == nullptr)
        shell::UnregisterClasses();
    return TRUE;
}
