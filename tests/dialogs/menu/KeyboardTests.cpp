// The menu editor worked by keys alone, as on a handheld without a stylus.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/Wait.h"

namespace
{

class Keyboard : public EditorFixture
{
protected:
    void Press(WORD key, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            PressKey(key);
    }
    // Presses keys until the node at a path is selected.
    void Walk(std::initializer_list<WORD> keys, const std::wstring& path)
    {
        for (const WORD key : keys)
            PressKey(key);
        ASSERT_TRUE(WaitUntil([&] { return tree.Selected() == tree.Find(path); }));
    }
    // Opens the soft key's menu and chooses the entry that a number of presses of `key` leads to.
    void Choose(WORD key, int times)
    {
        Press(VK_F2);
        ASSERT_NE(nullptr, run->WaitForPopup());
        Press(key, times);
        Press(VK_RETURN);
        ASSERT_TRUE(WaitUntil([&] { return run->OpenPopup() == nullptr; }));
    }
};

} // namespace

TEST_F(Keyboard, TheTreeHasTheFocusFromTheStart)
{
    Open();
    Walk({VK_HOME, VK_DOWN}, L"Programs");
}

TEST_F(Keyboard, TheLeftSoftKeyIsDone)
{
    Open();
    Press(VK_F1);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(TRUE, run->Result());
}

TEST_F(Keyboard, EscapeCancels)
{
    Open();
    Press(VK_ESCAPE);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(FALSE, run->Result());
}

TEST_F(Keyboard, AWholeEditNeedsNoStylus)
{
    Open();
    // Into Programs, down to Calendar, up by one place.
    Walk({VK_HOME, VK_DOWN, VK_RIGHT, VK_DOWN, VK_DOWN}, L"Programs/Calendar");
    Choose(VK_DOWN, 1);
    ASSERT_TRUE(WaitUntil([&] { return tree.ChildrenOf(L"Programs")[0] == L"Calendar"; }));
    // Switched off.
    Press(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return tree.BoxOf(tree.Find(L"Programs/Calendar")) == BoxOff; }));
    // Maps goes: Remove is the fourth entry that can be reached.
    Walk({VK_DOWN, VK_DOWN, VK_DOWN}, L"Programs/Maps");
    Choose(VK_DOWN, 4);
    ASSERT_TRUE(WaitUntil([&] { return tree.Find(L"Programs/Maps") == nullptr; }));
    Press(VK_F1);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(TRUE, run->Result());
    EXPECT_EQ(1u, registry.CustomDword(L"Programs\\Calendar", L"Inactive"));
    EXPECT_EQ(0u, registry.CustomDword(L"Programs\\Calendar", L"Index"));
    EXPECT_FALSE(registry.CustomExists(L"Programs\\User 3", L"File"));
}

TEST_F(Keyboard, MenuOptionsNeedNoStylusEither)
{
    Open();
    Walk({VK_HOME, VK_DOWN}, L"Programs");
    // The last entry.
    Choose(VK_UP, 1);
    const HWND options = run->WaitForDialog(L"Menu Options ('Programs')");
    ASSERT_NE(nullptr, options);
    const auto checked = [&](int id)
    { return SendDlgItemMessageW(options, id, BM_GETCHECK, 0, 0) == BST_CHECKED; };
    // The layout has the focus: on to Grid, to the first box, to the second.
    Press(VK_DOWN);
    ASSERT_TRUE(WaitUntil([&] { return checked(211); }));
    Press(VK_TAB);
    Press(VK_SPACE);
    ASSERT_TRUE(WaitUntil([&] { return checked(212); }));
    Press(VK_TAB);
    Press(VK_SPACE);
    ASSERT_TRUE(WaitUntil([&] { return checked(213); }));
    Press(VK_F1);
    run->WaitForDialog(L"Customize Menu");
    EXPECT_EQ(L"Grid", registry.CustomText(L"Programs", L"DrawType"));
    EXPECT_EQ(7u, registry.CustomDword(L"Programs", L"RtFlags"));
}

TEST_F(Keyboard, TheRightSoftKeyOfMenuOptionsIsCancel)
{
    Open();
    OpenOptions(L"Programs", L"Menu Options ('Programs')");
    Press(VK_F2);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_FALSE(registry.CustomExists(L"Programs", L"DrawType"));
}

TEST_F(Keyboard, TheMenuKeyOpensTheContextMenu)
{
    Open();
    Walk({VK_HOME, VK_DOWN}, L"Programs");
    Press(VK_APPS);
    EXPECT_NE(nullptr, run->WaitForPopup());
}
