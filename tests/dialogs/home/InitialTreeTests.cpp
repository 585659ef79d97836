// What Manage Pinned shows when it opens.
#include "tests/dialogs/home/HomeFixture.h"

#include <set>

namespace
{

using HomeTree = HomeFixture;

constexpr const wchar_t* kUnpinned = L"- Tav Menu\n"
                                     L"  - Programs\n"
                                     L"    - Calculator\n"
                                     L"      Games\n"
                                     L"      - Bubbles\n"
                                     L"    - Mail\n"
                                     L"  - Settings\n"
                                     L"    - Clock\n"
                                     L"  - Tools\n"
                                     L"    - Alarm\n"
                                     L"    - Backup\n"
                                     L"  - My Menu\n"
                                     L"    - Radio\n"
                                     L"  - Messaging\n";

} // namespace

TEST_F(HomeTree, ShowsTheWholeMenuWithSettingsAndTheStartMenuInPlaceOfPrograms)
{
    Open();
    EXPECT_EQ(kUnpinned, tree.Dump());
    EXPECT_TRUE(tree.IsExpanded(tree.Find(L"")));
    EXPECT_FALSE(tree.IsExpanded(tree.Find(L"Programs")));
}

TEST_F(HomeTree, MenuItemsHaveTheirIdsAndScannedEntriesNegativeNumbers)
{
    Open();
    std::set<LPARAM> ids;
    for (const wchar_t* const path : {L"", L"Programs", L"Settings/Clock", L"Tools/Alarm"})
    {
        EXPECT_GT(tree.DataOf(tree.Find(path)), 0) << path;
        ids.insert(tree.DataOf(tree.Find(path)));
    }
    EXPECT_EQ(4u, ids.size());
    for (const wchar_t* const path :
         {L"Programs/Calculator", L"Programs/Games", L"Programs/Games/Bubbles", L"Programs/Mail"})
    {
        EXPECT_LT(tree.DataOf(tree.Find(path)), 0) << path;
        EXPECT_GE(tree.DataOf(tree.Find(path)), -4) << path;
    }
}

TEST_F(HomeTree, PinnedMenusAndLinksAreChecked)
{
    StoreList({{MenuName(L"Tools\\Alarm"), kPinned},
               {LinkName(L"Programs\\Games\\Bubbles.lnk"), kPinned},
               {LinkName(L"Programs\\Mail.exe"), 100},
               {MenuName(L"Settings"), 50}});
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools/Alarm"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Games/Bubbles"));
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Programs/Mail")) << "listed, but not pinned";
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Settings"));
}

TEST_F(HomeTree, NamesAreComparedIgnoringCase)
{
    std::wstring menu = MenuName(L"Tools\\Alarm");
    std::wstring link = LinkName(L"Programs\\Mail.exe");
    CharUpperW(menu.data());
    CharUpperW(link.data());
    ASSERT_EQ(L'M', menu[0]);
    StoreList({{menu, kPinned}, {link, kPinned}});
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools/Alarm"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Mail"));
}

TEST_F(HomeTree, TheRootTheProgramsMenuAndSharedAndUserItemsCanBePinned)
{
    StoreList({{MenuName(L""), kPinned},
               {MenuName(L"Programs"), kPinned},
               {L"m:\\" + std::wstring(kSharedMenu) + L"\\Messaging", kPinned},
               {L"m:\\" + std::wstring(kCustomMenu) + L"\\User 1\\User 2", kPinned}});
    Open();
    for (const wchar_t* const path : {L"", L"Programs", L"Messaging", L"My Menu/Radio"})
        EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(path)) << path;
}

TEST_F(HomeTree, ALinksNameDoesNotCheckAMenuNorAMenusNameALink)
{
    StoreList({{L"l:" + MenuName(L"Tools\\Alarm").substr(2), kPinned},
               {L"m:" + start.PathOf(L"Programs\\Mail.exe"), kPinned}});
    Open();
    EXPECT_EQ(kUnpinned, tree.Dump());
}

TEST_F(HomeTree, AMenuItemThatStandsForAShortcutOpensUnchecked)
{
    registry.AddUserLink(L"User 4", L"Shortcut", 9, L"\\Windows\\s.lnk");
    StoreList({{L"l:\\Windows\\s.lnk", kPinned}});
    Open();
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Shortcut"));
}

TEST_F(HomeTree, OnlyAsManyEntriesAsMayBePinnedAreRead)
{
    StoreList({{MenuName(L"Tools"), kPinned},
               {MenuName(L"Tools\\Alarm"), kPinned},
               {MenuName(L"Tools\\Backup"), kPinned}});
    Open(2);
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools/Alarm"));
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools/Backup"));
}

TEST_F(HomeTree, AnythingMayBeTheLimit)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    for (const DWORD limit : {DWORD(0xFFFFFFFF), DWORD(0x80000000), DWORD(1)})
    {
        Open(limit);
        EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Tools")) << limit;
        Cancel();
    }
    Open(0);
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools"));
}

// Bold marks.

TEST_F(HomeTree, AMenuWithAPinnedLinkDeepInsideIsBoldWithAllItsAncestors)
{
    StoreList({{LinkName(L"Programs\\Games\\Bubbles.lnk"), kPinned}});
    Open();
    for (const wchar_t* const path : {L"", L"Programs", L"Programs/Games"})
        EXPECT_TRUE(IsBold(path)) << path;
    for (const wchar_t* const path : {L"Programs/Games/Bubbles", L"Programs/Mail", L"Tools"})
        EXPECT_FALSE(IsBold(path)) << path;
}

TEST_F(HomeTree, ACheckedNodeIsNotBoldByItself)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    Open();
    EXPECT_TRUE(IsBold(L""));
    EXPECT_FALSE(IsBold(L"Tools"));
}

TEST_F(HomeTree, NothingPinnedIsNothingBold)
{
    Open();
    for (const wchar_t* const path : {L"", L"Programs", L"Programs/Games", L"Tools", L"My Menu"})
        EXPECT_FALSE(IsBold(path)) << path;
}

// The launcher-menu process.

TEST_F(HomeTree, WithoutTheLauncherMenuTheProgramsBranchIsEmpty)
{
    filter.reset();
    Open();
    EXPECT_EQ(Lines{}, tree.ChildrenOf(L"Programs"));
    EXPECT_EQ(2u, tree.ChildrenOf(L"Tools").size());
}

TEST_F(HomeTree, WhatTheLauncherMenuRejectsIsNotShown)
{
    filter.reset();
    filter = std::make_unique<CFilterWindow>([](const std::wstring& path)
                                             { return path.find(L"Mail") == std::wstring::npos; });
    Open();
    EXPECT_EQ((Lines{L"Calculator", L"Games"}), tree.ChildrenOf(L"Programs"));
}

TEST_F(HomeTree, ALauncherMenuThatRejectsEverythingLeavesTheBranchEmpty)
{
    filter.reset();
    filter = std::make_unique<CFilterWindow>([](const std::wstring&) { return 0; });
    Open();
    EXPECT_EQ(Lines{}, tree.ChildrenOf(L"Programs"));
}

TEST_F(HomeTree, ALauncherMenuThatAnswersGarbageShowsEverything)
{
    filter.reset();
    filter = std::make_unique<CFilterWindow>([](const std::wstring&)
                                             { return static_cast<LRESULT>(0x8000000100000000); });
    Open();
    EXPECT_EQ(kUnpinned, tree.Dump());
}

TEST_F(HomeTree, ALauncherMenuThatHangsDelaysTheDialogForOneAnswerOnly)
{
    filter->Behave(ImageProcessManner::Hang);
    Open();
    EXPECT_EQ(Lines{}, tree.ChildrenOf(L"Programs"));
    EXPECT_EQ(1u, filter->Questions().size());
    Switch(L"Tools");
    Done();
    EXPECT_EQ(Lines{L"*" + MenuName(L"Tools")}, List());
}

TEST_F(HomeTree, ALauncherMenuThatDiesLeavesTheBranchEmpty)
{
    filter->Behave(ImageProcessManner::Die);
    Open();
    EXPECT_EQ(Lines{}, tree.ChildrenOf(L"Programs"));
    Done();
}

// Failures of the model.

TEST_F(HomeTree, AnEmptyMenuShowsItsRootAlone)
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE");
    Open();
    EXPECT_EQ(L"- Tav Menu\n", tree.Dump());
}

TEST_F(HomeTree, WithoutAProgramsFolderTheExportThrows)
{
    start.SetPrograms(start.PathOf(L"Nowhere"));
    module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->CustomizeHome(owner, 8, 0, 0); });
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(static_cast<HRESULT>(0x80070002), run->ThrownCode());
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
}

TEST_F(HomeTree, ADamagedListIsReadAsFarAsItGoes)
{
    StoreList({{MenuName(L"Tools"), kPinned}, {MenuName(L"Settings"), kPinned}});
    constexpr const wchar_t* kList = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList";
    const std::string whole = registry.Raw(kList, L"Index");
    for (size_t size = 0; size <= whole.size(); ++size)
    {
        registry.SetRaw(kList, L"Index", REG_BINARY, whole.data(), static_cast<DWORD>(size));
        Open();
        EXPECT_EQ(size >= 4, BoxOf(L"Tools") == BoxOn) << size;
        EXPECT_EQ(size >= 8, BoxOf(L"Settings") == BoxOn) << size;
        Cancel();
    }
}
