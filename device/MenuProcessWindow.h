// The window of the launcher-menu process: draws icons for the customisation dialogs and says which
// Start Menu entries the launcher shows. It has a thread of its own, so that it answers while a
// dialog waits; and it lives in the shell's process, where a device context of the dialogs is good.
#pragma once

#include "platform/Win.h"

#include <cstdint>
#include <string>

#include "device/WindowThread.h"

class CMenuProcessWindow
{
public:
    // Starts the thread and waits until the window is there.
    CMenuProcessWindow();

    // Null when it could not be created.
    HWND Window() const { return m_thread.Window(); }

private:
    CWindowThread m_thread;
};

namespace menuprocess
{

// Answers one WM_COPYDATA: TRUE when the picture was drawn or the target is shown, FALSE for
// everything else, malformed requests included. `data` may be null.
LRESULT Answer(uint32_t code, const uint8_t* data, size_t size);

// Whether the launcher shows this entry of the Start Menu: shortcuts, programs and folders below
// `startMenu`, compared without regard to case. Takes full paths.
bool IsShownBelow(const std::wstring& startMenu, const std::wstring& path, bool isFolder);

} // namespace menuprocess
