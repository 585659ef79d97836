// Edit Item and Choose Icon worked by keys alone, and by the stylus.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

class EditKeyboard : public EditFixture
{
protected:
    // The display server hands keys to the window that it was told of last.
    void OpenByKeys(const std::wstring& path)
    {
        OpenEdit(path);
        SetForegroundWindow(edit);
    }
    static void Press(std::initializer_list<WORD> keys)
    {
        for (const WORD key : keys)
            PressKey(key);
    }
    // Opens Edit Item for the user menu, the fourth node below the root, from the editor's menu.
    void OpenFromTheTree()
    {
        Open();
        Press({VK_HOME, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN});
        ASSERT_TRUE(WaitUntil([&] { return tree.Selected() == tree.Find(L"My Menu"); }));
        PressKey(VK_F2);
        ASSERT_NE(nullptr, run->WaitForPopup());
        // The third entry that can be reached.
        Press({VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN});
        edit = run->WaitForDialog(L"Edit Item");
        ASSERT_NE(nullptr, edit);
        EXPECT_TRUE(HasFocus(kNameId));
    }
    bool HasFocus(int id) const
    {
        return WaitUntil([=] { return run->Focus() == Control(id); });
    }
    void TabTo(int id) const
    {
        PressKey(VK_TAB);
        EXPECT_TRUE(HasFocus(id)) << id;
    }
    void ExpectName(const std::wstring& name) const
    {
        EXPECT_TRUE(WaitUntil([&] { return Name() == name; })) << Name();
    }
    // Opens Choose Icon by a key on the button.
    void OpenChoiceBy(WORD key)
    {
        PressKey(key);
        choice = run->WaitForDialog(L"Choose Icon");
        ASSERT_NE(nullptr, choice);
        list = GetDlgItem(choice, kIconListId);
        EXPECT_TRUE(WaitUntil([&] { return run->Focus() == list; }));
    }
    void PressUntilSelected(WORD key, int place) const
    {
        PressKey(key);
        EXPECT_TRUE(WaitUntil([=] { return PlaceWith(LVNI_SELECTED) == place; }))
            << PlaceWith(LVNI_SELECTED);
    }
};

} // namespace

TEST_F(EditKeyboard, TheNameHasTheFocusFromTheStart)
{
    for (const wchar_t* path : {L"My Menu", L"Programs/Maps"})
    {
        OpenEdit(path);
        EXPECT_TRUE(HasFocus(kNameId));
        EndEdit(IDCANCEL);
    }
    OpenAdd(L"Programs");
    EXPECT_TRUE(HasFocus(kNameId));
}

TEST_F(EditKeyboard, AMenuIsRenamedAndGetsAnotherIconWithoutTheStylus)
{
    StartProcess();
    OpenFromTheTree();
    PressKey(VK_END);
    PressKey('A');
    ExpectName(L"My Menua");
    TabTo(kChangeId);
    OpenChoiceBy(VK_SPACE);
    PressUntilSelected(VK_HOME, 0);
    PressUntilSelected(VK_RIGHT, 1);
    PressUntilSelected(VK_RIGHT, 2);
    PressKey(VK_F1);
    EXPECT_EQ(edit, run->WaitForDialog(L"Edit Item"));
    ExpectPreview(ColourOfIcon(102));
    PressKey(VK_F1);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_EQ(L"My Menua", registry.CustomText(L"User 1", L"Text"));
    EXPECT_EQ(102u, registry.CustomDword(L"User 1", L"Image"));
}

TEST_F(EditKeyboard, ALinksPathIsReachedAndReadButNotTyped)
{
    OpenByKeys(L"Programs/Maps");
    TabTo(kPathId);
    PressKey(VK_END);
    PressKey('A');
    TabTo(kChangeId);
    EXPECT_EQ(L"\\Program Files\\maps.exe", TextOf(Control(kPathId)));
    TabTo(kNameId);
}

TEST_F(EditKeyboard, EnterOnTheButtonOpensChooseIcon)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    TabTo(kChangeId);
    OpenChoiceBy(VK_RETURN);
}

TEST_F(EditKeyboard, EnterInChooseIconIsDone)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    TabTo(kChangeId);
    OpenChoiceBy(VK_SPACE);
    PressUntilSelected(VK_HOME, 0);
    PressUntilSelected(VK_RIGHT, 1);
    PressKey(VK_RETURN);
    EXPECT_EQ(edit, run->WaitForDialog(L"Edit Item"));
    ExpectPreview(ColourOfIcon(101));
}

TEST_F(EditKeyboard, ArrowsWalkThroughRowsAndColumns)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    OpenChoice();
    EXPECT_TRUE(WaitUntil([&] { return run->Focus() == list; }));
    PressUntilSelected(VK_HOME, 0);
    RECT client = {};
    GetClientRect(list, &client);
    const int perRow = static_cast<int>(client.right) / 42;
    PressUntilSelected(VK_DOWN, perRow);
    PressUntilSelected(VK_RIGHT, perRow + 1);
    PressUntilSelected(VK_LEFT, perRow);
    PressUntilSelected(VK_UP, 0);
    PressUntilSelected(VK_END, 39);
}

TEST_F(EditKeyboard, TheRightSoftKeyCancelsEachDialog)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    const std::wstring before = registry.CustomDump();
    OpenChoice();
    PressKey(VK_F2);
    EXPECT_EQ(edit, run->WaitForDialog(L"Edit Item"));
    PressKey(VK_F2);
    EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(EditKeyboard, AfterChooseIconTheButtonHasTheFocusAgain)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    TabTo(kChangeId);
    OpenChoiceBy(VK_SPACE);
    PressKey(VK_F1);
    EXPECT_EQ(edit, run->WaitForDialog(L"Edit Item"));
    EXPECT_TRUE(HasFocus(kChangeId));
}

TEST_F(EditKeyboard, ATapChoosesAnIcon)
{
    StartProcess();
    OpenByKeys(L"My Menu");
    OpenChoice();
    RECT rect = {LVIR_ICON, 0, 0, 0};
    ToList(LVM_GETITEMRECT, 6, reinterpret_cast<LPARAM>(&rect));
    POINT centre = {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    ClientToScreen(list, &centre);
    TapScreen(centre);
    EXPECT_TRUE(WaitUntil([&] { return PlaceWith(LVNI_SELECTED) == 6; }));
    EndChoice(IDOK);
    ExpectPreview(ColourOfIcon(106));
}
