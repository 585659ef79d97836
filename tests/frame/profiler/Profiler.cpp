// A profiling library for the tests of the hooks: it notes the tokens that it is given. Built with
// all three exports, with only one of them, and with one that throws.
#include "platform/Win.h"

#include <stdexcept>

namespace
{

INT_PTR g_lastToken;
int g_calls;

} // namespace

extern "C"
{
    __declspec(dllexport) void EndDuration(INT_PTR token)
    {
        g_lastToken = token;
        ++g_calls;
#ifdef PROFILER_THROWING
        throw std::runtime_error("no profile");
#endif
    }

    // For the test: the last token and how many there were.
    __declspec(dllexport) INT_PTR LastToken()
    {
        return g_lastToken;
    }

    __declspec(dllexport) int Calls()
    {
        return g_calls;
    }

#ifdef PROFILER_COMPLETE
    __declspec(dllexport) void BeginDuration() {}
    __declspec(dllexport) void Flush() {}
#endif

} // extern "C"
