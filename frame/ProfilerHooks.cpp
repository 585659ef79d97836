#include "frame/ProfilerHooks.h"

#include "platform/os/Library.h"

namespace
{

constexpr wchar_t kLibraryName[] = L"tavprofiler.dll";

// Loads the library as soon as the one object is made.
class CLoadedHooks : public CProfilerHooks
{
public:
    CLoadedHooks() { Load(kLibraryName); }
};

} // namespace

void CProfilerHooks::Load(const wchar_t* name)
{
    if (Library)
        return;
    Library = os::LoadLibraryFromSystemOrApplication(name);
    if (!Library)
        return;
    BeginDuration = os::FindExport(Library, "BeginDuration");
    EndDuration = os::FunctionCast<EndDurationFunction>(os::FindExport(Library, "EndDuration"));
    Flush = os::FindExport(Library, "Flush");
}

void CProfilerHooks::EndDurationProbe(Token token) const
{
    if (EndDuration)
        EndDuration(token);
}

CProfilerHooks& GetProfilerHooks()
{
    static CLoadedHooks hooks;
    return hooks;
}

void EndDurationProbe(CProfilerHooks::Token token)
{
    GetProfilerHooks().EndDurationProbe(token);
}
