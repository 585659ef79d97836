// The help viewer and its command line.
#include "ui/Help.h"

#include "tests/support/ProcessPatch.h"

#include <gtest/gtest.h>

TEST(Help, WithoutATopicShowsTheMainContents)
{
    EXPECT_EQ(L"TavLumenar.htm#Main_Contents", HelpCommandLine(L""));
}

TEST(Help, ShowsTheTopicOfTheBook)
{
    EXPECT_EQ(L"TavLumenar.htm#Menu Options", HelpCommandLine(L"Menu Options"));
}

TEST(Help, ACommandLineOf259CharactersStaysWhole)
{
    const std::wstring book = L"TavLumenar.htm#";
    const std::wstring fits(259 - book.size(), L'x');
    EXPECT_EQ(book + fits, HelpCommandLine(fits));
    EXPECT_EQ(book + fits, HelpCommandLine(fits + L'y'));
}

TEST(Help, AMillionCharactersAreCut)
{
    EXPECT_EQ(259u, HelpCommandLine(std::wstring(1 << 20, L'x')).size());
}

TEST(Help, StartsTheViewerByItsFullPathWithExactlyThatCommandLine)
{
    const CProcessPatch processes;
    LaunchHelp(L"");
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"C:\\Programs\\PegHelp.exe", processes.Started()[0].application);
    EXPECT_EQ(L"TavLumenar.htm#Main_Contents", processes.Started()[0].commandLine);
}

TEST(Help, ClosesTheHandlesOfTheViewer)
{
    const CProcessPatch processes;
    LaunchHelp(L"");
    EXPECT_TRUE(processes.HandlesAreClosed());
}

TEST(Help, AMissingViewerIsIgnored)
{
    const CProcessPatch processes(false);
    LaunchHelp(L"topic");
    EXPECT_TRUE(processes.Started().empty());
}

TEST(Help, TheViewerIsNotLookedForInTheCurrentFolder)
{
    const CProcessPatch processes;
    LaunchHelp(L"");
    EXPECT_NE(L"(default)", processes.SearchedPath());
    EXPECT_EQ(std::wstring::npos, processes.SearchedPath().find(L".;"));
}
