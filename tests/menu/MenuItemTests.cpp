// The memory side of the model: counted items, child arrays, order, moving.
#include "menu/MenuItem.h"

#include <iterator>
#include <thread>

#include "menu/MenuItemMap.h"
#include "menu/MenuKeys.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

CMenuItemPtr NewRoot()
{
    return CMenuItemPtr(new CMenuItem(std::wstring(kMenuRootPath)));
}

CMenuItemPtr AddChild(const CMenuItemPtr& parent, const wchar_t* name, int32_t index)
{
    const CMenuItemPtr child(new CMenuItem(parent.get()));
    child->KeyPath = parent->KeyPath + L"\\" + name;
    child->Text = name;
    child->Index = index;
    parent->AppendChild(child);
    return child;
}

class CCounted : public CBaseRefCount
{
public:
    explicit CCounted(bool& gone) : m_gone(gone) {}

protected:
    ~CCounted() override { m_gone = true; }

private:
    bool& m_gone;
};

TEST(RefCount, AnObjectStartsUncountedAndDeletesItselfWithItsLastPointer)
{
    bool gone = false;
    auto* const object = new CCounted(gone);
    EXPECT_EQ(0, object->References());
    {
        CRefPtr<CCounted> first(object);
        EXPECT_EQ(1, object->References());
        const CRefPtr<CCounted> second = first;
        EXPECT_EQ(2, object->References());
        first = nullptr;
        EXPECT_EQ(1, object->References());
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

TEST(RefCount, AssigningAPointerToItselfKeepsTheObject)
{
    bool gone = false;
    CRefPtr<CCounted> pointer(new CCounted(gone));
    const CRefPtr<CCounted>& same = pointer;
    pointer = same;
    EXPECT_FALSE(gone);
    EXPECT_EQ(1, pointer->References());
}

TEST(RefCount, SeveralThreadsCanShareAnObject)
{
    bool gone = false;
    CRefPtr<CCounted> pointer(new CCounted(gone));
    const auto copyOften = [&pointer]
    {
        for (int i = 0; i < 20000; ++i)
            CRefPtr<CCounted> copy(pointer);
    };
    std::thread other(copyOften);
    copyOften();
    other.join();
    EXPECT_EQ(1, pointer->References());
    EXPECT_FALSE(gone);
}

TEST(MenuItem, TheFirstItemOfAProcessHasIdOneAndIdsGoUp)
{
    // Each test runs in a process of its own unless somebody runs them all at once.
    const CMenuItemPtr first = NewRoot();
    const CMenuItemPtr second(new CMenuItem(first.get()));
    EXPECT_GE(first->Id, 1u);
    EXPECT_EQ(first->Id + 1, second->Id);
}

TEST(MenuItem, IdsAreNotReused)
{
    const uint32_t id = NewRoot()->Id;
    EXPECT_GT(NewRoot()->Id, id);
}

TEST(MenuItem, AChildStartsEmptyBelowItsParent)
{
    const CMenuItemPtr root = NewRoot();
    const CMenuItemPtr child(new CMenuItem(root.get()));
    EXPECT_EQ(root.get(), child->Parent);
    EXPECT_TRUE(child->KeyPath.empty());
    EXPECT_TRUE(child->Text.empty());
    EXPECT_EQ(0, child->Index);
    EXPECT_FALSE(child->Inactive);
    EXPECT_TRUE(child->Children.empty());
    EXPECT_TRUE(root->Children.empty());
}

TEST(MenuItem, ARootHasAKeyPathAndNoParent)
{
    const CMenuItemPtr root = NewRoot();
    EXPECT_EQ(kMenuRootPath, root->KeyPath);
    EXPECT_EQ(nullptr, root->Parent);
}

TEST(MenuItem, TheFieldsStandInTheirDocumentedOrder)
{
    const CMenuItemPtr item = NewRoot();
    const void* const fields[] = {&item->Id,   &item->KeyPath, &item->Index,   &item->Inactive,
                                  &item->Text, &item->Parent,  &item->Children};
    for (size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST(MenuItem, AChildWithoutAParentIsAnInvalidArgument)
{
    EXPECT_EQ(kTavInvalidArgument,
              CodeThrownBy([] { CMenuItemPtr(new CMenuItem(static_cast<CMenuItem*>(nullptr))); }));
}

TEST(MenuItem, ANullItemWhereOneIsRequiredBreaksABound)
{
    const CMenuItemPtr root = NewRoot();
    const CMenuItemPtr none;
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->AppendChild(none); }));
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->FindChild(nullptr); }));
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { none->Renumber(); }));
    EXPECT_EQ(kTavBroken, CodeThrownBy([&] { CMenuItemMap(10).Insert(1, none); }));
}

TEST(MenuItem, AChildIsFoundByIdentityOnly)
{
    const CMenuItemPtr root = NewRoot();
    AddChild(root, L"Same", 0);
    const CMenuItemPtr second = AddChild(root, L"Same", 0);
    const CMenuItemPtr stranger(new CMenuItem(root.get()));
    EXPECT_EQ(1, root->FindChild(second.get()));
    EXPECT_EQ(-1, root->FindChild(stranger.get()));
}

TEST(MenuItem, AppendingAddsAReferenceAndRemovingReleasesIt)
{
    const CMenuItemPtr root = NewRoot();
    const CMenuItemPtr child = AddChild(root, L"A", 0);
    EXPECT_EQ(2, child->References());
    root->RemoveChildAt(0);
    EXPECT_EQ(1, child->References());
}

TEST(MenuItem, RemovingAChildMovesTheLaterOnesUp)
{
    const CMenuItemPtr root = NewRoot();
    for (const wchar_t* const name : {L"A", L"B", L"C"})
        AddChild(root, name, 0);
    root->RemoveChildAt(1);
    EXPECT_EQ(L"A C", ChildTexts(root));
}

TEST(MenuItem, SwappingExchangesTwoChildren)
{
    const CMenuItemPtr root = NewRoot();
    for (const wchar_t* const name : {L"A", L"B", L"C"})
        AddChild(root, name, 0);
    root->SwapChildren(0, 2);
    EXPECT_EQ(L"C B A", ChildTexts(root));
}

TEST(MenuItem, APositionOutOfRangeBreaksABound)
{
    const CMenuItemPtr root = NewRoot();
    AddChild(root, L"A", 0);
    for (const int32_t position : {-1, 1, INT32_MIN, INT32_MAX})
    {
        EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->RemoveChildAt(position); })) << position;
        EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->SwapChildren(0, position); })) << position;
        EXPECT_EQ(kTavBroken, CodeThrownBy([&] { root->SwapChildren(position, 0); })) << position;
    }
    EXPECT_EQ(L"A", ChildTexts(root));
}

TEST(MenuItem, ChildrenAreSortedByIndex)
{
    const CMenuItemPtr root = NewRoot();
    AddChild(root, L"A", 10000);
    AddChild(root, L"B", 9);
    AddChild(root, L"C", -1);
    root->SortChildren();
    EXPECT_EQ(L"C B A", ChildTexts(root));
}

TEST(MenuItem, SiblingsOfTheSameIndexAreOrderedByTextIgnoringCase)
{
    const CMenuItemPtr root = NewRoot();
    for (const wchar_t* const name : {L"beta", L"Gamma", L"ALPHA", L"delta"})
        AddChild(root, name, 5);
    root->SortChildren();
    EXPECT_EQ(L"ALPHA beta delta Gamma", ChildTexts(root));
}

TEST(MenuItem, ItemsThatCompareEqualKeepTheirOrder)
{
    const CMenuItemPtr root = NewRoot();
    for (int i = 0; i < 200; ++i)
        AddChild(root, i % 2 ? L"b" : L"B", 5);
    AddChild(root, L"a", 5);
    root->SortChildren();
    for (size_t i = 1; i + 1 < root->Children.size(); ++i)
        EXPECT_LT(root->Children[i]->Id, root->Children[i + 1]->Id);
}

TEST(MenuItem, IndexesAtTheEndsOfTheRangeAreOrderedAsNumbers)
{
    // A difference of the two would overflow.
    const CMenuItemPtr root = NewRoot();
    AddChild(root, L"Max", INT32_MAX);
    AddChild(root, L"Min", INT32_MIN);
    AddChild(root, L"Zero", 0);
    root->SortChildren();
    EXPECT_EQ(L"Min Zero Max", ChildTexts(root));
}

TEST(MenuItem, AnItemThatOutlivesItsParentHasNone)
{
    CMenuItemPtr root = NewRoot();
    const CMenuItemPtr child = AddChild(root, L"A", 0);
    root = nullptr;
    EXPECT_EQ(nullptr, child->Parent);
    EXPECT_FALSE(child->Move(true, true));
}

TEST(MenuItemMap, ABucketCountOfZeroIsRefused)
{
    EXPECT_EQ(kTavBroken, CodeThrownBy([] { CMenuItemMap(0); }));
    EXPECT_EQ(S_OK, CodeThrownBy([] { CMenuItemMap(1); }));
}

TEST(MenuItemMap, InsertingUnderAKnownIdReplacesThePointer)
{
    CMenuItemMap map(10);
    const CMenuItemPtr first = NewRoot();
    const CMenuItemPtr second = NewRoot();
    map.Insert(7, first);
    EXPECT_EQ(2, first->References());
    map.Insert(7, second);
    EXPECT_EQ(1, first->References());
    EXPECT_EQ(2, second->References());
    EXPECT_EQ(second, map.Find(7));
    EXPECT_EQ(1u, map.Count());
}

TEST(MenuItemMap, ErasingReleasesTheItem)
{
    CMenuItemMap map(10);
    const CMenuItemPtr item = NewRoot();
    map.Insert(7, item);
    map.Erase(7);
    map.Erase(8);
    EXPECT_EQ(1, item->References());
    EXPECT_FALSE(map.Find(7));
}

TEST(MenuItemMap, HoldsFarMoreItemsThanBuckets)
{
    CMenuItemMap map(10);
    const CMenuItemPtr item = NewRoot();
    for (uint32_t id = 0; id < 5000; ++id)
        map.Insert(id * 10, item);
    EXPECT_EQ(5000u, map.Count());
    EXPECT_TRUE(map.Find(49990));
    EXPECT_FALSE(map.Find(49991));
}

class MenuMove : public MenuTest
{
protected:
    MenuMove()
    {
        AddProductMenu(L"\\A", L"A", 4);
        AddProductMenu(L"\\B", L"B", 5);
        AddProductMenu(L"\\C", L"C", 6);
        m_tree.Load();
    }
    CMenuItemPtr Item(const wchar_t* text) { return ItemOf(m_tree, text); }

    CMenuTree m_tree{false};
};

TEST_F(MenuMove, AskingWhetherTheFirstCanMoveUpIsFalseAndWritesNothing)
{
    const std::wstring before = Dump();
    EXPECT_FALSE(Item(L"A")->Move(true, true));
    EXPECT_FALSE(Item(L"A")->Move(true, false));
    EXPECT_EQ(before, Dump());
    EXPECT_EQ(4, Item(L"A")->Index);
}

TEST_F(MenuMove, AskingWhetherTheSecondCanMoveUpKeepsTheOrderButNumbersTheSiblings)
{
    EXPECT_TRUE(Item(L"B")->Move(true, true));
    EXPECT_EQ(L"A B C", ChildTexts(m_tree.Root));
    EXPECT_EQ(0u, Dword(Custom(L"\\A"), kIndexValue));
    EXPECT_EQ(1u, Dword(Custom(L"\\B"), kIndexValue));
    EXPECT_EQ(2u, Dword(Custom(L"\\C"), kIndexValue));
    EXPECT_EQ(4u, Dword(Product(L"\\A"), kIndexValue)) << "built-in layers are only read";
}

TEST_F(MenuMove, TheLastCannotMoveDown)
{
    const std::wstring before = Dump();
    EXPECT_FALSE(Item(L"C")->Move(false, true));
    EXPECT_FALSE(Item(L"C")->Move(false, false));
    EXPECT_EQ(before, Dump());
}

TEST_F(MenuMove, TheRootCannotMove)
{
    EXPECT_FALSE(m_tree.Root->Move(true, false));
    EXPECT_FALSE(m_tree.Root->Move(false, false));
}

TEST_F(MenuMove, AnItemThatItsParentDoesNotKnowCannotMove)
{
    const CMenuItemPtr stranger(new CMenuItem(m_tree.Root.get()));
    EXPECT_FALSE(stranger->Move(true, false));
    EXPECT_FALSE(stranger->Move(false, false));
}

TEST_F(MenuMove, MovingUpSwapsWithThePredecessorForGood)
{
    EXPECT_TRUE(Item(L"C")->Move(true, false));
    EXPECT_EQ(L"A C B", ChildTexts(m_tree.Root));
    EXPECT_EQ(L"A C B", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuMove, MovingDownSwapsWithTheSuccessorForGood)
{
    EXPECT_TRUE(Item(L"A")->Move(false, false));
    EXPECT_EQ(L"B A C", ChildTexts(m_tree.Root));
    EXPECT_EQ(L"B A C", ChildTexts(LoadedTree().Root));
}

TEST_F(MenuMove, RenumberingWritesOnlyThePositionsThatDiffer)
{
    m_tree.Root->Renumber();
    const std::wstring before = Dump();
    m_hive.SetDword(Custom(L"\\A").c_str(), kIndexValue, 77);
    m_tree.Root->SwapChildren(1, 2);
    m_tree.Root->Renumber();
    EXPECT_EQ(77u, Dword(Custom(L"\\A"), kIndexValue)) << "A stands where it stood in memory";
    EXPECT_EQ(2u, Dword(Custom(L"\\B"), kIndexValue));
    EXPECT_EQ(1u, Dword(Custom(L"\\C"), kIndexValue));
    EXPECT_NE(before, Dump());
}

} // namespace
