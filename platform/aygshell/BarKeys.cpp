#include "platform/aygshell/BarKeys.h"

#include "aygshell.h"

#include "platform/aygshell/MenuBar.h"

namespace shell
{

namespace
{

// What the system posts after F1; its default handling makes WM_HELP of it.
constexpr UINT kHelpRequest = 0x004D;

// lParam of key messages: the key was down before.
constexpr LPARAM kRepeated = 1 << 30;

bool IsDown(int key)
{
    return GetKeyState(key) < 0;
}

bool HasModifier()
{
    return IsDown(VK_CONTROL) || IsDown(VK_MENU) || IsDown(VK_SHIFT);
}

bool InMenu()
{
    GUITHREADINFO state{};
    state.cbSize = sizeof state;
    return GetGUIThreadInfo(GetCurrentThreadId(), &state) && (state.flags & GUI_INMENUMODE) != 0;
}

bool HasKey(HWND toolbar, int index)
{
    return SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0) > index;
}

void PostPress(HWND toolbar, int index)
{
    PostMessageW(GetParent(toolbar), kPressSoftKey, static_cast<WPARAM>(index), 0);
}

// Whether the message is the keyboard's press of a soft key; presses the key then.
bool TakeKeyDown(HWND toolbar, const MSG& message)
{
    const int index = static_cast<int>(message.wParam) - VK_F1;
    if (index < 0 || index > 1 || HasModifier() || !HasKey(toolbar, index))
        return false;
    if ((message.lParam & kRepeated) == 0 && !InMenu())
        PostPress(toolbar, index);
    return true;
}

bool TakeMnemonic(HWND toolbar, WPARAM letter)
{
    UINT id = 0;
    if (!SendMessageW(toolbar, TB_MAPACCELERATORW, letter, reinterpret_cast<LPARAM>(&id)))
        return false;
    PostPress(toolbar, static_cast<int>(SendMessageW(toolbar, TB_COMMANDTOINDEX, id, 0)));
    return true;
}

bool TakeMessage(HWND toolbar, MSG& message)
{
    switch (message.message)
    {
    case WM_KEYDOWN:
        if (message.wParam != VK_HELP)
            return TakeKeyDown(toolbar, message);
        // The Help key asks for what F1 asks for elsewhere.
        message.message = kHelpRequest;
        message.wParam = 0;
        message.lParam = 0;
        return false;
    case kHelpRequest:
        // The follower of a plain F1 that was the left soft key; Ctrl+F1 stays help.
        return IsDown(VK_F1) && !HasModifier() && HasKey(toolbar, 0);
    case WM_SYSCHAR:
        return !InMenu() && TakeMnemonic(toolbar, message.wParam);
    }
    return false;
}

LRESULT CALLBACK GetMessageHook(int code, WPARAM removal, LPARAM lParam)
{
    MSG& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && removal == PM_REMOVE && message.hwnd != nullptr)
    {
        const HWND toolbar = SHFindMenuBar(GetAncestor(message.hwnd, GA_ROOT));
        if (toolbar != nullptr && TakeMessage(toolbar, message))
            message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, removal, lParam);
}

} // namespace

HHOOK HookBarKeys()
{
    return SetWindowsHookExW(WH_GETMESSAGE, GetMessageHook, nullptr, GetCurrentThreadId());
}

} // namespace shell
