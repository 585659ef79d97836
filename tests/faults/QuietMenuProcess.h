// A window of the launcher-menu process that shows everything, draws nothing and keeps nothing.
#pragma once

#include "platform/Win.h"

// On the thread that makes it, so that asking it starts nothing and leaves nothing behind.
class CQuietMenuProcess
{
public:
    CQuietMenuProcess();
    ~CQuietMenuProcess();
    CQuietMenuProcess(const CQuietMenuProcess&) = delete;
    CQuietMenuProcess& operator=(const CQuietMenuProcess&) = delete;

private:
    HWND m_window;
};
