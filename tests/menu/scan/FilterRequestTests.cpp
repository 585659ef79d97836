// What the scan asks the launcher-menu process, byte for byte, and what it makes of every answer.
#include "tests/menu/scan/ScanFixture.h"

namespace
{

using FilterRequests = ScanFixture;

// What the rows of the branch are called.
constexpr const wchar_t* kNothing = L"- Programs\n";
constexpr const wchar_t* kChess = L"- Programs\n  - Chess\n";

constexpr size_t kLongestPath = 259;

std::string BytesOf(const ImageProcessRequest& question)
{
    return std::string(question.bytes.begin(), question.bytes.end());
}

TEST_F(FilterRequests, AQuestionIsAZeroWordAndThePathInAZeroedBuffer)
{
    StartFilter();
    const std::wstring path = menu.AddFile(L"Chess.lnk");
    FillPinned();
    std::string expected(524, '\0');
    memcpy(expected.data() + 4, path.data(), path.size() * sizeof(wchar_t));
    const std::vector<ImageProcessRequest> questions = filter->Questions();
    ASSERT_EQ(1u, questions.size());
    EXPECT_EQ(6002u, questions[0].code);
    EXPECT_EQ(expected, BytesOf(questions[0]));
}

TEST_F(FilterRequests, AShortPathCarriesNothingOfALongerOneBeforeIt)
{
    StartFilter();
    menu.AddFile(L"Programs\\A name that takes its place in the buffer.lnk");
    menu.AddFile(L"z.lnk");
    FillPinned();
    for (const ImageProcessRequest& question : filter->Questions())
    {
        const size_t used = 4 + CFilterWindow::PathIn(question).size() * sizeof(wchar_t);
        EXPECT_EQ(std::string(524 - used, '\0'), BytesOf(question).substr(used));
    }
}

TEST_F(FilterRequests, EveryAnswerButZeroShowsTheEntry)
{
    menu.AddFile(L"Chess.lnk");
    for (const LRESULT answer :
         {LRESULT(1), LRESULT(-1), LRESULT(0x100000000), static_cast<LRESULT>(0x8000000000000001)})
    {
        StartFilterBut(L"Chess.lnk", answer);
        EXPECT_EQ(kChess, FillPinned()) << answer;
        filter.reset();
    }
}

TEST_F(FilterRequests, TheAnswerZeroHidesThatEntryAloneAndTheNextIsAsked)
{
    menu.AddFile(L"Alarm.lnk");
    menu.AddFile(L"Chess.lnk");
    menu.AddFile(L"Zoo.lnk");
    int asked = 0;
    StartFilter([&](const std::wstring&) { return asked++ == 1; });
    FillPinned();
    EXPECT_EQ(3, asked);
    EXPECT_EQ(1u, tree.ChildrenOf(L"").size());
}

TEST_F(FilterRequests, WithoutTheProcessNothingIsListed)
{
    menu.AddFile(L"Chess.lnk");
    menu.AddFile(L"Programs\\Games\\Bridge.lnk");
    EXPECT_EQ(kNothing, FillPinned());
}

TEST_F(FilterRequests, EachFillLooksForTheProcessAnew)
{
    menu.AddFile(L"Chess.lnk");
    EXPECT_EQ(kNothing, FillPinned());
    StartFilter();
    EXPECT_EQ(kChess, FillPinned());
    filter.reset();
    EXPECT_EQ(kNothing, FillPinned());
}

TEST_F(FilterRequests, APathOf259CharactersIsAskedAboutAndOneMoreIsNot)
{
    StartFilter();
    const std::wstring folder = L"Programs\\" + std::wstring(100, L'f') + L"\\";
    const size_t left = kLongestPath - menu.PathOf(folder).size() - 4;
    menu.AddFile(folder + std::wstring(left, L'a') + L".lnk");
    menu.AddFile(folder + std::wstring(left + 1, L'b') + L".lnk");
    FillPinned();
    EXPECT_EQ(std::vector<std::wstring>{std::wstring(left, L'a')},
              tree.ChildrenOf(std::wstring(100, L'f')));
    // The folder and the file that fits.
    EXPECT_EQ(2u, filter->Questions().size());
}

TEST_F(FilterRequests, FoldersBeyondThatLengthAreNotWalked)
{
    StartFilter();
    std::wstring below = L"Deep";
    while (menu.PathOf(below).size() <= kLongestPath)
        below += L"\\deeper";
    menu.AddFile(below + L"\\Chess.lnk");
    EXPECT_EQ(kNothing, FillPinned());
    EXPECT_TRUE(filter->Questions().empty());
}

TEST_F(FilterRequests, AProcessThatHangsIsGivenUpAfterItsFirstQuestion)
{
    menu.AddFile(L"Alarm.lnk");
    menu.AddFile(L"Chess.lnk");
    menu.AddFile(L"Programs\\Games\\Bridge.lnk");
    StartFilter();
    filter->Behave(ImageProcessManner::Hang);
    const ULONGLONG begin = GetTickCount64();
    EXPECT_EQ(kNothing, FillPinned());
    EXPECT_LT(GetTickCount64() - begin, 6000u);
    EXPECT_EQ(1u, filter->Questions().size());
}

TEST_F(FilterRequests, WhatAProcessShowedBeforeItHungStaysShown)
{
    menu.AddFile(L"Alarm.lnk");
    menu.AddFile(L"Chess.lnk");
    menu.AddFile(L"Zoo.lnk");
    StartFilter(
        [this](const std::wstring&)
        {
            filter->Behave(ImageProcessManner::Hang);
            return 1;
        });
    FillPinned();
    EXPECT_EQ(1u, tree.ChildrenOf(L"").size());
    EXPECT_EQ(2u, filter->Questions().size());
}

TEST_F(FilterRequests, AProcessThatDiesWhileItIsAskedShowsNothing)
{
    menu.AddFile(L"Alarm.lnk");
    menu.AddFile(L"Chess.lnk");
    StartFilter();
    filter->Behave(ImageProcessManner::Die);
    EXPECT_EQ(kNothing, FillPinned());
    EXPECT_EQ(1u, filter->Questions().size());
}

} // namespace
