// How many registry calls a load makes, against the least that any load must make.
#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"
#include "tests/menu/support/GeneratedMenu.h"
#include "tests/menu/support/MenuFixture.h"

namespace
{

unsigned CallsOfALoad()
{
    CMenuTree tree(true);
    const unsigned before = os::CountedRegistryCalls().Total();
    tree.Load();
    return os::CountedRegistryCalls().Total() - before;
}

class MenuCallCount : public MenuTest
{
protected:
    void ExpectNearTheMinimum(const GeneratedMenu& menu)
    {
        const unsigned calls = CallsOfALoad();
        EXPECT_LE(calls, menu.MinimalCalls * 1.05);
        EXPECT_EQ(menu.Items + 1, LoadedTree(true).Items.Count());
        RecordProperty("calls", static_cast<int>(calls));
        RecordProperty("minimum", static_cast<int>(menu.MinimalCalls));
    }
};

TEST_F(MenuCallCount, AnEmptyRegistryTakesThreeOpensAndThreeCloses)
{
    EXPECT_EQ(6u, CallsOfALoad());
}

TEST_F(MenuCallCount, AnOwnItemTakesSevenCalls)
{
    AddProductMenu(L"\\A", L"A", 0);
    const unsigned one = CallsOfALoad();
    AddProductMenu(L"\\B", L"B", 0);
    EXPECT_EQ(7u, CallsOfALoad() - one);
}

TEST_F(MenuCallCount, ATextOfUsualLengthTakesOneCall)
{
    AddProductMenu(L"\\A", L"A", 0);
    const unsigned shortText = CallsOfALoad();
    AddProductMenu(L"\\A", std::wstring(500, L'x'), 0);
    EXPECT_EQ(shortText, CallsOfALoad());
}

TEST_F(MenuCallCount, AMenuOf200ItemsIsNearTheMinimum)
{
    ExpectNearTheMinimum(GenerateMenu(200));
}

TEST_F(MenuCallCount, AMenuOf2000ItemsIsNearTheMinimum)
{
    ExpectNearTheMinimum(GenerateMenu(2000));
}

TEST_F(MenuCallCount, TenThousandItemsInOneFlatMenuAreNearTheMinimumToo)
{
    ExpectNearTheMinimum(GenerateFlatMenu(10000));
}

} // namespace
