// The context menu: where it opens and what it holds.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/Wait.h"

namespace
{

class ContextMenu : public EditorFixture
{
protected:
    // Asks for the menu and waits for it.
    HWND OpenMenu(int x, int y)
    {
        PostMessageW(dialog, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tree.Window()),
                     MAKELPARAM(x, y));
        return run->WaitForPopup();
    }

    static POINT CornerOf(HWND window)
    {
        RECT rect = {};
        GetWindowRect(window, &rect);
        return {rect.left, rect.top};
    }

    // Where a request by keyboard opens the menu: the label's centre taken for a point of the
    // dialog, although it is one of the tree.
    POINT KeyboardPoint()
    {
        POINT point = tree.LabelCentre(tree.Selected());
        ClientToScreen(dialog, &point);
        return point;
    }

    static HMENU MenuOf(HWND popup)
    {
        return reinterpret_cast<HMENU>(SendMessageW(popup, MN_GETHMENU, 0, 0));
    }
};

} // namespace

#define EXPECT_POINT(px, py, point)                                                                \
    EXPECT_EQ(px, (point).x);                                                                      \
    EXPECT_EQ(py, (point).y)

TEST_F(ContextMenu, OpensWhereTheStylusIs)
{
    Open();
    Select(L"Programs");
    EXPECT_POINT(33, 44, CornerOf(OpenMenu(33, 44)));
}

TEST_F(ContextMenu, OpensAtAPointAtTheScreensEdge)
{
    Open();
    Select(L"Programs");
    EXPECT_POINT(0, 0, CornerOf(OpenMenu(0, 0)));
}

TEST_F(ContextMenu, AskedForByKeyOpensAtTheLabelsCentreWithTheTreesPlaceLeftOut)
{
    Open();
    Select(L"Programs");
    const POINT expected = KeyboardPoint();
    EXPECT_NE(tree.LabelCentreOnScreen(tree.Selected()).y, expected.y)
        << "the tree stands at the dialog's origin: nothing is shown";
    EXPECT_POINT(expected.x, expected.y, CornerOf(OpenMenu(-1, -1)));
}

TEST_F(ContextMenu, OneMissingCoordinateIsEnoughForTheLabelsCentre)
{
    Open();
    Select(L"Programs");
    const POINT expected = KeyboardPoint();
    EXPECT_POINT(expected.x, expected.y, CornerOf(OpenMenu(-1, 10)));
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntil([&] { return run->OpenPopup() == nullptr; }));
    EXPECT_POINT(expected.x, expected.y, CornerOf(OpenMenu(10, -1)));
}

TEST_F(ContextMenu, HoldsTheCommandsOfTheSoftKeysMenu)
{
    Open();
    Select(L"Programs");
    const HMENU menu = MenuOf(OpenMenu(10, 10));
    const std::vector<UINT> expected = {
        CommandMoveUp, CommandMoveDown, 0, CommandEdit, CommandRemove, 0, UINT(-1), CommandOptions};
    ASSERT_EQ(8, GetMenuItemCount(menu));
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(expected[static_cast<size_t>(i)], GetMenuItemID(menu, i)) << i;
    const HMENU add = GetSubMenu(menu, 6);
    ASSERT_EQ(3, GetMenuItemCount(add));
    EXPECT_EQ(CommandAddMenu, GetMenuItemID(add, 0));
    EXPECT_EQ(CommandAddLink, GetMenuItemID(add, 1));
    EXPECT_EQ(CommandAddFile, GetMenuItemID(add, 2));
}

TEST_F(ContextMenu, ItsCommandsReachTheDialog)
{
    Open();
    Select(L"Programs/Calendar");
    const HMENU menu = MenuOf(OpenMenu(10, 10));
    // The first entry is Move Up. A key that comes before the menu listens is lost.
    const auto isChosen = [menu]
    { return (GetMenuState(menu, 0, MF_BYPOSITION) & MF_HILITE) != 0; };
    for (int attempt = 0; attempt < 10 && !isChosen(); ++attempt)
    {
        PressKey(VK_DOWN);
        WaitUntil(isChosen, 500);
    }
    ASSERT_TRUE(isChosen());
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([&] { return tree.ChildrenOf(L"Programs")[0] == L"Calendar"; }));
}

TEST_F(ContextMenu, WithoutASelectionThereIsNone)
{
    Open();
    tree.Select(nullptr);
    SendMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(10, 10));
    EXPECT_EQ(nullptr, run->OpenPopup());
}

TEST_F(ContextMenu, IsDestroyedWhenItCloses)
{
    Open();
    Select(L"Programs");
    const HMENU menu = MenuOf(OpenMenu(10, 10));
    EXPECT_TRUE(IsMenu(menu));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return !IsMenu(menu); }));
}

TEST_F(ContextMenu, DoesNotCloseTheDialogThatOwnsIt)
{
    Open();
    Select(L"Programs");
    OpenMenu(10, 10);
    PressKey(VK_ESCAPE);
    ASSERT_TRUE(WaitUntil([&] { return run->OpenPopup() == nullptr; }));
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_FALSE(run->HasEnded());
}
