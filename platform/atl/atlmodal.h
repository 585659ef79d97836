// Carries exceptions across the system's modal dialog loop. Unwinding through the window manager is
// undefined on 64-bit systems, so a window procedure that fails hands its exception over here, the
// innermost modal dialog ends, and the call that runs it throws the exception on.
#pragma once

#include "atldef.h"

#include <exception>

namespace ATL
{

// One modal dialog that is being run on the current thread; scopes nest like the dialogs do.
class CModalScope
{
public:
    CModalScope();
    ~CModalScope();
    CModalScope(const CModalScope&) = delete;
    CModalScope& operator=(const CModalScope&) = delete;

    // Tells the innermost scope its dialog window, once that exists.
    static void BindWindow(HWND window);
    // True when the window is a modal dialog that an exception has ended: it shall not act any
    // more.
    static bool HasFailed(HWND window);
    // To be called from a catch block: keeps the exception for the innermost scope and ends its
    // dialog. Without a scope the exception goes on.
    static void KeepCurrentException();

    // Throws the exception that was kept, if any; std::bad_alloc as CAtlException E_OUTOFMEMORY.
    void Rethrow();

private:
    CModalScope* m_outer;
    HWND m_window = nullptr;
    std::exception_ptr m_failure;
};

} // namespace ATL
