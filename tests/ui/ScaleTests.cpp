// Logical pixels turned into device pixels.
#include "ui/Scale.h"

#include "frame/Resolution.h"
#include "tests/support/ImportPatch.h"
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

namespace
{

int g_dpi;

int WINAPI ReportDpi(HDC, int)
{
    return g_dpi;
}

// The resolution as it is read from a screen that reports `dpi`.
ScreenResolution ReadFrom(int dpi)
{
    const CImportPatch patch(GetModuleHandleW(nullptr), "gdi32.dll", "GetDeviceCaps", ReportDpi);
    g_dpi = dpi;
    // Read once in a process: made unread again.
    auto& resolution = const_cast<ScreenResolution&>(GetScreenResolution());
    resolution = ScreenResolution();
    ReadScreenResolution();
    const ScreenResolution result = resolution;
    resolution = ScreenResolution();
    return result;
}

} // namespace

TEST(Resolution, IsWhatTheScreenReports)
{
    EXPECT_EQ(131, ReadFrom(131).dpiX);
    EXPECT_EQ(131, ReadFrom(131).dpiY);
}

TEST(Resolution, OfAScreenThatReportsNothingSensibleIs96)
{
    for (const int dpi : {0, -1, -192, INT_MIN})
    {
        EXPECT_EQ(96, ReadFrom(dpi).dpiX) << dpi;
        EXPECT_EQ(96, ReadFrom(dpi).dpiY) << dpi;
    }
}

TEST(Resolution, IsReadOnce)
{
    const int dpi = GetScreenResolution().dpiX;
    const CImportPatch patch(GetModuleHandleW(nullptr), "gdi32.dll", "GetDeviceCaps", ReportDpi);
    g_dpi = dpi * 2;
    ReadScreenResolution();
    EXPECT_EQ(dpi, GetScreenResolution().dpiX);
}

TEST(ScaleGeometry, UsesTheScreensOwnResolution)
{
    EXPECT_EQ(Px(13), ScaleY(13));
    EXPECT_EQ(Px(8), ScaleX(8));
    EXPECT_EQ(Px(96), GetScreenResolution().dpiX);
    EXPECT_EQ(Px(96), GetScreenResolution().dpiY);
}
