#include "tests/support/DialogRun.h"

#include "frame/TavException.h"
#include "tests/support/Wait.h"

#include <gtest/gtest.h>

namespace
{

constexpr DWORD kEndTimeout = 20000;

bool HasClass(HWND window, const wchar_t* name)
{
    wchar_t actual[64] = {};
    GetClassNameW(window, actual, 64);
    return lstrcmpW(actual, name) == 0;
}

bool IsReady(HWND dialog)
{
    return IsWindowVisible(dialog) && IsWindowEnabled(dialog);
}

BOOL CALLBACK FindDialog(HWND window, LPARAM found)
{
    if (!HasClass(window, L"#32770") || !IsReady(window))
        return TRUE;
    // Windows come in z-order: the first is the innermost.
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

BOOL CALLBACK FindMenu(HWND window, LPARAM found)
{
    if (!HasClass(window, L"#32768") || !IsWindowVisible(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

BOOL CALLBACK CloseDialog(HWND window, LPARAM /*unused*/)
{
    if (!HasClass(window, L"#32770"))
        return TRUE;
    // Closes a pop-up menu that is open.
    PostMessageW(window, WM_CANCELMODE, 0, 0);
    PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

INPUT KeyInput(WORD key, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = flags;
    return input;
}

INPUT MouseInput(POINT screen, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = (screen.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (screen.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    // A button event without a move happens wherever the cursor is.
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE;
    return input;
}

} // namespace

CDialogRun::CDialogRun(std::function<BOOL(HWND owner)> call)
    : m_ready(CreateEventW(nullptr, TRUE, FALSE, nullptr)),
      m_ended(CreateEventW(nullptr, TRUE, FALSE, nullptr)), m_thread([this, call] { Run(call); })
{
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(m_ready, kEndTimeout));
}

CDialogRun::~CDialogRun()
{
    WaitUntil(
        [this]
        {
            if (HasEnded())
                return true;
            EnumThreadWindows(m_threadId, CloseDialog, 0);
            return WaitForSingleObject(m_ended, 50) == WAIT_OBJECT_0;
        },
        kEndTimeout);
    m_thread.join();
    CloseHandle(m_ready);
    CloseHandle(m_ended);
}

void CDialogRun::Run(const std::function<BOOL(HWND)>& call)
{
    m_threadId = GetCurrentThreadId();
    m_owner = CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0,
                              GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), nullptr,
                              nullptr, nullptr, nullptr);
    SetForegroundWindow(m_owner);
    SetEvent(m_ready);
    try
    {
        m_result = call(m_owner);
    }
    catch (const CTavException& exception)
    {
        m_thrown = exception.Code();
    }
    catch (...)
    {
        m_thrown = E_UNEXPECTED;
    }
    m_ownerEnabledAtEnd = IsWindowEnabled(m_owner) != FALSE;
    DestroyWindow(m_owner);
    SetEvent(m_ended);
}

HWND OpenDialogOf(DWORD threadId)
{
    HWND dialog = nullptr;
    EnumThreadWindows(threadId, FindDialog, reinterpret_cast<LPARAM>(&dialog));
    return dialog;
}

HWND CDialogRun::InnermostDialog() const
{
    return OpenDialogOf(m_threadId);
}

HWND CDialogRun::Focus() const
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(m_threadId, &info);
    return info.hwndFocus;
}

HWND CDialogRun::WaitForDialog(const std::wstring& title, DWORD milliseconds)
{
    HWND dialog = nullptr;
    const bool found = WaitUntil(
        [&]
        {
            dialog = InnermostDialog();
            return HasEnded() || (dialog && TextOf(dialog) == title);
        },
        milliseconds);
    EXPECT_TRUE(found && !HasEnded()) << "no dialog with the expected title";
    if (HasEnded())
        return nullptr;
    // One round trip: the dialog has finished its start-up and is back in its message loop.
    SendMessageW(dialog, WM_NULL, 0, 0);
    return dialog;
}

HWND CDialogRun::WaitForPopup()
{
    HWND menu = nullptr;
    EXPECT_TRUE(WaitUntil([&] { return (menu = OpenPopup()) != nullptr; })) << "no pop-up menu";
    return menu;
}

HWND CDialogRun::OpenPopup() const
{
    HWND menu = nullptr;
    EnumThreadWindows(m_threadId, FindMenu, reinterpret_cast<LPARAM>(&menu));
    return menu;
}

bool CDialogRun::HasEnded() const
{
    return WaitForSingleObject(m_ended, 0) == WAIT_OBJECT_0;
}

bool CDialogRun::WaitForEnd(DWORD milliseconds)
{
    const bool ended = WaitForSingleObject(m_ended, milliseconds) == WAIT_OBJECT_0;
    EXPECT_TRUE(ended) << "the dialog is still open";
    return ended;
}

std::wstring TextOf(HWND window)
{
    wchar_t text[512] = {};
    GetWindowTextW(window, text, 512);
    return text;
}

void SendCommand(HWND dialog, UINT id)
{
    SendMessageW(dialog, WM_COMMAND, id, 0);
}

void PostCommand(HWND dialog, UINT id)
{
    PostMessageW(dialog, WM_COMMAND, id, 0);
}

void PressKey(WORD virtualKey)
{
    INPUT inputs[] = {KeyInput(virtualKey, 0), KeyInput(virtualKey, KEYEVENTF_KEYUP)};
    SendInput(2, inputs, sizeof(INPUT));
}

void HoldKey(WORD virtualKey, bool down)
{
    INPUT input = KeyInput(virtualKey, down ? 0 : KEYEVENTF_KEYUP);
    SendInput(1, &input, sizeof(INPUT));
}

bool IsKeyDown(WORD virtualKey)
{
    return (GetAsyncKeyState(virtualKey) & 0x8000) != 0;
}

void PlaceStylus(POINT screen)
{
    // How often in a row it has to be found there.
    constexpr int kSteady = 10;
    int found = 0;
    EXPECT_TRUE(WaitUntil(
        [&]
        {
            POINT now = {};
            GetCursorPos(&now);
            const bool isThere = now.x == screen.x && now.y == screen.y;
            found = isThere ? found + 1 : 0;
            if (!isThere)
                SetCursorPos(screen.x, screen.y);
            return found == kSteady;
        }));
}

void TapScreen(POINT screen)
{
    PlaceStylus(screen);
    INPUT inputs[] = {MouseInput(screen, MOUSEEVENTF_LEFTDOWN),
                      MouseInput(screen, MOUSEEVENTF_LEFTUP)};
    SendInput(2, inputs, sizeof(INPUT));
}
