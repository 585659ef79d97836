#include "tests/support/ProcessPatch.h"

#include <gtest/gtest.h>

namespace
{

bool g_found;
std::vector<StartedProgram> g_started;
std::wstring g_searched;
PROCESS_INFORMATION g_process;

DWORD WINAPI FindAnyProgram(const wchar_t* path, const wchar_t* name, const wchar_t* /*extension*/,
                            DWORD size, wchar_t* buffer, wchar_t** /*part*/)
{
    g_searched = path ? path : L"(default)";
    const std::wstring found = std::wstring(L"C:\\Programs\\") + name;
    if (!g_found || found.size() >= size)
        return 0;
    lstrcpyW(buffer, found.c_str());
    return static_cast<DWORD>(found.size());
}

BOOL WINAPI KeepProgram(const wchar_t* application, wchar_t* commandLine, SECURITY_ATTRIBUTES*,
                        SECURITY_ATTRIBUTES*, BOOL, DWORD, void*, const wchar_t*, STARTUPINFOW*,
                        PROCESS_INFORMATION* process)
{
    g_started.push_back({application ? application : L"(none)", commandLine});
    g_process.hProcess = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    g_process.hThread = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    *process = g_process;
    return TRUE;
}

bool IsClosed(HANDLE handle)
{
    DWORD flags = 0;
    return !GetHandleInformation(handle, &flags);
}

} // namespace

CProcessPatch::CProcessPatch(bool found, HMODULE module)
    : m_search(module, "kernel32.dll", "SearchPathW", FindAnyProgram),
      m_create(module, "kernel32.dll", "CreateProcessW", KeepProgram)
{
    g_found = found;
    g_started.clear();
    g_searched.clear();
}

CProcessPatch::~CProcessPatch() = default;

const std::vector<StartedProgram>& CProcessPatch::Started() const
{
    return g_started;
}

const std::wstring& CProcessPatch::SearchedPath() const
{
    return g_searched;
}

bool CProcessPatch::HandlesAreClosed() const
{
    return IsClosed(g_process.hProcess) && IsClosed(g_process.hThread);
}

void ExpectHelp(HMODULE module, HWND dialog, const std::wstring& topic)
{
    const CProcessPatch processes(true, module);
    EXPECT_NE(0, SendMessageW(dialog, WM_HELP, 0, 0));
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"C:\\Programs\\PegHelp.exe", processes.Started()[0].application);
    EXPECT_EQ(L"TavLumenar.htm#" + topic, processes.Started()[0].commandLine);
    EXPECT_TRUE(processes.HandlesAreClosed());
}
