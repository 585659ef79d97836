// The menu editor and what it opens, on a screen that turns while they are open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

constexpr int kGrid = 211;
constexpr const wchar_t* kOptionsOfPrograms = L"Menu Options ('Programs')";

class MenuTurnGeometry : public EditorFixture
{
protected:
    HWND OpenPopup()
    {
        PostMessageW(dialog, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tree.Window()),
                     MAKELPARAM(-1, -1));
        return run->WaitForPopup();
    }

    CTurningScreen screen;
};

} // namespace

TEST_F(MenuTurnGeometry, TheEditorFillsTheTurnedScreenAndTheUprightOneAgain)
{
    Open();
    ExpectControlFills(dialog, tree.Window());
    screen.Turn();
    ExpectControlFills(dialog, tree.Window());
    screen.Turn();
    ExpectControlFills(dialog, tree.Window());
}

TEST_F(MenuTurnGeometry, FocusSelectionAndExpandedFoldersStay)
{
    Open();
    tree.Expand(Select(L"Programs"));
    const HTREEITEM node = Select(L"Programs/Calendar");
    ASSERT_EQ(tree.Window(), run->Focus());
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(dialog);
        EXPECT_EQ(tree.Window(), run->Focus());
        EXPECT_EQ(node, tree.Selected());
        EXPECT_TRUE(tree.IsExpanded(tree.Find(L"Programs")));
        EXPECT_EQ(dialog, run->InnermostDialog());
    }
}

TEST_F(MenuTurnGeometry, WhatWasScrolledToIsStillThereAfterwards)
{
    Open();
    for (const wchar_t* const folder : {L"Programs", L"Programs/Games", L"Tools", L"My Menu"})
        tree.Expand(tree.Find(folder));
    const HTREEITEM last = Select(L"Messaging");
    SendMessageW(tree.Window(), TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(last));
    const LRESULT first = SendMessageW(tree.Window(), TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0);
    screen.Turn();
    ExpectFillsRoom(dialog);
    EXPECT_EQ(first, SendMessageW(tree.Window(), TVM_GETNEXTITEM, TVGN_FIRSTVISIBLE, 0));
}

TEST_F(MenuTurnGeometry, BoxesThatWereSwitchedBeforeAreWrittenByDoneAfterwards)
{
    Open();
    tree.SetBox(tree.Find(L"Programs/Calendar"), BoxOff);
    screen.Turn();
    ExpectFillsRoom(dialog);
    EXPECT_EQ(static_cast<UINT>(BoxOff), tree.BoxOf(tree.Find(L"Programs/Calendar")));
    Done();
    EXPECT_EQ(1u, registry.CustomDword(L"Programs\\Calendar", L"Inactive"));
}

TEST_F(MenuTurnGeometry, ThePopupOfTheSoftKeyCloses)
{
    Open();
    const HWND toolbar = SoftKeyBar(dialog);
    const RECT keys = RectOf(toolbar);
    TapScreen({keys.right - 20, (keys.top + keys.bottom) / 2});
    ASSERT_NE(nullptr, run->WaitForPopup());
    screen.Turn();
    EXPECT_TRUE(WaitUntil([&] { return run->OpenPopup() == nullptr; }));
    ExpectControlFills(dialog, tree.Window());
}

TEST_F(MenuTurnGeometry, TheContextMenuCloses)
{
    Open();
    Select(L"Programs");
    ASSERT_NE(nullptr, OpenPopup());
    screen.Turn();
    EXPECT_TRUE(WaitUntil([&] { return run->OpenPopup() == nullptr; }));
    ExpectControlFills(dialog, tree.Window());
    EXPECT_EQ(dialog, run->InnermostDialog());
}

TEST_F(MenuTurnGeometry, MenuOptionsAndTheEditorBelowItBothFollow)
{
    Open();
    const HWND options = OpenOptions(L"Programs", kOptionsOfPrograms);
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(options);
        ExpectControlFills(dialog, tree.Window());
    }
}

TEST_F(MenuTurnGeometry, WhatWasChosenInMenuOptionsIsWrittenAfterATurn)
{
    Open();
    const HWND options = OpenOptions(L"Programs", kOptionsOfPrograms);
    SendDlgItemMessageW(options, kGrid, BM_CLICK, 0, 0);
    screen.Turn();
    ExpectFillsRoom(options);
    EXPECT_EQ(BST_CHECKED, SendDlgItemMessageW(options, kGrid, BM_GETCHECK, 0, 0));
    PostCommand(options, IDOK);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_EQ(L"Grid", registry.CustomText(L"Programs", L"DrawType"));
}
