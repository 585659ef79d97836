// The wait cursor for the length of a scope.
#pragma once

#include "platform/Win.h"

class CWaitCursor
{
public:
    CWaitCursor() : m_before(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
    ~CWaitCursor() { SetCursor(m_before); }
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    HCURSOR m_before;
};
