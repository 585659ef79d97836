#include "tests/support/ChildProcess.h"

#include <map>

#include <gtest/gtest.h>

namespace
{

// How a child learns what to do.
constexpr const wchar_t* kEntryVariable = L"TAV_CHILD_ENTRY";
constexpr const wchar_t* kArgumentVariable = L"TAV_CHILD_ARGUMENT";
// Exit code of a child that was ended from outside.
constexpr UINT kKilled = 99;
constexpr UINT kNoSuchEntry = 98;
constexpr DWORD kEndTimeout = 10000;

using Entry = int (*)(const std::wstring&);

std::map<std::wstring, Entry>& Entries()
{
    static std::map<std::wstring, Entry> entries;
    return entries;
}

std::wstring Variable(const wchar_t* name)
{
    wchar_t text[1024];
    const DWORD length = GetEnvironmentVariableW(name, text, 1024);
    return std::wstring(text, length < 1024 ? length : 0);
}

// Takes a child to its entry before any test runs; it never comes back from there.
class CChildEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        const std::wstring name = Variable(kEntryVariable);
        if (name.empty())
            return;
        const auto entry = Entries().find(name);
        const int code = entry == Entries().end() ? static_cast<int>(kNoSuchEntry)
                                                  : entry->second(Variable(kArgumentVariable));
        TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
    }
};

// On a busy machine the system sometimes refuses a process with an error of its own making, before
// anything of it has begun: asked again, it starts.
bool StartProcess(const wchar_t* program, std::wstring& commandLine, PROCESS_INFORMATION& process)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    for (int refusals = 0; refusals < 5; ++refusals)
    {
        if (CreateProcessW(program, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           nullptr, &startup, &process))
            return true;
        if (GetLastError() != ERROR_INTERNAL_ERROR)
            return false;
    }
    return false;
}

} // namespace

namespace child_process
{

bool Register(const wchar_t* name, int (*function)(const std::wstring& argument))
{
    if (Entries().empty())
        testing::AddGlobalTestEnvironment(new CChildEnvironment);
    Entries()[name] = function;
    return true;
}

} // namespace child_process

CChildProcess::CChildProcess(const wchar_t* entry, const std::wstring& argument)
{
    wchar_t program[MAX_PATH];
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring commandLine = std::wstring(L"\"") + program + L"\" --gtest_brief=1";

    SetEnvironmentVariableW(kEntryVariable, entry);
    SetEnvironmentVariableW(kArgumentVariable, argument.c_str());
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(StartProcess(program, commandLine, process)) << GetLastError();
    SetEnvironmentVariableW(kEntryVariable, nullptr);
    SetEnvironmentVariableW(kArgumentVariable, nullptr);
    if (process.hThread)
        CloseHandle(process.hThread);
    m_process.reset(process.hProcess);
}

CChildProcess::~CChildProcess()
{
    if (ExitCode() == STILL_ACTIVE)
        Kill();
}

bool CChildProcess::WaitForEnd(DWORD timeout) const
{
    return WaitForSingleObject(m_process.get(), timeout) == WAIT_OBJECT_0;
}

DWORD CChildProcess::ExitCode() const
{
    DWORD code = 0;
    GetExitCodeProcess(m_process.get(), &code);
    return code;
}

void CChildProcess::Kill()
{
    TerminateProcess(m_process.get(), kKilled);
    EXPECT_TRUE(WaitForEnd(kEndTimeout));
}
