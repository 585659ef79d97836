// Tap-and-hold, for the controls (IsStylusHeld) and for programs (SHRecognizeGesture).
#include "platform/aygshell/Gesture.h"

#include <algorithm>
#include <cstdlib>

#include "aygshell.h"

#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"

namespace shell
{

namespace
{

// How long down is a hold, and how often to look, in milliseconds.
constexpr DWORD kHoldTime = 700;
constexpr DWORD kLookEvery = 20;

// How far the stylus may tremble, in logical pixels.
constexpr int kTremble = 4;

// Whether a message of this kind waits in the queue; sent messages are handled on the way. A
// waiting WM_QUIT ends the wait as well: it is shown whatever is asked for.
bool IsWaiting(UINT first, UINT last)
{
    MSG message;
    return PeekMessageW(&message, nullptr, first, last, PM_NOREMOVE) != FALSE;
}

bool IsPhysicallyDown(int key)
{
    return GetAsyncKeyState(key) < 0;
}

// Runs until `isOver` says so or the hold time has passed; returns whether it passed.
template <class Condition>
bool StaysDown(Condition isOver)
{
    const DWORD start = GetTickCount();
    while (!isOver())
    {
        const DWORD passed = GetTickCount() - start;
        if (passed >= kHoldTime)
            return true;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, std::min(kLookEvery, kHoldTime - passed),
                                  QS_MOUSEBUTTON | QS_SENDMESSAGE);
    }
    return false;
}

// Where the stylus went down, and whether it has left that place.
class CStylusPlace
{
public:
    CStylusPlace() { GetCursorPos(&m_start); }

    bool IsLeft() const
    {
        POINT now = m_start;
        GetCursorPos(&now);
        return std::abs(now.x - m_start.x) > m_tremble || std::abs(now.y - m_start.y) > m_tremble;
    }

private:
    POINT m_start{};
    int m_tremble = Scaled(kTremble);
};

bool IsButtonHeld()
{
    const CStylusPlace place;
    return StaysDown(
        [&place]
        {
            return IsWaiting(WM_LBUTTONUP, WM_LBUTTONUP) || !IsPhysicallyDown(VK_LBUTTON) ||
                   place.IsLeft();
        });
}

bool IsActionKeyHeld()
{
    return StaysDown([] { return IsWaiting(WM_KEYUP, WM_KEYUP) || !IsPhysicallyDown(VK_RETURN); });
}

bool IsGestureMade()
{
    if (IsPhysicallyDown(VK_LBUTTON))
        return IsButtonHeld();
    return IsPhysicallyDown(VK_RETURN) && IsActionKeyHeld();
}

void Notify(const SHRGINFO& info)
{
    const bool toParent = (info.dwFlags & SHRG_NOTIFYPARENT) != 0;
    NMRGINFO notification{};
    notification.hdr.hwndFrom = info.hwndClient;
    notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(info.hwndClient));
    notification.hdr.code = GN_CONTEXTMENU;
    notification.ptAction = info.ptDown;
    ClientToScreen(info.hwndClient, &notification.ptAction);
    SendMessageW(toParent ? GetParent(info.hwndClient) : info.hwndClient, WM_NOTIFY,
                 notification.hdr.idFrom, reinterpret_cast<LPARAM>(&notification));
}

} // namespace

bool IsStylusHeld(HWND window)
{
    const CStylusPlace place;
    const bool held = StaysDown(
        [&place, window]
        { return IsWaiting(WM_LBUTTONUP, WM_LBUTTONUP) || place.IsLeft() || !IsWindow(window); });
    return held && IsWindow(window);
}

} // namespace shell

DWORD WINAPI SHRecognizeGesture(SHRGINFO* info)
{
    using namespace shell;
    if (info == nullptr || info->cbSize != sizeof *info)
    {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    if (!IsWindow(info->hwndClient))
    {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    if (!IsGestureMade())
        return 0;
    if ((info->dwFlags & SHRG_RETURNCMD) == 0)
        Notify(*info);
    return GN_CONTEXTMENU;
}
