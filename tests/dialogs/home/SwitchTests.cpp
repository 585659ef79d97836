// Switching boxes: the limit, the bold marks, and the messages that no honest sender sends.
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/Wait.h"

namespace
{

using HomeSwitch = HomeFixture;

} // namespace

// The limit.

TEST_F(HomeSwitch, AFifthOfFourIsRefusedWithTheMessageAndStaysUnchecked)
{
    Open(4);
    for (const wchar_t* const path : {L"Tools", L"Tools/Alarm", L"Settings", L"My Menu"})
        Switch(path);
    PostSwitch(L"Messaging");
    ExpectLimitMessage(L"Only 4 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Messaging"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"My Menu"));
}

TEST_F(HomeSwitch, WhatWasPinnedBeforeCounts)
{
    StoreList({{MenuName(L"Tools"), kPinned}, {LinkName(L"Programs\\Mail.exe"), kPinned}});
    Open(2);
    PostSwitch(L"Settings");
    ExpectLimitMessage(L"Only 2 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Settings"));
}

TEST_F(HomeSwitch, ScannedEntriesCountLikeMenuItems)
{
    Open(1);
    Switch(L"Programs/Games/Bubbles");
    PostSwitch(L"Programs/Mail");
    ExpectLimitMessage(L"Only 1 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Programs/Mail"));
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Programs/Games/Bubbles"));
}

TEST_F(HomeSwitch, UncheckingMakesRoomForAnother)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    Open(1);
    Switch(L"Tools");
    Switch(L"Settings");
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Settings"));
    PostSwitch(L"Tools");
    ExpectLimitMessage(L"Only 1 items may be pinned");
}

TEST_F(HomeSwitch, WithALimitOfNoneNothingCanBeChecked)
{
    Open(0);
    PostSwitch(L"Tools");
    ExpectLimitMessage(L"Only 0 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools"));
    EXPECT_FALSE(IsBold(L""));
}

TEST_F(HomeSwitch, TheGreatestLimitIsNoneAtAll)
{
    Open(0xFFFFFFFF);
    Switch(L"Tools");
    Switch(L"Settings");
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Settings"));
}

TEST_F(HomeSwitch, ARefusedBoxLeavesTheBoldMarksAlone)
{
    StoreList({{MenuName(L"Tools\\Alarm"), kPinned}});
    Open(1);
    PostSwitch(L"Settings/Clock");
    ExpectLimitMessage(L"Only 1 items may be pinned");
    EXPECT_FALSE(IsBold(L"Settings"));
    EXPECT_TRUE(IsBold(L"Tools"));
}

TEST_F(HomeSwitch, TheLimitsMessageIsTranslated)
{
    const CTempFolder folder;
    WriteTranslation(folder, L"Only %d items may be pinned|Höchstens %d\n");
    SetInstallFolder(registry, folder);
    Open(0);
    PostSwitch(L"Tools");
    ExpectLimitMessage(L"Höchstens 0");
}

TEST_F(HomeSwitch, ATranslationWithAnotherPlaceholderIsNotUsed)
{
    const CTempFolder folder;
    WriteTranslation(folder, L"Only %d items may be pinned|%s%n%1000000d\n");
    SetInstallFolder(registry, folder);
    Open(0);
    PostSwitch(L"Tools");
    ExpectLimitMessage(L"Only 0 items may be pinned");
}

// Bold marks.

TEST_F(HomeSwitch, CheckingMakesAllAncestorsBold)
{
    Open();
    Switch(L"Programs/Games/Bubbles");
    for (const wchar_t* const path : {L"", L"Programs", L"Programs/Games"})
        EXPECT_TRUE(IsBold(path)) << path;
    EXPECT_FALSE(IsBold(L"Programs/Games/Bubbles"));
    EXPECT_FALSE(IsBold(L"Tools"));
}

TEST_F(HomeSwitch, UncheckingTheLastOneMakesThemNormalAgain)
{
    StoreList({{LinkName(L"Programs\\Games\\Bubbles.lnk"), kPinned}});
    Open();
    Switch(L"Programs/Games/Bubbles");
    for (const wchar_t* const path : {L"", L"Programs", L"Programs/Games"})
        EXPECT_FALSE(IsBold(path)) << path;
}

TEST_F(HomeSwitch, AMenuStaysBoldAsLongAsSomethingInItIsChecked)
{
    Open();
    Switch(L"Tools/Alarm");
    Switch(L"Tools/Backup");
    Switch(L"Programs/Mail");
    Switch(L"Tools/Alarm");
    EXPECT_TRUE(IsBold(L"Tools"));
    Switch(L"Tools/Backup");
    EXPECT_FALSE(IsBold(L"Tools"));
    EXPECT_TRUE(IsBold(L""));
}

TEST_F(HomeSwitch, AMenuThatIsCheckedItselfIsBoldOnlyForWhatIsInIt)
{
    Open();
    Switch(L"Tools");
    Switch(L"Tools/Alarm");
    EXPECT_TRUE(IsBold(L"Tools"));
    Switch(L"Tools/Alarm");
    EXPECT_FALSE(IsBold(L"Tools"));
    EXPECT_TRUE(IsBold(L""));
}

// Forged messages.

TEST_F(HomeSwitch, AMessageAboutNoNodeOfTheTreeIsIgnored)
{
    Open(0);
    const CFaultCounter faults(module->Handle());
    const std::wstring before = tree.Dump();
    const HTREEITEM node = tree.Find(L"Tools");
    for (const LPARAM garbage :
         {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000),
          reinterpret_cast<LPARAM>(node) + 8, reinterpret_cast<LPARAM>(TVI_ROOT)})
        EXPECT_EQ(0, SendMessageW(dialog, kBoxSwitched, 0, garbage));
    EXPECT_EQ(before, tree.Dump());
    EXPECT_EQ(0, faults.Count());
}

TEST_F(HomeSwitch, AMessageWithoutASwitchedBoxChangesNothing)
{
    StoreList({{MenuName(L"Tools"), kPinned}});
    Open(2);
    const auto send = [this](const wchar_t* path)
    { SendMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(tree.Find(path))); };
    for (int i = 0; i < 5; ++i)
    {
        send(L"Tools");
        send(L"Settings");
    }
    // One of two is checked, whatever was said: there is room for exactly one.
    Switch(L"Messaging");
    EXPECT_EQ(static_cast<UINT>(BoxOn), BoxOf(L"Messaging"));
    PostSwitch(L"Settings");
    ExpectLimitMessage(L"Only 2 items may be pinned");
}

TEST_F(HomeSwitch, AMessageAboutANodeWithoutABoxChangesNothing)
{
    Open(0);
    const std::wstring before = tree.Dump();
    SendMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(tree.Find(L"Programs/Games")));
    EXPECT_EQ(before, tree.Dump());
}

TEST_F(HomeSwitch, ForgedNotificationsAreDropped)
{
    Open();
    const CFaultCounter faults(module->Handle());
    Select(L"Tools");
    const std::wstring before = tree.Dump();
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1)})
        SendMessageW(dialog, WM_NOTIFY, kTreeId, data);
    for (const HWND from : {HWND(nullptr), dialog, run->Owner()})
    {
        NMTVKEYDOWN key = {};
        key.hdr = {from, kTreeId, static_cast<UINT>(TVN_KEYDOWN)};
        key.wVKey = VK_RETURN;
        SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&key));
    }
    EXPECT_EQ(before, tree.Dump());
    EXPECT_EQ(0, faults.Count());
}
