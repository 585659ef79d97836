// Tap-and-hold: which node it selects, and whether it goes on to the context menu.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/Wait.h"

namespace
{

// The code of the notification, and what comes with it.
constexpr UINT kStylusDown = static_cast<UINT>(-50);
struct StylusDown
{
    NMHDR header;
    POINT point;
};

constexpr LRESULT kGoOn = 0;
constexpr LRESULT kStop = 1;

class Stylus : public EditorFixture
{
protected:
    void OpenWithRootSelected()
    {
        Open();
        Select(L"");
    }

    LRESULT PutDown(POINT point)
    {
        StylusDown down = {};
        down.header.hwndFrom = tree.Window();
        down.header.idFrom = kTreeId;
        down.header.code = kStylusDown;
        down.point = point;
        return SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&down));
    }

    void Mouse(DWORD flags)
    {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        SendInput(1, &input, sizeof(input));
    }
    // Holds the stylus on a point of the screen.
    void PressAt(POINT screen)
    {
        PlaceStylus(screen);
        Mouse(MOUSEEVENTF_LEFTDOWN);
    }
};

} // namespace

TEST_F(Stylus, OnALabelSelectsItsNodeAndGoesOn)
{
    OpenWithRootSelected();
    EXPECT_EQ(kGoOn, PutDown(tree.LabelCentre(tree.Find(L"Tools"))));
    EXPECT_EQ(tree.Find(L"Tools"), tree.Selected());
}

TEST_F(Stylus, OnTheRootsLabelToo)
{
    Open();
    Select(L"Tools");
    EXPECT_EQ(kGoOn, PutDown(tree.LabelCentre(tree.Find(L""))));
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(Stylus, OnABoxSelectsNothingAndStops)
{
    OpenWithRootSelected();
    const POINT box = tree.PointOn(tree.Find(L"Tools"), TVHT_ONITEMSTATEICON);
    ASSERT_GE(box.x, 0);
    EXPECT_EQ(kStop, PutDown(box));
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(Stylus, RightOfALabelSelectsNothingAndStops)
{
    OpenWithRootSelected();
    const POINT beside = tree.PointOn(tree.Find(L"Tools"), TVHT_ONITEMRIGHT);
    ASSERT_GE(beside.x, 0);
    EXPECT_EQ(kStop, PutDown(beside));
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(Stylus, OnTheButtonOfAMenuSelectsNothingAndStops)
{
    OpenWithRootSelected();
    const POINT button = tree.PointOn(tree.Find(L"Programs"), TVHT_ONITEMBUTTON);
    ASSERT_GE(button.x, 0);
    EXPECT_EQ(kStop, PutDown(button));
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(Stylus, BelowAllNodesStops)
{
    OpenWithRootSelected();
    RECT client = {};
    GetClientRect(tree.Window(), &client);
    EXPECT_EQ(kStop, PutDown({20, client.bottom - 2}));
    EXPECT_EQ(kStop, PutDown({-5, -5}));
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(Stylus, HeldOnALabelOpensTheContextMenuOfItsNode)
{
    OpenWithRootSelected();
    PressAt(tree.LabelCentreOnScreen(tree.Find(L"Settings")));
    EXPECT_NE(nullptr, run->WaitForPopup());
    Mouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(tree.Find(L"Settings"), tree.Selected());
}

TEST_F(Stylus, ATapOnALabelSelectsItWithoutAMenu)
{
    OpenWithRootSelected();
    TapScreen(tree.LabelCentreOnScreen(tree.Find(L"Settings")));
    EXPECT_TRUE(WaitUntil([&] { return tree.Selected() == tree.Find(L"Settings"); }));
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_EQ(nullptr, run->OpenPopup());
}

TEST_F(Stylus, ATapOnABoxSwitchesIt)
{
    OpenWithRootSelected();
    POINT box = tree.PointOn(tree.Find(L"Tools"), TVHT_ONITEMSTATEICON);
    ClientToScreen(tree.Window(), &box);
    TapScreen(box);
    EXPECT_TRUE(WaitUntil([&] { return tree.BoxOf(tree.Find(L"Tools")) == BoxOn; }));
    Done();
    EXPECT_EQ(0u, registry.CustomDword(L"Tools", L"Inactive"));
}
