// Calling the export: results, arguments, owners, and system calls that fail while it opens.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

// Calls of a patched function of the shell, and which of them fails, from 1.
int g_calls;
int g_failing;
DWORD g_error;
void* g_original;

BOOL WINAPI FailOneCall(void* info)
{
    ++g_calls;
    if (g_calls == g_failing)
    {
        SetLastError(g_error);
        return FALSE;
    }
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

// What the shell was asked for, call by call.
std::vector<DWORD> g_flags;
UINT g_menu;

struct DialogInfo
{
    DWORD mask;
    HWND dialog;
    DWORD flags;
};

struct BarInfo
{
    DWORD size;
    HWND parent;
    DWORD flags;
    UINT menu;
};

BOOL WINAPI WatchInitDialog(void* info)
{
    g_flags.push_back(static_cast<const DialogInfo*>(info)->flags);
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

BOOL WINAPI WatchCreateMenuBar(void* info)
{
    g_flags.push_back(static_cast<const BarInfo*>(info)->flags);
    g_menu = static_cast<const BarInfo*>(info)->menu;
    return reinterpret_cast<BOOL(WINAPI*)(void*)>(g_original)(info);
}

HRSRC WINAPI FindNothing(HMODULE, const wchar_t*, const wchar_t*)
{
    return nullptr;
}

class NowCall : public NowFixture
{
protected:
    NowCall()
    {
        g_calls = 0;
        g_error = ERROR_ACCESS_DENIED;
        g_flags.clear();
        module = std::make_unique<CModule>();
    }
    ~NowCall() override
    {
        run.reset();
        m_patch.reset();
    }

    void Patch(const char* function, BOOL(WINAPI* replacement)(void*))
    {
        g_original = *FindImport(module->Handle(), "aygshell.dll", function);
        m_patch =
            std::make_unique<CImportPatch>(module->Handle(), "aygshell.dll", function, replacement);
    }
    void FailCall(const char* function, int call)
    {
        g_failing = call;
        Patch(function, FailOneCall);
    }
    // Opens the dialog with a call of the test's own.
    void OpenBy(std::function<BOOL(HWND)> call)
    {
        run = std::make_unique<CDialogRun>(std::move(call));
        dialog = run->WaitForDialog(kNowTitle);
        ASSERT_NE(nullptr, dialog);
    }

    std::unique_ptr<CImportPatch> m_patch;
};

} // namespace

TEST_F(NowCall, DoneReturnsTrueAndCancelFalse)
{
    for (int i = 0; i < 3; ++i)
    {
        Open();
        Done();
        Open();
        Cancel();
    }
}

TEST_F(NowCall, TheOtherArgumentsHaveNoEffect)
{
    OpenBy([this](HWND owner)
           { return module->CustomizeNow(owner, 0xFFFFFFFF, 0x12345678, 0x80000000); });
    EXPECT_EQ(run->Owner(), GetWindow(dialog, GW_OWNER));
    Done();
}

TEST_F(NowCall, WithoutAnOwnerTheDialogIsShownAllTheSame)
{
    OpenBy([this](HWND) { return module->CustomizeNow(nullptr, 0, 0, 0); });
    Done();
}

TEST_F(NowCall, AnOwnerThatIsNoWindowShowsNothing)
{
    run = std::make_unique<CDialogRun>(
        [this](HWND)
        {
            const auto stranger = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF1234));
            return module->CustomizeNow(stranger, 0, 0, 0);
        });
    ExpectEnd(FALSE);
}

TEST_F(NowCall, PaintingTheDialogEnablesTheOwnerAlready)
{
    Open();
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_TRUE(IsWindowEnabled(run->Owner()));
}

TEST_F(NowCall, TheShellIsAskedForAFullScreenTwice)
{
    Patch("SHInitDialog", WatchInitDialog);
    Open();
    EXPECT_EQ((std::vector<DWORD>{13, 12}), g_flags);
}

TEST_F(NowCall, TheBarIsMadeOfMenu207WithoutAnInputPanelButton)
{
    Patch("SHCreateMenuBar", WatchCreateMenuBar);
    Open();
    EXPECT_EQ((std::vector<DWORD>{1, 0x14}), g_flags);
    EXPECT_EQ(207u, g_menu);
}

TEST_F(NowCall, TheFirstFullScreenRequestMayFail)
{
    FailCall("SHInitDialog", 1);
    Open();
    EXPECT_EQ(2, g_calls);
    Done();
}

// Unlike the other dialogs' own requests, whatever the shell's error is.
TEST_F(NowCall, TheSecondFullScreenRequestFailsAsABrokenPrecondition)
{
    FailCall("SHInitDialog", 2);
    Call();
    ExpectThrown(kBroken);
}

TEST_F(NowCall, TheEmptyBarMayFail)
{
    FailCall("SHCreateMenuBar", 1);
    Open();
    EXPECT_EQ(2, g_calls);
    Done();
}

TEST_F(NowCall, ItsOwnBarFailsWithTheSystemsError)
{
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(kAccessDenied);
}

TEST_F(NowCall, ANegativeErrorOfTheBarIsCarriedAsItIs)
{
    g_error = 0x80004005;
    FailCall("SHCreateMenuBar", 2);
    Call();
    ExpectThrown(static_cast<HRESULT>(0x80004005));
}

TEST_F(NowCall, AFailureTouchesNoRegistration)
{
    registry.Add(L"Bad", L"bad", 4);
    FailCall("SHInitDialog", 2);
    Call();
    ExpectThrown(kBroken);
    EXPECT_TRUE(registry.Exists(L"Bad"));
}

TEST_F(NowCall, WithoutItsTemplateNothingIsShown)
{
    m_patch = std::make_unique<CImportPatch>(module->Handle(), "kernel32.dll", "FindResourceW",
                                             FindNothing);
    Call();
    ExpectEnd(FALSE);
    m_patch.reset();
    Open();
    Done();
}
