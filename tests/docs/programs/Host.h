/* What the example programs share: the window that a dialog is shown over. */
#ifndef TAV_TESTS_DOCS_HOST_H
#define TAV_TESTS_DOCS_HOST_H

#include "platform/Win.h"

#include <stdio.h>

static inline HWND MakeOwner(void)
{
    HWND owner = CreateWindowExW(0, L"Static", L"example", WS_POPUP | WS_VISIBLE, 0, 0,
                                 GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN), NULL,
                                 NULL, GetModuleHandleW(NULL), NULL);
    SetForegroundWindow(owner);
    return owner;
}

#endif
