#include "frame/ProfilerHooks.h"

#include "platform/Handles.h"
#include "platform/os/Library.h"
#include "tests/frame/TranslationFixture.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

constexpr wchar_t kComplete[] = L"profiler_complete.dll";
constexpr wchar_t kPartial[] = L"profiler_partial.dll";
constexpr wchar_t kThrowing[] = L"profiler_throwing.dll";
constexpr wchar_t kLibraryName[] = L"tavprofiler.dll";

std::wstring ProgramFolder()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring name(path);
    return name.substr(0, name.find_last_of(L'\\'));
}

void CopyInto(const CTempFolder& folder, const wchar_t* from, const wchar_t* to)
{
    EXPECT_TRUE(CopyFileW((ProgramFolder() + L"\\" + from).c_str(),
                          (folder.Path() + L"\\" + to).c_str(), FALSE));
}

// Runs the probe program from its own folder within the given current folder; its exit code.
DWORD RunProbe(const CTempFolder& programs, const std::wstring& currentFolder)
{
    const std::wstring path = programs.Path() + L"\\profiler_probe.exe";
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    if (!CreateProcessW(path.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr,
                        currentFolder.c_str(), &startup, &process))
        return 100;
    const UniqueKernelHandle thread(process.hThread);
    const UniqueKernelHandle handle(process.hProcess);
    WaitForSingleObject(handle.get(), 20000);
    DWORD code = 101;
    GetExitCodeProcess(handle.get(), &code);
    return code;
}

// The probe with the shell function library that it imports.
class CProbeFolder : public CTempFolder
{
public:
    CProbeFolder()
    {
        CopyInto(*this, L"profiler_probe.exe", L"profiler_probe.exe");
        CopyInto(*this, L"aygshell.dll", L"aygshell.dll");
    }
};

template <class Result>
Result Ask(HMODULE library, const char* function)
{
    return os::FunctionCast<Result (*)()>(os::FindExport(library, function))();
}

TEST(ProfilerHooks, WithoutALibraryAllFieldsAreNullAndAProbeDoesNothing)
{
    CProfilerHooks hooks;
    hooks.Load(L"tav_no_such_library.dll");
    EXPECT_EQ(nullptr, hooks.Library);
    EXPECT_EQ(nullptr, hooks.BeginDuration);
    EXPECT_EQ(nullptr, hooks.EndDuration);
    EXPECT_EQ(nullptr, hooks.Flush);
    hooks.EndDurationProbe(1);
}

TEST(ProfilerHooks, FindsTheThreeExports)
{
    CProfilerHooks hooks;
    hooks.Load(kComplete);
    ASSERT_NE(nullptr, hooks.Library);
    EXPECT_EQ(os::FindExport(hooks.Library, "BeginDuration"), hooks.BeginDuration);
    EXPECT_EQ(os::FindExport(hooks.Library, "Flush"), hooks.Flush);
    EXPECT_NE(nullptr, hooks.BeginDuration);
    EXPECT_NE(nullptr, hooks.EndDuration);
    EXPECT_NE(nullptr, hooks.Flush);
}

TEST(ProfilerHooks, AProbeHandsItsTokenToTheLibrary)
{
    CProfilerHooks hooks;
    hooks.Load(kComplete);
    ASSERT_NE(nullptr, hooks.Library);
    const int before = Ask<int>(hooks.Library, "Calls");
    hooks.EndDurationProbe(INTPTR_MIN + 5);
    EXPECT_EQ(INTPTR_MIN + 5, Ask<INT_PTR>(hooks.Library, "LastToken"));
    EXPECT_EQ(before + 1, Ask<int>(hooks.Library, "Calls"));
}

TEST(ProfilerHooks, P2WithALibraryThatExportsOnlyEndDurationTheOtherFieldsStayNull)
{
    CProfilerHooks hooks;
    hooks.Load(kPartial);
    ASSERT_NE(nullptr, hooks.Library);
    EXPECT_EQ(nullptr, hooks.BeginDuration);
    EXPECT_EQ(nullptr, hooks.Flush);
    hooks.EndDurationProbe(7);
    EXPECT_EQ(7, Ask<INT_PTR>(hooks.Library, "LastToken"));
}

// Nothing is caught on the way: the library's exception is the caller's affair, like any other.
TEST(ProfilerHooks, P2WhatTheLibraryThrowsLeavesTheProbe)
{
    CProfilerHooks hooks;
    hooks.Load(kThrowing);
    ASSERT_NE(nullptr, hooks.EndDuration);
    EXPECT_THROW(hooks.EndDurationProbe(7), std::runtime_error);
    EXPECT_EQ(7, Ask<INT_PTR>(hooks.Library, "LastToken"));
    EXPECT_THROW(hooks.EndDurationProbe(8), std::runtime_error) << "the hooks stay as they were";
    EXPECT_EQ(8, Ask<INT_PTR>(hooks.Library, "LastToken"));
}

TEST(ProfilerHooks, ALibraryThatIsLoadedStays)
{
    CProfilerHooks hooks;
    hooks.Load(kPartial);
    const HMODULE first = hooks.Library;
    hooks.Load(kComplete);
    EXPECT_EQ(first, hooks.Library);
    EXPECT_EQ(nullptr, hooks.Flush);
}

TEST(ProfilerHooks, P1ALibraryPlantedInTheCurrentFolderIsNotLoaded)
{
    const CTempFolder planted;
    CopyInto(planted, kComplete, L"tav_planted.dll");
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    SetCurrentDirectoryW(planted.Path().c_str());
    CProfilerHooks hooks;
    hooks.Load(L"tav_planted.dll");
    EXPECT_EQ(nullptr, hooks.Library);
    SetCurrentDirectoryW(before);
}

TEST(ProfilerHooks, TheModulesHooksAreOneObjectWithoutALibrary)
{
    const CProbeFolder programs;
    EXPECT_EQ(0u, RunProbe(programs, programs.Path()));
}

TEST(ProfilerHooks, TheModulesHooksFindTheLibraryBesideTheProgram)
{
    const CProbeFolder programs;
    CopyInto(programs, kComplete, kLibraryName);
    EXPECT_EQ(1u, RunProbe(programs, ProgramFolder()));
}

TEST(ProfilerHooks, P2TheModulesHooksTakeALibraryWithFewerExports)
{
    const CProbeFolder programs;
    CopyInto(programs, kPartial, kLibraryName);
    EXPECT_EQ(2u, RunProbe(programs, ProgramFolder()));
}

TEST(ProfilerHooks, P1TheModulesHooksIgnoreALibraryInTheCurrentFolder)
{
    const CProbeFolder programs;
    const CTempFolder planted;
    CopyInto(planted, kComplete, kLibraryName);
    EXPECT_EQ(0u, RunProbe(programs, planted.Path()));
}

TEST(ProfilerHooks, TheFieldsStandInTheirOrder)
{
    const CProfilerHooks hooks;
    EXPECT_LT(static_cast<const void*>(&hooks.Library),
              static_cast<const void*>(&hooks.BeginDuration));
    EXPECT_LT(static_cast<const void*>(&hooks.BeginDuration),
              static_cast<const void*>(&hooks.EndDuration));
    EXPECT_LT(static_cast<const void*>(&hooks.EndDuration), static_cast<const void*>(&hooks.Flush));
}

} // namespace
