// What it takes to throw when there is no memory left. The compiler's runtime makes its reserve,
// and what it knows of each thread, on first use and of the very memory that is missing then; this
// module's own version has both ready before a dialog opens.
#pragma once

#include <cstddef>

// What the runtime keeps for a thread: which exceptions are being handled, and how many fly.
struct ThreadExceptions
{
    void* caught = nullptr;
    unsigned uncaught = 0;
};

// Stands at the beginning of each export until it returns: gives the thread its record and fills
// the reserve. Calls may be nested.
class CExceptionMemory
{
public:
    CExceptionMemory();
    ~CExceptionMemory();
    CExceptionMemory(const CExceptionMemory&) = delete;
    CExceptionMemory& operator=(const CExceptionMemory&) = delete;

    // False when there was no memory for the reserve: nothing that can fail may be begun then.
    bool IsReady() const { return m_isReady; }

private:
    ThreadExceptions m_thread;
    ThreadExceptions* m_outer;
    bool m_isReady;
};
