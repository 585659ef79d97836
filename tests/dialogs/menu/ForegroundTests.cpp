// Losing the foreground: what is kept and how the dialogs end.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/ForeignWindow.h"
#include "tests/support/Wait.h"

namespace
{

class Foreground : public EditorFixture
{
protected:
    // Opens the editor with one box switched off but not yet written.
    void OpenWithAChange()
    {
        Open();
        tree.SetBox(tree.Find(L"Programs/Calendar"), BoxOff);
    }
    bool IsChangeWritten() const
    {
        return registry.CustomDword(L"Programs\\Calendar", L"Inactive") == 1;
    }

    void Deactivate(HWND activated, WORD how = WA_INACTIVE, WORD minimised = 0)
    {
        SendMessageW(dialog, WM_ACTIVATE, MAKEWPARAM(how, minimised),
                     reinterpret_cast<LPARAM>(activated));
    }

    void ExpectClosedWithTheChangeKept()
    {
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_EQ(FALSE, run->Result());
        EXPECT_EQ(0, run->ThrownCode());
        EXPECT_TRUE(IsChangeWritten());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
    }
    void ExpectStillOpen()
    {
        SendMessageW(dialog, WM_NULL, 0, 0);
        EXPECT_FALSE(run->HasEnded());
        EXPECT_FALSE(IsChangeWritten());
    }
};

} // namespace

TEST_F(Foreground, LostToAnotherWindowKeepsTheBoxesAndCancels)
{
    OpenWithAChange();
    Deactivate(GetDesktopWindow());
    ExpectClosedWithTheChangeKept();
}

TEST_F(Foreground, LostToAnotherProgramKeepsTheBoxesAndCancels)
{
    OpenWithAChange();
    // The system doesn't name another program's window.
    Deactivate(nullptr);
    ExpectClosedWithTheChangeKept();
}

TEST_F(Foreground, LostToItsOwnOwnerCancelsToo)
{
    OpenWithAChange();
    Deactivate(run->Owner());
    ExpectClosedWithTheChangeKept();
}

TEST_F(Foreground, LostWhileMinimisedCancelsToo)
{
    OpenWithAChange();
    Deactivate(nullptr, WA_INACTIVE, 1);
    ExpectClosedWithTheChangeKept();
}

TEST_F(Foreground, AWindowThatTheDialogOwnsDoesNotCloseIt)
{
    OpenWithAChange();
    const HWND bar = GetParent(SoftKeyBar(dialog));
    ASSERT_EQ(dialog, GetWindow(bar, GW_OWNER));
    Deactivate(bar);
    ExpectStillOpen();
}

TEST_F(Foreground, GainingItDoesNotCloseTheDialog)
{
    OpenWithAChange();
    Deactivate(nullptr, WA_ACTIVE);
    Deactivate(nullptr, WA_CLICKACTIVE, 1);
    ExpectStillOpen();
}

TEST_F(Foreground, ReallyLostClosesTheDialog)
{
    CForeignWindow other;
    OpenWithAChange();
    other.Activate();
    ExpectClosedWithTheChangeKept();
}

TEST_F(Foreground, DoneKeepsItsCodeAlthoughTheSystemDeactivatesTheDialogMeanwhile)
{
    OpenWithAChange();
    Done();
    EXPECT_TRUE(IsChangeWritten());
}

TEST_F(Foreground, CancelWritesNothingAlthoughTheSystemDeactivatesTheDialogMeanwhile)
{
    OpenWithAChange();
    Cancel();
    EXPECT_FALSE(IsChangeWritten());
}

TEST_F(Foreground, MenuOptionsDoesNotCloseTheEditor)
{
    OpenWithAChange();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    PostCommand(options, IDCANCEL);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    ExpectStillOpen();
}

TEST_F(Foreground, MenuOptionsCancelledBehindAnotherWindowCancelsTheEditorWithoutWriting)
{
    CForeignWindow other;
    OpenWithAChange();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    other.Activate();
    PostCommand(options, IDCANCEL);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(FALSE, run->Result());
    EXPECT_FALSE(IsChangeWritten());
}

TEST_F(Foreground, MenuOptionsConfirmedBehindAnotherWindowKeepsTheEditorOpen)
{
    CForeignWindow other;
    OpenWithAChange();
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    other.Activate();
    PostCommand(options, IDOK);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(L"List", registry.CustomText(L"Programs", L"DrawType"));
}

TEST_F(Foreground, TheTreeHasTheFocusAgainAfterASubDialog)
{
    Open();
    SetForegroundWindow(dialog);
    EXPECT_EQ(tree.Window(), run->Focus());
    const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
    EXPECT_NE(tree.Window(), run->Focus());
    PostCommand(options, IDCANCEL);
    run->WaitForDialog(L"Customize Menu");
    EXPECT_TRUE(WaitUntil([&] { return run->Focus() == tree.Window(); }));
}
