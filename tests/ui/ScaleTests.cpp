// Logical pixels turned into device pixels.
#include "ui/Scale.h"

#include "frame/Resolution.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

#include <climits>

TEST(Scale, At96DpiEveryLengthStaysAsItIs)
{
    for (const int length : {0, 1, 8, 13, 19, 20, 23, 1000})
        EXPECT_EQ(length, ScaleToDpi(length, 96));
}

TEST(Scale, At192DpiLengthsDouble)
{
    EXPECT_EQ(26, ScaleToDpi(13, 192));
    EXPECT_EQ(46, ScaleToDpi(23, 192));
    EXPECT_EQ(2, ScaleToDpi(1, 192));
    EXPECT_EQ(40, ScaleToDpi(20, 192));
}

TEST(Scale, RoundsHalfUpAtOtherResolutions)
{
    // 1.25 -> 1, 1.5 -> 2, 13 x 1.25 = 16.25 -> 16, 2 x 1.25 = 2.5 -> 3
    EXPECT_EQ(1, ScaleToDpi(1, 120));
    EXPECT_EQ(2, ScaleToDpi(1, 144));
    EXPECT_EQ(16, ScaleToDpi(13, 120));
    EXPECT_EQ(3, ScaleToDpi(2, 120));
    // 131 / 96 x 23 = 31.4
    EXPECT_EQ(31, ScaleToDpi(23, 131));
}

TEST(Scale, NegativeLengthsMirrorPositiveOnes)
{
    for (const int dpi : {96, 120, 131, 144, 192})
        for (const int length : {1, 2, 13, 20, 23})
            EXPECT_EQ(-ScaleToDpi(length, dpi), ScaleToDpi(-length, dpi));
}

TEST(Scale, HugeLengthsSaturateInsteadOfOverflowing)
{
    EXPECT_EQ(INT_MAX, ScaleToDpi(INT_MAX, 192));
    EXPECT_EQ(-INT_MAX, ScaleToDpi(INT_MIN, 192));
    EXPECT_EQ(INT_MAX, ScaleToDpi(INT_MAX, INT_MAX));
    EXPECT_EQ(INT_MAX, ScaleToDpi(INT_MAX, 96));
}

TEST(ScaleGeometry, UsesTheScreensOwnResolution)
{
    EXPECT_EQ(Px(13), ScaleY(13));
    EXPECT_EQ(Px(8), ScaleX(8));
    EXPECT_EQ(Px(96), GetScreenResolution().dpiX);
    EXPECT_EQ(Px(96), GetScreenResolution().dpiY);
}
