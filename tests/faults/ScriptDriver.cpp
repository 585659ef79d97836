#include "tests/faults/ScriptDriver.h"

#include "tests/support/DialogRun.h"

#include <algorithm>

namespace
{

constexpr const wchar_t* kClass = L"TavLumenarScriptDriver";
constexpr UINT kTakeStep = WM_APP;
// Some dialogs don't tell when they are idle.
constexpr UINT kTick = 20;
// How long one session may take, and how often a dialog is cancelled before it counts as stuck.
constexpr ULONGLONG kPatience = 10000;
constexpr int kMostCancels = 20;

CScriptDriver* g_driver;
HWND g_window;

bool IsDialog(HWND window)
{
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    return lstrcmpW(name, L"#32770") == 0;
}

BOOL CALLBACK EndByForce(HWND window, LPARAM /*unused*/)
{
    if (IsDialog(window))
        EndDialog(window, IDCANCEL);
    return TRUE;
}

BOOL CALLBACK FindHiddenDialog(HWND window, LPARAM found)
{
    if (IsDialog(window) && !IsWindowVisible(window))
        *reinterpret_cast<bool*>(found) = true;
    return TRUE;
}

// A dialog that isn't shown yet: the ones behind it may already be enabled again.
bool IsDialogOpening()
{
    bool found = false;
    EnumThreadWindows(GetCurrentThreadId(), FindHiddenDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

} // namespace

CScriptDriver::CScriptDriver()
{
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = Procedure;
    windowClass.lpszClassName = kClass;
    RegisterClassW(&windowClass);
    g_driver = this;
    m_window =
        CreateWindowExW(0, kClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    g_window = m_window;
    m_hook = SetWindowsHookExW(WH_CALLWNDPROC, WatchMessage, nullptr, GetCurrentThreadId());
    SetTimer(m_window, 1, kTick, nullptr);
}

CScriptDriver::~CScriptDriver()
{
    KillTimer(m_window, 1);
    UnhookWindowsHookEx(m_hook);
    DestroyWindow(m_window);
    UnregisterClassW(kClass, nullptr);
    g_driver = nullptr;
}

void CScriptDriver::Begin(const Script& script)
{
    m_script = script;
    m_next = 0;
    m_leftOut = m_stuck = false;
    m_cancels = 0;
    m_deadline = GetTickCount64() + kPatience;
    m_isRunning = true;
}

void CScriptDriver::End()
{
    m_isRunning = false;
    m_isStepPosted = false;
    // A step that came too late belongs to nobody.
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

LRESULT CALLBACK CScriptDriver::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != kTakeStep && message != WM_TIMER)
        return DefWindowProcW(window, message, wParam, lParam);
    if (message == kTakeStep)
        g_driver->m_isStepPosted = false;
    if (g_driver->m_isRunning)
        g_driver->TakeStep();
    return 0;
}

// The step itself waits until the loop is back in its place: it may open dialogs of its own.
LRESULT CALLBACK CScriptDriver::WatchMessage(int code, WPARAM wParam, LPARAM lParam)
{
    const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent->message == WM_ENTERIDLE && g_driver->m_isRunning &&
        !g_driver->m_isStepPosted)
    {
        g_driver->m_isStepPosted = true;
        PostMessageW(g_window, kTakeStep, 0, 0);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void CScriptDriver::TakeStep()
{
    if (GetTickCount64() > m_deadline)
    {
        EndAllByForce();
        return;
    }
    GUITHREADINFO thread = {};
    thread.cbSize = sizeof(thread);
    GetGUIThreadInfo(GetCurrentThreadId(), &thread);
    if (thread.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE))
    {
        EndMenu();
        return;
    }
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog || IsDialogOpening())
        return;
    const std::wstring title = TextOf(dialog);
    const auto next =
        std::find_if(m_script.begin() + static_cast<ptrdiff_t>(m_next), m_script.end(),
                     [&](const ScriptStep& step) { return step.title == title; });
    if (next == m_script.end())
    {
        Cancel(dialog);
        return;
    }
    const auto index = static_cast<size_t>(next - m_script.begin());
    m_leftOut = m_leftOut || index != m_next;
    m_next = index + 1;
    next->act(dialog);
}

void CScriptDriver::Cancel(HWND dialog)
{
    m_leftOut = true;
    if (++m_cancels > kMostCancels)
        EndAllByForce();
    else
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

void CScriptDriver::EndAllByForce()
{
    m_stuck = true;
    EndMenu();
    EnumThreadWindows(GetCurrentThreadId(), EndByForce, 0);
}
