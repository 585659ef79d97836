#include "device/OpenWindows.h"

#include "device/Waiting.h"

namespace open
{
namespace
{

constexpr const wchar_t* kDialogClass = L"#32770";
constexpr const wchar_t* kPopupClass = L"#32768";

bool HasClass(HWND window, const wchar_t* name)
{
    wchar_t found[32];
    return GetClassNameW(window, found, 32) > 0 && lstrcmpW(found, name) == 0;
}

struct DialogSearch
{
    HWND Other;
    HWND Found;
};

BOOL CALLBACK FindReadyDialog(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    if (window == search.Other || !IsWindowVisible(window) || !IsWindowEnabled(window) ||
        !HasClass(window, kDialogClass))
        return TRUE;
    search.Found = window;
    return FALSE;
}

BOOL CALLBACK PaintOne(HWND window, LPARAM)
{
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    return TRUE;
}

} // namespace

HWND Dialog(DWORD threadId, HWND other)
{
    DialogSearch search = {other, nullptr};
    EnumThreadWindows(threadId, FindReadyDialog, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

HWND WaitForDialog(DWORD threadId, HWND other)
{
    HWND found = nullptr;
    waiting::Until(
        [&]
        {
            // Only the foreground window gets the input.
            found = Dialog(threadId, other);
            return found && GetForegroundWindow() == found;
        });
    if (found)
        waiting::ForThreadOf(found);
    return found;
}

void PaintAll(DWORD threadId)
{
    EnumThreadWindows(threadId, PaintOne, 0);
}

bool IsMenuOpen()
{
    const HWND popup = FindWindowW(kPopupClass, nullptr);
    return popup && IsWindowVisible(popup);
}

int MenuCount()
{
    int count = 0;
    HWND popup = nullptr;
    while ((popup = FindWindowExW(nullptr, popup, kPopupClass, nullptr)) != nullptr)
        count += IsWindowVisible(popup) ? 1 : 0;
    return count;
}

bool WaitForMenu()
{
    return waiting::Until(IsMenuOpen);
}

} // namespace open
