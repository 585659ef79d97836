#include "tests/support/ShellCalls.h"

#include <aygshell.h>

#include <algorithm>
#include <mutex>

namespace
{

// One function of the shell.
struct ShellCall
{
    void* original = nullptr;
    int calls = 0;
    // 0 for none.
    int refused = 0;
    DWORD error = 0;

    template <class Info>
    BOOL Call(Info* info)
    {
        if (++calls != refused)
            return reinterpret_cast<BOOL(WINAPI*)(Info*)>(original)(info);
        SetLastError(error);
        return FALSE;
    }
};

ShellCall g_init;
ShellCall g_bar;

// The dialogs' thread adds, the test's reads.
std::mutex g_mutex;
std::vector<std::string> g_asked;

void Add(const std::string& call)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_asked.push_back(call);
}

BOOL WINAPI WatchInit(SHINITDLGINFO* info)
{
    Add("init " + std::to_string(info->dwFlags));
    return g_init.Call(info);
}

BOOL WINAPI WatchBar(SHMENUBARINFO* info)
{
    Add("bar " + std::to_string(info->dwFlags) + " " + std::to_string(info->nToolBarId));
    return g_bar.Call(info);
}

// The function's address, for the record that watches it from now on.
void Watch(HMODULE module, const char* function, ShellCall& call)
{
    void** const slot = FindImport(module, "aygshell.dll", function);
    call = ShellCall();
    call.original = slot ? *slot : nullptr;
}

HMODULE Prepared(HMODULE module)
{
    Watch(module, "SHInitDialog", g_init);
    Watch(module, "SHCreateMenuBar", g_bar);
    const std::lock_guard<std::mutex> lock(g_mutex);
    g_asked.clear();
    return module;
}

} // namespace

CShellCalls::CShellCalls(HMODULE module)
    : m_init(Prepared(module), "aygshell.dll", "SHInitDialog", WatchInit),
      m_bar(module, "aygshell.dll", "SHCreateMenuBar", WatchBar)
{
}

void CShellCalls::RefuseInit(int call, DWORD error)
{
    g_init.refused = call;
    g_init.error = error;
}

void CShellCalls::RefuseBar(int call, DWORD error)
{
    g_bar.refused = call;
    g_bar.error = error;
}

std::vector<std::string> CShellCalls::Asked(size_t skipped)
{
    const std::lock_guard<std::mutex> lock(g_mutex);
    const size_t first = std::min(skipped, g_asked.size());
    return {g_asked.begin() + static_cast<ptrdiff_t>(first), g_asked.end()};
}

std::vector<std::string> CShellCalls::OfOneDialog(const std::string& bar)
{
    return {"bar 1 0", "init 13", "init 12", bar};
}
