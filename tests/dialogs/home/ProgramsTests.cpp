// The Programs branch through the export: what the launcher-menu process is asked, and what becomes
// of folders and processes that mean no good.
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Wait.h"
#include "tests/support/LongRun.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace
{

constexpr size_t kLongestPath = 259;

class HomePrograms : public HomeFixture
{
protected:
    void StartFilter(CFilterWindow::Answer answer)
    {
        filter.reset();
        filter = std::make_unique<CFilterWindow>(std::move(answer));
    }
    Lines Programs() const { return tree.ChildrenOf(L"Programs"); }

    // The question about a path, written by hand.
    static std::vector<uint8_t> QuestionAbout(const std::wstring& path)
    {
        std::vector<uint8_t> bytes(524);
        memcpy(bytes.data() + 4, path.data(), path.size() * sizeof(wchar_t));
        return bytes;
    }
    // Checks that the dialog can be worked and saves.
    void ExpectUsable()
    {
        Switch(L"Tools");
        Done();
        EXPECT_EQ(Lines{L"*" + MenuName(L"Tools")}, List());
    }
};

} // namespace

TEST_F(HomePrograms, EachFileAndFolderIsAskedAboutOnceByteForByte)
{
    Open();
    std::vector<std::vector<uint8_t>> expected;
    for (const wchar_t* const below : {L"Programs\\Calculator.lnk", L"Programs\\Games",
                                       L"Programs\\Mail.exe", L"Programs\\Games\\Bubbles.lnk"})
        expected.push_back(QuestionAbout(start.PathOf(below)));
    std::vector<std::vector<uint8_t>> asked;
    for (const ImageProcessRequest& question : filter->Questions())
    {
        EXPECT_EQ(6002u, question.code);
        EXPECT_EQ(0u, question.wParam);
        asked.push_back(question.bytes);
    }
    std::sort(expected.begin(), expected.end());
    std::sort(asked.begin(), asked.end());
    EXPECT_EQ(expected, asked);
}

TEST_F(HomePrograms, NothingIsAskedAfterTheDialogHasOpened)
{
    Open();
    const size_t asked = filter->Questions().size();
    Switch(L"Programs/Mail");
    Done();
    EXPECT_EQ(asked, filter->Questions().size());
}

TEST_F(HomePrograms, TheEntriesOfOneAndTwoDotsAreNeitherAskedAboutNorShown)
{
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Mail"}), Programs());
    for (const std::wstring& name : filter->Names())
        EXPECT_NE(L'.', name.front()) << "a dot alone, or two, is no name";
}

TEST_F(HomePrograms, APathOf259CharactersIsShownAndPinnedAndOneMoreIsNotShown)
{
    const std::wstring folder = L"Programs\\" + std::wstring(100, L'f') + L"\\";
    const size_t left = kLongestPath - start.PathOf(folder).size() - 4;
    const std::wstring fits = folder + std::wstring(left, L'a') + L".lnk";
    start.AddFile(fits);
    start.AddFile(folder + std::wstring(left + 1, L'b') + L".lnk");
    ASSERT_EQ(kLongestPath, start.PathOf(fits).size());
    Open();
    const std::wstring node = L"Programs/" + std::wstring(100, L'f');
    EXPECT_EQ(Lines{std::wstring(left, L'a')}, tree.ChildrenOf(node));
    Switch(node + L"/" + std::wstring(left, L'a'));
    Done();
    EXPECT_EQ(Lines{L"*" + LinkName(fits)}, List());
}

TEST_F(HomePrograms, AFolderThatVanishesWhileItIsAskedAboutContributesNothing)
{
    StartFilter(
        [this](const std::wstring& path)
        {
            if (path == start.PathOf(L"Programs\\Games"))
                start.Remove(L"Programs\\Games");
            return 1;
        });
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Mail"}), Programs());
}

TEST_F(HomePrograms, AFolderThatHoldsOnlyAnEmptyFolderIsShown)
{
    start.AddFolder(L"Programs\\Holder\\Empty");
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Holder", L"Mail"}), Programs());
    EXPECT_EQ(Lines{}, tree.ChildrenOf(L"Programs/Holder"));
    EXPECT_EQ(static_cast<UINT>(NoBox), BoxOf(L"Programs/Holder"));
}

// The launcher-menu process.

TEST_F(HomePrograms, AProcessThatTakesItsTimeIsWaitedForEachTime)
{
    StartFilter(
        [](const std::wstring&)
        {
            Sleep(50);
            return 1;
        });
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Mail"}), Programs());
    ExpectUsable();
}

TEST_F(HomePrograms, OfTwoWindowsOfItsClassOneIsAskedEverything)
{
    CFilterWindow other;
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Mail"}), Programs());
    const size_t asked = filter->Questions().size();
    EXPECT_TRUE(asked == 0 || asked == 4) << asked;
    EXPECT_EQ(4u, asked + other.Questions().size());
    ExpectUsable();
}

TEST_F(HomePrograms, AProcessThatDiesAtItsSecondQuestionLeavesWhatItShowedBefore)
{
    StartFilter(
        [this](const std::wstring&)
        {
            filter->Behave(ImageProcessManner::Die);
            return 1;
        });
    Open();
    EXPECT_EQ(2u, filter->Questions().size());
    EXPECT_LE(Programs().size(), 1u) << "a folder of which nothing more is known isn't shown";
    ExpectUsable();
}

TEST_F(HomePrograms, AProcessThatStartsLaterIsAskedByTheNextDialog)
{
    filter.reset();
    Open();
    EXPECT_EQ(Lines{}, Programs());
    Cancel();
    filter = std::make_unique<CFilterWindow>();
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Mail"}), Programs());
}

namespace
{

// A hundred thousand files in the long run. In many folders, since the file system here takes
// longer to make a file the more there are beside it.
constexpr int kFilesPerFolder = 100;

int ManyFolders()
{
    return IsLongRun() ? 1000 : 10;
}

decltype(&SendMessageTimeoutW) g_send;
std::atomic<int> g_sends;

LRESULT WINAPI CountSend(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                         UINT timeout, DWORD_PTR* result)
{
    ++g_sends;
    return g_send(window, message, wParam, lParam, flags, timeout, result);
}

// Counts questions where they are sent: who is stuck in one doesn't see the next.
class HomeProgramsVolume : public HomePrograms
{
protected:
    HomeProgramsVolume()
    {
        g_send = SendMessageTimeoutW;
        g_sends = 0;
        module = std::make_unique<CModule>();
        m_patch = std::make_unique<CImportPatch>(module->Handle(), "user32.dll",
                                                 "SendMessageTimeoutW", CountSend);
    }
    ~HomeProgramsVolume() override
    {
        run.reset();
        m_patch.reset();
    }

private:
    std::unique_ptr<CImportPatch> m_patch;
};

} // namespace

// It does answer, but later than anybody waits: its answer counts no longer, and the many files
// behind it are not asked about.
TEST_F(HomeProgramsVolume, AProcessThatBecomesTooSlowIsAskedAboutNothingMore)
{
    constexpr int kQuick = 50;
    const int folders = ManyFolders();
    for (int i = 0; i < folders; ++i)
        start.AddManyFiles(L"Many\\" + std::to_wstring(i), kFilesPerFolder);
    std::atomic<bool> isOpen{false};
    std::atomic<int> asked{0};
    StartFilter(
        [&](const std::wstring&)
        {
            if (++asked > kQuick)
                WaitUntil([&] { return isOpen.load(); }, 60000);
            return 1;
        });
    const ULONGLONG begin = GetTickCount64();
    Open();
    const ULONGLONG spent = GetTickCount64() - begin;
    isOpen = true;
    EXPECT_GE(spent, 4900u);
    // One answer's time, and what it takes to list a folder here.
    EXPECT_LT(spent, 8000u + 10u * static_cast<unsigned>(folders));
    EXPECT_EQ(kQuick + 1, g_sends);
    EXPECT_EQ(static_cast<size_t>(kQuick), Programs().size());
    ExpectUsable();
    EXPECT_EQ(kQuick + 1, g_sends);
}
