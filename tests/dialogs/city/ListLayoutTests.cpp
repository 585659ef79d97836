// The widths of the list's columns as plain numbers.
#include "dialogs/city/CityListLayout.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

CityColumnWidths Fit(int width, int clientHeight, int rowHeight, int rows, int scale = 1)
{
    return FitCityColumns({width, clientHeight, rowHeight, rows, 17 * scale}, scale, 2 * scale);
}

} // namespace

TEST(CityListLayout, NamesTakeTwoThirdsAndAreasTheRestLessOnePixel)
{
    const CityColumnWidths widths = Fit(232, 200, 14, 3);
    EXPECT_EQ(153, widths.Name); // two thirds of 230
    EXPECT_EQ(76, widths.Area);  // 230 - 1 - 153
}

TEST(CityListLayout, RowsThatOverflowTakeTheScrollBarsWidthAway)
{
    const CityColumnWidths widths = Fit(232, 200, 14, 15);
    EXPECT_EQ(142, widths.Name); // two thirds of 213
    EXPECT_EQ(70, widths.Area);
}

TEST(CityListLayout, RowsThatFitExactlyDoNotOverflow)
{
    EXPECT_EQ(153, Fit(232, 140, 14, 10).Name);
    EXPECT_EQ(142, Fit(232, 139, 14, 10).Name);
}

TEST(CityListLayout, NoRowsNeverOverflow)
{
    EXPECT_EQ(153, Fit(232, -1, 14, 0).Name);
    EXPECT_EQ(153, Fit(232, 0, 0, 0).Name);
}

TEST(CityListLayout, PixelsAreScaled)
{
    const CityColumnWidths widths = Fit(464, 400, 28, 3, 2);
    EXPECT_EQ(306, widths.Name); // two thirds of 460
    EXPECT_EQ(152, widths.Area); // 460 - 2 - 306
}

TEST(CityListLayout, ThirdsAreRoundedDown)
{
    EXPECT_EQ(154, Fit(233, 200, 14, 1).Name); // 462 / 3
    EXPECT_EQ(154, Fit(234, 200, 14, 1).Name); // 464 / 3
    EXPECT_EQ(155, Fit(235, 200, 14, 1).Name); // 466 / 3
    EXPECT_EQ(77, Fit(235, 200, 14, 1).Area);  // 233 - 1 - 155
}

TEST(CityListLayout, CountsOfAnySizeOverflowNoNumber)
{
    EXPECT_EQ(142, Fit(232, 200, 14, INT_MAX).Name);
    EXPECT_EQ(142, Fit(232, 200, INT_MAX, INT_MAX).Name);
}
