// Asks for the module's profiling hooks in a process of its own and ends one probe. The exit code
// tells what was found: 0 no library, 1 the library with all exports, 2 with fewer.
#include "frame/ProfilerHooks.h"

int main()
{
    const CProfilerHooks& hooks = GetProfilerHooks();
    EndDurationProbe(42);
    if (&hooks != &GetProfilerHooks())
        return 3;
    if (!hooks.Library)
        return hooks.BeginDuration || hooks.EndDuration || hooks.Flush ? 4 : 0;
    return hooks.BeginDuration && hooks.EndDuration && hooks.Flush ? 1 : 2;
}
