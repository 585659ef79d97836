// Broken and malicious registry contents: each case ends with defaults or a stated exception, never
// with a hang, a crash or deleted data.
#include "platform/Win.h"

#include <algorithm>
#include <atomic>
#include <random>
#include <thread>
#include <vector>

#include "menu/MenuItemStore.h"
#include "menu/MenuKeys.h"
#include "menu/MenuLoader.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/MenuFixture.h"
#include "tests/support/KeyName.h"

namespace
{

// Makes the key `path` a link to the key `target`.
void CreateLink(const std::wstring& path, const std::wstring& target)
{
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, os::OpenKey(HKEY_LOCAL_MACHINE, target.c_str(), 0, &key));
    const std::wstring systemPath = SystemPathOf(key);
    os::CloseKey(key);
    ASSERT_EQ(ERROR_SUCCESS,
              RegCreateKeyExW(HKEY_LOCAL_MACHINE, path.c_str() + 1, 0, nullptr,
                              REG_OPTION_CREATE_LINK, KEY_ALL_ACCESS, nullptr, &key, nullptr));
    EXPECT_EQ(ERROR_SUCCESS,
              RegSetValueExW(key, L"SymbolicLinkValue", 0, REG_LINK,
                             reinterpret_cast<const BYTE*>(systemPath.c_str()),
                             static_cast<DWORD>(systemPath.size() * sizeof(wchar_t))));
    RegCloseKey(key);
}

uint32_t DeepestBelow(const CMenuItemPtr& item)
{
    uint32_t depth = 0;
    for (const CMenuItemPtr& child : item->Children)
        depth = std::max(depth, DeepestBelow(child) + 1);
    return depth;
}

class MenuHostile : public MenuTest
{
protected:
    void SetRaw(const std::wstring& path, const wchar_t* name, DWORD type, const void* data,
                DWORD size)
    {
        m_hive.SetRaw(path.c_str(), name, type, data, size);
    }
    // The index of the only item, "Games".
    static int32_t LoadedIndex() { return ItemOf(LoadedTree(), L"Games")->Index; }
};

TEST_F(MenuHostile, AMenuNestedAThousandDeepLoadsDownToTheCap)
{
    std::wstring below;
    for (int i = 0; i < 1000; ++i)
        below += L"\\n";
    CreateKey(Product(below));
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(kMaxMenuDepth, DeepestBelow(tree.Root));
    EXPECT_EQ(kMaxMenuDepth + 1, tree.Items.Count());
}

TEST_F(MenuHostile, AMenuJustAsDeepAsTheCapLoadsWhole)
{
    std::wstring below;
    for (uint32_t i = 1; i < kMaxMenuDepth; ++i)
        below += L"\\n";
    SetText(Product(below + L"\\n"), kTextValue, L"last");
    CreateKey(Product(below + L"\\n\\n"));
    const CMenuItemPtr last = ItemOf(LoadedTree(), L"last");
    ASSERT_TRUE(last);
    EXPECT_TRUE(last->Children.empty());
}

TEST_F(MenuHostile, ALinkToAnAncestorEndsAtTheCap)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    CreateLink(Product(L"\\Games\\Loop"), Product(L""));
    EXPECT_EQ(kMaxMenuDepth, DeepestBelow(LoadedTree().Root));
}

TEST_F(MenuHostile, LinksThatMultiplyTheMenuEndAtTheMostItems)
{
    CreateKey(Product(L"\\Games"));
    for (const wchar_t* const name : {L"\\Left", L"\\Right"})
        CreateLink(Product(L"\\Games") + name, Product(L"\\Games"));
    EXPECT_EQ(kMostMenuItems + 1, LoadedTree().Items.Count());
}

TEST_F(MenuHostile, ALinkThatLeadsNowhereIsAnEmptyItem)
{
    CreateKey(Product(L"\\Gone"));
    CreateLink(Product(L"\\Loop"), Product(L"\\Gone"));
    os::DeleteKeyTree(HKEY_LOCAL_MACHINE, Product(L"\\Gone").c_str());
    const CMenuTree tree = LoadedTree();
    ASSERT_EQ(1u, tree.Root->Children.size());
    EXPECT_EQ(10000, tree.Root->Children[0]->Index);
}

TEST_F(MenuHostile, ASharedPositionAtTheEndOfTheRangeWraps)
{
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    SetDword(Shared(L"\\Tools"), kIndexValue, 0x7FFFFFFF);
    EXPECT_EQ(static_cast<int32_t>(0x7FFFFFFFu + 10000u), ItemOf(LoadedTree(), L"Tools")->Index);
    SetDword(Shared(L"\\Tools"), kIndexValue, 0xFFFFFFFF);
    EXPECT_EQ(9999, ItemOf(LoadedTree(), L"Tools")->Index);
}

TEST_F(MenuHostile, SortingAnyTextsAndPositionsIsConsistent)
{
    std::mt19937 random(7);
    const CMenuItemPtr root(new CMenuItem(std::wstring(kMenuRootPath)));
    for (int i = 0; i < 2000; ++i)
    {
        const CMenuItemPtr child(new CMenuItem(root.get()));
        const uint32_t ends[] = {0, 1, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        child->Index = static_cast<int32_t>(ends[random() % 5]);
        for (unsigned length = random() % 4; length > 0; --length)
            child->Text += static_cast<wchar_t>(random());
        root->AppendChild(child);
    }
    root->SortChildren();
    for (size_t i = 1; i < root->Children.size(); ++i)
        ASSERT_LE(root->Children[i - 1]->Index, root->Children[i]->Index);
}

TEST_F(MenuHostile, APositionOfAnotherTypeOfAtMostFourBytesCounts)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    const BYTE bytes[] = {5, 0, 0, 0, 0, 0, 0, 0};
    for (DWORD size = 1; size <= 4; ++size)
    {
        SetRaw(Product(L"\\Games"), kIndexValue, REG_BINARY, bytes, size);
        EXPECT_EQ(5, LoadedIndex()) << size;
    }
    SetRaw(Product(L"\\Games"), kIndexValue, REG_BINARY, bytes, 0);
    EXPECT_EQ(0, LoadedIndex());
}

TEST_F(MenuHostile, ALongerPositionCountsAsAbsent)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    const BYTE bytes[8] = {5};
    SetRaw(Product(L"\\Games"), kIndexValue, REG_BINARY, bytes, 8);
    EXPECT_EQ(10000, LoadedIndex());
    SetText(Product(L"\\Games"), kIndexValue, L"123");
    EXPECT_EQ(10000, LoadedIndex());
    SetRaw(Custom(L"\\Games"), kIndexValue, REG_BINARY, bytes, 5);
    EXPECT_EQ(10000, LoadedIndex());
}

TEST_F(MenuHostile, AUserMarkOfAWrongSizeIsNone)
{
    SetText(Custom(L"\\User 1"), kUserValue, L"1234");
    EXPECT_TRUE(LoadedTree().Root->Children.empty());
    // Two characters fit into four bytes and are not all zero.
    SetText(Custom(L"\\User 1"), kUserValue, L"1");
    EXPECT_EQ(1u, LoadedTree().Root->Children.size());
}

TEST_F(MenuHostile, ATextOfAnotherTypeIsEmptyAndStays)
{
    SetDword(Product(L"\\Games"), kTextValue, 5);
    const std::wstring before = Dump();
    EXPECT_EQ(L"", LoadedTree().Root->Children.at(0)->Text);
    EXPECT_EQ(before, Dump());
}

TEST_F(MenuHostile, ATextWithoutTerminatorOrWithHalfACharacterIsRead)
{
    SetRaw(Product(L"\\Games"), kTextValue, REG_SZ, L"Games", 5 * sizeof(wchar_t));
    EXPECT_EQ(L"Games", ChildTexts(LoadedTree().Root));
    SetRaw(Product(L"\\Games"), kTextValue, REG_SZ, L"Games", 5 * sizeof(wchar_t) - 1);
    EXPECT_EQ(L"Games", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuHostile, AKeyCounterThatWasRolledBackGivesTwoItemsOneKey)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    CMenuTree tree = LoadedTree();
    const CMenuItemPtr games = ItemOf(tree, L"Games");
    const CMenuItemPtr first = games->AddLink(L"\\a.lnk", tree);
    SetDword(Custom(L""), kLastKeyValue, 0);
    const CMenuItemPtr second = games->AddLink(L"\\b.lnk", tree);
    EXPECT_EQ(first->KeyPath, second->KeyPath);
    EXPECT_TRUE(first->Remove(tree));
    EXPECT_FALSE(second->Remove(tree));
    EXPECT_FALSE(m_hive.KeyExists(first->KeyPath.c_str()));
}

// Removing a menu deletes the rating list that it names.
class RatingNameHostile : public MenuHostile
{
protected:
    // The ratings that are left after a user menu with that "Rating" was removed.
    std::wstring RatingsAfterRemoving(const std::wstring& name)
    {
        AddUserItem(L"\\User 1", L"Mine", 0);
        SetText(Custom(L"\\User 1"), kRatingValue, name);
        CMenuTree tree = LoadedTree();
        EXPECT_TRUE(ItemOf(tree, L"Mine")->Remove(tree));
        EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\User 1").c_str()));
        return m_hive.Dump(kRatingsRootPath);
    }
};

TEST_F(RatingNameHostile, ANameWithABackslashDeletesNothingElsewhere)
{
    CreateKey(RatingsKey(L"List\\Below"));
    EXPECT_EQ(L"\\List\n\\List\\Below\n", RatingsAfterRemoving(L"List\\Below"));
    EXPECT_EQ(L"\\List\n\\List\\Below\n", RatingsAfterRemoving(L"\\List"));
    EXPECT_EQ(L"\\List\n\\List\\Below\n", RatingsAfterRemoving(L"\\"));
    EXPECT_EQ(L"\\List\n\\List\\Below\n", RatingsAfterRemoving(L"List\\"));
}

TEST_F(RatingNameHostile, ANameOf255CharactersIsDeletedAndALongerOneIsSkipped)
{
    const std::wstring longest(255, L'x');
    CreateKey(RatingsKey(longest));
    EXPECT_EQ(L"", RatingsAfterRemoving(longest));
    CreateKey(RatingsKey(L"x"));
    EXPECT_EQ(L"\\x\n", RatingsAfterRemoving(std::wstring(256, L'x')));
    EXPECT_EQ(L"\\x\n", RatingsAfterRemoving(std::wstring(10000, L'x')));
}

TEST_F(RatingNameHostile, AnEmptyNameOrOneOfAnotherTypeDeletesNothing)
{
    CreateKey(RatingsKey(L"List"));
    EXPECT_EQ(L"\\List\n", RatingsAfterRemoving(L""));
    AddUserItem(L"\\User 1", L"Mine", 0);
    SetDword(Custom(L"\\User 1"), kRatingValue, 7);
    CMenuTree tree = LoadedTree();
    EXPECT_TRUE(ItemOf(tree, L"Mine")->Remove(tree));
    EXPECT_EQ(L"\\List\n", m_hive.Dump(kRatingsRootPath));
}

TEST_F(MenuHostile, RemovingAMenuThatHoldsALinkLeavesTheLinksTargetAlone)
{
    SetText(L"\\SOFTWARE\\Precious\\Below", L"V", L"kept");
    AddUserItem(L"\\User 1", L"Mine", 0);
    CreateLink(Custom(L"\\User 1\\Link"), L"\\SOFTWARE\\Precious");
    CMenuTree tree = LoadedTree();
    EXPECT_TRUE(ItemOf(tree, L"Mine")->Remove(tree));
    EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\User 1").c_str()));
    EXPECT_EQ(L"kept", Text(L"\\SOFTWARE\\Precious\\Below", L"V"));
}

TEST_F(MenuHostile, KeyNamesAndTextsOfAnyLengthAndKindAreKept)
{
    const std::wstring longName(255, L'n');
    const std::wstring oddName = L"\xD800 \x202E x";
    SetText(Product(L"\\" + longName), kTextValue, std::wstring(900, L't'));
    SetText(Product(L"\\" + oddName), kTextValue, L"odd");
    const CMenuTree tree = LoadedTree();
    EXPECT_EQ(Product(L"\\" + longName), ItemOf(tree, std::wstring(900, L't'))->KeyPath);
    EXPECT_EQ(Product(L"\\" + oddName), ItemOf(tree, L"odd")->KeyPath);
}

TEST_F(MenuHostile, AVeryLongUserTextIsKeptWhole)
{
    AddUserItem(L"\\User 1", std::wstring(70000, L't'), 0);
    EXPECT_EQ(70000u, LoadedTree().Root->Children.at(0)->Text.size());
}

TEST_F(MenuHostile, APathThatOnlyBeginsLikeTheProductRootIsHandledByTheSameRule)
{
    SetText(Product(L"X\\Games"), kTextValue, L"Games");
    SetText(Shared(L"X\\Tools"), kTextValue, L"Tools");
    SetDword(Custom(L"X\\Games"), kInactiveValue, 1);
    const CMenuItemPtr odd(new CMenuItem(Product(L"X")));
    LoadChildren(odd, CMenuTree(false));
    EXPECT_EQ(L"Games Tools", ChildTexts(odd));
    EXPECT_TRUE(odd->Children[0]->Inactive);
}

TEST_F(MenuHostile, KeysThatVanishDuringALoadLeaveDefaults)
{
    // Somebody else deletes and creates keys as fast as possible.
    AddProductMenu(L"\\Games", L"Games", 0);
    AddUserItem(L"\\User 1", L"Mine", 0);
    std::atomic<bool> stop{false};
    std::thread other(
        [&stop]
        {
            while (!stop)
                for (const std::wstring& path : {Product(L"\\Games"), Custom(L"\\User 1")})
                {
                    os::DeleteKeyTree(HKEY_LOCAL_MACHINE, path.c_str());
                    HKEY key = nullptr;
                    DWORD disposition = 0;
                    os::CreateKey(HKEY_LOCAL_MACHINE, (path + L"\\Sub").c_str(), 0, &key,
                                  &disposition);
                    os::CloseKey(key);
                }
        });
    for (int i = 0; i < 100; ++i)
        EXPECT_LE(LoadedTree().Items.Count(), 4u);
    stop = true;
    other.join();
}

} // namespace
