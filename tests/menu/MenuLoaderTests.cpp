// Loading and merging the three registry layers.
#include "menu/MenuLoader.h"

#include "frame/Localizer.h"
#include "menu/MenuKeys.h"
#include "tests/menu/support/MenuFixture.h"
#include "tests/support/TranslationFixture.h"

namespace
{

using MenuLoader = MenuTest;

TEST_F(MenuLoader, AMissingMenuLoadsAsARootWithoutChildren)
{
    const CMenuTree tree = LoadedTree();
    ASSERT_TRUE(tree.Root);
    EXPECT_EQ(kMenuRootPath, tree.Root->KeyPath);
    EXPECT_TRUE(tree.Root->Children.empty());
    EXPECT_EQ(tree.Root, tree.Find(tree.Root->Id));
    EXPECT_EQ(1u, tree.Items.Count());
    EXPECT_EQ(L"", Dump()) << "loading writes nothing";
}

TEST_F(MenuLoader, AnItemTakesItsTextPositionAndVisibilityFromItsKey)
{
    AddProductMenu(L"\\Games", L"Play", 3);
    SetDword(Product(L"\\Games"), kInactiveValue, 2);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(Product(L"") + L" '' 0\n " + Product(L"\\Games") + L" 'Play' 3 hidden\n",
              Describe(tree.Root));
}

TEST_F(MenuLoader, AnItemWithoutValuesHasNoTextPosition10000AndIsShown)
{
    CreateKey(Product(L"\\Bare"));
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(Product(L"") + L" '' 0\n " + Product(L"\\Bare") + L" '' 10000\n",
              Describe(tree.Root));
}

TEST_F(MenuLoader, ReadingAMissingTextDoesNotCreateIt)
{
    CreateKey(Product(L"\\Bare"));
    const std::wstring before = Dump();
    LoadedTree();
    EXPECT_EQ(before, Dump());
}

TEST_F(MenuLoader, EveryItemOfTheTreeIsRegisteredUnderItsId)
{
    AddProductMenu(L"\\A", L"A", 0);
    AddProductMenu(L"\\A\\B", L"B", 0);
    AddProductMenu(L"\\A\\B\\C", L"C", 0);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(4u, tree.Items.Count());
    for (const wchar_t* const text : {L"", L"A", L"B", L"C"})
        EXPECT_EQ(ItemOf(tree, text), tree.Find(ItemOf(tree, text)->Id));
    EXPECT_EQ(3, ItemOf(tree, L"C")->References()) << "its parent, the map, and this question";
}

TEST_F(MenuLoader, ChildrenAreSortedAfterTheMergeOnEveryLevel)
{
    AddProductMenu(L"\\M", L"M", 0);
    AddProductMenu(L"\\M\\a", L"Last", 30);
    AddProductMenu(L"\\M\\b", L"First", 10);
    SetDword(Custom(L"\\M\\a"), kIndexValue, 5);
    AddUserItem(L"\\M\\User 1", L"Middle", 7);
    EXPECT_EQ(L"Last Middle First", ChildTexts(ItemOf(LoadedTree(), L"M")));
}

TEST_F(MenuLoader, LoadingAgainReplacesItemsAndIds)
{
    AddProductMenu(L"\\A", L"A", 0);
    CMenuTree tree = LoadedTree();
    const uint32_t oldId = ItemOf(tree, L"A")->Id;
    AddProductMenu(L"\\B", L"B", 0);
    tree.Load();
    EXPECT_FALSE(tree.Find(oldId));
    EXPECT_EQ(3u, tree.Items.Count());
    EXPECT_EQ(L"A B", ChildTexts(tree.Root));
}

// Translation.

class MenuLoaderTranslation : public MenuTest
{
protected:
    MenuLoaderTranslation()
    {
        EXPECT_TRUE(GetLocalizer().LoadFile(
            WriteTranslation(m_folder, L"Games|Spiele\r\nTools|Werkzeug\r\nMine|Meins").c_str()));
    }
    ~MenuLoaderTranslation() override { GetLocalizer().Clear(); }

    CTempFolder m_folder;
};

TEST_F(MenuLoaderTranslation, TextsOfBothBuiltInLayersAreTranslated)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetDword(Custom(L"\\Games"), kInactiveValue, 1);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(L"Spiele Werkzeug", ChildTexts(tree.Root));
    EXPECT_TRUE(tree.Root->Children[0]->Inactive);
    EXPECT_EQ(0, tree.Root->Children[0]->Index);
    EXPECT_EQ(L"Games", Text(Product(L"\\Games"), kTextValue));
}

TEST_F(MenuLoaderTranslation, ATextWithoutTranslationStaysEnglish)
{
    AddProductMenu(L"\\Games", L"games", 0);
    EXPECT_EQ(L"games", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuLoaderTranslation, TextsOfTheCustomisationLayerAreTakenAsStoredOnEveryLevel)
{
    AddUserItem(L"\\User 1", L"Mine", 0);
    AddUserItem(L"\\User 1\\User 2", L"Games", 0);
    SetText(Custom(L"\\User 1\\Other"), kTextValue, L"Tools");
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(L"Mine", ChildTexts(tree.Root));
    EXPECT_EQ(L"Games Tools", ChildTexts(ItemOf(tree, L"Mine")));
}

TEST_F(MenuLoaderTranslation, SiblingsAreSortedByTheTranslatedText)
{
    SetText(Product(L"\\a"), kTextValue, L"Games");
    SetText(Product(L"\\b"), kTextValue, L"Radio");
    EXPECT_EQ(L"Radio Spiele", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuLoaderTranslation, ABuiltInTextLosesWhatTheTranslatorsBufferCannotHold)
{
    AddProductMenu(L"\\Games", std::wstring(1100, L'x'), 0);
    AddUserItem(L"\\User 1", std::wstring(1100, L'y'), 0);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(1023u, tree.Root->Children.at(0)->Text.size());
    EXPECT_EQ(1100u, tree.Root->Children.at(1)->Text.size());
}

// The shared component's layer.

TEST_F(MenuLoader, ASharedItemWithoutPositionStandsAt20000)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    const CMenuItemPtr item = ItemOf(LoadedTree(), L"Tools");
    EXPECT_EQ(20000, item->Index);
    EXPECT_EQ(Shared(L"\\Tools"), item->KeyPath);
}

TEST_F(MenuLoader, ASharedItemWithPosition5StandsAt10005)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetDword(Shared(L"\\Tools"), kIndexValue, 5);
    EXPECT_EQ(10005, ItemOf(LoadedTree(), L"Tools")->Index);
}

TEST_F(MenuLoader, ASharedItemCanBeHidden)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetDword(Shared(L"\\Tools"), kInactiveValue, 1);
    EXPECT_TRUE(ItemOf(LoadedTree(), L"Tools")->Inactive);
}

TEST_F(MenuLoader, AKeyOfBothLayersLoadsOnceFromTheProduct)
{
    AddProductMenu(L"\\Games", L"Product", 3);
    SetText(Shared(L"\\GAMES"), kTextValue, L"Shared");
    SetDword(Shared(L"\\GAMES"), kIndexValue, 1);
    SetDword(Shared(L"\\GAMES"), kInactiveValue, 1);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(Product(L"") + L" '' 0\n " + Product(L"\\Games") + L" 'Product' 3\n",
              Describe(tree.Root));
}

TEST_F(MenuLoader, AKeyOfBothLayersTakesACustomisedPosition)
{
    AddProductMenu(L"\\Games", L"Product", 3);
    SetDword(Shared(L"\\Games"), kIndexValue, 1);
    SetDword(Custom(L"\\Games"), kIndexValue, 8);
    EXPECT_EQ(8, ItemOf(LoadedTree(), L"Product")->Index);
}

TEST_F(MenuLoader, AProductItemWithoutPositionDoesNotTakeTheSharedOne)
{
    SetText(Product(L"\\Games"), kTextValue, L"Product");
    SetDword(Shared(L"\\Games"), kIndexValue, 1);
    EXPECT_EQ(10000, ItemOf(LoadedTree(), L"Product")->Index);
}

TEST_F(MenuLoader, SharedChildrenJoinAMenuThatTheProductHasToo)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    AddProductMenu(L"\\Games\\Chess", L"Chess", 1);
    SetText(Shared(L"\\games\\Cards"), kTextValue, L"Cards");
    const CMenuItemPtr games = ItemOf(LoadedTree(), L"Games");
    EXPECT_EQ(L"Chess Cards", ChildTexts(games));
    EXPECT_EQ(Shared(L"\\Games\\Cards"), games->Children[1]->KeyPath);
}

TEST_F(MenuLoader, ChildrenOfASharedItemAreItsOwnAndHaveNoOffset)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetText(Shared(L"\\Tools\\Clock"), kTextValue, L"Clock");
    SetText(Shared(L"\\Tools\\Notes"), kTextValue, L"Notes");
    SetDword(Shared(L"\\Tools\\Notes"), kIndexValue, 2);
    const CMenuItemPtr tools = ItemOf(LoadedTree(), L"Tools");
    EXPECT_EQ(L"Notes Clock", ChildTexts(tools));
    EXPECT_EQ(10000, tools->Children[1]->Index);
    EXPECT_EQ(2, tools->Children[0]->Index);
}

// The customisation layer.

TEST_F(MenuLoader, ACustomisationOfVisibilityAloneLeavesPositionAndText)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    SetDword(Custom(L"\\Games"), kInactiveValue, 1);
    const CMenuItemPtr item = ItemOf(LoadedTree(), L"Games");
    EXPECT_TRUE(item->Inactive);
    EXPECT_EQ(3, item->Index);
}

TEST_F(MenuLoader, ACustomisationCanShowAHiddenItem)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    SetDword(Product(L"\\Games"), kInactiveValue, 1);
    SetDword(Custom(L"\\Games"), kInactiveValue, 0);
    EXPECT_FALSE(ItemOf(LoadedTree(), L"Games")->Inactive);
}

TEST_F(MenuLoader, ACustomisedTextIsNotTakenForABuiltInItem)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    SetText(Custom(L"\\Games"), kTextValue, L"Mine");
    SetDword(Custom(L"\\Games"), kUserValue, 1);
    EXPECT_EQ(L"Games", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuLoader, ACustomisationMatchesItsItemIgnoringCase)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    AddProductMenu(L"\\Games\\Chess", L"Chess", 3);
    SetDword(Custom(L"\\gAMES"), kIndexValue, 1);
    SetDword(Custom(L"\\gAMES\\cHESS"), kIndexValue, 2);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(1, ItemOf(tree, L"Games")->Index);
    EXPECT_EQ(2, ItemOf(tree, L"Chess")->Index);
}

TEST_F(MenuLoader, ACustomisationAppliesToASharedItemAndReplacesItsOffset)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetDword(Custom(L"\\Tools"), kIndexValue, 4);
    SetText(Shared(L"\\Tools\\Clock"), kTextValue, L"Clock");
    SetDword(Custom(L"\\Tools\\Clock"), kInactiveValue, 1);
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(4, ItemOf(tree, L"Tools")->Index);
    EXPECT_TRUE(ItemOf(tree, L"Clock")->Inactive);
}

TEST_F(MenuLoader, ACustomisationSubkeyWithoutUserAndWithoutItemIsIgnored)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    SetText(Custom(L"\\Gone"), kTextValue, L"Gone");
    SetDword(Custom(L"\\Gone"), kIndexValue, 0);
    SetDword(Custom(L"\\Zero"), kUserValue, 0);
    AddUserItem(L"\\Gone\\User 1", L"Lost", 0);
    EXPECT_EQ(L"Games", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuLoader, AUserItemLoadsFromTheCustomisationLayer)
{
    AddProductMenu(L"\\Games", L"Games", 3);
    AddUserItem(L"\\Games\\User 2", L"Mine", 9);
    SetDword(Custom(L"\\Games\\User 2"), kInactiveValue, 1);
    const CMenuItemPtr item = ItemOf(LoadedTree(), L"Mine");
    EXPECT_EQ(Custom(L"\\Games\\User 2"), item->KeyPath);
    EXPECT_EQ(9, item->Index);
    EXPECT_TRUE(item->Inactive);
}

TEST_F(MenuLoader, AUserItemWithoutPositionStandsAt10000)
{
    SetDword(Custom(L"\\User 1"), kUserValue, 1);
    EXPECT_EQ(10000, LoadedTree().Root->Children.at(0)->Index);
}

TEST_F(MenuLoader, AUserMenuHasAllItsSubkeysAsChildrenWhetherTheUsersOrNot)
{
    AddUserItem(L"\\User 1", L"Menu", 0);
    AddUserItem(L"\\User 1\\User 2", L"Inner", 0);
    SetText(Custom(L"\\User 1\\Other"), kTextValue, L"Other");
    const CMenuItemPtr menu = ItemOf(LoadedTree(), L"Menu");
    EXPECT_EQ(L"Inner Other", ChildTexts(menu));
    EXPECT_EQ(Custom(L"\\User 1\\User 2"), menu->Children[0]->KeyPath);
}

TEST_F(MenuLoader, AUserItemInASharedMenuIsFoundThroughItsMirror)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    AddUserItem(L"\\Tools\\User 1", L"Mine", 0);
    const CMenuItemPtr tools = ItemOf(LoadedTree(), L"Tools");
    EXPECT_EQ(Custom(L"\\Tools\\User 1"), tools->Children.at(0)->KeyPath);
}

// The settings branch.

TEST_F(MenuLoader, WithoutSettingsTheSettingsMenuIsThereButEmpty)
{
    AddProductMenu(L"\\Settings", L"Settings", 0);
    AddProductMenu(L"\\Settings\\Clock", L"Clock", 0);
    AddUserItem(L"\\Settings\\User 1", L"Mine", 0);
    SetDword(Custom(L"\\Settings"), kInactiveValue, 1);
    const CMenuTree tree = LoadedTree(false);
    EXPECT_EQ(L"Settings", ChildTexts(tree.Root));
    EXPECT_TRUE(tree.Root->Children[0]->Children.empty());
    EXPECT_TRUE(tree.Root->Children[0]->Inactive);
    EXPECT_EQ(2u, tree.Items.Count());
}

TEST_F(MenuLoader, TheSettingsMenuIsRecognisedIgnoringCase)
{
    AddProductMenu(L"\\sETTINGS", L"Settings", 0);
    AddProductMenu(L"\\sETTINGS\\Clock", L"Clock", 0);
    EXPECT_TRUE(ItemOf(LoadedTree(false), L"Settings")->Children.empty());
}

TEST_F(MenuLoader, WithSettingsTheirBranchLoadsLikeAnyOther)
{
    AddProductMenu(L"\\Settings", L"Settings", 0);
    AddProductMenu(L"\\Settings\\Clock", L"Clock", 0);
    EXPECT_EQ(L"Clock", ChildTexts(ItemOf(LoadedTree(true), L"Settings")));
}

TEST_F(MenuLoader, ASharedSettingsMenuIsAnOrdinaryOne)
{
    SetText(Shared(L"\\Settings"), kTextValue, L"Settings");
    SetText(Shared(L"\\Settings\\Clock"), kTextValue, L"Clock");
    EXPECT_EQ(L"Clock", ChildTexts(ItemOf(LoadedTree(false), L"Settings")));
}

TEST_F(MenuLoader, TheProgramsMenuLoadsLikeAnyOther)
{
    AddProductMenu(L"\\Programs", L"Programs", 0);
    AddProductMenu(L"\\Programs\\Games", L"Games", 0);
    EXPECT_EQ(L"Games", ChildTexts(ItemOf(LoadedTree(), L"Programs")));
}

TEST_F(MenuLoader, ChildrenOfASingleItemCanBeLoadedByThemselves)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    AddProductMenu(L"\\Games\\Chess", L"Chess", 0);
    SetText(Shared(L"\\Games\\Cards"), kTextValue, L"Cards");
    AddUserItem(L"\\Games\\User 1", L"Mine", 1);
    const CMenuItemPtr games(new CMenuItem(Product(L"\\Games")));
    LoadChildren(games, CMenuTree(false));
    EXPECT_EQ(L"Chess Mine Cards", ChildTexts(games));
}

TEST_F(MenuLoader, LoadingANullItemBreaksABound)
{
    EXPECT_EQ(kTavBroken, CodeThrownBy([] { LoadChildren(CMenuItemPtr(), CMenuTree(false)); }));
}

} // namespace
