// Memory that runs out at any point of any operation: it leaves as the module's exception, and the
// registry stays readable.
#include <cstdlib>

#include "menu/MemoryFailure.h"
#include "menu/MenuKeys.h"
#include "menu/Rating.h"
#include "tests/menu/support/RatingFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

// The allocation that fails next, counted down; 0 when none is to fail.
int g_failNext = 0;
// Once one has failed, all further ones do.
bool g_failForEver = false;
bool g_hasFailed = false;

void* FailingMalloc(size_t size)
{
    using MallocFunction = void*(__cdecl*)(size_t);
    static const auto allocate = reinterpret_cast<MallocFunction>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"msvcrt.dll"), "malloc")));
    if (g_failNext == 0 || --g_failNext > 0)
        return allocate(size);
    g_failNext = g_failForEver ? 1 : 0;
    g_hasFailed = true;
    return nullptr;
}

class MenuMemory : public RatingTest, public testing::WithParamInterface<bool>
{
protected:
    MenuMemory()
        : m_patch(GetModuleHandleW(nullptr), "msvcrt.dll", "malloc",
                  reinterpret_cast<void*>(FailingMalloc))
    {
        // The runtime's reserve for exceptions needs memory of its own when it is first used.
        g_failForEver = false;
        g_failNext = 1;
        CodeThrownBy([] { ThrowOutOfMemory(); });
        g_failForEver = GetParam();
    }
    ~MenuMemory() override { g_failNext = 0; }

    // Runs the operation with its first allocation failing, then its second, and so on until it
    // gets through. Returns how many times memory ran out.
    template <class Operation>
    int FailEachAllocation(Operation&& operation)
    {
        for (int allocation = 1;; ++allocation)
        {
            g_hasFailed = false;
            g_failNext = allocation;
            const HRESULT code = CodeThrownBy(operation);
            g_failNext = 0;
            if (!g_hasFailed)
                return allocation - 1;
            // Some allocations can be done without.
            EXPECT_TRUE(code == kTavOutOfMemory || code == S_OK) << "allocation " << allocation;
        }
    }

    CImportPatch m_patch;
};

TEST_P(MenuMemory, LoadingAMenu)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    AddProductMenu(L"\\Games\\Chess", L"Chess", 0);
    SetText(Shared(L"\\Tools"), kTextValue, L"Tools");
    AddUserItem(L"\\Games\\User 1", L"Mine", 0);
    const std::wstring before = Dump();
    CMenuTree tree(true);
    EXPECT_GT(FailEachAllocation([&] { tree.Load(); }), 20);
    EXPECT_EQ(5u, tree.Items.Count());
    EXPECT_EQ(before, Dump());
}

TEST_P(MenuMemory, ChangingAttributes)
{
    AddUserItem(L"\\User 1", L"Mine", 0);
    const CMenuTree tree = LoadedTree();
    const CMenuItemPtr item = ItemOf(tree, L"Mine");
    const std::wstring text = L"A text that is too long to fit into the string itself";
    EXPECT_GT(FailEachAllocation([&] { item->SetText(text); }), 0);
    EXPECT_GT(FailEachAllocation([&] { item->SetInactive(true); }), 0);
    EXPECT_GT(FailEachAllocation([&] { item->SetRated(true); }), 0);
    EXPECT_GT(FailEachAllocation([&] { item->SetDrawType(MenuDrawType::Grid); }), 0);
    EXPECT_GT(FailEachAllocation([&] { item->GetFile(); }), 0);
    EXPECT_EQ(text, Text(Custom(L"\\User 1"), kTextValue));
    EXPECT_EQ(6u, item->GetRtFlags());
}

TEST_P(MenuMemory, AnItemThatCouldNotBeMadeLeavesItsKeyForTheNextLoad)
{
    AddProductMenu(L"\\Games", L"Games", 0);
    CMenuTree tree = LoadedTree();
    const CMenuItemPtr games = ItemOf(tree, L"Games");
    const std::wstring path = L"\\Programs\\Link.lnk", text = L"Menu";
    EXPECT_GT(FailEachAllocation([&] { games->AddLink(path, tree); }), 5);
    EXPECT_GT(FailEachAllocation([&] { games->AddMenu(text, 100, tree); }), 5);
    const size_t known = games->Children.size();
    EXPECT_GT(ItemOf(LoadedTree(), L"Games")->Children.size(), known);
}

TEST_P(MenuMemory, RemovingAMenu)
{
    AddUserItem(L"\\User 1", L"Mine", 0);
    AddUserItem(L"\\User 1\\User 2", L"Inner", 0);
    CMenuTree tree = LoadedTree();
    const CMenuItemPtr mine = ItemOf(tree, L"Mine");
    EXPECT_GT(FailEachAllocation([&] { mine->Remove(tree); }), 0);
    EXPECT_FALSE(m_hive.KeyExists(Custom(L"\\User 1").c_str()));
}

TEST_P(MenuMemory, ReadingAndSavingARating)
{
    StoreList(L"List", Entries(5, 2));
    EXPECT_GT(FailEachAllocation(
                  []
                  {
                      WithMemoryFailure(
                          []
                          {
                              Ratings::CRating list(L"List");
                              list.Pin(L"l:\\new");
                              list.Save(false);
                          });
                  }),
              5);
    EXPECT_EQ(L"l:\\0 l:\\1 l:\\new l:\\2 l:\\3 l:\\4", StoredNames(L"List"));
}

INSTANTIATE_TEST_SUITE_P(Failing, MenuMemory, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& forEver)
                         { return forEver.param ? "ForEver" : "Once"; });

} // namespace
