// A launcher-menu process that answers nonsense, dies or hangs leaves the dialogs usable.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Wait.h"

namespace
{

// What the module waits for an answer, and what a test allows for the rest.
constexpr ULONGLONG kPatience = 5000;
constexpr ULONGLONG kAllowance = 3000;

class EditRogue : public EditFixture
{
protected:
    // Works both dialogs once, for the menu.
    void ExpectUsable()
    {
        SetName(L"Mine");
        OpenChoice();
        EndChoice(IDOK);
        EndEdit(IDOK);
        EXPECT_EQ(L"Mine", registry.CustomText(L"User 1", L"Text"));
        Done();
    }
};

class EditVolume : public EditRogue
{
protected:
    EditVolume()
    {
        StartProcess(5, true);
        Open();
        process->Behave(ImageProcessManner::Hang);
    }
    // Opens Edit Item and waits until it has painted its preview: a message that is posted when the
    // process has been asked is handled only after that.
    void OpenPaintedEdit(const std::wstring& path)
    {
        OpenEdit(path);
        EXPECT_TRUE(WaitUntil([this] { return !process->Requests().empty(); }));
        const HWND name = Control(kNameId);
        const int length = GetWindowTextLengthW(name);
        PostMessageW(name, WM_CHAR, L'x', 0);
        EXPECT_TRUE(WaitUntil([=] { return GetWindowTextLengthW(name) > length; }));
    }

    // Checks that `work` waits for the process once and not a second time.
    template <class Work>
    static void ExpectOneWait(Work work)
    {
        const ULONGLONG begin = GetTickCount64();
        work();
        const ULONGLONG spent = GetTickCount64() - begin;
        EXPECT_GE(spent, kPatience - 100);
        EXPECT_LT(spent, kPatience + kAllowance);
    }
};

} // namespace

TEST_F(EditRogue, WithoutTheProcessThePreviewOfANumberIsWhite)
{
    OpenEdit(L"My Menu");
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
    ExpectUsable();
}

TEST_F(EditRogue, AProcessThatDrawsNothingLeavesThePreviewWhite)
{
    StartRogue(0);
    OpenEdit(L"My Menu");
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
    ExpectUsable();
}

TEST_F(EditRogue, AnyAnswerButZeroCountsAsDrawn)
{
    registry.SetText((std::wstring(kCustomMenu) + L"\\Programs\\User 3").c_str(), L"ImagePath",
                     L"\\windows");
    for (const LRESULT answer : {LRESULT{1} << 32, LRESULT{-1}, INT64_MIN + 1})
    {
        process.reset();
        StartRogue(answer);
        OpenEdit(L"Programs/Maps");
        // Drawn by whoever answered so: nothing is drawn here.
        EXPECT_TRUE(IsPreviewWhite()) << answer;
        EndEdit(IDCANCEL);
    }
}

TEST_F(EditRogue, AProcessThatDiesForThePreviewLeavesItWhite)
{
    StartProcess();
    process->Behave(ImageProcessManner::Die);
    OpenEdit(L"My Menu");
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
    ExpectUsable();
}

TEST_F(EditRogue, AProcessThatDiesForTheListLeavesTheFilesIcon)
{
    StartProcess(5, true);
    OpenEdit(L"Programs/Maps");
    ExpectPreview(kFileColour);
    process->Behave(ImageProcessManner::Die);
    OpenChoice();
    EXPECT_EQ(1, Count());
    EndChoice(IDOK);
    EndEdit(IDOK);
    Done();
}

TEST_F(EditVolume, AProcessThatHangsForThePreviewIsWaitedForOnce)
{
    ExpectOneWait([this] { OpenPaintedEdit(L"My Menu"); });
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
    EXPECT_EQ(1u, process->Requests().size());
}

TEST_F(EditVolume, AProcessThatHangsForAFilesImageIsWaitedForOnce)
{
    ExpectOneWait([this] { OpenPaintedEdit(L"Programs/Maps"); });
    EXPECT_EQ(1u, process->Requests().size());
}

TEST_F(EditVolume, AProcessThatHangsForTheListIsWaitedForOnceAndTheDialogsStayUsable)
{
    process->Behave(ImageProcessManner::Answer);
    OpenEdit(L"Programs/Maps");
    ExpectPreview(kFileColour);
    process->Behave(ImageProcessManner::Hang);
    ExpectOneWait([this] { OpenChoice(); });
    // Not asked for the file's image either.
    EXPECT_EQ(1, Count());
    process.reset();
    EndChoice(IDOK);
    EndEdit(IDOK);
    Done();
}
