// Where the home screen, the launcher's pages and the Now screen put things, on every screen that
// the device comes with.
#include "device/HomeLayout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "device/MenuLayout.h"
#include "device/Neighbour.h"
#include "device/NowLayout.h"

namespace
{

struct Screen
{
    int Width;
    int Height;
    int Dpi;
};

constexpr Screen kScreens[] = {{240, 320, 96}, {320, 240, 96}, {480, 640, 192}, {640, 480, 192}};
constexpr MenuStyle kStyles[] = {MenuStyle::List, MenuStyle::Grid, MenuStyle::Numbered};

// What the two bars leave.
RECT RoomOf(const Screen& screen)
{
    return {0, 0, screen.Width, screen.Height - 52 * screen.Dpi / 96};
}

bool IsInside(const RECT& inner, const RECT& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom && inner.left < inner.right && inner.top < inner.bottom;
}

bool Overlap(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

void ExpectApart(const std::vector<RECT>& areas, const RECT& room)
{
    for (size_t i = 0; i < areas.size(); ++i)
    {
        EXPECT_TRUE(IsInside(areas[i], room)) << i;
        for (size_t j = 0; j < i; ++j)
            EXPECT_FALSE(Overlap(areas[i], areas[j])) << i << " " << j;
    }
}

} // namespace

TEST(HomeLayout, AsManySlotsAsAreSaidToFitDoFitWhateverIsPinned)
{
    for (const Screen& screen : kScreens)
        for (int pinned = 0; pinned <= 20; ++pinned)
        {
            SCOPED_TRACE(screen.Width);
            SCOPED_TRACE(pinned);
            const RECT room = RoomOf(screen);
            const int slots = SlotsThatFit(room, screen.Dpi, pinned, 30);
            const HomeLayout layout = LayOutHome(room, screen.Dpi, std::min(pinned, slots), slots);
            std::vector<RECT> all = layout.Slots;
            ASSERT_EQ(static_cast<size_t>(slots), all.size());
            all.push_back(layout.Date);
            all.push_back(layout.City);
            for (const RECT& heading : {layout.PinnedHeading, layout.MostUsedHeading})
                if (!IsRectEmpty(&heading))
                    all.push_back(heading);
            ExpectApart(all, room);
            // Whatever the dialog allows to pin is shown, and a row of what is used.
            EXPECT_GE(slots, std::max(6, std::min(pinned, 8)));
        }
}

TEST(HomeLayout, NoMoreSlotsThanEntries)
{
    EXPECT_EQ(3, SlotsThatFit(RoomOf(kScreens[0]), 96, 1, 3));
    EXPECT_EQ(0, SlotsThatFit(RoomOf(kScreens[0]), 96, 0, 0));
}

TEST(HomeLayout, ABandWithoutSlotsHasNoHeading)
{
    const HomeLayout pinned = LayOutHome(RoomOf(kScreens[0]), 96, 3, 3);
    EXPECT_FALSE(IsRectEmpty(&pinned.PinnedHeading));
    EXPECT_TRUE(IsRectEmpty(&pinned.MostUsedHeading));
    const HomeLayout used = LayOutHome(RoomOf(kScreens[0]), 96, 0, 3);
    EXPECT_TRUE(IsRectEmpty(&used.PinnedHeading));
    EXPECT_FALSE(IsRectEmpty(&used.MostUsedHeading));
}

TEST(HomeLayout, TheBandsStandBelowEachOther)
{
    const HomeLayout layout = LayOutHome(RoomOf(kScreens[0]), 96, 2, 4);
    EXPECT_LT(layout.PinnedHeading.top, layout.Slots[0].top);
    EXPECT_EQ(layout.Slots[0].top, layout.Slots[1].top);
    EXPECT_LE(layout.Slots[1].bottom, layout.MostUsedHeading.top);
    EXPECT_LE(layout.MostUsedHeading.bottom, layout.Slots[2].top);
}

TEST(HomeLayout, TheWayToTheNowScreenIsTheRightPartOfTheDatesLine)
{
    for (const Screen& screen : kScreens)
    {
        SCOPED_TRACE(screen.Width);
        const HomeLayout layout = LayOutHome(RoomOf(screen), screen.Dpi, 4, 8);
        EXPECT_TRUE(IsInside(layout.NowLink, layout.Date));
        EXPECT_EQ(layout.Date.right, layout.NowLink.right);
        EXPECT_GE(layout.NowLink.left, layout.Date.right / 2);
    }
}

TEST(MenuLayout, CellsFitInEveryStyleBesideTheScrollBar)
{
    for (const Screen& screen : kScreens)
        for (const MenuStyle style : kStyles)
        {
            SCOPED_TRACE(screen.Width);
            const RECT room = RoomOf(screen);
            const MenuLayout layout = LayOutMenu(room, screen.Dpi, style, 100, 0);
            EXPECT_EQ(static_cast<size_t>(CellsPerPage(room, screen.Dpi, style)),
                      layout.Cells.size());
            std::vector<RECT> all = layout.Cells;
            all.push_back(layout.Title);
            if (style != MenuStyle::Numbered)
            {
                all.push_back(layout.ScrollBar);
                EXPECT_TRUE(IsInside(layout.Thumb, layout.ScrollBar));
            }
            ExpectApart(all, room);
        }
}

TEST(MenuLayout, AShortMenuHasNoEmptyCellsAndNoScrollBar)
{
    const MenuLayout layout = LayOutMenu(RoomOf(kScreens[0]), 96, MenuStyle::Grid, 3, 0);
    EXPECT_EQ(3u, layout.Cells.size());
    EXPECT_TRUE(IsRectEmpty(&layout.ScrollBar));
    EXPECT_EQ(1u, LayOutMenu(RoomOf(kScreens[0]), 96, MenuStyle::List, 9, 8).Cells.size());
    EXPECT_TRUE(LayOutMenu(RoomOf(kScreens[0]), 96, MenuStyle::Grid, 0, 0).Cells.empty());
}

TEST(MenuLayout, ANumberedMenuHasThreeRowsOfThree)
{
    const MenuLayout layout = LayOutMenu(RoomOf(kScreens[1]), 96, MenuStyle::Numbered, 20, 9);
    EXPECT_EQ(9u, layout.Cells.size());
    EXPECT_EQ(3, layout.Columns);
    EXPECT_EQ(layout.Cells[0].top, layout.Cells[2].top);
    EXPECT_LT(layout.Cells[2].top, layout.Cells[3].top);
}

TEST(MenuLayout, TheThumbTellsWhichPartIsOnThePage)
{
    const RECT room = RoomOf(kScreens[0]);
    const MenuLayout top = LayOutMenu(room, 96, MenuStyle::List, 40, 0);
    const int last = LastFirst(40, 1, CellsPerPage(room, 96, MenuStyle::List));
    const MenuLayout bottom = LayOutMenu(room, 96, MenuStyle::List, 40, last);
    EXPECT_EQ(top.ScrollBar.top, top.Thumb.top);
    EXPECT_EQ(bottom.ScrollBar.bottom, bottom.Thumb.bottom);
}

TEST(MenuLayout, ScrollingMovesByWholeRowsAndAsLittleAsPossible)
{
    EXPECT_EQ(0, ScrollToShow(MenuStyle::Grid, 15, 0, 4, 16));
    EXPECT_EQ(4, ScrollToShow(MenuStyle::Grid, 16, 0, 4, 16));
    EXPECT_EQ(8, ScrollToShow(MenuStyle::Grid, 20, 4, 4, 16));
    EXPECT_EQ(4, ScrollToShow(MenuStyle::Grid, 7, 8, 4, 16));
    EXPECT_EQ(4, ScrollToShow(MenuStyle::Grid, 4, 4, 4, 16));
}

TEST(MenuLayout, ANewNumberOfColumnsFindsTheNextRow)
{
    EXPECT_EQ(5, ScrollToShow(MenuStyle::Grid, 9, 8, 5, 10));
}

TEST(MenuLayout, ANumberedMenuTurnsWholePages)
{
    EXPECT_EQ(0, ScrollToShow(MenuStyle::Numbered, 8, 9, 3, 9));
    EXPECT_EQ(9, ScrollToShow(MenuStyle::Numbered, 9, 0, 3, 9));
    EXPECT_EQ(18, ScrollToShow(MenuStyle::Numbered, 20, 0, 3, 9));
}

TEST(MenuLayout, ScrollingByPagesStopsAtTheEnds)
{
    EXPECT_EQ(16, ScrollByPage(true, 40, 0, 4, 16));
    EXPECT_EQ(24, ScrollByPage(true, 40, 16, 4, 16));
    EXPECT_EQ(0, ScrollByPage(false, 40, 12, 4, 16));
    EXPECT_EQ(0, ScrollByPage(true, 5, 0, 4, 16));
}

TEST(MenuKeysOf, GridsAndListsStopAtTheirEnds)
{
    EXPECT_EQ(0, NextInMenu(MenuStyle::Grid, VK_LEFT, 0, 10, 4, 16));
    EXPECT_EQ(9, NextInMenu(MenuStyle::Grid, VK_DOWN, 9, 10, 4, 16));
    EXPECT_EQ(5, NextInMenu(MenuStyle::Grid, VK_DOWN, 1, 10, 4, 16));
    EXPECT_EQ(4, NextInMenu(MenuStyle::Grid, VK_RIGHT, 3, 10, 4, 16));
    EXPECT_EQ(2, NextInMenu(MenuStyle::List, VK_DOWN, 1, 10, 1, 9));
    EXPECT_EQ(9, NextInMenu(MenuStyle::List, VK_NEXT, 1, 10, 1, 9));
    EXPECT_EQ(0, NextInMenu(MenuStyle::List, VK_HOME, 7, 10, 1, 9));
    EXPECT_EQ(0, NextInMenu(MenuStyle::List, VK_DOWN, 0, 0, 1, 9));
}

TEST(MenuKeysOf, TheSelectionOfANumberedMenuGoesRoundInEveryDirection)
{
    const auto next = [](WPARAM key, int selected)
    { return NextInMenu(MenuStyle::Numbered, key, selected, 11, 3, 9); };
    EXPECT_EQ(3, next(VK_RIGHT, 2));
    EXPECT_EQ(0, next(VK_RIGHT, 10));
    EXPECT_EQ(10, next(VK_LEFT, 0));
    EXPECT_EQ(4, next(VK_DOWN, 1));
    EXPECT_EQ(9, next(VK_UP, 0));
    EXPECT_EQ(1, next(VK_DOWN, 10));
    // The last row is shorter.
    EXPECT_EQ(10, next(VK_DOWN, 8));
    EXPECT_EQ(10, next(VK_UP, 2));
}

TEST(MenuKeysOf, TheDigitsOfBothKeypadsAreCells)
{
    EXPECT_EQ(0, CellOfDigit('1'));
    EXPECT_EQ(8, CellOfDigit('9'));
    EXPECT_EQ(4, CellOfDigit(VK_NUMPAD5));
    EXPECT_EQ(-1, CellOfDigit('0'));
    EXPECT_EQ(-1, CellOfDigit(VK_NUMPAD0));
    EXPECT_EQ(-1, CellOfDigit('A'));
}

TEST(Neighbour, ArrowsLeadToTheNearestAreaAndOverTheEndsOfRows)
{
    // A line over two rows of two.
    const std::vector<RECT> areas = {
        {0, 0, 20, 10}, {0, 10, 10, 20}, {10, 10, 20, 20}, {0, 20, 10, 30}, {10, 20, 20, 30}};
    EXPECT_EQ(2, NeighbourOf(areas, 1, VK_RIGHT));
    EXPECT_EQ(3, NeighbourOf(areas, 2, VK_RIGHT));
    EXPECT_EQ(4, NeighbourOf(areas, 2, VK_DOWN));
    EXPECT_EQ(0, NeighbourOf(areas, 2, VK_UP));
    EXPECT_EQ(1, NeighbourOf(areas, 0, VK_DOWN));
    EXPECT_EQ(1, NeighbourOf(areas, 0, VK_RIGHT));
    EXPECT_EQ(2, NeighbourOf(areas, 3, VK_LEFT));
    EXPECT_EQ(0, NeighbourOf(areas, 0, VK_LEFT));
    EXPECT_EQ(4, NeighbourOf(areas, 4, VK_DOWN));
    EXPECT_EQ(4, NeighbourOf(areas, 4, VK_TAB));
    EXPECT_EQ(0, NeighbourOf({}, 0, VK_DOWN));
}

TEST(NowLayout, PanelsFitInBothLayoutsAndAllCanBeReached)
{
    for (const Screen& screen : kScreens)
        for (const LayoutType type : {LayoutType::Classic, LayoutType::Professional})
            for (const int panels : {4, 6, 9})
            {
                SCOPED_TRACE(screen.Width);
                SCOPED_TRACE(panels);
                const RECT room = RoomOf(screen);
                for (const int first : {0, 100})
                {
                    const NowLayout layout = LayOutNow(room, screen.Dpi, type, panels, first);
                    ExpectApart(layout.Panels, room);
                    EXPECT_EQ(IsRectEmpty(&layout.ScrollBar) != FALSE,
                              layout.Panels.size() == static_cast<size_t>(panels));
                }
                const NowLayout end = LayOutNow(room, screen.Dpi, type, panels, 100);
                EXPECT_EQ(panels, end.First + static_cast<int>(end.Panels.size()));
            }
}

TEST(NowLayout, FourPanelsAlwaysFit)
{
    for (const Screen& screen : kScreens)
        for (const LayoutType type : {LayoutType::Classic, LayoutType::Professional})
            EXPECT_EQ(4u, LayOutNow(RoomOf(screen), screen.Dpi, type, 4).Panels.size());
}
