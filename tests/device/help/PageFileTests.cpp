// Finding and reading the pages of help.
#include "device/help/PageFile.h"

#include <gtest/gtest.h>

#include "platform/Win.h"
#include "tests/device/help/HelpFolder.h"

namespace
{

class PageFile : public testing::Test
{
protected:
    void ExpectProblem(const std::wstring& name, const wchar_t* words)
    {
        const help::FoundPage page = help::FindPage(name);
        EXPECT_TRUE(page.Path.empty()) << page.Path;
        EXPECT_NE(std::wstring::npos, page.Problem.find(words)) << page.Problem;
    }

    CHelpFolder m_folder;
};

} // namespace

TEST_F(PageFile, ThePageBesideTheProgramIsFoundFirst)
{
    m_folder.Add(L"TavLumenar.htm", "other");
    EXPECT_EQ(BookPath(), help::FindPage(L"TavLumenar.htm").Path);
}

TEST_F(PageFile, APageThatIsOnlyInTheInstallationFolderIsFoundThere)
{
    const std::wstring path = m_folder.Add(L"Other.htm", "x");
    EXPECT_EQ(path, help::FindPage(L"Other.htm").Path);
    EXPECT_EQ(path, help::FindPage(path).Path);
}

TEST_F(PageFile, APageBelowTheFolderIsFoundWithEitherSlash)
{
    CreateDirectoryW((m_folder.Path() + L"more").c_str(), nullptr);
    const std::wstring path = m_folder.Add(L"more\\Page.html", "x");
    EXPECT_EQ(path, help::FindPage(L"more\\Page.html").Path);
    EXPECT_EQ(path, help::FindPage(L"more/Page.html").Path);
}

TEST_F(PageFile, TheCurrentFolderIsNotLookedIn)
{
    wchar_t before[MAX_PATH] = {};
    GetCurrentDirectoryW(MAX_PATH, before);
    CreateDirectoryW((m_folder.Path() + L"here").c_str(), nullptr);
    m_folder.Add(L"here\\Planted.htm", "x");
    SetCurrentDirectoryW((m_folder.Path() + L"here").c_str());
    ExpectProblem(L"Planted.htm", L"was not found");
    SetCurrentDirectoryW(before);
}

TEST_F(PageFile, EveryKindOfNameThatLeavesTheFoldersIsRefusedWithItsReason)
{
    m_folder.Add(L"Page.htm", "x");
    ExpectProblem(L"..\\Page.htm", L"leads out of the help folder");
    ExpectProblem(m_folder.Path() + L"x\\..\\Page.htm", L"leads out of the help folder");
    ExpectProblem(L"\\\\server\\share\\Page.htm", L"not on this device");
    ExpectProblem(L"C:Page.htm", L"not on this device");
    ExpectProblem(L"notepad.exe", L"is no help page");
    ExpectProblem(L"Page.htm:stream.htm", L"not a file's name");
    ExpectProblem(L"Missing.htm", L"'Missing.htm' was not found");
}

TEST_F(PageFile, AFolderOfThatNameIsNoPage)
{
    CreateDirectoryW((m_folder.Path() + L"Folder.htm").c_str(), nullptr);
    ExpectProblem(L"Folder.htm", L"was not found");
}

TEST_F(PageFile, WithoutAnInstallationFolderOnlyTheProgramsFolderCounts)
{
    CRegistrySandbox empty;
    m_folder.Add(L"Other.htm", "x");
    ExpectProblem(L"Other.htm", L"was not found");
    EXPECT_EQ(BookPath(), help::FindPage(L"TavLumenar.htm").Path);
}

TEST_F(PageFile, ALinkedPageLiesInTheLinkingPagesFolder)
{
    const std::wstring from = m_folder.Add(L"From.htm", "x");
    const std::wstring other = m_folder.Add(L"To.htm", "x");
    EXPECT_EQ(other, help::FindLinkedPage(from, L"To.htm").Path);
    EXPECT_FALSE(help::FindLinkedPage(from, L"TavLumenar.htm").Problem.empty());
    EXPECT_FALSE(help::FindLinkedPage(from, L"..\\To.htm").Problem.empty());
}

TEST_F(PageFile, APageIsReadWithItsTitle)
{
    const std::wstring path = m_folder.Add(L"Page.htm", "<title>T\xC3\xBC</title><p>text");
    const help::ReadPage page = help::ReadPageFile(path);
    EXPECT_EQ(L"", page.Problem);
    EXPECT_EQ(L"T\u00FC", page.Contents.Title);
    EXPECT_EQ(1u, page.Contents.Blocks.size());
}

TEST_F(PageFile, AnEmptyPageIsReadAsOneWithoutBlocks)
{
    const help::ReadPage page = help::ReadPageFile(m_folder.Add(L"Empty.htm", ""));
    EXPECT_EQ(L"", page.Problem);
    EXPECT_TRUE(page.Contents.Blocks.empty());
}

TEST_F(PageFile, APageOfMoreThan4MegabytesIsRefused)
{
    const std::string most(4 * 1024 * 1024, ' ');
    EXPECT_EQ(L"", help::ReadPageFile(m_folder.Add(L"Most.htm", most)).Problem);
    const help::ReadPage page = help::ReadPageFile(m_folder.Add(L"Large.htm", most + " "));
    EXPECT_NE(std::wstring::npos, page.Problem.find(L"too large"));
}

TEST_F(PageFile, APageThatIsCutEndsWithANote)
{
    std::string many;
    for (int i = 0; i < 60000; ++i)
        many += "<p>x";
    const help::ReadPage page = help::ReadPageFile(m_folder.Add(L"Many.htm", many));
    EXPECT_TRUE(page.Contents.Cut);
    EXPECT_EQ(L"This page is too long to be shown whole.",
              page.Contents.Blocks.back().Runs[0].Text);
}

TEST_F(PageFile, AMissingPageIsSaidToBeUnreadable)
{
    EXPECT_NE(std::wstring::npos,
              help::ReadPageFile(m_folder.Path() + L"x.htm").Problem.find(L"can't be opened"));
}

TEST_F(PageFile, ADeviceIsNoPage)
{
    EXPECT_FALSE(help::ReadPageFile(L"\\\\.\\NUL").Problem.empty());
}
