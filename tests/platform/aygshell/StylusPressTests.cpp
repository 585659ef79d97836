// Presses on a tree: the announcement, the tap and the tap-and-hold.
#include "tests/platform/aygshell/StylusTree.h"

TEST_F(StylusTree, APressIsAnnouncedWithItsPoint)
{
    const POINT point = LabelOf(second);
    PostTap(tree, point);
    ASSERT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) > 0; }));
    EXPECT_EQ(announced.hdr.hwndFrom, tree);
    EXPECT_EQ(announced.hdr.idFrom, static_cast<UINT_PTR>(kTreeId));
    EXPECT_EQ(announced.point.x, point.x);
    EXPECT_EQ(announced.point.y, point.y);
}

TEST_F(StylusTree, AnAnnouncementWithoutAnAnswerLetsAHoldBeRecognised)
{
    dialog.SetHandler({});
    PostPress(LabelOf(second), kLong);
    EXPECT_TRUE(RunUntilContextMenu());
}

TEST_F(StylusTree, ADoubleClickIsAnnouncedToo)
{
    PostMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, PointParam(LabelOf(second)));
    PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(LabelOf(second)));
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) == 1; }));
}

TEST_F(StylusTree, AnAnswerOfNoGestureGoesOnWithTheTap)
{
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AQuickTapGoesOnAtOnceAlthoughAHoldCouldBeRecognised)
{
    answer = kRecognise;
    const ULONGLONG start = GetTickCount64();
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_LT(GetTickCount64() - start, 600u);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AHoldAsksForTheMenuAtItsPointAndSwallowsThePress)
{
    answer = kRecognise;
    TreeView_SelectItem(tree, first);
    const ULONGLONG start = GetTickCount64();
    PostPress(LabelOf(second), kLong);
    ASSERT_TRUE(RunUntilContextMenu());
    EXPECT_GE(GetTickCount64() - start, 690u);
    EXPECT_EQ(ContextMenu()->WParam, reinterpret_cast<WPARAM>(tree));
    EXPECT_EQ(ContextMenu()->LParam, PointParam(OnScreen(LabelOf(second))));
    PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(LabelOf(second)));
    dialog.RunPending();
    EXPECT_EQ(TreeView_GetSelection(tree), first);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
}

TEST_F(StylusTree, AHoldWithoutGestureAsksForNothing)
{
    PostPress(LabelOf(second), 900);
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatIsLiftedBeforeTheHoldTimeTaps)
{
    answer = kRecognise;
    PostPress(LabelOf(second), 300);
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatMovesDragsAndIsNotHeld)
{
    answer = kRecognise;
    const CLater move(100, [] { SetCursorPos(30, 0); });
    PostPress(LabelOf(second), kLong);
    EXPECT_TRUE(dialog.RunUntil(
        [this] { return dialog.CountNotify(static_cast<UINT>(TVN_BEGINDRAGW)) == 1; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatTremblesIsHeld)
{
    answer = kRecognise;
    const CLater move(100, [] { SetCursorPos(Scaled(3), 0); });
    PostPress(LabelOf(second), kLong);
    EXPECT_TRUE(RunUntilContextMenu());
}

TEST_F(StylusTree, TheRealButtonHeldDownIsAHold)
{
    answer = kRecognise;
    const POINT screen = OnScreen(LabelOf(second));
    SetCursorPos(screen.x, screen.y);
    INPUT button{};
    button.type = INPUT_MOUSE;
    button.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    SendInput(1, &button, sizeof button);
    EXPECT_TRUE(RunUntilContextMenu());
    button.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(1, &button, sizeof button);
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
}

TEST_F(StylusTree, ATreeThatGoesAwayDuringItsAnnouncementIsLeftAlone)
{
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Code == NM_STYLUSDOWN)
                DestroyWindow(tree);
            return entry.Code == NM_STYLUSDOWN;
        });
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(tree); }));
}

TEST_F(StylusTree, ATreeThatGoesAwayDuringTheHoldIsLeftAlone)
{
    answer = kRecognise;
    const CLater later(200, [this] { SendMessageW(dialog.Window(), WM_CLOSE, 0, 0); });
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_CLOSE)
                DestroyWindow(tree);
            return entry.Message == WM_CLOSE;
        });
    PostPress(LabelOf(second), kLong);
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(tree); }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}
