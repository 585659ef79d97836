// The help viewer's own window: keys, stylus, soft keys, the way back, and what others send to it.
#include "tests/device/help/ViewerWindow.h"

#include <chrono>

#include "device/help/OpenViewer.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"

namespace
{

// Three chapters that are each higher than any screen here.
std::string LongPage()
{
    std::string page = "<title>Long</title>";
    for (const char* name : {"One", "Two", "Three"})
    {
        page += "<h2 id=" + std::string(name) + ">" + name + "</h2>";
        for (int i = 0; i < 60; ++i)
            page += "<p>line</p>";
    }
    return page;
}

constexpr const char* kLinks = "<h2 id=Top>Top</h2><a href='#A'>first</a> <a href='#B'>second</a>"
                               "<h2 id=A>Chapter A</h2><h2 id=B>Chapter B</h2>";

LRESULT SendTarget(HWND window, const std::wstring& target, ULONG_PTR code = help::kShowTarget)
{
    std::wstring text = target;
    COPYDATASTRUCT data = {};
    data.dwData = code;
    data.cbData = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    data.lpData = text.data();
    return SendMessageW(window, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
}

} // namespace

TEST_F(ViewerWindow, ShowsTheBooksContentsUnderItsTitle)
{
    OpenBook();
    EXPECT_EQ(L"Tav Lumenar Help", TextOf(m_window.Window()));
    EXPECT_EQ(L"Tav Lumenar Help", FirstLine());
    EXPECT_EQ(ViewWindow(), GetFocus());
}

TEST_F(ViewerWindow, OpensWithTheTopicAtTheTop)
{
    Open(LongPage(), L"Two");
    EXPECT_EQ(L"Two", FirstLine());
}

TEST_F(ViewerWindow, ATopicAtThePagesEndStandsAtTheTopToo)
{
    Open(LongPage() + "<h2 id=End>End</h2>", L"End");
    EXPECT_EQ(L"End", FirstLine());
}

TEST_F(ViewerWindow, AnUnknownTopicShowsThePagesBeginning)
{
    Open(LongPage(), L"Four");
    EXPECT_EQ(L"One", FirstLine());
}

TEST_F(ViewerWindow, TabGoesFromLinkToLinkAndRound)
{
    Open(kLinks);
    EXPECT_EQ(L"", FocusedText());
    Press(VK_TAB);
    EXPECT_EQ(L"first", FocusedText());
    Press(VK_TAB);
    EXPECT_EQ(L"second", FocusedText());
    Press(VK_TAB);
    EXPECT_EQ(L"first", FocusedText());
}

TEST_F(ViewerWindow, DownAndUpGoToTheLinksInSight)
{
    Open(kLinks);
    Press(VK_DOWN);
    EXPECT_EQ(L"first", FocusedText());
    Press(VK_DOWN);
    EXPECT_EQ(L"second", FocusedText());
    Press(VK_UP);
    EXPECT_EQ(L"first", FocusedText());
}

TEST_F(ViewerWindow, DownScrollsWhereNoLinkIsNear)
{
    Open(LongPage() + "<a href='#One'>link</a>");
    Press(VK_DOWN);
    EXPECT_GT(m_window.View().Position(), 0);
    EXPECT_LT(m_window.View().Position(), Px(30));
    EXPECT_EQ(L"", FocusedText());
    Press(VK_UP);
    EXPECT_EQ(0, m_window.View().Position());
}

TEST_F(ViewerWindow, DownAloneReachesEveryLinkAndTheEnd)
{
    Open("<a href='#x'>first</a>" + LongPage() + "<a href='#y'>last</a>");
    for (int i = 0; i < 1000 && FocusedText() != L"last"; ++i)
        Press(VK_DOWN);
    EXPECT_EQ(L"last", FocusedText());
    for (int i = 0; i < 1000 && FocusedText() != L"first"; ++i)
        Press(VK_UP);
    EXPECT_EQ(L"first", FocusedText());
}

TEST_F(ViewerWindow, TabBringsALinkIntoSight)
{
    Open(LongPage() + "<a href='#One'>link</a>");
    Press(VK_TAB);
    EXPECT_EQ(L"link", FocusedText());
    RECT client = {};
    GetClientRect(ViewWindow(), &client);
    EXPECT_LT(MiddleOf(0).y, client.bottom);
    EXPECT_GT(MiddleOf(0).y, 0);
}

TEST_F(ViewerWindow, EnterFollowsTheLinkAndBackspaceReturnsToIt)
{
    Open(kLinks + LongPage());
    Press(VK_TAB);
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_EQ(L"Chapter B", FirstLine());
    EXPECT_EQ(L"", FocusedText());
    Press(VK_BACK);
    EXPECT_EQ(L"Top", FirstLine());
    EXPECT_EQ(L"second", FocusedText());
}

TEST_F(ViewerWindow, EnterWithoutALinkDoesNothing)
{
    Open(kLinks);
    Press(VK_RETURN);
    EXPECT_EQ(L"Top", FirstLine());
    EXPECT_EQ(L"Done", KeyText(1));
}

TEST_F(ViewerWindow, PageKeysScrollByAScreenAndHomeAndEndToTheEnds)
{
    Open(LongPage());
    RECT client = {};
    GetClientRect(ViewWindow(), &client);
    Press(VK_NEXT);
    const int page = m_window.View().Position();
    EXPECT_GT(page, client.bottom / 2);
    EXPECT_LT(page, client.bottom);
    Press(VK_PRIOR);
    EXPECT_EQ(0, m_window.View().Position());
    Press(VK_END);
    EXPECT_EQ(m_window.View().Layout().Height - client.bottom, m_window.View().Position());
    Press(VK_NEXT);
    EXPECT_EQ(m_window.View().Layout().Height - client.bottom, m_window.View().Position());
    Press(VK_HOME);
    EXPECT_EQ(0, m_window.View().Position());
}

TEST_F(ViewerWindow, EscClosesTheWindowAndEndsTheLoop)
{
    OpenBook();
    Press(VK_ESCAPE);
    EXPECT_TRUE(HandleMessages());
    EXPECT_FALSE(IsWindowVisible(m_window.Window()));
}

TEST_F(ViewerWindow, ATapFollowsALink)
{
    Open(kLinks + LongPage());
    Tap(MiddleOf(0));
    EXPECT_EQ(L"Chapter A", FirstLine());
}

TEST_F(ViewerWindow, ATapThatEndsElsewhereFollowsNothing)
{
    Open(kLinks);
    const POINT link = MiddleOf(0);
    SendMessageW(ViewWindow(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(link.x, link.y));
    SendMessageW(ViewWindow(), WM_LBUTTONUP, 0, MAKELPARAM(0, 0));
    EXPECT_EQ(L"Done", KeyText(1));
}

TEST_F(ViewerWindow, TheWheelScrolls)
{
    Open(LongPage());
    SendMessageW(ViewWindow(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
    EXPECT_GT(m_window.View().Position(), 0);
}

TEST_F(ViewerWindow, TheScrollBarScrolls)
{
    Open(LongPage());
    SendMessageW(ViewWindow(), WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_GT(m_window.View().Position(), 0);
    SCROLLINFO info = {sizeof(SCROLLINFO), SIF_ALL, 0, 0, 0, 0, 0};
    GetScrollInfo(ViewWindow(), SB_VERT, &info);
    EXPECT_EQ(m_window.View().Position(), info.nPos);
    EXPECT_EQ(m_window.View().Layout().Height - 1, info.nMax);
}

TEST_F(ViewerWindow, TheRightKeyIsDoneUntilALinkIsFollowedAndThenBack)
{
    OpenBook();
    EXPECT_EQ(L"Contents", KeyText(0));
    EXPECT_EQ(L"Done", KeyText(1));
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_EQ(L"Customize Menu", FirstLine());
    EXPECT_EQ(L"Back", KeyText(1));
    PressSoftKey(1);
    EXPECT_EQ(L"Tav Lumenar Help", FirstLine());
    EXPECT_EQ(L"Done", KeyText(1));
    PressSoftKey(1);
    EXPECT_TRUE(HandleMessages());
}

TEST_F(ViewerWindow, TheLeftKeyShowsTheContentsAndCanBeUndone)
{
    OpenBook(L"Select_City");
    PressSoftKey(0);
    EXPECT_EQ(L"Tav Lumenar Help", FirstLine());
    PressSoftKey(1);
    EXPECT_EQ(L"Select City", FirstLine());
}

TEST_F(ViewerWindow, ALinkToAnotherPageOpensItAndBackReturns)
{
    m_folder.Add(L"Other.htm", "<title>Other</title><p>x</p>" + LongPage());
    Open("<title>First</title><h2>Here</h2><a href='Other.htm#Two'>there</a>");
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_EQ(L"Two", FirstLine());
    EXPECT_EQ(L"Other", TextOf(m_window.Window()));
    Press(VK_BACK);
    EXPECT_EQ(L"Here", FirstLine());
    EXPECT_EQ(L"First", TextOf(m_window.Window()));
}

TEST_F(ViewerWindow, BackspaceAtTheBeginningDoesNothing)
{
    OpenBook(L"Keys");
    Press(VK_BACK);
    EXPECT_EQ(L"With the keys", FirstLine());
}

TEST_F(ViewerWindow, AHundredAndMoreFollowedLinksKeepTheLastHundred)
{
    Open("<h2 id=Top>Top</h2><a href='#Top'>again</a>");
    for (int i = 0; i < 110; ++i)
    {
        Press(VK_TAB);
        Press(VK_RETURN);
    }
    for (int i = 0; i < 100; ++i)
        PressSoftKey(1);
    EXPECT_EQ(L"Done", KeyText(1));
    EXPECT_FALSE(HandleMessages());
}

TEST_F(ViewerWindow, ATargetThatIsSentIsShown)
{
    OpenBook();
    Press(VK_TAB);
    Press(VK_RETURN);
    EXPECT_TRUE(SendTarget(m_window.Window(), L"TavLumenar.htm#Select_City"));
    EXPECT_EQ(L"Select City", FirstLine());
    // It begins anew: there is no way back into what was read before.
    EXPECT_EQ(L"Done", KeyText(1));
}

TEST_F(ViewerWindow, WhatIsSentIsJudgedLikeACommandLine)
{
    OpenBook();
    m_folder.Add(L"Large.htm", std::string(4 * 1024 * 1024 + 1, ' '));
    for (const wchar_t* target :
         {L"..\\x.htm", L"\\\\server\\x.htm", L"Missing.htm", L"a.exe#x", L"Large.htm#x"})
        EXPECT_FALSE(SendTarget(m_window.Window(), target)) << target;
    EXPECT_FALSE(SendTarget(m_window.Window(), L"TavLumenar.htm#Keys", 1));
    EXPECT_FALSE(SendTarget(m_window.Window(), std::wstring(1025, L'x')));
    COPYDATASTRUCT odd = {help::kShowTarget, 3, const_cast<char*>("abc")};
    EXPECT_FALSE(SendMessageW(m_window.Window(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&odd)));
    COPYDATASTRUCT none = {help::kShowTarget, 8, nullptr};
    EXPECT_FALSE(SendMessageW(m_window.Window(), WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&none)));
    EXPECT_EQ(L"Tav Lumenar Help", FirstLine());
}

TEST_F(ViewerWindow, AViewerThatIsOpenIsFoundUntilItCloses)
{
    OpenBook();
    EXPECT_TRUE(help::ShowInOpenViewer(L"TavLumenar.htm#Keys"));
    EXPECT_EQ(L"With the keys", FirstLine());
    Press(VK_ESCAPE);
    HandleMessages();
    EXPECT_FALSE(help::ShowInOpenViewer(L"TavLumenar.htm#Keys"));
}

TEST_F(ViewerWindow, HostilePagesAreShownInTime)
{
    std::string nested;
    for (int i = 0; i < 100000; ++i)
        nested += "<ul><li><b>";
    std::string letters;
    for (int i = 0; i < 65536; i += 7)
        letters += "&#" + std::to_string(i) + ";";
    const std::string pages[] = {
        std::string(1 << 20, 'x'),    nested + "end",           letters, std::string(1 << 20, '\0'),
        std::string(1 << 20, '\xFF'), std::string(1 << 20, '<')};
    for (const std::string& page : pages)
    {
        const auto begin = std::chrono::steady_clock::now();
        Open(page);
        UpdateWindow(m_window.Window());
        Press(VK_END);
        UpdateWindow(ViewWindow());
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
    }
}
