#include "tests/device/rotation/TurningScreen.h"

#include <gtest/gtest.h>

#include "device/Rotation.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

namespace
{

class CBarOfThread : public CTopBar
{
protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override
    {
        if (message == WM_DESTROY)
            PostQuitMessage(0);
        return CTopBar::OnMessage(message, wparam, lparam);
    }
};

void ExpectWithin(const RECT& outer, const RECT& inner, int id)
{
    EXPECT_GE(inner.left, outer.left) << id;
    EXPECT_GE(inner.top, outer.top) << id;
    EXPECT_LE(inner.right, outer.right) << id;
    EXPECT_LE(inner.bottom, outer.bottom) << id;
}

} // namespace

CTurningScreen::CTurningScreen()
{
    // A test that was killed may have left it on its side.
    if (!IsUpright())
        RotateScreen();
    m_bar = std::make_unique<CWindowThread>([] { return std::make_unique<CBarOfThread>(); });
    m_area = std::make_unique<CWorkAreaBelow>(CTopBar::Height());
}

CTurningScreen::~CTurningScreen()
{
    if (!IsUpright())
        RotateScreen();
}

void CTurningScreen::Turn()
{
    const bool before = IsUpright();
    ASSERT_TRUE(RotateScreen());
    EXPECT_TRUE(WaitUntil([&] { return IsUpright() != before; }));
}

bool CTurningScreen::IsUpright() const
{
    return GetSystemMetrics(SM_CXSCREEN) < GetSystemMetrics(SM_CYSCREEN);
}

RECT RoomBetweenBars()
{
    return {0, Px(26), GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) - Px(26)};
}

void ExpectFillsRoom(HWND dialog)
{
    const RECT room = RoomBetweenBars();
    EXPECT_TRUE(WaitUntil(
        [&]
        {
            const RECT now = RectOf(dialog);
            return EqualRect(&now, &room) != FALSE;
        }))
        << RectOf(dialog).right << " x " << RectOf(dialog).bottom;
    // What the dialog does about its new size is done when it answers.
    SendMessageW(dialog, WM_NULL, 0, 0);
    const RECT bar = RectOf(GetParent(SoftKeyBar(dialog)));
    EXPECT_EQ(0, bar.left);
    EXPECT_EQ(room.right, bar.right);
    EXPECT_EQ(room.bottom, bar.top);
    EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), bar.bottom);
    for (const HWND control : ControlsOf(dialog))
        if (IsWindowVisible(control))
            ExpectWithin(room, RectOf(control), GetDlgCtrlID(control));
}

void ExpectControlFills(HWND dialog, HWND control)
{
    ExpectFillsRoom(dialog);
    const RECT own = RectOf(dialog);
    const RECT rect = RectOf(control);
    EXPECT_EQ(own.left, rect.left);
    EXPECT_EQ(own.right, rect.right);
    EXPECT_EQ(own.bottom, rect.bottom);
    // Below the title band, as close as dialog units can say.
    EXPECT_GE(rect.top, own.top + Px(24));
    EXPECT_LE(rect.top, own.top + Px(26));
}
