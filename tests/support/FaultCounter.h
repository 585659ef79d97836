// Counts access violations in a module's code. The system swallows those of window procedures, so
// that a dialog seems to survive what it must not even look at.
#pragma once

#include "platform/Win.h"

// Watches from construction to destruction; one at a time. Faults outside the module, such as those
// by which the system probes pointers, don't count.
class CFaultCounter
{
public:
    explicit CFaultCounter(HMODULE module);
    ~CFaultCounter();
    CFaultCounter(const CFaultCounter&) = delete;
    CFaultCounter& operator=(const CFaultCounter&) = delete;

    int Count() const;

private:
    void* m_handler;
};
