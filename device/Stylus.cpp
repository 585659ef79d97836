#include "device/Stylus.h"

namespace stylus
{
namespace
{

void Send(INPUT input)
{
    SendInput(1, &input, sizeof(input));
}

void Mouse(POINT screen, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    // Absolute positions count in 65536ths of the screen.
    input.mi.dx = (screen.x * 65536 + 32768) / GetSystemMetrics(SM_CXSCREEN);
    input.mi.dy = (screen.y * 65536 + 32768) / GetSystemMetrics(SM_CYSCREEN);
    input.mi.dwFlags = flags | MOUSEEVENTF_ABSOLUTE;
    Send(input);
}

} // namespace

void Down(POINT screen)
{
    Mouse(screen, MOUSEEVENTF_MOVE);
    Mouse(screen, MOUSEEVENTF_LEFTDOWN);
}

void Up(POINT screen)
{
    Mouse(screen, MOUSEEVENTF_LEFTUP);
}

void Tap(POINT screen)
{
    Down(screen);
    Up(screen);
}

void Key(WORD virtualKey)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    Send(input);
    input.ki.dwFlags = KEYEVENTF_KEYUP;
    Send(input);
}

} // namespace stylus
