// Where the pages of the shell's window put things on the screen that the test runs on, and how
// they look at single points.
#include <gtest/gtest.h>

#include "device/ColourScheme.h"
#include "device/TopBar.h"
#include "platform/Handles.h"
#include "tests/device/ShellDevice.h"
#include "tests/support/Pixels.h"

namespace
{

class HomeScreenGeometry : public testing::Test
{
protected:
    HomeScreenGeometry() { m_device.Start(); }

    HWND Window() { return m_device.Shell().Window(); }
    CHomePage& Home() { return m_device.Shell().Home(); }

    RECT Client()
    {
        RECT client = {};
        GetClientRect(Window(), &client);
        return client;
    }

    // Every target that is on the screen lies within the window and beside all others.
    void ExpectTargetsApart(const CPage& page)
    {
        const RECT client = Client();
        const std::vector<RECT> areas = page.Areas();
        for (size_t i = 0; i < areas.size(); ++i)
        {
            if (IsRectEmpty(&areas[i]))
                continue;
            RECT both = {};
            IntersectRect(&both, &areas[i], &client);
            EXPECT_TRUE(EqualRect(&both, &areas[i])) << "target " << i << " leaves the window";
            for (size_t j = 0; j < i; ++j)
                EXPECT_FALSE(IntersectRect(&both, &areas[i], &areas[j])) << i << " over " << j;
        }
    }

    void ExpectAllPagesApart()
    {
        ExpectTargetsApart(Home());
        m_device.Shell().GoTo(PageId::Settings);
        ExpectTargetsApart(m_device.Shell().Settings());
        for (const wchar_t* menu : {L"Programs", L"Settings", L"Games", L"Office"})
        {
            m_device.Shell().ShowMenu(CShellDevice::ItemPath(menu));
            ExpectTargetsApart(m_device.Shell().Launcher());
        }
        m_device.Shell().GoTo(PageId::Home);
    }

    void SetSize(int width, int height)
    {
        SetWindowPos(Window(), nullptr, 0, 0, width, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    // How many points of that colour a page has in a part of it.
    int PointsOf(CPage& page, RECT part, COLORREF colour)
    {
        const RECT client = Client();
        const UniqueScreenDc screen(GetDC(nullptr));
        const UniqueBitmap bitmap(
            CreateCompatibleBitmap(screen.get(), client.right, client.bottom));
        const UniqueMemoryDc dc(CreateCompatibleDC(screen.get()));
        const CSelectObject selected(dc.get(), bitmap.get());
        page.Paint(dc.get());
        int points = 0;
        for (LONG y = part.top; y < part.bottom; ++y)
            for (LONG x = part.left; x < part.right; ++x)
                points += GetPixel(dc.get(), x, y) == colour;
        return points;
    }

    CShellDevice m_device;
};

} // namespace

TEST_F(HomeScreenGeometry, TheWindowFillsTheScreenBetweenTheBars)
{
    RECT area = {};
    GetWindowRect(Window(), &area);
    EXPECT_EQ(0, area.left);
    EXPECT_EQ(CTopBar::Height(), area.top);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), area.right);
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN) - Px(26), area.bottom);
}

TEST_F(HomeScreenGeometry, NothingLeavesTheWindowOrOverlaps)
{
    ExpectAllPagesApart();
}

TEST_F(HomeScreenGeometry, ATurnedScreenIsLaidOutAnewAndTheSelectionStays)
{
    const std::wstring selected = Home().Entries().Slots[5].Name;
    Home().Select(CHomePage::kFirstSlot + 5);
    const RECT client = Client();
    SetSize(client.bottom + Px(52), client.right - Px(52));
    ExpectTargetsApart(Home());
    const size_t slot = static_cast<size_t>(Home().Selected() - CHomePage::kFirstSlot);
    ASSERT_LT(slot, Home().Entries().Slots.size());
    EXPECT_EQ(selected, Home().Entries().Slots[slot].Name);
    ExpectAllPagesApart();
}

TEST_F(HomeScreenGeometry, TheLaunchersSelectionStaysOnTheScreenWhenItIsTurned)
{
    m_device.Shell().ShowMenu(CShellDevice::ItemPath(L"Programs"));
    m_device.Press(VK_END);
    const int selected = m_device.Shell().Launcher().Selected();
    const RECT client = Client();
    for (const SIZE size :
         {SIZE{client.bottom + Px(52), client.right - Px(52)}, SIZE{client.right, client.bottom}})
    {
        SetSize(size.cx, size.cy);
        EXPECT_EQ(selected, m_device.Shell().Launcher().Selected());
        EXPECT_FALSE(
            IsRectEmpty(&m_device.Shell().Launcher().Areas()[static_cast<size_t>(selected)]));
        ExpectTargetsApart(m_device.Shell().Launcher());
    }
}

TEST_F(HomeScreenGeometry, TheNowScreenCoversThePageAndFollowsIt)
{
    m_device.Shell().GoTo(PageId::Now);
    const auto expectCovered = [&]
    {
        RECT page = {};
        RECT now = {};
        GetWindowRect(Window(), &page);
        GetWindowRect(m_device.Now().Window(), &now);
        EXPECT_TRUE(EqualRect(&page, &now));
    };
    expectCovered();
    SetSize(Px(200), Px(150));
    expectCovered();
}

TEST_F(HomeScreenGeometry, OnlyPinnedEntriesCarryAPin)
{
    Home().Select(CHomePage::kNowTarget);
    const HomeLayout layout = Home().Layout();
    for (size_t i = 0; i < layout.Slots.size(); ++i)
    {
        // The corner beside the icon.
        RECT corner = layout.Slots[i];
        corner.left = corner.right - Px(9);
        corner.bottom = corner.top + Px(10);
        const bool isPinned = static_cast<int>(i) < Home().Entries().Pinned;
        EXPECT_EQ(isPinned, PointsOf(Home(), corner, colours::kTeal) > 0) << i;
    }
}

TEST_F(HomeScreenGeometry, TheNumbersOfAGridForHardwareKeysAreOnItsCells)
{
    m_device.Shell().ShowMenu(CShellDevice::ItemPath(L"Games"));
    m_device.Press(VK_RIGHT);
    const RECT cell = m_device.Shell().Launcher().Areas()[0];
    const RECT corner = {cell.left, cell.top, cell.left + Px(20), cell.top + Px(18)};
    EXPECT_GT(PointsOf(m_device.Shell().Launcher(), corner, colours::kMist), Px(40));
}
