// Adding and removing the user's items, compared value by value.
#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

class MenuAdd : public MenuTest
{
protected:
    MenuAdd()
    {
        AddProductMenu(L"\\Games", L"Games", 0);
        AddProductMenu(L"\\Games\\Chess", L"Chess", 4);
        m_tree.Load();
        m_games = ItemOf(m_tree, L"Games");
    }

    CMenuTree m_tree{false};
    CMenuItemPtr m_games;
};

TEST_F(MenuAdd, ALinkIsStoredWithFileImagePathIndexUserAndText)
{
    const CMenuItemPtr link = m_games->AddLink(L"\\Programs\\Cards.v2.lnk", m_tree);
    EXPECT_EQ(L"|LastKey=01000000\n"
              L"\\Games\n"
              L"\\Games\\Chess\n"
              L"\\Games\\Chess|Index=00000000\n"
              L"\\Games\\User 1\n"
              L"\\Games\\User 1|File=\\Programs\\Cards.v2.lnk\n"
              L"\\Games\\User 1|ImagePath=\\Programs\\Cards.v2.lnk\n"
              L"\\Games\\User 1|Index=01000000\n"
              L"\\Games\\User 1|Text=Cards\n"
              L"\\Games\\User 1|User=01000000\n",
              m_hive.Dump(kCustomizeRootPath));
    EXPECT_EQ(Custom(L"\\Games\\User 1"), link->KeyPath);
    EXPECT_EQ(L"Cards", link->Text);
    EXPECT_EQ(1, link->Index);
    EXPECT_FALSE(link->Inactive);
    EXPECT_EQ(m_games.get(), link->Parent);
}

TEST_F(MenuAdd, ANewItemIsTheLastChildAndKnownToTheTree)
{
    const CMenuItemPtr link = m_games->AddLink(L"\\a.lnk", m_tree);
    EXPECT_EQ(1, m_games->FindChild(link.get()));
    EXPECT_EQ(link, m_tree.Find(link->Id));
    EXPECT_EQ(Describe(m_games), Describe(ItemOf(LoadedTree(), L"Games"))) << "as loaded anew";
}

TEST_F(MenuAdd, AddingNumbersTheSiblings)
{
    m_games->AddLink(L"\\a.lnk", m_tree);
    EXPECT_EQ(0u, Dword(Custom(L"\\Games\\Chess"), kIndexValue));
    EXPECT_EQ(0, m_games->Children[0]->Index);
}

TEST_F(MenuAdd, AMenuIsStoredWithIndexUserTextAndImage)
{
    const CMenuItemPtr menu = m_games->AddMenu(L"More games", 104, m_tree);
    EXPECT_EQ(L"\\User 1|Image=68000000\n"
              L"\\User 1|Index=01000000\n"
              L"\\User 1|Text=More games\n"
              L"\\User 1|User=01000000\n",
              LinesWith(L"\\User 1|", m_hive.Dump(Custom(L"\\Games").c_str())));
    EXPECT_EQ(L"More games", menu->Text);
    EXPECT_EQ(104, menu->GetImage());
    EXPECT_TRUE(menu->CanAdd());
}

TEST_F(MenuAdd, AMenuWithoutIconStoresNoImage)
{
    m_games->AddMenu(L"M", kNoImage, m_tree);
    EXPECT_FALSE(m_hive.ValueExists(Custom(L"\\Games\\User 1").c_str(), kImageValue));
}

TEST_F(MenuAdd, AnItemInAUserMenuIsStoredBelowIt)
{
    const CMenuItemPtr menu = m_games->AddMenu(L"M", kNoImage, m_tree);
    const CMenuItemPtr link = menu->AddLink(L"\\a.lnk", m_tree);
    EXPECT_EQ(Custom(L"\\Games\\User 1\\User 2"), link->KeyPath);
    EXPECT_EQ(0, link->Index);
    EXPECT_EQ(L"a", ChildTexts(ItemOf(LoadedTree(), L"M")));
}

TEST_F(MenuAdd, AnItemCanBeAddedToTheRoot)
{
    const CMenuItemPtr menu = m_tree.Root->AddMenu(L"M", kNoImage, m_tree);
    EXPECT_EQ(Custom(L"\\User 1"), menu->KeyPath);
    EXPECT_EQ(L"Games M", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuAdd, AddingFlushesEachKeyThatWasWritten)
{
    const unsigned before = os::CountedRegistryCalls().flush;
    m_games->AddLink(L"\\a.lnk", m_tree);
    EXPECT_EQ(3u, os::CountedRegistryCalls().flush - before) << "counter, item, sibling's number";
}

// A user menu "M" in "Games" with a link "a" and a menu "N" with a link "b".
class MenuRemove : public MenuAdd
{
protected:
    MenuRemove()
    {
        m_games->AddLink(L"\\before.lnk", m_tree);
        m_menu = m_games->AddMenu(L"M", kNoImage, m_tree);
        m_games->AddLink(L"\\after.lnk", m_tree);
        m_link = m_menu->AddLink(L"\\a.lnk", m_tree);
        m_inner = m_menu->AddMenu(L"N", kNoImage, m_tree);
        m_inner->AddLink(L"\\b.lnk", m_tree);
    }
    CMenuItemPtr m_menu, m_link, m_inner;
};

TEST_F(MenuRemove, AUserMenuGoesWithEverythingBelowIt)
{
    const uint32_t ids[] = {m_menu->Id, m_link->Id, m_inner->Id, m_inner->Children[0]->Id};
    const size_t count = m_tree.Items.Count();
    EXPECT_TRUE(m_menu->Remove(m_tree));
    EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\Games\\User 2").c_str()));
    for (const uint32_t id : ids)
        EXPECT_FALSE(m_tree.Find(id));
    EXPECT_EQ(count - 4, m_tree.Items.Count());
    EXPECT_EQ(L"Chess before after", ChildTexts(m_games));
    EXPECT_EQ(L"Chess before after", ChildTexts(ItemOf(LoadedTree(), L"Games")));
}

TEST_F(MenuRemove, TheSiblingsKeepTheirNumbers)
{
    m_menu->Remove(m_tree);
    EXPECT_EQ(3, m_games->Children[2]->Index);
    EXPECT_EQ(3u, Dword(m_games->Children[2]->KeyPath, kIndexValue));
}

TEST_F(MenuRemove, NothingElseChanges)
{
    std::wstring before = m_hive.Dump(kCustomizeRootPath);
    m_menu->Remove(m_tree);
    const std::wstring gone = LinesWith(L"\\Games\\User 2", before);
    const std::wstring after = m_hive.Dump(kCustomizeRootPath);
    EXPECT_EQ(L"", LinesWith(L"\\Games\\User 2", after));
    EXPECT_EQ(before.size(), after.size() + gone.size());
}

TEST_F(MenuRemove, ABuiltInItemIsNotRemoved)
{
    const std::wstring before = Dump();
    EXPECT_FALSE(m_games->Remove(m_tree));
    EXPECT_FALSE(ItemOf(m_tree, L"Chess")->Remove(m_tree));
    EXPECT_FALSE(m_tree.Root->Remove(m_tree));
    EXPECT_EQ(before, Dump());
}

TEST_F(MenuRemove, TheRatingListsOfRemovedMenusGoToo)
{
    m_menu->SetRated(true);
    m_inner->SetRated(true);
    const std::wstring list = Text(m_menu->KeyPath, kRatingValue);
    const std::wstring innerList = Text(m_inner->KeyPath, kRatingValue);
    ASSERT_NE(list, innerList);
    SetText(RatingsKey(list), L"0", L"l:\\a.lnk");
    CreateKey(RatingsKey(list) + L"\\Below");
    SetText(RatingsKey(innerList), L"0", L"l:\\b.lnk");
    SetText(RatingsKey(L"Other"), L"0", L"l:\\c.lnk");
    m_menu->Remove(m_tree);
    EXPECT_EQ(L"\\Other\n\\Other|0=l:\\c.lnk\n", m_hive.Dump(kRatingsRootPath));
}

TEST_F(MenuRemove, AMenuWithoutRatingDoesNotCreateTheRatingsRoot)
{
    m_menu->Remove(m_tree);
    EXPECT_FALSE(m_hive.KeyExists(kRatingsRootPath));
}

TEST_F(MenuRemove, ARatingNameCreatesTheRatingsRootEvenIfTheListIsMissing)
{
    m_menu->SetRated(true);
    m_menu->Remove(m_tree);
    EXPECT_TRUE(m_hive.KeyExists(kRatingsRootPath));
}

TEST_F(MenuRemove, AnItemThatIsNotAmongItsParentsChildrenBreaksABoundAfterItsKeyIsGone)
{
    m_games->RemoveChildAt(m_games->FindChild(m_menu.get()));
    m_menu->Parent = m_games.get();
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { m_menu->Remove(m_tree); }));
    EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\Games\\User 2").c_str()));
}

TEST_F(MenuRemove, AUserItemWithoutParentBreaksABoundAndKeepsItsKey)
{
    const CMenuItemPtr root(new CMenuItem(Custom(L"\\Games\\User 2")));
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->Remove(m_tree); }));
    EXPECT_TRUE(m_hive.KeyExists(Custom(L"\\Games\\User 2").c_str()));
}

TEST_F(MenuRemove, AForeignKeyInARemovedMenuGoesWithIt)
{
    SetText(Custom(L"\\Games\\User 2\\Other"), kTextValue, L"Other");
    CMenuTree tree = LoadedTree();
    const CMenuItemPtr other = ItemOf(tree, L"Other");
    EXPECT_TRUE(ItemOf(tree, L"M")->Remove(tree));
    EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\Games\\User 2").c_str()));
    EXPECT_EQ(nullptr, other->Parent) << "no pointer to the item that is gone";
}

TEST_F(MenuRemove, KeyNamesOfRemovedItemsAreNotUsedAgain)
{
    const DWORD last = Dword(Custom(L""), kLastKeyValue);
    m_menu->Remove(m_tree);
    const CMenuItemPtr link = m_games->AddLink(L"\\c.lnk", m_tree);
    EXPECT_EQ(Custom(L"\\Games\\User ") + std::to_wstring(last + 1), link->KeyPath);
    EXPECT_EQ(3, link->Index);
    EXPECT_EQ(2, m_games->Children[2]->Index) << "adding closes the gap";
}

} // namespace
