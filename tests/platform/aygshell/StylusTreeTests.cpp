// Check boxes, right button and keys of a tree in a dialog.
#include "tests/platform/aygshell/StylusTree.h"

TEST_F(StylusTree, APressOnABoxFlipsItAfterTheAnnouncementAndBeforeWhatIsPostedThere)
{
    PostTap(tree, BoxOf(first));
    ASSERT_TRUE(dialog.RunUntil([this] { return stateWhenPosted != 99; }));
    EXPECT_EQ(stateAtAnnouncement, 1u);
    EXPECT_EQ(stateAtClick, 2u);
    EXPECT_EQ(stateWhenPosted, 2u);
    dialog.RunPending();
    EXPECT_EQ(BoxState(tree, first), 2u);
    EXPECT_EQ(dialog.CountNotify(static_cast<UINT>(NM_CLICK)), 1);
}

TEST_F(StylusTree, ACheckedBoxIsUnchecked)
{
    PostTap(tree, BoxOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, second) == 1; }));
}

TEST_F(StylusTree, ABoxFlipsAtOnceWhateverTheAnswerIs)
{
    answer = kRecognise;
    const ULONGLONG start = GetTickCount64();
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(BoxOf(first)));
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
    EXPECT_LT(GetTickCount64() - start, 600u);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, ADoubleClickFlipsABoxTwice)
{
    const LPARAM box = PointParam(BoxOf(first));
    SendMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, box);
    SendMessageW(tree, WM_LBUTTONUP, 0, box);
    EXPECT_EQ(BoxState(tree, first), 2u);
    SendMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, box);
    SendMessageW(tree, WM_LBUTTONUP, 0, box);
    EXPECT_EQ(BoxState(tree, first), 1u);
}

TEST_F(StylusTree, ANodeWithoutABoxNeverGetsOne)
{
    POINT point = LabelOf(boxless);
    const int end = point.x;
    for (point.x = 0; point.x < end; point.x += 4)
    {
        PostTap(tree, point);
        dialog.RunPending();
        ASSERT_EQ(BoxState(tree, boxless), 0u) << point.x;
    }
}

TEST_F(StylusTree, APressOnABoxDoesNotSelectByItself)
{
    TreeView_SelectItem(tree, second);
    PostTap(tree, BoxOf(first));
    ASSERT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
    EXPECT_EQ(TreeView_GetSelection(tree), second);
}

TEST_F(StylusTree, TheRightButtonAsksForTheMenuOnceWhenTheDialogLetsIt)
{
    answer = kRecognise;
    const POINT point = LabelOf(second);
    PostMessageW(tree, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(point));
    PostMessageW(tree, WM_RBUTTONUP, 0, PointParam(point));
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.CountNotify(NM_STYLUSDOWN), 1);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, PointParam(OnScreen(point)));
}

TEST_F(StylusTree, TheRightButtonDoesNothingWhenTheDialogRefuses)
{
    const POINT point = LabelOf(second);
    PostMessageW(tree, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(point));
    PostMessageW(tree, WM_RBUTTONUP, 0, PointParam(point));
    ASSERT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) == 1; }));
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
    EXPECT_EQ(dialog.CountNotify(static_cast<UINT>(NM_RCLICK)), 0);
}

TEST_F(StylusTree, TheAppsKeyAsksForTheMenuOnceWithoutAPoint)
{
    TypeKey(VK_APPS);
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, -1);
    EXPECT_EQ(ContextMenu()->WParam, reinterpret_cast<WPARAM>(tree));
}

TEST_F(StylusTree, ShiftF10AsksForTheMenuOnceWithoutAPoint)
{
    TypeKey(VK_F10, VK_SHIFT);
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, -1);
}

TEST_F(StylusTree, EnterBelongsToTheTree)
{
    WORD key = 0;
    dialog.SetHandler(
        [&key](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Code == static_cast<UINT>(TVN_KEYDOWN))
                key = reinterpret_cast<const NMTVKEYDOWN*>(entry.LParam)->wVKey;
            return false;
        });
    TypeKey(VK_RETURN);
    ASSERT_TRUE(dialog.RunUntil([&key] { return key != 0; }));
    dialog.RunPending();
    EXPECT_EQ(key, VK_RETURN);
    EXPECT_EQ(dialog.CountCommand(IDOK), 0);
}

TEST_F(StylusTree, EscapeStillCancelsTheDialog)
{
    TypeKey(VK_ESCAPE);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountCommand(IDCANCEL) == 1; }));
}

TEST_F(StylusTree, SpaceKeepsTheTreesDefault)
{
    TreeView_SelectItem(tree, first);
    TypeKey(VK_SPACE);
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
}

TEST_F(StylusTree, GeometryOfALevelIsScaledWithTheScreen)
{
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(TreeView_GetIndent(tree), static_cast<UINT>((19 * dpi + 48) / 96));
}
