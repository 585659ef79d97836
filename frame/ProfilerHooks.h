// Optional timing probes: durations are handed to a profiling library when the device has one.
#pragma once

#include "platform/Win.h"

// The profiling library's exports; null for those that it, or the whole library, lacks.
class CProfilerHooks
{
public:
    // Identifies a measured stretch; what it means is the library's affair.
    using Token = INT_PTR;
    using EndDurationFunction = void (*)(Token);

    // Loads the library `name`, unless one is loaded, and finds its exports. It is looked for where
    // programs and the system are installed, never in the current folder, and stays loaded.
    void Load(const wchar_t* name);
    // Ends the measured stretch; does nothing without a library.
    void EndDurationProbe(Token token) const;

    HMODULE Library = nullptr;
    FARPROC BeginDuration = nullptr;
    EndDurationFunction EndDuration = nullptr;
    FARPROC Flush = nullptr;
};

// The module's one set of hooks; the first call looks for "tavprofiler.dll".
CProfilerHooks& GetProfilerHooks();

// Ends a measured stretch through the module's hooks.
void EndDurationProbe(CProfilerHooks::Token token);
