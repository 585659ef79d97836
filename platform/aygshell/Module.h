// What the parts of the DLL share: its instance, its window classes, the marks it leaves on
// windows.
#pragma once

#include "platform/Win.h"

namespace shell
{

// The DLL's own instance; its window classes belong to it.
HINSTANCE Instance();

// Registers a window class of the DLL; a class that is there already is as good.
bool RegisterShellClass(const wchar_t* name, WNDPROC procedure, UINT style = 0, int extraBytes = 0);

// The handheld's WM_SETTINGCHANGE for a screen that was rotated or resized.
constexpr WPARAM kScreenReset = 0x3002;

// Whether a message says that the screen or its work area may have another size now.
bool IsScreenChange(UINT message, WPARAM wParam);

// Closes the pop-up menu of the calling thread, if one is open: it stays where it was when the
// screen changes below it.
void CloseOpenMenu();

// Sets the last error and returns FALSE, for the exported functions' failure paths.
BOOL Fail(DWORD error);

// ERROR_SUCCESS when the window exists and belongs to the calling thread, so that it can be
// subclassed; the error to report otherwise.
DWORD CheckOwnWindow(HWND window);

// The point of a mouse message.
inline POINT PointOf(LPARAM lParam)
{
    return {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
}

} // namespace shell
