// Calling the export: results, arguments, owners, and system calls that fail while it opens.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/ShellCalls.h"

namespace
{

constexpr HRESULT kAccessDenied = static_cast<HRESULT>(0x80070005);

HRSRC WINAPI FindNothing(HMODULE, const wchar_t*, const wchar_t*)
{
    return nullptr;
}

class NowCall : public NowFixture
{
protected:
    NowCall()
    {
        module = std::make_unique<CModule>();
        shell = std::make_unique<CShellCalls>(module->Handle());
    }
    ~NowCall() override
    {
        run.reset();
        shell.reset();
    }

    // Opens the dialog with a call of the test's own.
    void OpenBy(std::function<BOOL(HWND)> call)
    {
        run = std::make_unique<CDialogRun>(std::move(call));
        dialog = run->WaitForDialog(kNowTitle);
        ASSERT_NE(nullptr, dialog);
    }

    std::unique_ptr<CShellCalls> shell;
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

TEST_F(NowCall, TheShellIsAskedForAFullScreenTwiceAndForABarOfMenu207WithoutAnInputPanelButton)
{
    Open();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 20 207"), CShellCalls::Asked());
}

TEST_F(NowCall, TheFirstFullScreenRequestMayFail)
{
    CShellCalls::RefuseInit(1);
    Open();
    EXPECT_EQ(4u, CShellCalls::Asked().size());
    Done();
}

// Unlike the other dialogs' own requests, whatever the shell's error is.
TEST_F(NowCall, TheSecondFullScreenRequestFailsAsABrokenPrecondition)
{
    CShellCalls::RefuseInit(2);
    Call();
    ExpectThrown(kBroken);
}

TEST_F(NowCall, TheEmptyBarMayFail)
{
    CShellCalls::RefuseBar(1);
    Open();
    EXPECT_EQ(4u, CShellCalls::Asked().size());
    Done();
}

TEST_F(NowCall, ItsOwnBarFailsWithTheSystemsError)
{
    CShellCalls::RefuseBar(2);
    Call();
    ExpectThrown(kAccessDenied);
}

TEST_F(NowCall, ANegativeErrorOfTheBarIsCarriedAsItIs)
{
    CShellCalls::RefuseBar(2, 0x80004005);
    Call();
    ExpectThrown(static_cast<HRESULT>(0x80004005));
}

TEST_F(NowCall, AnErrorOfTheBarThatIsNoneIsCarriedAsItIsToo)
{
    CShellCalls::RefuseBar(2, ERROR_SUCCESS);
    Call();
    ExpectThrown(S_OK);
}

TEST_F(NowCall, AFailureTouchesNoRegistration)
{
    registry.Add(L"Bad", L"bad", 4);
    CShellCalls::RefuseInit(2);
    Call();
    ExpectThrown(kBroken);
    EXPECT_TRUE(registry.Exists(L"Bad"));
}

TEST_F(NowCall, WithoutItsTemplateNothingIsShown)
{
    {
        const CImportPatch patch(module->Handle(), "kernel32.dll", "FindResourceW", FindNothing);
        Call();
        ExpectEnd(FALSE);
    }
    Open();
    Done();
}
