// Seeding a device: what stands in the registry afterwards, and that the module's model reads it.
#include "device/Seed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "device/Keys.h"
#include "device/Shortcut.h"
#include "menu/MenuKeys.h"
#include "menu/MenuTree.h"
#include "platform/Handles.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

constexpr const wchar_t* kFolder = L"C:\\Device";

int DepthOf(const CMenuItem& item)
{
    int depth = 0;
    for (const CMenuItem* above = item.Parent; above; above = above->Parent)
        ++depth;
    return depth;
}

void Collect(const CMenuItem& item, std::vector<const CMenuItem*>& items)
{
    for (const CMenuItemPtr& child : item.Children)
    {
        items.push_back(child.get());
        Collect(*child, items);
    }
}

class Seed : public testing::Test
{
protected:
    void SetUp() override { seed::WriteRegistry(kFolder); }

    std::vector<const CMenuItem*> Load(bool includeSettings)
    {
        m_tree = std::make_unique<CMenuTree>(includeSettings);
        m_tree->Load();
        std::vector<const CMenuItem*> items;
        Collect(*m_tree->Root, items);
        return items;
    }

    std::vector<std::wstring> TextsOfFirstLevel()
    {
        Load(false);
        std::vector<std::wstring> texts;
        for (const CMenuItemPtr& child : m_tree->Root->Children)
            texts.push_back(child->Text);
        return texts;
    }

    CRegistrySandbox m_hive;
    std::unique_ptr<CMenuTree> m_tree;
};

} // namespace

TEST_F(Seed, TheMenuHasAtLeastSixtyItemsWithoutTheSettings)
{
    EXPECT_GE(Load(false).size(), 60u);
}

TEST_F(Seed, TheMenuIsFourLevelsDeep)
{
    int deepest = 0;
    for (const CMenuItem* item : Load(false))
        deepest = std::max(deepest, DepthOf(*item));
    EXPECT_GE(deepest, 4);
}

TEST_F(Seed, TheSettingsBranchHasChildrenForThoseWhoAskForThem)
{
    EXPECT_GE(Load(true).size(), Load(false).size() + 15);
}

TEST_F(Seed, TheFirstLevelStandsInTheUsersOrder)
{
    const std::vector<std::wstring> expected = {
        L"Programs", L"Contacts",   L"Messaging",     L"Calendar",   L"Favorites",
        L"Office",   L"Multimedia", L"Games",         L"Tools",      L"Connect",
        L"Help",     L"Settings",   L"Task Switcher", L"Accessories"};
    EXPECT_EQ(expected, TextsOfFirstLevel());
}

TEST_F(Seed, UserItemsAndHiddenItemsAreLoadedAndLeftoversAreNot)
{
    int user = 0;
    int hidden = 0;
    for (const CMenuItem* item : Load(false))
    {
        user += item->IsUserItem();
        hidden += item->Inactive;
        EXPECT_NE(L"Organizer", item->KeyPath.substr(item->KeyPath.rfind(L'\\') + 1));
    }
    EXPECT_GE(user, 8);
    EXPECT_GE(hidden, 5);
}

TEST_F(Seed, SeedingAgainChangesNothing)
{
    const std::wstring before = m_hive.Dump(L"SOFTWARE");
    seed::WriteRegistry(kFolder);
    EXPECT_EQ(before, m_hive.Dump(L"SOFTWARE"));
}

TEST_F(Seed, ASeededDeviceKnowsIt)
{
    EXPECT_TRUE(seed::IsSeeded());
    seed::EraseRegistry();
    EXPECT_FALSE(seed::IsSeeded());
}

TEST_F(Seed, ErasingLeavesNothingOfTheProductAndTheSharedComponent)
{
    m_hive.SetDword(L"\\SOFTWARE\\Orvane\\Shared\\Other", L"Kept", 1);
    seed::EraseRegistry();
    EXPECT_FALSE(m_hive.KeyExists(keys::kProduct));
    EXPECT_FALSE(m_hive.KeyExists(keys::kSharedComponent));
    EXPECT_TRUE(m_hive.KeyExists(L"\\SOFTWARE\\Orvane\\Shared\\Other"));
}

TEST_F(Seed, TheInstallationFolderIsKnown)
{
    EXPECT_EQ(kFolder, m_hive.Text(keys::kProduct, L"InstallDir"));
}

TEST_F(Seed, ARatingListIsStoredAsWordPairsAndNumberedNames)
{
    const std::wstring list = std::wstring(kRatingsRootPath) + L"\\Games";
    const std::string expected("\x01\x00\x14\x00\x00\x00\x06\x00", 8);
    EXPECT_EQ(expected, m_hive.Raw(list.c_str(), L"Index"));
    EXPECT_EQ(L"m:\\SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root\\Games\\Card Games",
              m_hive.Text(list.c_str(), L"0"));
    EXPECT_EQ(26u, m_hive.Dword(list.c_str(), L"Timestamp"));
    EXPECT_FALSE(m_hive.ValueExists(list.c_str(), L"Layout"));
}

TEST(SeedFiles, EveryShortcutOfTheStartMenuIsWrittenAndCanBeRead)
{
    wchar_t folder[MAX_PATH];
    GetTempPathW(MAX_PATH, folder);
    const std::wstring startMenu =
        std::wstring(folder) + L"tav-seed-" + std::to_wstring(GetCurrentProcessId());
    ASSERT_TRUE(seed::WriteStartMenu(startMenu, L"C:\\shell.exe"));
    const std::wstring file = startMenu + L"\\Programs\\Games\\Chess.lnk";
    const UniqueFile handle(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    ASSERT_TRUE(handle);
    char bytes[256];
    DWORD length = 0;
    ASSERT_TRUE(ReadFile(handle.get(), bytes, sizeof(bytes), &length, nullptr));
    EXPECT_EQ("50#\"\\Program Files\\Games\\Chess.exe\"?C:\\shell.exe,-117",
              std::string(bytes, length));
}
