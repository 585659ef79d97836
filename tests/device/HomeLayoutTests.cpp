// Where the home screen puts things, on every screen that the device comes with.
#include "device/HomeLayout.h"

#include <gtest/gtest.h>

namespace
{

constexpr int kEntries = 5;

struct Screen
{
    int Width;
    int Height;
    int Dpi;
};

constexpr Screen kScreens[] = {{240, 320, 96}, {320, 240, 96}, {480, 640, 192}, {640, 480, 192}};

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

TEST(HomeLayout, EverythingFitsBetweenTheBarsWithoutTouching)
{
    for (const Screen& screen : kScreens)
    {
        SCOPED_TRACE(screen.Width);
        const HomeLayout layout = LayOutHome(RoomOf(screen), screen.Dpi, kEntries);
        std::vector<RECT> all = layout.Strip;
        all.insert(all.end(), layout.Entries.begin(), layout.Entries.end());
        all.push_back(layout.Date);
        all.push_back(layout.StripLine);
        ExpectApart(all, RoomOf(screen));
        EXPECT_EQ(static_cast<size_t>(kEntries), layout.Entries.size());
        EXPECT_GE(layout.Strip.size(), 4u);
    }
}

TEST(HomeLayout, TheWayToTheNowScreenIsTheRightPartOfTheDatesLine)
{
    for (const Screen& screen : kScreens)
    {
        SCOPED_TRACE(screen.Width);
        const HomeLayout layout = LayOutHome(RoomOf(screen), screen.Dpi, kEntries);
        EXPECT_TRUE(IsInside(layout.NowLink, layout.Date));
        EXPECT_EQ(layout.Date.right, layout.NowLink.right);
        EXPECT_GE(layout.NowLink.left, layout.Date.right / 2);
    }
}

TEST(HomeLayout, AWideScreenHasTwoColumnsOfEntries)
{
    const HomeLayout tall = LayOutHome(RoomOf(kScreens[0]), 96, kEntries);
    const HomeLayout wide = LayOutHome(RoomOf(kScreens[1]), 96, kEntries);
    EXPECT_LT(tall.Entries[0].top, tall.Entries[1].top);
    EXPECT_EQ(wide.Entries[0].top, wide.Entries[1].top);
}

TEST(MenuLayout, CellsFitInGridsAndLists)
{
    for (const Screen& screen : kScreens)
        for (const bool grid : {false, true})
        {
            SCOPED_TRACE(screen.Width);
            const RECT room = RoomOf(screen);
            MenuLayout layout = LayOutMenu(room, screen.Dpi, grid, 100, 0);
            EXPECT_EQ(static_cast<size_t>(CellsPerPage(room, screen.Dpi, grid)),
                      layout.Cells.size());
            layout.Cells.push_back(layout.Title);
            ExpectApart(layout.Cells, room);
        }
}

TEST(MenuLayout, AShortMenuHasNoEmptyCells)
{
    EXPECT_EQ(3u, LayOutMenu(RoomOf(kScreens[0]), 96, true, 3, 0).Cells.size());
    EXPECT_EQ(1u, LayOutMenu(RoomOf(kScreens[0]), 96, false, 9, 8).Cells.size());
    EXPECT_TRUE(LayOutMenu(RoomOf(kScreens[0]), 96, true, 0, 0).Cells.empty());
}

TEST(MenuLayout, ScrollingMovesByWholeRowsAndAsLittleAsPossible)
{
    EXPECT_EQ(0, ScrollToShow(15, 0, 4, 16));
    EXPECT_EQ(4, ScrollToShow(16, 0, 4, 16));
    EXPECT_EQ(8, ScrollToShow(20, 4, 4, 16));
    EXPECT_EQ(4, ScrollToShow(7, 8, 4, 16));
    EXPECT_EQ(4, ScrollToShow(4, 4, 4, 16));
}
