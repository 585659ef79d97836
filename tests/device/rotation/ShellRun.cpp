#include "tests/device/rotation/ShellRun.h"

#include <gtest/gtest.h>

#include "tests/support/DialogRun.h"
#include "tests/support/Wait.h"

namespace
{

// The first start puts the sample data on the device.
constexpr DWORD kStartTime = 60000;
constexpr DWORD kEndTime = 20000;
constexpr UINT kKilled = 99;

// The program's folder of data must be there before it starts.
constexpr const wchar_t* kInstallFolder = L"C:\\Program Files\\Tav Lumenar";

std::wstring ProgramBesideThis()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring own = path;
    return own.substr(0, own.rfind(L'\\') + 1) + L"TavLumenarShell.exe";
}

struct Search
{
    DWORD Process;
    const std::wstring& ClassName;
    const std::wstring& Text;
    HWND Owner;
    HWND Found;
};

BOOL CALLBACK Look(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    if (process != search.Process || !IsWindowVisible(window) || search.ClassName != name ||
        (!search.Text.empty() && TextOf(window) != search.Text) ||
        (search.Owner && GetWindow(window, GW_OWNER) != search.Owner))
        return TRUE;
    search.Found = window;
    return FALSE;
}

} // namespace

CShellRun::CShellRun(const std::wstring& arguments)
{
    CreateDirectoryW(kInstallFolder, nullptr);
    const std::wstring program = ProgramBesideThis();
    std::wstring commandLine = L"\"" + program + L"\" " + arguments;
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0,
                               nullptr, nullptr, &startup, &process))
        << GetLastError();
    const UniqueKernelHandle thread(process.hThread);
    m_process.reset(process.hProcess);
    m_id = process.dwProcessId;
}

CShellRun::~CShellRun()
{
    if (!m_process || WaitForSingleObject(m_process.get(), 0) != WAIT_TIMEOUT)
        return;
    TerminateProcess(m_process.get(), kKilled);
    WaitForSingleObject(m_process.get(), kEndTime);
}

HWND CShellRun::Find(const std::wstring& className, const std::wstring& text, HWND owner) const
{
    Search search = {m_id, className, text, owner, nullptr};
    EnumWindows(Look, reinterpret_cast<LPARAM>(&search));
    return search.Found;
}

HWND CShellRun::WaitFor(const std::wstring& className, const std::wstring& text) const
{
    HWND found = nullptr;
    EXPECT_TRUE(
        WaitUntil([&] { return (found = Find(className, text, nullptr)) != nullptr; }, kStartTime));
    return found;
}

HWND CShellRun::WaitForDialogOver(HWND owner) const
{
    HWND found = nullptr;
    EXPECT_TRUE(WaitUntil([&] { return (found = Find(L"#32770", L"", owner)) != nullptr; }));
    return found;
}

bool CShellRun::WaitForEnd() const
{
    return m_process && WaitForSingleObject(m_process.get(), kEndTime) == WAIT_OBJECT_0;
}
