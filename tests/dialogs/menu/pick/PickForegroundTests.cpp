// Another program comes to the front while a picker is open: how the picker and the editor end.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/ForeignWindow.h"

namespace
{

// Both pickers follow the same rules.
template <class Fixture>
class PickForeground : public Fixture
{
protected:
    // Opens the picker over an editor with one box switched off but not yet written.
    void OpenOverAChange(EditorCommand command)
    {
        this->Open();
        this->tree.SetBox(this->tree.Find(L"Programs/Calendar"), BoxOff);
        this->OpenPicker(command, L"Programs");
    }
    bool IsChangeWritten() const
    {
        return this->registry.CustomDword(L"Programs\\Calendar", L"Inactive") == 1;
    }
    void ExpectClosedWithTheChangeKept()
    {
        ASSERT_TRUE(this->run->WaitForEnd());
        EXPECT_EQ(FALSE, this->run->Result());
        EXPECT_EQ(0, this->run->ThrownCode());
        EXPECT_TRUE(this->run->OwnerEnabledAtEnd());
        EXPECT_TRUE(IsChangeWritten());
        EXPECT_FALSE(this->registry.CustomExists(L"Programs\\User 4", L"File"));
    }
    void ExpectOpenWithTheChangeUnwritten()
    {
        EXPECT_EQ(this->dialog, this->run->WaitForDialog(L"Customize Menu"));
        EXPECT_FALSE(this->run->HasEnded());
        EXPECT_FALSE(IsChangeWritten());
    }
    bool IsAdded(const std::wstring& file) const
    {
        return this->registry.CustomText(L"Programs\\User 4", L"File") == file;
    }

    CForeignWindow other;
};

class FileForeground : public PickForeground<FileFixture>
{
protected:
    FileForeground() { device.AddFile(L"\\a.exe"); }
};

class LinkForeground : public PickForeground<LinkFixture>
{
protected:
    LinkForeground() { start.AddFile(L"Programs\\Mail.lnk"); }
};

} // namespace

TEST_F(FileForeground, ThePickerStaysOpenBehindAnotherProgram)
{
    OpenOverAChange(CommandAddFile);
    other.Activate();
    EXPECT_EQ(picker, run->WaitForDialog(L"Select File"));
    EXPECT_FALSE(IsChangeWritten());
}

TEST_F(FileForeground, CancelledBehindAnotherProgramKeepsTheBoxesAndCancelsTheEditor)
{
    OpenOverAChange(CommandAddFile);
    other.Activate();
    PostCommand(picker, IDCANCEL);
    ExpectClosedWithTheChangeKept();
}

TEST_F(FileForeground, DoneOnAFolderBehindAnotherProgramDoesSo)
{
    OpenOverAChange(CommandAddFile);
    SelectEntry(L"");
    other.Activate();
    PostCommand(picker, IDOK);
    ExpectClosedWithTheChangeKept();
}

TEST_F(FileForeground, DoneOnAFileBehindAnotherProgramAddsItAndLeavesTheEditorOpen)
{
    OpenOverAChange(CommandAddFile);
    SelectEntry(L"a.exe");
    other.Activate();
    PostCommand(picker, IDOK);
    ExpectOpenWithTheChangeUnwritten();
    EXPECT_TRUE(IsAdded(L"\\a.exe"));
}

TEST_F(FileForeground, CancelledInFrontLeavesTheEditorOpen)
{
    OpenOverAChange(CommandAddFile);
    EndPicker(IDCANCEL);
    ExpectOpenWithTheChangeUnwritten();
}

TEST_F(LinkForeground, CancelledBehindAnotherProgramKeepsTheBoxesAndCancelsTheEditor)
{
    OpenOverAChange(CommandAddLink);
    other.Activate();
    PostCommand(picker, IDCANCEL);
    ExpectClosedWithTheChangeKept();
}

TEST_F(LinkForeground, DoneOnTheRootBehindAnotherProgramDoesSo)
{
    OpenOverAChange(CommandAddLink);
    SelectEntry(L"");
    other.Activate();
    PostCommand(picker, IDOK);
    ExpectClosedWithTheChangeKept();
}

TEST_F(LinkForeground, DoneOnALinkBehindAnotherProgramAddsItAndLeavesTheEditorOpen)
{
    OpenOverAChange(CommandAddLink);
    SelectEntry(L"Mail");
    other.Activate();
    PostCommand(picker, IDOK);
    ExpectOpenWithTheChangeUnwritten();
    EXPECT_TRUE(IsAdded(start.PathOf(L"Programs\\Mail.lnk")));
}

TEST_F(LinkForeground, CancelledInFrontLeavesTheEditorOpen)
{
    OpenOverAChange(CommandAddLink);
    EndPicker(IDCANCEL);
    ExpectOpenWithTheChangeUnwritten();
}
