// The shell's main window at work: home page, launcher menu, settings, and the ways between them.
#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <thread>

#include "device/ChosenCity.h"
#include "device/Usage.h"
#include "menu/GlobalMruLock.h"
#include "menu/MenuKeys.h"
#include "menu/MenuTree.h"
#include "menu/Rating.h"
#include "tests/device/ShellDevice.h"
#include "tests/support/DialogRun.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/TreeDriver.h"
#include "tests/support/Wait.h"

namespace
{

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

constexpr const wchar_t* kGlobal = L"GlobalMRUList";

class HomeScreen : public testing::Test
{
protected:
    CHomePage& Home() { return m_device.Shell().Home(); }
    CLauncherPage& Launcher() { return m_device.Shell().Launcher(); }
    PageId Page() { return m_device.Shell().CurrentPage(); }
    std::vector<std::wstring> Shown() { return TextsOf(m_device.Shell().Menu().Entries()); }

    CMenuItemPtr Item(const std::wstring& below)
    {
        m_tree.Load();
        return Find(m_tree.Root, CShellDevice::ItemPath(below));
    }

    static CMenuItemPtr Find(const CMenuItemPtr& item, const std::wstring& keyPath)
    {
        if (item->KeyPath == keyPath)
            return item;
        for (const CMenuItemPtr& child : item->Children)
            if (CMenuItemPtr found = Find(child, keyPath))
                return found;
        return nullptr;
    }

    // Opens an item of the launcher's first level.
    void OpenInLauncher(const std::wstring& text)
    {
        const std::vector<std::wstring> texts = Shown();
        for (size_t i = 0; i < texts.size(); ++i)
            if (texts[i] == text)
            {
                Launcher().Select(static_cast<int>(i));
                m_device.Press(VK_RETURN);
                return;
            }
        FAIL() << "there is no such item";
    }

    CShellDevice m_device;
    CMenuTree m_tree{true};
};

// Holds the global list's lock on another thread.
class CListHolder
{
public:
    CListHolder()
        : m_thread(
              [this]
              {
                  const Ratings::CGlobalMruLock lock(INFINITE);
                  m_isHeld = lock.IsHeld();
                  WaitUntil([this] { return m_isEnough.load(); }, 20000);
              })
    {
        EXPECT_TRUE(WaitUntil([this] { return m_isHeld.load(); }));
    }
    ~CListHolder()
    {
        m_isEnough = true;
        m_thread.join();
    }

private:
    std::atomic<bool> m_isHeld = false;
    std::atomic<bool> m_isEnough = false;
    std::thread m_thread;
};

} // namespace

TEST_F(HomeScreen, SlotsAndBandsAreThoseOfTheGlobalList)
{
    m_device.Start();
    Ratings::CMruSlots expected;
    ASSERT_TRUE(
        Ratings::ReadGlobalMru(expected, static_cast<uint32_t>(Home().Entries().Slots.size())));
    std::vector<std::wstring> names;
    for (const ShellEntry& entry : Home().Entries().Slots)
        names.push_back(entry.Name);
    EXPECT_EQ(expected.Names, names);
    EXPECT_EQ(4, Home().Entries().Pinned);
    EXPECT_EQ(10u, names.size());
    EXPECT_THAT(TextsOf(Home().Entries().Slots),
                ElementsAre(L"Text Editor", L"Music Player", L"Messaging", L"Contacts", L"Notes",
                            L"Calendar", L"Calculator", L"Route Planner", L"Rummy", L"Chess"));
}

TEST_F(HomeScreen, AnEmptyListIsAnEmptyHomePage)
{
    m_device.SetList(kGlobal, {});
    m_device.Start();
    EXPECT_TRUE(Home().Entries().Slots.empty());
    EXPECT_EQ(CHomePage::kCityTarget, Home().Selected());
}

TEST_F(HomeScreen, LaunchingFromASlotRaisesTheWeightAndTheOrder)
{
    const std::wstring first = m_device.ItemName(L"Calendar");
    const std::wstring second = m_device.ItemName(L"Contacts");
    m_device.SetList(kGlobal, {{first, 5}, {second, 5}});
    m_device.Start();
    // The later one stands in the band's first slot.
    ASSERT_EQ(L"Contacts", Home().Entries().Slots[0].Text);
    const std::wstring message =
        m_device.MessageOf([&] { m_device.Tap(Home(), CHomePage::kFirstSlot); });
    EXPECT_EQ(L"This sample device has no program for 'Contacts'.", message);
    EXPECT_EQ(6, m_device.WeightIn(kGlobal, second));
    EXPECT_EQ(5, m_device.WeightIn(kGlobal, first));
    EXPECT_THAT(m_device.NamesIn(kGlobal), ElementsAre(second, first));
}

TEST_F(HomeScreen, LaunchingKeepsAPinAndStopsAtTheLargestWeight)
{
    const std::wstring name = m_device.ItemName(L"Contacts");
    m_device.SetList(kGlobal, {{name, 0xFFFF}});
    m_device.Start();
    m_device.MessageOf([&] { m_device.Press(VK_RETURN); });
    EXPECT_EQ(1, Home().Entries().Pinned);
    EXPECT_EQ(std::string("\0\0\xFF\xFF", 4),
              m_device.Machine().Raw(L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList",
                                     L"Index"));
}

TEST_F(HomeScreen, ALaunchWaitsForTheListAndGivesUp)
{
    const std::wstring name = m_device.ItemName(L"Contacts");
    m_device.SetList(kGlobal, {{name, 3}});
    m_device.Start();
    {
        const CListHolder holder;
        const ULONGLONG begin = GetTickCount64();
        EXPECT_FALSE(usage::CountLaunch(name, 50));
        EXPECT_LT(GetTickCount64() - begin, 5000u);
    }
    EXPECT_EQ(3, m_device.WeightIn(kGlobal, name));
    EXPECT_TRUE(usage::CountLaunch(name, 50));
    EXPECT_EQ(4, m_device.WeightIn(kGlobal, name));
}

TEST_F(HomeScreen, WhileAnotherProcessKeepsTheListEntriesAreStartedWithoutBeingCounted)
{
    const std::wstring name = m_device.ItemName(L"Multimedia");
    m_device.SetList(kGlobal, {{name, 3}});
    m_device.Start();
    {
        const CListHolder holder;
        const ULONGLONG begin = GetTickCount64();
        m_device.Press(VK_RETURN);
        EXPECT_LT(GetTickCount64() - begin, 10000u);
    }
    EXPECT_EQ(L"Multimedia", m_device.Shell().Menu().Title());
    EXPECT_EQ(3, m_device.WeightIn(kGlobal, name));
    m_device.RightKey();
    m_device.RightKey();
    EXPECT_EQ(1u, Home().Entries().Slots.size());
}

TEST_F(HomeScreen, AnEntryThatIsGoneKeepsItsSlotAndSaysSo)
{
    const std::wstring missing = m_device.ItemName(L"Organizer");
    m_device.SetList(kGlobal, {{missing, 5}, {L"l:\\Windows\\Nothing.lnk", 4}});
    m_device.Start();
    ASSERT_EQ(2u, Home().Entries().Slots.size());
    EXPECT_TRUE(Home().Entries().Slots[0].IsGone);
    EXPECT_THAT(TextsOf(Home().Entries().Slots), ElementsAre(L"Nothing", L"Organizer"));
    EXPECT_EQ(L"'Organizer' is no longer on this device.",
              m_device.MessageOf([&] { m_device.Tap(Home(), CHomePage::kFirstSlot + 1); }));
    EXPECT_EQ(5, m_device.WeightIn(kGlobal, missing));
}

TEST_F(HomeScreen, AMenuInASlotOpensInTheLauncherAndCounts)
{
    const std::wstring name = m_device.ItemName(L"Multimedia");
    m_device.SetList(kGlobal, {{name, 1}});
    m_device.Start();
    m_device.Press(VK_RETURN);
    EXPECT_EQ(PageId::Launcher, Page());
    EXPECT_EQ(L"Multimedia", m_device.Shell().Menu().Title());
    EXPECT_EQ(2, m_device.WeightIn(kGlobal, name));
}

TEST_F(HomeScreen, TheSoftKeysLeadToTheLauncherTheSettingsAndBack)
{
    m_device.Start();
    EXPECT_EQ(L"Menu", SoftKeyText(m_device.Shell().Window(), 0));
    EXPECT_EQ(L"Customize", SoftKeyText(m_device.Shell().Window(), 1));
    m_device.LeftKey();
    EXPECT_EQ(PageId::Launcher, Page());
    EXPECT_EQ(L"Open", SoftKeyText(m_device.Shell().Window(), 0));
    m_device.RightKey();
    EXPECT_EQ(PageId::Home, Page());
    m_device.RightKey();
    EXPECT_EQ(PageId::Settings, Page());
    m_device.Press(VK_ESCAPE);
    EXPECT_EQ(PageId::Home, Page());
}

TEST_F(HomeScreen, TheNowLinkShowsTheNowScreenAndItsRightKeyLeavesIt)
{
    m_device.Start();
    m_device.Tap(Home(), CHomePage::kNowTarget);
    EXPECT_EQ(PageId::Now, Page());
    EXPECT_TRUE(IsWindowVisible(m_device.Now().Window()));
    m_device.RightKey();
    EXPECT_EQ(PageId::Home, Page());
    EXPECT_FALSE(IsWindowVisible(m_device.Now().Window()));
}

TEST_F(HomeScreen, TheArrowsWalkOverDateCityAndSlots)
{
    m_device.Start();
    EXPECT_EQ(CHomePage::kFirstSlot, Home().Selected());
    m_device.Press(VK_RIGHT);
    EXPECT_EQ(CHomePage::kFirstSlot + 1, Home().Selected());
    m_device.Press(VK_DOWN);
    EXPECT_EQ(L"Calendar", Home().Entries().Slots[static_cast<size_t>(Home().Selected() - 2)].Text);
    m_device.Press(VK_UP);
    m_device.Press(VK_UP);
    EXPECT_EQ(CHomePage::kCityTarget, Home().Selected());
    m_device.Press(VK_UP);
    EXPECT_EQ(CHomePage::kNowTarget, Home().Selected());
    m_device.Press(VK_RETURN);
    EXPECT_EQ(PageId::Now, Page());
}

TEST_F(HomeScreen, TheStylusMustLeaveWhereItCameDown)
{
    m_device.Start();
    const std::vector<RECT> areas = Home().Areas();
    SendMessageW(m_device.Shell().Window(), WM_LBUTTONDOWN, 0,
                 MAKELPARAM(areas[0].left + 2, areas[0].top + 2));
    SendMessageW(m_device.Shell().Window(), WM_LBUTTONUP, 0,
                 MAKELPARAM(areas[2].left + 2, areas[2].top + 2));
    EXPECT_EQ(PageId::Home, Page());
    EXPECT_EQ(CHomePage::kNowTarget, Home().Selected());
}

TEST_F(HomeScreen, WhatChangedMeanwhileIsSeenWhenTheWindowIsActivated)
{
    m_device.Start();
    m_device.SetList(kGlobal, {{m_device.ItemName(L"Help"), 5}});
    SendMessageW(m_device.Shell().Window(), WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_THAT(TextsOf(Home().Entries().Slots), ElementsAre(L"Help"));
}

TEST_F(HomeScreen, ThePlaceOfTheChosenCityIsShownAndGoesWithIt)
{
    CITYINFO city = {};
    city.identifier = 1;
    city.name[0] = L'X';
    SaveChosenCity(city);
    m_device.Start();
    EXPECT_EQ(L"X", Home().City().Place);
    EXPECT_EQ(L"", Home().CityTime());
}

TEST_F(HomeScreen, TheLauncherShowsTheMenuInItsOrderWithoutHiddenItems)
{
    m_device.Start();
    m_device.LeftKey();
    EXPECT_THAT(Shown(), ElementsAre(L"Programs", L"Contacts", L"Messaging", L"Calendar",
                                     L"Favorites", L"Office", L"Multimedia", L"Games", L"Tools",
                                     L"Connect", L"Help", L"Settings", L"Accessories"));
    EXPECT_EQ(MenuStyle::Grid, Launcher().Style());
}

TEST_F(HomeScreen, GridAndListAreThoseOfEachMenu)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Settings");
    EXPECT_EQ(MenuStyle::List, Launcher().Style());
    m_device.RightKey();
    EXPECT_EQ(MenuStyle::Grid, Launcher().Style());
    OpenInLauncher(L"Games");
    EXPECT_EQ(MenuStyle::Numbered, Launcher().Style());
}

TEST_F(HomeScreen, TheMostUsedItemsComeFirstWhereTheMenuIsSetSo)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Games");
    EXPECT_THAT(Shown(), ElementsAre(L"Puzzles", L"Card Games", L"Board Games", L"Arcade"));
    Item(L"Games")->SetRated(false);
    m_device.Shell().Reload();
    EXPECT_THAT(Shown(), ElementsAre(L"Card Games", L"Board Games", L"Puzzles", L"Arcade"));
}

TEST_F(HomeScreen, LaunchingInARatedMenuCountsInBothLists)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Office");
    ASSERT_EQ(L"Notes", Shown()[0]);
    const std::wstring name = m_device.ItemName(L"Office\\Text Editor");
    m_device.SetList(L"Office", {{name, 1}, {m_device.ItemName(L"Office\\Tasks"), 1}});
    m_device.Shell().Reload();
    ASSERT_EQ(L"Text Editor", Shown()[0]);
    m_device.MessageOf([&] { m_device.Tap(Launcher(), 1); });
    EXPECT_EQ(2, m_device.WeightIn(L"Office", m_device.ItemName(L"Office\\Tasks")));
    EXPECT_EQ(1, m_device.WeightIn(kGlobal, m_device.ItemName(L"Office\\Tasks")));
    EXPECT_EQ(L"Tasks", Shown()[0]);
}

TEST_F(HomeScreen, LaunchingInAMenuWithoutRatingCountsInTheGlobalListAlone)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Connect");
    m_device.MessageOf([&] { m_device.Press(VK_RETURN); });
    EXPECT_THAT(m_device.NamesIn(kGlobal), Contains(m_device.ItemName(L"Connect\\Phone")));
    EXPECT_FALSE(m_device.Machine().ValueExists(kCustomizeRootPath, L"Rating"));
}

TEST_F(HomeScreen, PassingThroughAMenuDoesNotPutItOnTheHomeScreen)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Games");
    m_device.Press('2');
    EXPECT_EQ(L"Card Games", m_device.Shell().Menu().Title());
    EXPECT_THAT(m_device.NamesIn(kGlobal), Not(Contains(m_device.ItemName(L"Games"))));
    // Games shows its most used ones first.
    EXPECT_EQ(7, m_device.WeightIn(L"Games", m_device.ItemName(L"Games\\Card Games")));
}

TEST_F(HomeScreen, ADigitOfANumberedMenuOpensItsCell)
{
    m_device.Start();
    m_device.Shell().ShowMenu(m_device.ItemPath(L"Games"));
    m_device.Press('9');
    EXPECT_EQ(L"Games", m_device.Shell().Menu().Title());
    m_device.Press('4');
    EXPECT_EQ(L"Arcade", m_device.Shell().Menu().Title());
}

TEST_F(HomeScreen, DigitsMeanNothingInOtherMenus)
{
    m_device.Start();
    m_device.LeftKey();
    m_device.Press('1');
    EXPECT_EQ(L"", m_device.Shell().Menu().Title());
}

TEST_F(HomeScreen, TheProgramsBranchIsTheStartMenuWithItsFolders)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Programs");
    const std::vector<std::wstring> texts = Shown();
    EXPECT_THAT(texts, Contains(L"Calculator"));
    EXPECT_THAT(texts, Contains(L"Messaging"));
    EXPECT_TRUE(std::is_sorted(texts.begin(), texts.end()));
    OpenInLauncher(L"Games");
    EXPECT_THAT(Shown(), ElementsAre(L"Brick Wall", L"Chess", L"Rummy", L"Solitaire"));
    EXPECT_EQ(L"Games", m_device.Shell().Menu().Title());
    m_device.RightKey();
    EXPECT_EQ(L"Programs", m_device.Shell().Menu().Title());
    // The selection is on the folder that was left.
    EXPECT_EQ(L"Games", Shown()[static_cast<size_t>(Launcher().Selected())]);
}

TEST_F(HomeScreen, AFileOfTheStartMenuIsCountedAsALink)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Programs");
    m_device.MessageOf([&] { OpenInLauncher(L"Calculator"); });
    EXPECT_EQ(1, m_device.WeightIn(
                     kGlobal, L"l:" + m_device.StartMenu().PathOf(L"Programs\\Calculator.lnk")));
}

TEST_F(HomeScreen, AFolderThatDisappearsGivesWayToTheBranch)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Programs");
    OpenInLauncher(L"Connect");
    m_device.StartMenu().Remove(L"Programs\\Connect");
    m_device.Shell().Reload();
    EXPECT_EQ(L"Programs", m_device.Shell().Menu().Title());
    EXPECT_THAT(Shown(), Not(Contains(L"Connect")));
}

TEST_F(HomeScreen, AMenuThatIsRemovedGivesWayToTheOneAboveIt)
{
    m_device.Start();
    m_device.Shell().ShowMenu(kCustomizeRootPath + std::wstring(L"\\User 1"));
    ASSERT_EQ(L"Favorites", m_device.Shell().Menu().Title());
    m_tree.Load();
    Find(m_tree.Root, kCustomizeRootPath + std::wstring(L"\\User 1"))->Remove(m_tree);
    m_device.Shell().Reload();
    EXPECT_EQ(L"", m_device.Shell().Menu().Title());
    EXPECT_THAT(Shown(), Not(Contains(L"Favorites")));
}

TEST_F(HomeScreen, TheLauncherScrollsWithTheSelectionAndTheSelectionStaysWhenReadAnew)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Tools");
    Item(L"Tools")->SetDrawType(MenuDrawType::List);
    m_device.Shell().Reload();
    m_device.Press(VK_END);
    const int last = static_cast<int>(Shown().size()) - 1;
    EXPECT_EQ(last, Launcher().Selected());
    EXPECT_FALSE(IsRectEmpty(&Launcher().Areas()[static_cast<size_t>(last)]));
    m_device.Shell().Reload();
    EXPECT_EQ(last, Launcher().Selected());
    m_device.Press(VK_HOME);
    EXPECT_EQ(0, Launcher().First());
}

TEST_F(HomeScreen, ATapOnTheScrollBarTurnsThePage)
{
    m_device.Start();
    m_device.LeftKey();
    OpenInLauncher(L"Programs");
    const MenuLayout layout = Launcher().Layout();
    ASSERT_FALSE(IsRectEmpty(&layout.ScrollBar));
    m_device.TapAt({layout.ScrollBar.left + 2, layout.ScrollBar.bottom - 2});
    EXPECT_GT(Launcher().First(), 0);
    m_device.TapAt({layout.ScrollBar.left + 2, layout.ScrollBar.top + 1});
    EXPECT_EQ(0, Launcher().First());
}

TEST_F(HomeScreen, TheSettingsPageTellsWhatIsChosen)
{
    m_device.Start();
    m_device.RightKey();
    EXPECT_THAT(m_device.Shell().Settings().Notes(),
                ElementsAre(L"1 hidden", L"4 pinned", testing::_, L"Classic", L""));
}

TEST_F(HomeScreen, WhatWasPinnedInTheDialogIsShownAtOnce)
{
    m_device.Start();
    const DWORD shellThread = GetCurrentThreadId();
    std::thread person(
        [&]
        {
            HWND dialog = nullptr;
            ASSERT_TRUE(WaitUntil([&] { return (dialog = OpenDialogOf(shellThread)) != nullptr; }));
            const CTreeDriver tree(FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr));
            ASSERT_TRUE(WaitUntil([&] { return tree.Find(L"Calendar") != nullptr; }));
            const HTREEITEM calendar = tree.Find(L"Calendar");
            tree.SetBox(calendar, 2);
            SendMessageW(dialog, 0x8014, 0, reinterpret_cast<LPARAM>(calendar));
            PostCommand(dialog, IDOK);
        });
    m_device.RightKey();
    m_device.Tap(m_device.Shell().Settings(), 1);
    person.join();
    EXPECT_EQ(L"5 pinned", m_device.Shell().Settings().Notes()[1]);
    EXPECT_EQ(PageId::Settings, Page());
    m_device.RightKey();
    EXPECT_EQ(5, Home().Entries().Pinned);
}

TEST_F(HomeScreen, ExitEndsTheShell)
{
    m_device.Start();
    m_device.RightKey();
    m_device.Tap(m_device.Shell().Settings(), CSettingsPage::kExitTarget);
    MSG message = {};
    EXPECT_TRUE(WaitUntil(
        [&] {
            return PeekMessageW(&message, m_device.Shell().Window(), WM_CLOSE, WM_CLOSE, PM_REMOVE);
        }));
}
