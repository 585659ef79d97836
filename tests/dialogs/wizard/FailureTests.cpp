// Calls of the shell that fail while the wizard opens, and what opening it often leaves behind.
#include "tests/dialogs/wizard/WizardFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"

#include <aygshell.h>

namespace
{

// Which call of the patched function fails, from 1, and with which last error.
int g_calls;
int g_failing;
DWORD g_error;
void* g_original;

BOOL WINAPI FailOneCall(void* info)
{
    if (++g_calls == g_failing)
    {
        SetLastError(g_error);
        return FALSE;
    }
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

class WizardFailure : public WizardFixture
{
protected:
    WizardFailure() { module = std::make_unique<CModule>(); }
    ~WizardFailure() override
    {
        run.reset();
        patch.reset();
    }

    void FailCall(const char* function, int call, DWORD error)
    {
        g_calls = 0;
        g_failing = call;
        g_error = error;
        g_original = *FindImport(module->Handle(), "aygshell.dll", function);
        patch =
            std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll", function, FailOneCall);
    }
    void ExpectThrown(HRESULT code)
    {
        Call();
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_FALSE(run->Result());
        EXPECT_EQ(code, run->ThrownCode());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
        EXPECT_EQ(nullptr, run->InnermostDialog());
    }

    std::unique_ptr<CImportPatch> patch;
};

} // namespace

TEST_F(WizardFailure, TheFirstFullScreenRequestMayFail)
{
    FailCall("SHInitDialog", 1, ERROR_ACCESS_DENIED);
    Open();
    End(IDOK);
    EXPECT_EQ(2, g_calls);
}

TEST_F(WizardFailure, TheSecondFullScreenRequestFailsAsABrokenPrecondition)
{
    FailCall("SHInitDialog", 2, ERROR_ACCESS_DENIED);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(WizardFailure, TheEmptyBarMayFail)
{
    FailCall("SHCreateMenuBar", 1, ERROR_ACCESS_DENIED);
    Open();
    End(IDOK);
}

TEST_F(WizardFailure, TheDialogsOwnBarFailsWithTheSystemsCode)
{
    FailCall("SHCreateMenuBar", 2, ERROR_ACCESS_DENIED);
    ExpectThrown(static_cast<HRESULT>(0x80070005));
}

TEST_F(WizardFailure, ANegativeCodeIsCarriedAsItIs)
{
    FailCall("SHCreateMenuBar", 2, 0x80004005);
    ExpectThrown(static_cast<HRESULT>(0x80004005));
}

namespace
{

// What each request was for.
std::vector<DWORD> g_flags;
BOOL WINAPI RecordInit(SHINITDLGINFO* info)
{
    g_flags.push_back(info->dwFlags);
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}
std::vector<std::pair<DWORD, UINT>> g_bars;
BOOL WINAPI RecordBar(SHMENUBARINFO* info)
{
    g_bars.push_back({info->dwFlags, info->nToolBarId});
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

} // namespace

TEST_F(WizardFailure, AsksForTheFullScreenWithoutTheInputPanel)
{
    g_flags.clear();
    g_original = *FindImport(module->Handle(), "aygshell.dll", "SHInitDialog");
    patch = std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll", "SHInitDialog",
                                           RecordInit);
    Open();
    EXPECT_EQ((std::vector<DWORD>{13, 12}), g_flags);
}

TEST_F(WizardFailure, AsksForItsBarWithoutThePanelsButton)
{
    g_bars.clear();
    g_original = *FindImport(module->Handle(), "aygshell.dll", "SHCreateMenuBar");
    patch = std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll", "SHCreateMenuBar",
                                           RecordBar);
    Open();
    EXPECT_EQ((std::vector<std::pair<DWORD, UINT>>{{1, 0}, {0x14, 207}}), g_bars);
}

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;

BOOL CALLBACK CancelDialog(HWND window, LPARAM)
{
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    if (lstrcmpW(name, L"#32770") == 0 && IsWindowVisible(window))
        PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

// On the dialogs' own thread: a thread per round would cost memory of its own.
void CALLBACK CancelOpenDialog(HWND, UINT, UINT_PTR, DWORD)
{
    EnumThreadWindows(GetCurrentThreadId(), CancelDialog, 0);
}

} // namespace

TEST_F(WizardFailure, OpeningAndClosingTwoHundredTimesLeavesNothing)
{
    WriteWizardArchive(folder, BothPictures());
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CancelOpenDialog);
    const auto open = [this](int rounds)
    {
        for (int i = 0; i < rounds; ++i)
            EXPECT_FALSE(module->InstallWizard(0, 0, 0, 0));
    };
    open(kWarmUp);
    const ResourceCounts before = CountResources();
    open(kRounds);
    EXPECT_EQ(before, CountUntil(before));
    KillTimer(nullptr, timer);
}
