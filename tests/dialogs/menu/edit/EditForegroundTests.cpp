// Another program in front: how Choose Icon, Edit Item and the menu editor end one after the other.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/ForeignWindow.h"

namespace
{

class EditForeground : public EditFixture
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
    // Ends a dialog while another program is in front, and with it all others.
    void ExpectAllEnd(HWND innermost)
    {
        other.Activate();
        PostCommand(innermost, IDCANCEL);
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_EQ(FALSE, run->Result());
        EXPECT_EQ(0, run->ThrownCode());
        EXPECT_TRUE(run->OwnerEnabledAtEnd());
        EXPECT_TRUE(IsChangeWritten());
        EXPECT_EQ(other.Window(), GetForegroundWindow());
    }
    void ExpectStillOpen(HWND window)
    {
        SendMessageW(window, WM_NULL, 0, 0);
        EXPECT_EQ(window, run->InnermostDialog());
        EXPECT_FALSE(IsChangeWritten());
    }

    CForeignWindow other;
};

} // namespace

TEST_F(EditForeground, ChooseIconCancelledBehindAnotherProgramEndsAllThree)
{
    OpenWithAChange();
    OpenEdit(L"My Menu");
    SetName(L"Mine");
    OpenChoice();
    ExpectAllEnd(choice);
    EXPECT_EQ(L"My Menu", registry.CustomText(L"User 1", L"Text"));
}

TEST_F(EditForeground, ChooseIconOfALinkDoesSoToo)
{
    OpenWithAChange();
    OpenEdit(L"Programs/Maps");
    OpenChoice();
    ExpectAllEnd(choice);
}

TEST_F(EditForeground, ChooseIconOfANewMenuDoesSoToo)
{
    OpenWithAChange();
    OpenAdd(L"Programs");
    SetName(L"New");
    OpenChoice();
    ExpectAllEnd(choice);
    EXPECT_FALSE(registry.CustomExists(L"Programs\\User 4", L"Text"));
}

TEST_F(EditForeground, EditItemCancelledBehindAnotherProgramEndsTheEditor)
{
    OpenWithAChange();
    OpenEdit(L"My Menu");
    ExpectAllEnd(edit);
}

TEST_F(EditForeground, AddMenuCancelledBehindAnotherProgramEndsTheEditor)
{
    OpenWithAChange();
    OpenAdd(L"Programs");
    ExpectAllEnd(edit);
}

TEST_F(EditForeground, ChooseIconDoneBehindAnotherProgramEndsNothingElse)
{
    StartProcess();
    OpenWithAChange();
    OpenEdit(L"My Menu");
    OpenChoice();
    SelectPlace(3);
    other.Activate();
    EndChoice(IDOK);
    ExpectStillOpen(edit);
    EndEdit(IDOK);
    EXPECT_EQ(103u, registry.CustomDword(L"User 1", L"Image"));
    ExpectStillOpen(dialog);
}

TEST_F(EditForeground, EditItemDoneBehindAnotherProgramEndsNothingElse)
{
    OpenWithAChange();
    OpenEdit(L"My Menu");
    SetName(L"Mine");
    other.Activate();
    EndEdit(IDOK);
    EXPECT_EQ(L"Mine", registry.CustomText(L"User 1", L"Text"));
    ExpectStillOpen(dialog);
}

TEST_F(EditForeground, CancellingInFrontEndsOnlyTheDialogItself)
{
    OpenWithAChange();
    OpenEdit(L"My Menu");
    OpenChoice();
    EndChoice(IDCANCEL);
    ExpectStillOpen(edit);
    EndEdit(IDCANCEL);
    ExpectStillOpen(dialog);
}

TEST_F(EditForeground, LosingItAloneEndsNoSubDialog)
{
    OpenWithAChange();
    OpenEdit(L"My Menu");
    OpenChoice();
    other.Activate();
    ExpectStillOpen(choice);
    EXPECT_FALSE(run->HasEnded());
}
