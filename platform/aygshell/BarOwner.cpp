#include "platform/aygshell/BarOwner.h"

#include "aygshell.h"

#include "platform/aygshell/MenuBar.h"

namespace shell
{

namespace
{

constexpr UINT_PTR kOwnerSubclass = 2;

// On the owner: its toolbar.
constexpr wchar_t kToolbarProperty[] = L"SoftKeyBar";

void ShowBar(HWND toolbar, bool show)
{
    ShowWindow(GetParent(toolbar), show ? SW_SHOWNA : SW_HIDE);
}

void FollowVisibility(HWND toolbar, const WINDOWPOS& change)
{
    if ((change.flags & SWP_SHOWWINDOW) != 0)
        ShowBar(toolbar, true);
    else if ((change.flags & SWP_HIDEWINDOW) != 0)
        ShowBar(toolbar, false);
}

LRESULT CALLBACK OwnerProc(HWND owner, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                           DWORD_PTR hidden)
{
    const HWND toolbar = SHFindMenuBar(owner);
    if (message == WM_WINDOWPOSCHANGED && toolbar != nullptr && hidden == 0)
        FollowVisibility(toolbar, *reinterpret_cast<const WINDOWPOS*>(lParam));
    if (message == WM_NCDESTROY)
    {
        // The system ends the bars of top-level windows by itself; a child's bar hangs on here.
        if (toolbar != nullptr)
            DestroyWindow(GetParent(toolbar));
        RemoveWindowSubclass(owner, OwnerProc, id);
    }
    return DefSubclassProc(owner, message, wParam, lParam);
}

} // namespace

bool AttachOwner(HWND owner, HWND toolbar, bool hidden)
{
    const HWND earlier = SHFindMenuBar(owner);
    if (!SetWindowSubclass(owner, OwnerProc, kOwnerSubclass, hidden ? 1 : 0) ||
        !SetPropW(owner, kToolbarProperty, toolbar))
        return false;
    if (earlier != nullptr && earlier != toolbar)
        DestroyWindow(GetParent(earlier));
    if (hidden)
        ShowBar(toolbar, false);
    else if (IsWindowVisible(owner))
        ShowBar(toolbar, true);
    return true;
}

void DetachOwner(HWND owner, HWND toolbar)
{
    if (GetPropW(owner, kToolbarProperty) != toolbar)
        return;
    RemovePropW(owner, kToolbarProperty);
    RemoveWindowSubclass(owner, OwnerProc, kOwnerSubclass);
}

void FitMenuBar(HWND owner)
{
    const HWND toolbar = SHFindMenuBar(owner);
    if (toolbar != nullptr)
        SendMessageW(GetParent(toolbar), WM_DISPLAYCHANGE, 0, 0);
}

} // namespace shell

HWND WINAPI SHFindMenuBar(HWND window)
{
    const HWND toolbar = static_cast<HWND>(GetPropW(window, shell::kToolbarProperty));
    return IsWindow(toolbar) ? toolbar : nullptr;
}
