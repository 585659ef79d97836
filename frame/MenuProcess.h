// The window of the launcher-menu process, as the dialogs ask it: to draw icons, and which launch
// targets it shows. That is another program, which may be missing, hang or end at any moment.
#pragma once

#include "platform/Win.h"

// Looks the window up and keeps it for the questions that follow. To be called before each piece of
// work that could outlive the other process: a painting, a list, a scan.
void RefreshMenuProcess();

// Sends one record of `size` bytes as WM_COPYDATA with `code`. True when the window answered with
// anything but 0; false without sending when there is no window. It gets 5 seconds to answer; one
// that took longer is not asked again until the next refresh.
bool AskMenuProcess(ULONG_PTR code, const void* record, DWORD size);

// Whether the window has been given up since the last refresh because it did not answer in time.
bool HasMenuProcessTimedOut();
