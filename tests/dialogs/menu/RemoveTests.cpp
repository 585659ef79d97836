// Remove: what goes, what refuses, and what the other items keep.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

class Removing : public EditorFixture
{
protected:
    void Remove(const std::wstring& path)
    {
        Select(path);
        SendCommand(dialog, CommandRemove);
    }
};

} // namespace

TEST_F(Removing, AUserLinkGoesFromTreeAndRegistryAtOnce)
{
    Open();
    Remove(L"Programs/Maps");
    EXPECT_EQ(nullptr, tree.Find(L"Programs/Maps"));
    EXPECT_FALSE(registry.KeyExists((std::wstring(kCustomMenu) + L"\\Programs\\User 3").c_str()));
}

TEST_F(Removing, AUserMenuTakesItsChildrenWithIt)
{
    registry.AddUserMenu(L"User 1\\User 8", L"Inner", 1);
    registry.AddUserLink(L"User 1\\User 8\\User 9", L"Deep", 0, L"\\deep.exe");
    Open();
    Remove(L"My Menu");
    EXPECT_EQ(nullptr, tree.Find(L"My Menu"));
    EXPECT_FALSE(registry.KeyExists((std::wstring(kCustomMenu) + L"\\User 1").c_str()));
    EXPECT_EQ((std::vector<std::wstring>{L"Programs", L"Settings", L"Tools", L"Messaging"}),
              tree.ChildrenOf(L""));
}

TEST_F(Removing, StaysRemovedAfterCancel)
{
    Open();
    Remove(L"My Menu");
    Cancel();
    Open();
    EXPECT_EQ(nullptr, tree.Find(L"My Menu"));
}

TEST_F(Removing, TheRatingListOfAMenuGoesWithIt)
{
    constexpr const wchar_t* kList = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\User 5";
    registry.SetText((std::wstring(kCustomMenu) + L"\\User 1").c_str(), L"Rating", L"User 5");
    registry.SetDword(kList, L"Timestamp", 1);
    Open();
    Remove(L"My Menu");
    EXPECT_FALSE(registry.KeyExists(kList));
}

TEST_F(Removing, SiblingsKeepTheirPositions)
{
    Open();
    Remove(L"My Menu");
    EXPECT_FALSE(registry.CustomExists(L"Messaging", L"Index"));
}

TEST_F(Removing, ABuiltInItemStays)
{
    Open();
    const std::wstring before = registry.CustomDump();
    Remove(L"Programs/Notes");
    Remove(L"Tools");
    Remove(L"");
    EXPECT_EQ(before, registry.CustomDump());
    EXPECT_NE(nullptr, tree.Find(L"Programs/Notes"));
    EXPECT_NE(nullptr, tree.Find(L"Tools"));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(Removing, WithoutASelectionNothingGoes)
{
    Open();
    tree.Select(nullptr);
    const std::wstring before = registry.CustomDump();
    SendCommand(dialog, CommandRemove);
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(Removing, WithoutAnItemIsAnInternalError)
{
    Open();
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = tree.Find(L"Programs/Maps");
    item.lParam = 0;
    SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    Select(L"Programs/Maps");
    PostCommand(dialog, CommandRemove);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(Removing, DoneAfterwardsWritesTheOtherBoxes)
{
    Open();
    Remove(L"My Menu");
    tree.SetBox(tree.Find(L"Messaging"), BoxOff);
    Done();
    EXPECT_EQ(1u, registry.CustomDword(L"Messaging", L"Inactive"));
}
