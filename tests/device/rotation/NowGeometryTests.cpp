// Customize Now Screen, on a screen that turns while it is open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/Screen.h"

namespace
{

class NowTurnGeometry : public NowFixture
{
protected:
    // Checks that the list leaves the same margin on three sides, and its column the scroll bar's
    // room.
    void ExpectLaidOut(int margin) const
    {
        ExpectFillsRoom(dialog);
        const RECT own = RectOf(dialog);
        const RECT rows = RectOf(list);
        EXPECT_EQ(own.left + margin, rows.left);
        EXPECT_EQ(own.right - margin, rows.right);
        EXPECT_EQ(own.bottom - margin, rows.bottom);
        EXPECT_EQ(rows.right - rows.left - GetSystemMetrics(SM_CXVSCROLL),
                  ToList(LVM_GETCOLUMNWIDTH, 0));
    }

    CTurningScreen screen;
};

} // namespace

TEST_F(NowTurnGeometry, TheListKeepsItsMarginsAndDoneWritesWhatWasChecked)
{
    registry.Add(L"A", L"alpha", kEmail);
    Open();
    const int margin = static_cast<int>(RectOf(list).left);
    Check(L"alpha (email)", true);
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectLaidOut(margin);
        EXPECT_EQ((Labels{L"alpha (email)"}), CheckedLabels());
    }
    Done();
    Open();
    EXPECT_EQ((Labels{L"alpha (email)"}), CheckedLabels());
}

TEST_F(NowTurnGeometry, WithoutPluginsTheTextIsAsWideAsTheTurnedScreen)
{
    Open();
    const HWND text = GetDlgItem(dialog, kEmptyTextId);
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(dialog);
        EXPECT_EQ(0, RectOf(text).left);
        EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), RectOf(text).right);
    }
}
