// Calls of the shell that fail while the wizard opens, and what opening it often leaves behind.
#include "tests/dialogs/wizard/WizardFixture.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/ShellCalls.h"

namespace
{

class WizardFailure : public WizardFixture
{
protected:
    WizardFailure()
    {
        module = std::make_unique<CModule>();
        shell = std::make_unique<CShellCalls>(module->Handle());
    }
    ~WizardFailure() override
    {
        run.reset();
        shell.reset();
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

    std::unique_ptr<CShellCalls> shell;
};

} // namespace

TEST_F(WizardFailure, TheFirstFullScreenRequestMayFail)
{
    CShellCalls::RefuseInit(1);
    Open();
    End(IDOK);
    EXPECT_EQ(4u, CShellCalls::Asked().size());
}

TEST_F(WizardFailure, TheSecondFullScreenRequestFailsAsABrokenPrecondition)
{
    CShellCalls::RefuseInit(2);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(WizardFailure, TheEmptyBarMayFail)
{
    CShellCalls::RefuseBar(1);
    Open();
    End(IDOK);
}

TEST_F(WizardFailure, TheDialogsOwnBarFailsWithTheSystemsCode)
{
    CShellCalls::RefuseBar(2);
    ExpectThrown(static_cast<HRESULT>(0x80070005));
}

TEST_F(WizardFailure, ANegativeCodeIsCarriedAsItIs)
{
    CShellCalls::RefuseBar(2, 0x80004005);
    ExpectThrown(static_cast<HRESULT>(0x80004005));
}

TEST_F(WizardFailure, AFailureWritesNothing)
{
    registry.CreateKey(kTypeKey);
    CShellCalls::RefuseBar(2);
    ExpectThrown(static_cast<HRESULT>(0x80070005));
    EXPECT_FALSE(registry.ValueExists(kTypeKey, L"Type"));
}

TEST_F(WizardFailure, AsksForTheFullScreenWithoutTheInputPanelAndForABarWithoutItsButton)
{
    Open();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 20 207"), CShellCalls::Asked());
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
    shell.reset();
    WriteWizardArchive(folder, BothPictures());
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CancelOpenDialog);
    const auto open = [this](int rounds)
    {
        for (int i = 0; i < rounds; ++i)
            EXPECT_FALSE(module->InstallWizard(0, 0, 0, 0));
    };
    open(kWarmUp);
    ExpectNothingLeftBy([&] { open(kRounds); });
    KillTimer(nullptr, timer);
}
