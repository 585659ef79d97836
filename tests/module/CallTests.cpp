// Calling the exports: results, arguments, owners.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

class Calling : public EditorFixture
{
protected:
    // Opens Customize Menu with a call of the test's own.
    void OpenBy(std::function<BOOL(HWND)> call)
    {
        run = std::make_unique<CDialogRun>(std::move(call));
        dialog = run->WaitForDialog(L"Customize Menu");
        ASSERT_NE(nullptr, dialog);
    }
    Calling() { module = std::make_unique<CModule>(); }
};

} // namespace

TEST_F(Calling, DoneReturnsTrue)
{
    Open();
    Done();
}

TEST_F(Calling, CancelReturnsFalse)
{
    Open();
    Cancel();
}

TEST_F(Calling, TheOtherArgumentsHaveNoEffect)
{
    OpenBy([this](HWND owner)
           { return module->CustomizeMenu(owner, 0xFFFFFFFF, 0x12345678, 0x80000000); });
    EXPECT_EQ(run->Owner(), GetWindow(dialog, GW_OWNER));
    Done();
}

TEST_F(Calling, CanBeRepeated)
{
    for (int i = 0; i < 3; ++i)
    {
        Open();
        Done();
        Open();
        Cancel();
    }
}

TEST_F(Calling, WithoutAnOwnerShowsTheDialogAllTheSame)
{
    OpenBy([this](HWND) { return module->CustomizeMenu(nullptr, 0, 0, 0); });
    Done();
}

TEST_F(Calling, AnOwnerThatIsNoWindowShowsNothing)
{
    run = std::make_unique<CDialogRun>(
        [this](HWND)
        {
            const auto stranger = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF1234));
            return module->CustomizeMenu(stranger, 0, 0, 0);
        });
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(FALSE, run->Result());
}

TEST_F(Calling, AnOwnerThatIsDestroyedShowsNothing)
{
    run = std::make_unique<CDialogRun>(
        [this](HWND)
        {
            const HWND gone = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 10, 10, nullptr,
                                              nullptr, nullptr, nullptr);
            DestroyWindow(gone);
            return module->CustomizeMenu(gone, 0, 0, 0);
        });
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(FALSE, run->Result());
}

TEST_F(Calling, TheOwnerIsEnabledAfterTheCall)
{
    Open();
    Done();
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
}

TEST_F(Calling, PaintingTheDialogEnablesTheOwnerAlready)
{
    Open();
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_TRUE(IsWindowEnabled(run->Owner()));
}

TEST_F(Calling, SelectCityWithoutARecordReturnsFalse)
{
    EXPECT_FALSE(module->SelectCity(nullptr, nullptr, 0));
}
