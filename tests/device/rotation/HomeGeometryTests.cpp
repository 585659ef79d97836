// Manage Pinned and its message box, on a screen that turns while they are open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

class HomeTurnGeometry : public HomeFixture
{
protected:
    CTurningScreen screen;
};

} // namespace

TEST_F(HomeTurnGeometry, ManagePinnedFollowsAndDoneWritesWhatWasChecked)
{
    Open();
    Switch(L"Tools/Alarm");
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectControlFills(dialog, tree.Window());
        EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools/Alarm"));
    }
    Switch(L"My Menu/Radio");
    Done();
    EXPECT_EQ(2u, List().size());
}

TEST_F(HomeTurnGeometry, TheMessageOfTheLimitStaysOnTheScreen)
{
    Open(1);
    Switch(L"Tools");
    PostSwitch(L"Settings");
    const HWND box = run->WaitForDialog(L"Tav Lumenar");
    ASSERT_NE(nullptr, box);
    // Where a box in the lower half of the upright screen stands.
    const RECT own = RectOf(box);
    SetWindowPos(box, nullptr, own.left, GetSystemMetrics(SM_CYSCREEN) - (own.bottom - own.top), 0,
                 0, SWP_NOSIZE | SWP_NOZORDER);
    screen.Turn();
    EXPECT_TRUE(WaitUntil(
        [&]
        {
            const RECT now = RectOf(box);
            return now.bottom <= GetSystemMetrics(SM_CYSCREEN) && now.top >= RoomBetweenBars().top;
        }));
    ExpectControlFills(dialog, tree.Window());
    ExpectLimitMessage(L"Only 1 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Settings"));
}
