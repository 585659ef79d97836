// System calls and allocations that fail while the picker opens, loads or searches.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

// Calls of a function of the shell, and which of them fails, from 1.
int g_calls;
int g_failing;
DWORD g_error;
BOOL(WINAPI* g_original)(void*);

BOOL WINAPI FailOneCall(void* info)
{
    if (++g_calls != g_failing)
        return g_original(info);
    SetLastError(g_error);
    return FALSE;
}

HLOCAL WINAPI AllocateNothing(UINT, SIZE_T)
{
    ++g_calls;
    return nullptr;
}

HANDLE WINAPI OpenNothing(const wchar_t*, DWORD, DWORD, SECURITY_ATTRIBUTES*, DWORD, DWORD, HANDLE)
{
    ++g_calls;
    SetLastError(ERROR_ACCESS_DENIED);
    return INVALID_HANDLE_VALUE;
}

BOOL WINAPI ReadNothing(HANDLE, void*, DWORD, DWORD* read, OVERLAPPED*)
{
    ++g_calls;
    *read = 0;
    return FALSE;
}

// The wait cursor stands from the beginning to the end of loading: allocations count meanwhile.
bool g_isLoading;
int g_cursorCalls;
int g_allocations;
int g_failingAllocation;
bool g_hasFailed;

HCURSOR WINAPI StampCursor(HCURSOR cursor)
{
    ++g_cursorCalls;
    g_isLoading = !g_isLoading;
    return SetCursor(cursor);
}

// Memory for a member is asked for when the storage is open.
HLOCAL WINAPI BeginWithMember(UINT flags, SIZE_T size)
{
    g_isLoading = true;
    return LocalAlloc(flags, size);
}

HCURSOR WINAPI EndWithCursor(HCURSOR cursor)
{
    g_isLoading = false;
    return SetCursor(cursor);
}

void* __cdecl FailOneAllocation(size_t size)
{
    if (g_isLoading && ++g_allocations == g_failingAllocation)
    {
        g_hasFailed = true;
        return nullptr;
    }
    return malloc(size);
}

class CityFailing : public CityFixture
{
protected:
    CityFailing()
    {
        g_calls = 0;
        g_error = ERROR_ACCESS_DENIED;
        module = std::make_unique<CModule>();
    }
    ~CityFailing() override
    {
        run.reset();
        patches.clear();
    }

    void FailCall(const char* function, int call)
    {
        g_failing = call;
        g_original = reinterpret_cast<BOOL(WINAPI*)(void*)>(
            *FindImport(module->Handle(), "aygshell.dll", function));
        Replace("aygshell.dll", function, FailOneCall);
    }
    template <class Function>
    void Replace(const char* dll, const char* function, Function replacement)
    {
        patches.push_back(std::make_unique<CImportPatch>(module->Handle(), dll, function,
                                                         reinterpret_cast<void*>(replacement)));
    }
    void ExpectEmptyList()
    {
        Open(10);
        EXPECT_GT(g_calls, 0);
        EXPECT_EQ(0, RowCount());
        Type(L"lon");
        EXPECT_EQ(0, RowCount());
        Cancel();
    }
    // Lets the allocations of loading fail one after the other, until one run needs no more.
    void ExpectEmptyListAtEachAllocation()
    {
        Replace("msvcrt.dll", "malloc", FailOneAllocation);
        g_failingAllocation = 0;
        do
        {
            ++g_failingAllocation;
            g_allocations = g_cursorCalls = 0;
            g_isLoading = g_hasFailed = false;
            Open(10);
            if (HasFatalFailure())
                return;
            EXPECT_EQ(g_hasFailed ? 0 : kSampleCount, RowCount()) << g_failingAllocation;
            // One narrows, one starts afresh.
            Type(L"don");
            EXPECT_EQ(g_hasFailed ? 0 : 4, RowCount()) << g_failingAllocation;
            Type(L"lon");
            EXPECT_EQ(g_hasFailed ? 0 : 3, RowCount()) << g_failingAllocation;
            Cancel();
        } while (g_hasFailed && g_failingAllocation < 100);
        EXPECT_FALSE(g_hasFailed);
        EXPECT_GT(g_failingAllocation, 3);
    }

    std::vector<std::unique_ptr<CImportPatch>> patches;
};

} // namespace

TEST_F(CityFailing, TheMenuBarMustNotFail)
{
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(kAccessDenied);
    EXPECT_EQ(2, g_calls);
}

TEST_F(CityFailing, WithoutAnErrorCodeTheExceptionCarriesZero)
{
    g_error = 0;
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(0);
}

TEST_F(CityFailing, ANegativeErrorCodeIsCarriedAsItIs)
{
    g_error = 0x80004005;
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(static_cast<HRESULT>(0x80004005));
}

TEST_F(CityFailing, TheEmptyBarBeforeItMayFail)
{
    FailCall("SHCreateMenuBar", 1);
    Open();
    Cancel();
    EXPECT_EQ(2, g_calls);
}

TEST_F(CityFailing, TheOneFullScreenRequestMayFail)
{
    FailCall("SHInitDialog", 1);
    Open();
    Cancel();
    EXPECT_EQ(1, g_calls);
}

TEST_F(CityFailing, AfterAFailureTheNextCallWorks)
{
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(kAccessDenied);
    Open(10);
    EXPECT_EQ(kSampleCount, RowCount());
    Done();
}

TEST_F(CityFailing, WithoutMemoryForTheImageTheListIsEmpty)
{
    Replace("kernel32.dll", "LocalAlloc", AllocateNothing);
    ExpectEmptyList();
}

TEST_F(CityFailing, WithoutAccessToTheMemberTheListIsEmpty)
{
    Replace("kernel32.dll", "CreateFileW", OpenNothing);
    ExpectEmptyList();
}

TEST_F(CityFailing, AReadErrorLeavesTheListEmpty)
{
    Replace("kernel32.dll", "ReadFile", ReadNothing);
    ExpectEmptyList();
}

TEST_F(CityFailing, AnyAllocationOfLoadingThatFailsLeavesTheListEmpty)
{
    Replace("user32.dll", "SetCursor", StampCursor);
    ExpectEmptyListAtEachAllocation();
}

// Not the ones before it: the archive's reader leaves its file open when they fail.
TEST_F(CityFailing, AnyAllocationOfUnpackingThatFailsLeavesTheListEmpty)
{
    folder.InstallAsArchive(SampleCities().Build(), true);
    Replace("kernel32.dll", "LocalAlloc", BeginWithMember);
    Replace("user32.dll", "SetCursor", EndWithCursor);
    ExpectEmptyListAtEachAllocation();
}

TEST_F(CityFailing, TheWaitCursorIsShownWhileLoadingAndTakenBackAfterwards)
{
    Replace("user32.dll", "SetCursor", StampCursor);
    g_cursorCalls = 0;
    Open();
    EXPECT_EQ(2, g_cursorCalls);
    Cancel();
}

TEST_F(CityFailing, WithoutMemoryForASearchTheDialogEndsAndTheOwnerIsEnabled)
{
    Replace("msvcrt.dll", "malloc", FailOneAllocation);
    Open(10);
    g_allocations = 0;
    g_failingAllocation = 1;
    g_isLoading = true;
    g_hasFailed = false;
    // Longer than a text that needs no memory of its own.
    Type(L"abcdefghijklmnopqrstuvwxyz");
    g_isLoading = false;
    ASSERT_TRUE(g_hasFailed);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_FALSE(run->Result());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
    EXPECT_EQ(nullptr, run->InnermostDialog());
    EXPECT_TRUE(city == before);
}
