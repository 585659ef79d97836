// What Customize Menu shows when it opens.
#include "tests/dialogs/menu/support/EditorFixture.h"

#include <set>

namespace
{

class InitialTree : public EditorFixture
{
protected:
    // The data of a node and of everything below it.
    void CollectData(HTREEITEM node, std::vector<LPARAM>& data)
    {
        for (; node; node = tree.Next(node, TVGN_NEXT))
        {
            data.push_back(tree.DataOf(node));
            CollectData(tree.Next(node, TVGN_CHILD), data);
        }
    }
};

} // namespace

TEST_F(InitialTree, ShowsTheMergedMenuInItsOrderWithItsBoxes)
{
    Open();
    EXPECT_EQ(L"  Tav Menu\n"
              L"  + Programs\n"
              L"    + Games\n"
              L"      + Chess\n"
              L"      + Solitaire\n"
              L"    + Calendar\n"
              L"    - Notes\n"
              L"    + Maps\n"
              L"    Settings\n"
              L"  - Tools\n"
              L"    + Alarm\n"
              L"    + Backup\n"
              L"  + My Menu\n"
              L"    + Radio\n"
              L"  + Messaging\n",
              tree.Dump());
}

TEST_F(InitialTree, OpeningWritesNothing)
{
    // A missing value of this name is created with its default by the one who asks for it.
    registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", L"");
    const std::wstring before = registry.Dump(L"SOFTWARE");
    Open();
    EXPECT_EQ(std::vector<std::wstring>{}, DumpDifference(before, registry.Dump(L"SOFTWARE")));
}

TEST_F(InitialTree, AnEmptyMenuShowsItsRootAlone)
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE");
    Open();
    EXPECT_EQ(L"  Tav Menu\n", tree.Dump());
}

TEST_F(InitialTree, FollowsTheIndexAndForEqualOnesTheText)
{
    registry.AddProduct(L"Tools\\Zoom", L"zoom", 0);
    registry.AddProduct(L"Tools\\Act", L"Act", 0);
    registry.AddProduct(L"Tools\\Bee", L"bee", 0);
    Open();
    EXPECT_EQ((std::vector<std::wstring>{L"Act", L"Alarm", L"bee", L"zoom", L"Backup"}),
              tree.ChildrenOf(L"Tools"));
}

TEST_F(InitialTree, TheRootIsOpenAndDeeperMenusAreClosed)
{
    Open();
    EXPECT_TRUE(tree.IsExpanded(tree.Find(L"")));
    for (const wchar_t* menu : {L"Programs", L"Programs/Games", L"Tools", L"My Menu"})
        EXPECT_FALSE(tree.IsExpanded(tree.Find(menu))) << menu;
}

TEST_F(InitialTree, EveryNodesDataIsTheIdOfItsItem)
{
    Open();
    std::vector<LPARAM> data;
    CollectData(tree.Find(L""), data);
    EXPECT_EQ(15u, data.size());
    EXPECT_EQ(data.size(), std::set<LPARAM>(data.begin(), data.end()).size());
    // Ids count from 1 and are never used twice; the root is made first.
    for (const LPARAM id : data)
    {
        EXPECT_GE(id, 1);
        EXPECT_GE(id, data[0]);
    }
}

TEST_F(InitialTree, TheSettingsMenuIsKnownByItsPathInAnyCapitals)
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (std::wstring(kProductMenu) + L"\\Settings").c_str());
    registry.AddProduct(L"SETTINGS", L"Settings", 1);
    Open();
    EXPECT_EQ(static_cast<UINT>(NoBox), tree.BoxOf(tree.Find(L"Settings")));
}

TEST_F(InitialTree, AnotherMenuOfThatNameHasABox)
{
    registry.AddProduct(L"Tools\\Settings", L"Settings", 2);
    registry.AddProduct(L"Settings2", L"Settings 2", 9);
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Tools/Settings")));
    EXPECT_EQ(static_cast<UINT>(BoxOn), tree.BoxOf(tree.Find(L"Settings 2")));
}

TEST_F(InitialTree, AnInactiveSettingsMenuHasNoBoxEither)
{
    registry.SetCustom(L"Settings", L"Inactive", 1);
    Open();
    EXPECT_EQ(static_cast<UINT>(NoBox), tree.BoxOf(tree.Find(L"Settings")));
}

TEST_F(InitialTree, TheBoxesAreAddedByTheDialog)
{
    Open();
    EXPECT_NE(0, GetWindowLongW(tree.Window(), GWL_STYLE) & TVS_CHECKBOXES);
}

TEST_F(InitialTree, IsReadAnewAtEachOpening)
{
    Open();
    Cancel();
    registry.AddProduct(L"Tools\\Torch", L"Torch", 2);
    Open();
    EXPECT_NE(nullptr, tree.Find(L"Tools/Torch"));
}

TEST_F(InitialTree, HasTheSoftKeysDoneAndMenu)
{
    Open();
    ASSERT_EQ(2, SoftKeyCount(dialog));
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(static_cast<UINT>(IDOK), SoftKeyCommand(dialog, 0));
    EXPECT_EQ(L"Menu", SoftKeyText(dialog, 1));
    EXPECT_NE(nullptr, SoftKeyMenu(dialog, 1));
}

TEST_F(InitialTree, AMenuOfManyLevelsIsShownWhole)
{
    std::wstring path = L"Tools";
    for (int level = 0; level < 400; ++level)
    {
        path += L"\\n";
        registry.CreateKey((std::wstring(kProductMenu) + L"\\" + path).c_str());
    }
    Open();
    int depth = 0;
    for (HTREEITEM node = tree.Find(L"Tools"); node; node = tree.Next(node, TVGN_CHILD))
        ++depth;
    // The first child of Tools is Alarm: the chain comes last, without an Index.
    EXPECT_EQ(2, depth);
    HTREEITEM node = tree.Next(tree.Next(tree.Find(L"Tools/Alarm"), TVGN_NEXT), TVGN_NEXT);
    for (depth = 0; node; node = tree.Next(node, TVGN_CHILD))
        ++depth;
    EXPECT_EQ(400, depth);
}
