// Move Up and Move Down: in the tree, in the registry, and what a moved node looks like.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

using Labels = std::vector<std::wstring>;

class Moving : public EditorFixture
{
protected:
    void Move(const std::wstring& path, UINT command)
    {
        Select(path);
        SendCommand(dialog, command);
    }

    // Leaves the node's item unknown to the menu.
    void ForgetItemOf(const std::wstring& path)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_PARAM;
        item.hItem = tree.Find(path);
        item.lParam = 0x7FFFFFF0;
        SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    void DeleteNode(const std::wstring& path)
    {
        SendMessageW(tree.Window(), TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(tree.Find(path)));
    }
};

} // namespace

TEST_F(Moving, UpExchangesTheNodeWithTheOneAbove)
{
    Open();
    Move(L"Programs/Notes", CommandMoveUp);
    EXPECT_EQ((Labels{L"Games", L"Notes", L"Calendar", L"Maps"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, UpToTheFirstPlace)
{
    Open();
    Move(L"Programs/Calendar", CommandMoveUp);
    EXPECT_EQ((Labels{L"Calendar", L"Games", L"Notes", L"Maps"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, DownExchangesTheNodeWithTheOneBelow)
{
    Open();
    Move(L"Programs/Calendar", CommandMoveDown);
    EXPECT_EQ((Labels{L"Games", L"Notes", L"Calendar", L"Maps"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, DownToTheLastPlace)
{
    Open();
    Move(L"Programs/Notes", CommandMoveDown);
    EXPECT_EQ((Labels{L"Games", L"Calendar", L"Maps", L"Notes"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, WritesThePositionsThatChangedAtOnce)
{
    Open();
    const std::wstring before = registry.CustomDump();
    Move(L"Programs/Notes", CommandMoveUp);
    EXPECT_EQ((std::vector<std::wstring>{L"+\\Programs\\Calendar",
                                         L"+\\Programs\\Calendar|Index=02000000",
                                         L"+\\Programs\\Notes|Index=01000000"}),
              DumpDifference(before, registry.CustomDump()));
}

TEST_F(Moving, StaysWrittenAfterCancel)
{
    Open();
    Move(L"Programs/Calendar", CommandMoveDown);
    Cancel();
    Open();
    EXPECT_EQ((Labels{L"Games", L"Notes", L"Calendar", L"Maps"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, TheMovedNodeIsSelected)
{
    Open();
    Move(L"Programs/Notes", CommandMoveUp);
    EXPECT_EQ(tree.Find(L"Programs/Notes"), tree.Selected());
    SendCommand(dialog, CommandMoveUp);
    EXPECT_EQ((Labels{L"Notes", L"Games", L"Calendar", L"Maps"}), tree.ChildrenOf(L"Programs"));
    SendCommand(dialog, CommandMoveDown);
    EXPECT_EQ((Labels{L"Games", L"Notes", L"Calendar", L"Maps"}), tree.ChildrenOf(L"Programs"));
    EXPECT_EQ(tree.Find(L"Programs/Notes"), tree.Selected());
}

TEST_F(Moving, TheMovedNodeIsMadeVisible)
{
    for (int i = 0; i < 60; ++i)
        registry.AddProduct(L"Tools\\Item" + std::to_wstring(i),
                            (L"Item " + std::to_wstring(i)).c_str(), static_cast<DWORD>(10 + i));
    Open();
    tree.Expand(tree.Find(L"Tools"));
    Select(L"Tools/Item 59");
    SendMessageW(tree.Window(), WM_VSCROLL, SB_TOP, 0);
    ASSERT_FALSE(tree.IsInView(tree.Find(L"Tools/Item 59")));
    SendCommand(dialog, CommandMoveUp);
    EXPECT_TRUE(tree.IsInView(tree.Find(L"Tools/Item 59")));
}

namespace
{

// The node that the tree was last asked to make visible.
WNDPROC g_treeProcedure;
LPARAM g_shown;

LRESULT CALLBACK RecordShown(HWND tree, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == TVM_ENSUREVISIBLE)
        g_shown = lParam;
    return CallWindowProcW(g_treeProcedure, tree, message, wParam, lParam);
}

} // namespace

TEST_F(Moving, TheTreeIsAskedToMakeTheMovedNodeVisible)
{
    // Some tree views do so for every node that is selected, others don't.
    Open();
    g_treeProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(tree.Window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RecordShown)));
    Move(L"Programs/Notes", CommandMoveUp);
    EXPECT_EQ(tree.Find(L"Programs/Notes"), reinterpret_cast<HTREEITEM>(g_shown));
}

TEST_F(Moving, TheMovedNodeKeepsTextAndData)
{
    Open();
    const LPARAM id = tree.DataOf(tree.Find(L"Programs/Notes"));
    Move(L"Programs/Notes", CommandMoveUp);
    EXPECT_EQ(id, tree.DataOf(tree.Find(L"Programs/Notes")));
}

TEST_F(Moving, TheBoxShowsWhatTheMenuHasWritten)
{
    Open();
    // Switched, but not yet written.
    tree.SetBox(tree.Find(L"Programs/Calendar"), BoxOff);
    Move(L"Programs/Calendar", CommandMoveDown);
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Programs/Calendar")));
    Move(L"Programs/Notes", CommandMoveDown);
    EXPECT_EQ(static_cast<UINT>(BoxOff), tree.BoxOf(tree.Find(L"Programs/Notes")));
}

TEST_F(Moving, AMovedMenuShowsNoChildrenUntilTheDialogOpensAgain)
{
    Open();
    Move(L"My Menu", CommandMoveUp);
    EXPECT_EQ(Labels{}, tree.ChildrenOf(L"My Menu"));
    Move(L"Programs", CommandMoveDown);
    EXPECT_EQ(Labels{}, tree.ChildrenOf(L"Programs"));
    Done();
    EXPECT_TRUE(registry.CustomExists(L"User 1\\User 2", L"File"));
    Open();
    EXPECT_EQ(Labels{L"Radio"}, tree.ChildrenOf(L"My Menu"));
    EXPECT_EQ((Labels{L"Games", L"Calendar", L"Notes", L"Maps"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(Moving, AMovedSettingsMenuHasABox)
{
    Open();
    Move(L"Settings", CommandMoveUp);
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Settings")));
    Move(L"Settings", CommandMoveDown);
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Settings")));
    // The box is of no use: nobody reads it.
    tree.SetBox(tree.Find(L"Settings"), BoxOff);
    Done();
    EXPECT_FALSE(registry.CustomExists(L"Settings", L"Inactive"));
}

TEST_F(Moving, TheMovedItemsBoxIsWrittenLikeAnyOther)
{
    Open();
    Move(L"Programs/Calendar", CommandMoveDown);
    tree.SetBox(tree.Find(L"Programs/Calendar"), BoxOff);
    Done();
    EXPECT_EQ(1u, registry.CustomDword(L"Programs\\Calendar", L"Inactive"));
}

TEST_F(Moving, AnItemAtTheEndOfItsWayStays)
{
    Open();
    const std::wstring treeBefore = tree.Dump();
    const std::wstring before = registry.CustomDump();
    Move(L"Programs", CommandMoveUp);
    Move(L"Messaging", CommandMoveDown);
    Move(L"My Menu/Radio", CommandMoveUp);
    Move(L"My Menu/Radio", CommandMoveDown);
    EXPECT_EQ(treeBefore, tree.Dump());
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(Moving, TheRootStays)
{
    Open();
    const std::wstring before = registry.CustomDump();
    Move(L"", CommandMoveUp);
    Move(L"", CommandMoveDown);
    EXPECT_EQ(before, registry.CustomDump());
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(Moving, WithoutASelectionNothingMoves)
{
    Open();
    tree.Select(nullptr);
    const std::wstring before = registry.CustomDump();
    SendCommand(dialog, CommandMoveUp);
    SendCommand(dialog, CommandMoveDown);
    EXPECT_EQ(before, registry.CustomDump());
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(Moving, UpWithoutTheNodeAboveIsAnInternalError)
{
    Open();
    DeleteNode(L"Programs/Games");
    DeleteNode(L"Programs/Calendar");
    Select(L"Programs/Notes");
    PostCommand(dialog, CommandMoveUp);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(Moving, DownWithoutTheNodeBelowIsAnInternalError)
{
    Open();
    DeleteNode(L"Programs/Maps");
    Select(L"Programs/Notes");
    PostCommand(dialog, CommandMoveDown);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(Moving, UpWithoutAnItemIsAnInternalError)
{
    Open();
    ForgetItemOf(L"Programs/Notes");
    Select(L"Programs/Notes");
    PostCommand(dialog, CommandMoveUp);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(Moving, DownWithoutAnItemIsAnInternalError)
{
    Open();
    ForgetItemOf(L"Programs/Notes");
    Select(L"Programs/Notes");
    PostCommand(dialog, CommandMoveDown);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}
