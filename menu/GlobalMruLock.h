// The lock on the global most-recently-used list, shared by all processes of the shell.
#pragma once

#include "platform/Handles.h"

namespace Ratings
{

// Holds the named mutex for the length of a scope. Every read-modify-write of the global list
// happens under it.
class CGlobalMruLock
{
public:
    // Waits at most `timeout` milliseconds, INFINITE for ever.
    explicit CGlobalMruLock(DWORD timeout);
    ~CGlobalMruLock();
    CGlobalMruLock(const CGlobalMruLock&) = delete;
    CGlobalMruLock& operator=(const CGlobalMruLock&) = delete;

    // False when the wait ended without the mutex; the list must not be touched then.
    [[nodiscard]] bool IsHeld() const { return m_held; }

private:
    UniqueKernelHandle m_mutex;
    bool m_held = false;
};

} // namespace Ratings
