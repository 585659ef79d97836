// Window procedure thunks: a few bytes of code per object that replace the window handle, the
// first argument of a window procedure, with the object's address.
#pragma once

#include "atldef.h"

namespace ATL
{

// Where thunks come from. A test replaces it to show what happens when there are none left.
class CThunkAllocator
{
public:
    virtual ~CThunkAllocator() = default;
    // Returns the entry point of a thunk that calls `procedure` with `self` in place of the window;
    // null when out of memory.
    virtual void* Allocate(void* procedure, void* self) = 0;
    // Redirects an allocated thunk.
    virtual void Redirect(void* code, void* procedure, void* self) = 0;
    // Takes a thunk back.
    virtual void Free(void* code) = 0;
};

// The allocator in use; pages of code that are never writable and executable at once.
CThunkAllocator& ThunkAllocator();
// Replaces the allocator; null brings the usual one back. Returns the one replaced (null for the
// usual one). For tests: no thunk may be alive.
CThunkAllocator* SetThunkAllocator(CThunkAllocator* allocator);

// The thunk of one window object.
class CWndProcThunk
{
public:
    CWndProcThunk() = default;
    ~CWndProcThunk();
    CWndProcThunk(const CWndProcThunk&) = delete;
    CWndProcThunk& operator=(const CWndProcThunk&) = delete;

    // Points the thunk at a procedure and an object, allocating it on the first call. FALSE when
    // out of memory.
    BOOL Init(WNDPROC procedure, void* self);
    // The address to give to the system; null before Init.
    WNDPROC GetWNDPROC() const { return reinterpret_cast<WNDPROC>(m_code); }

private:
    void* m_code = nullptr;
};

} // namespace ATL
