#include "device/Rotation.h"

#include <algorithm>

namespace
{

// Larger than every handheld's screen and smaller than every desktop's.
constexpr LONG kLargestDevice = 800;

DEVMODEW NewMode()
{
    DEVMODEW mode = {};
    mode.dmSize = sizeof(mode);
    return mode;
}

// The size now; nothing when the system doesn't tell it.
SIZE ScreenSize()
{
    DEVMODEW mode = NewMode();
    if (!EnumDisplaySettingsW(nullptr, ENUM_CURRENT_SETTINGS, &mode))
        return {};
    return {static_cast<LONG>(mode.dmPelsWidth), static_cast<LONG>(mode.dmPelsHeight)};
}

SIZE Turned(SIZE size)
{
    return {size.cy, size.cx};
}

bool HasMode(SIZE size)
{
    DEVMODEW mode = NewMode();
    for (DWORD i = 0; EnumDisplaySettingsW(nullptr, i, &mode); ++i)
    {
        if (static_cast<LONG>(mode.dmPelsWidth) == size.cx &&
            static_cast<LONG>(mode.dmPelsHeight) == size.cy)
            return true;
    }
    return false;
}

// `fields`: what the mode must be like beside its size.
bool SetMode(SIZE size, DWORD fields)
{
    DEVMODEW mode = NewMode();
    mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT | fields;
    mode.dmPelsWidth = static_cast<DWORD>(size.cx);
    mode.dmPelsHeight = static_cast<DWORD>(size.cy);
    mode.dmDisplayOrientation = DMDO_DEFAULT;
    return ChangeDisplaySettingsW(&mode, 0) == DISP_CHANGE_SUCCESSFUL;
}

BOOL CALLBACK MoveMessageBox(HWND window, LPARAM room)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t name[16] = {};
    GetClassNameW(window, name, 16);
    RECT box = {};
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) ||
        lstrcmpW(name, L"#32770") != 0 || !GetWindowRect(window, &box))
        return TRUE;
    const RECT moved = rotation::MovedInto(box, *reinterpret_cast<const RECT*>(room));
    if (!EqualRect(&moved, &box))
        SetWindowPos(window, nullptr, moved.left, moved.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_ASYNCWINDOWPOS);
    return TRUE;
}

} // namespace

bool rotation::IsDeviceScreen(SIZE screen)
{
    return screen.cx > 0 && screen.cy > 0 && std::max(screen.cx, screen.cy) <= kLargestDevice;
}

RECT rotation::MovedInto(RECT box, const RECT& room)
{
    const LONG x = std::max(room.left, std::min(box.left, room.right - (box.right - box.left)));
    const LONG y = std::max(room.top, std::min(box.top, room.bottom - (box.bottom - box.top)));
    OffsetRect(&box, x - box.left, y - box.top);
    return box;
}

void rotation::KeepMessageBoxesOnScreen()
{
    RECT room = {};
    if (SystemParametersInfoW(SPI_GETWORKAREA, 0, &room, 0))
        EnumWindows(MoveMessageBox, reinterpret_cast<LPARAM>(&room));
}

bool CanRotateScreen()
{
    const SIZE screen = ScreenSize();
    // The way back as well: some systems have only the shapes of monitors, upright none.
    return rotation::IsDeviceScreen(screen) && HasMode(screen) && HasMode(Turned(screen));
}

bool RotateScreen()
{
    if (!CanRotateScreen())
        return false;
    const SIZE turned = Turned(ScreenSize());
    // A screen that has the other shape itself shows it upright to the person before it; any other
    // one turns its picture, as a handheld does in its owner's hands.
    return SetMode(turned, DM_DISPLAYORIENTATION) || SetMode(turned, 0);
}
