#include "tests/support/ShellWatch.h"

#include "platform/aygshell/include/aygshell.h"

namespace
{

// The request that fails, from 1; 0 for none.
struct Failure
{
    int Request = 0;
    DWORD Error = ERROR_SUCCESS;
};

struct Watched
{
    decltype(&SHInitDialog) InitDialog = nullptr;
    decltype(&SHCreateMenuBar) CreateBar = nullptr;
    Failure FullScreenFailure;
    Failure BarFailure;
    std::vector<DWORD> FullScreens;
    std::vector<std::pair<DWORD, UINT>> Bars;
};
Watched g_watched;

// Whether the last of so many requests is the one that fails; leaves the error if so.
bool Fails(const Failure& failure, size_t requests)
{
    const bool fails = static_cast<int>(requests) == failure.Request;
    if (fails)
        SetLastError(failure.Error);
    return fails;
}

BOOL WINAPI WatchInitDialog(SHINITDLGINFO* info)
{
    g_watched.FullScreens.push_back(info->dwFlags);
    return !Fails(g_watched.FullScreenFailure, g_watched.FullScreens.size()) &&
           g_watched.InitDialog(info);
}

BOOL WINAPI WatchCreateBar(SHMENUBARINFO* info)
{
    g_watched.Bars.push_back({info->dwFlags, info->nToolBarId});
    return !Fails(g_watched.BarFailure, g_watched.Bars.size()) && g_watched.CreateBar(info);
}

template <class Function>
Function Imported(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(*FindImport(module, "aygshell.dll", name));
}

// Before the patches: they need the functions that they stand in front of.
HMODULE StartWatching(HMODULE module)
{
    g_watched = {};
    g_watched.InitDialog = Imported<decltype(&SHInitDialog)>(module, "SHInitDialog");
    g_watched.CreateBar = Imported<decltype(&SHCreateMenuBar)>(module, "SHCreateMenuBar");
    return module;
}

} // namespace

CShellWatch::CShellWatch(HMODULE module)
    : m_initDialog(StartWatching(module), "aygshell.dll", "SHInitDialog", WatchInitDialog),
      m_createBar(module, "aygshell.dll", "SHCreateMenuBar", WatchCreateBar)
{
}

void CShellWatch::FailFullScreen(int request, DWORD error)
{
    g_watched.FullScreenFailure = {request, error};
}

void CShellWatch::FailBar(int request, DWORD error)
{
    g_watched.BarFailure = {request, error};
}

const std::vector<DWORD>& CShellWatch::FullScreens() const
{
    return g_watched.FullScreens;
}

const std::vector<std::pair<DWORD, UINT>>& CShellWatch::Bars() const
{
    return g_watched.Bars;
}
