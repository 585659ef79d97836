// The top bar and the work area, and whose screen may be turned.
#include "tests/device/rotation/TurningScreen.h"

#include <gtest/gtest.h>

#include "device/Rotation.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

void ExpectRect(const RECT& expected, const RECT& found)
{
    EXPECT_EQ(expected.left, found.left);
    EXPECT_EQ(expected.top, found.top);
    EXPECT_EQ(expected.right, found.right);
    EXPECT_EQ(expected.bottom, found.bottom);
}

RECT WorkArea()
{
    RECT area = {};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

POINT MiddleOf(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

} // namespace

TEST(Rotation, OnlyAScreenOfAHandheldsSizeIsADevices)
{
    EXPECT_TRUE(rotation::IsDeviceScreen({240, 320}));
    EXPECT_TRUE(rotation::IsDeviceScreen({640, 480}));
    EXPECT_TRUE(rotation::IsDeviceScreen({480, 800}));
    EXPECT_FALSE(rotation::IsDeviceScreen({1024, 768}));
    EXPECT_FALSE(rotation::IsDeviceScreen({600, 1024}));
    EXPECT_FALSE(rotation::IsDeviceScreen({801, 600}));
    EXPECT_FALSE(rotation::IsDeviceScreen({0, 320}));
}

TEST(Rotation, ABoxIsMovedByNoMoreThanItSticksOut)
{
    const RECT room = {0, 26, 320, 240};
    ExpectRect({20, 100, 220, 200}, rotation::MovedInto({20, 100, 220, 200}, room));
    ExpectRect({20, 140, 220, 240}, rotation::MovedInto({20, 200, 220, 300}, room));
    ExpectRect({120, 26, 320, 126}, rotation::MovedInto({200, 10, 400, 110}, room));
    ExpectRect({0, 100, 100, 200}, rotation::MovedInto({-30, 100, 70, 200}, room));
}

TEST(Rotation, ABoxThatIsLargerThanTheRoomBeginsAtItsCorner)
{
    ExpectRect({0, 26, 400, 326}, rotation::MovedInto({-50, -50, 350, 250}, {0, 26, 320, 240}));
}

TEST(TopBarGeometry, TheBarAndTheWorkAreaBelowItFollowTheScreen)
{
    CTurningScreen screen;
    for (int turns = 0; turns < 3; ++turns)
    {
        const RECT bar = {0, 0, GetSystemMetrics(SM_CXSCREEN), Px(26)};
        EXPECT_TRUE(WaitUntil([&] { return RectOf(screen.TopBar()).right == bar.right; }));
        ExpectRect(bar, RectOf(screen.TopBar()));
        EXPECT_TRUE(WaitUntil([&] { return WorkArea().right == bar.right; }));
        ExpectRect({0, Px(26), bar.right, GetSystemMetrics(SM_CYSCREEN)}, WorkArea());
        screen.Turn();
    }
}

TEST(TopBarGeometry, ATapOnItsButtonTurnsTheScreenAndOneOnItsTitleDoesNot)
{
    CTurningScreen screen;
    const RECT bar = RectOf(screen.TopBar());
    TapScreen({Px(20), Px(13)});
    TapScreen(MiddleOf(CTopBar::TurnButton({bar.right, bar.bottom})));
    EXPECT_TRUE(WaitUntil([&] { return !screen.IsUpright(); }));
    const RECT turned = {0, 0, GetSystemMetrics(SM_CXSCREEN), Px(26)};
    EXPECT_TRUE(WaitUntil([&] { return RectOf(screen.TopBar()).right == turned.right; }));
    TapScreen(MiddleOf(CTopBar::TurnButton({turned.right, turned.bottom})));
    EXPECT_TRUE(WaitUntil([&] { return screen.IsUpright(); }));
}

TEST(TopBarGeometry, TheKeyTurnsTheScreenThereAndBack)
{
    CTurningScreen screen;
    PressKey(VK_F9);
    EXPECT_TRUE(WaitUntil([&] { return !screen.IsUpright(); }));
    PressKey(VK_F9);
    EXPECT_TRUE(WaitUntil([&] { return screen.IsUpright(); }));
}

TEST(TopBarGeometry, TheEarlierWorkAreaComesBackWithTheBar)
{
    const RECT before = WorkArea();
    {
        CTurningScreen screen;
        EXPECT_NE(before.top, WorkArea().top);
    }
    ExpectRect(before, WorkArea());
}
