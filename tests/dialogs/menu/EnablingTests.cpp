// Which commands are enabled for which node, in the soft key's pop-up and in the context menu.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

using Commands = std::vector<UINT>;

class Enabling : public EditorFixture
{
protected:
    // A chain of user menus below My Menu; the last one stands at `depth`, and is named after it.
    void AddChainTo(int depth)
    {
        std::wstring path = L"User 1";
        for (int level = 2; level <= depth; ++level)
        {
            path += L"\\User " + std::to_wstring(10 + level);
            registry.AddUserMenu(path, (L"Depth " + std::to_wstring(level)).c_str(), 5);
        }
    }
    std::wstring ChainPath(int depth)
    {
        std::wstring path = L"My Menu";
        for (int level = 2; level <= depth; ++level)
            path += L"/Depth " + std::to_wstring(level);
        return path;
    }

    // The commands of a menu that are enabled, sorted.
    static Commands EnabledIn(HMENU menu)
    {
        Commands enabled;
        for (const UINT command : {CommandEdit, CommandRemove, CommandMoveDown, CommandMoveUp,
                                   CommandAddMenu, CommandAddLink, CommandAddFile, CommandOptions})
        {
            const UINT state = StateOf(menu, command);
            if (state != static_cast<UINT>(-1) && !(state & (MF_GRAYED | MF_DISABLED)))
                enabled.push_back(command);
        }
        return enabled;
    }

    // The menu of an open pop-up.
    static HMENU MenuOf(HWND popup)
    {
        return reinterpret_cast<HMENU>(SendMessageW(popup, MN_GETHMENU, 0, 0));
    }
};

const Commands kOfUserMenuInTheMiddle = {CommandEdit,    CommandRemove,  CommandMoveDown,
                                         CommandMoveUp,  CommandAddMenu, CommandAddLink,
                                         CommandAddFile, CommandOptions};

} // namespace

TEST_F(Enabling, TheRootHasMenuOptionsAlone)
{
    Open();
    EXPECT_EQ(Commands{CommandOptions}, EnabledFor(L""));
}

TEST_F(Enabling, ARootThatTakesItemsCanBeAddedTo)
{
    registry.SetDword(kProductMenu, L"Add", 1);
    Open();
    EXPECT_EQ((Commands{CommandAddMenu, CommandAddLink, CommandAddFile, CommandOptions}),
              EnabledFor(L""));
}

TEST_F(Enabling, TheFirstOfItsSiblingsCannotMoveUp)
{
    Open();
    EXPECT_EQ(
        (Commands{CommandMoveDown, CommandAddMenu, CommandAddLink, CommandAddFile, CommandOptions}),
        EnabledFor(L"Programs"));
    EXPECT_EQ(Commands{CommandMoveDown}, EnabledFor(L"Programs/Games/Chess"));
}

TEST_F(Enabling, TheLastOfItsSiblingsCannotMoveDown)
{
    Open();
    EXPECT_EQ(Commands{CommandMoveUp}, EnabledFor(L"Messaging"));
    EXPECT_EQ(Commands{CommandMoveUp}, EnabledFor(L"Programs/Games/Solitaire"));
}

TEST_F(Enabling, AnItemInTheMiddleCanMoveBothWays)
{
    Open();
    EXPECT_EQ((Commands{CommandMoveDown, CommandMoveUp}), EnabledFor(L"Settings"));
    EXPECT_EQ((Commands{CommandMoveDown, CommandMoveUp}), EnabledFor(L"Programs/Calendar"));
}

TEST_F(Enabling, AnOnlyChildCannotMove)
{
    Open();
    EXPECT_EQ((Commands{CommandEdit, CommandRemove}), EnabledFor(L"My Menu/Radio"));
}

TEST_F(Enabling, AMenuThatTakesNoItemsHasNoOptions)
{
    Open();
    EXPECT_EQ((Commands{CommandMoveDown, CommandMoveUp}), EnabledFor(L"Tools"));
}

TEST_F(Enabling, AUserMenuCanDoEverything)
{
    Open();
    EXPECT_EQ(kOfUserMenuInTheMiddle, EnabledFor(L"My Menu"));
}

TEST_F(Enabling, AUserLinkCanBeEditedAndRemovedButTakesNoItems)
{
    Open();
    EXPECT_EQ((Commands{CommandEdit, CommandRemove, CommandMoveUp}), EnabledFor(L"Programs/Maps"));
}

TEST_F(Enabling, ABuiltInItemCanBeNeitherEditedNorRemoved)
{
    // "User" counts in the customisation layer alone.
    registry.SetDword((std::wstring(kProductMenu) + L"\\Programs\\Calendar").c_str(), L"User", 1);
    Open();
    EXPECT_EQ((Commands{CommandMoveDown, CommandMoveUp}), EnabledFor(L"Programs/Calendar"));
}

TEST_F(Enabling, MenusAreAddedDownToDepthFive)
{
    AddChainTo(5);
    Open();
    const Commands enabled = EnabledFor(ChainPath(5));
    EXPECT_EQ((Commands{CommandEdit, CommandRemove, CommandAddMenu, CommandAddLink, CommandAddFile,
                        CommandOptions}),
              enabled);
}

TEST_F(Enabling, AMenuAtDepthSixTakesLinksAndFilesButNoMenus)
{
    AddChainTo(6);
    Open();
    const Commands enabled = EnabledFor(ChainPath(6));
    EXPECT_EQ(
        (Commands{CommandEdit, CommandRemove, CommandAddLink, CommandAddFile, CommandOptions}),
        enabled);
}

TEST_F(Enabling, WithoutASelectionEverythingIsGray)
{
    Open();
    EnabledFor(L"My Menu");
    tree.Select(nullptr);
    const HMENU menu = MenuOfSoftKey(dialog);
    SendMessageW(dialog, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    EXPECT_EQ(Commands{}, EnabledIn(menu));
}

TEST_F(Enabling, GrayEntriesAreGrayAndNotMerelyDisabled)
{
    Open();
    Select(L"Messaging");
    const HMENU menu = MenuOfSoftKey(dialog);
    SendMessageW(dialog, WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    EXPECT_EQ(static_cast<UINT>(MF_GRAYED), StateOf(menu, CommandEdit));
    EXPECT_EQ(static_cast<UINT>(MF_ENABLED), StateOf(menu, CommandMoveUp));
}

TEST_F(Enabling, HoldsInTheSoftKeysPopupWhileItIsOpen)
{
    Open();
    Select(L"Programs/Maps");
    PressKey(VK_F2);
    const HWND popup = run->WaitForPopup();
    ASSERT_NE(nullptr, popup);
    EXPECT_EQ((Commands{CommandEdit, CommandRemove, CommandMoveUp}), EnabledIn(MenuOf(popup)));
    PressKey(VK_ESCAPE);
}

TEST_F(Enabling, HoldsInTheContextMenuWhileItIsOpen)
{
    Open();
    Select(L"My Menu");
    PostMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(10, 50));
    const HWND popup = run->WaitForPopup();
    ASSERT_NE(nullptr, popup);
    EXPECT_EQ(kOfUserMenuInTheMiddle, EnabledIn(MenuOf(popup)));
    PressKey(VK_ESCAPE);
}

TEST_F(Enabling, HoldsInTheContextMenuForTheFewCommandsToo)
{
    Open();
    Select(L"Programs/Games/Chess");
    PostMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(10, 50));
    const HWND popup = run->WaitForPopup();
    ASSERT_NE(nullptr, popup);
    EXPECT_EQ(Commands{CommandMoveDown}, EnabledIn(MenuOf(popup)));
    PressKey(VK_ESCAPE);
}

TEST_F(Enabling, AskingWritesTheSiblingsPositionsAgain)
{
    registry.SetCustom(L"Programs\\User 3", L"Index", 77);
    Open();
    const std::wstring before = registry.CustomDump();
    Select(L"Programs/Notes");
    IsEnabled(CommandMoveUp);
    EXPECT_EQ((std::vector<std::wstring>{L"+\\Programs\\User 3|Index=03000000",
                                         L"-\\Programs\\User 3|Index=4D000000"}),
              DumpDifference(before, registry.CustomDump()));
}

TEST_F(Enabling, AskingForAFirstItemWritesThroughTheQuestionWhetherItCanMoveDown)
{
    Open();
    Select(L"Programs");
    IsEnabled(CommandEdit);
    EXPECT_EQ(4u, registry.CustomDword(L"Messaging", L"Index"));
}

TEST_F(Enabling, AskingForALastItemWritesThroughTheQuestionWhetherItCanMoveUp)
{
    Open();
    Select(L"Messaging");
    IsEnabled(CommandEdit);
    EXPECT_EQ(4u, registry.CustomDword(L"Messaging", L"Index"));
}

TEST_F(Enabling, AskingForAnItemThatCannotMoveWritesNothing)
{
    registry.SetCustom(L"User 1\\User 2", L"Index", 50);
    Open();
    const std::wstring before = registry.CustomDump();
    EnabledFor(L"");
    EnabledFor(L"My Menu/Radio");
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(Enabling, AskingChangesNoOrder)
{
    Open();
    const std::wstring before = tree.Dump();
    for (const wchar_t* path : {L"Programs", L"Settings", L"Messaging", L"Programs/Maps"})
        EnabledFor(path);
    EXPECT_EQ(before, tree.Dump());
    Cancel();
    Open();
    EXPECT_EQ(before, tree.Dump());
}
