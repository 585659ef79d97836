// Edit: which dialog opens for which item, and what its "Done" changes.
#include "tests/dialogs/menu/edit/EditFixture.h"

namespace
{

constexpr HRESULT kBroken = static_cast<HRESULT>(0x84000001);

// Keys of the sample menu's user items in the customisation layer.
constexpr const wchar_t* kMyMenu = L"User 1";
constexpr const wchar_t* kMaps = L"Programs\\User 3";
constexpr const wchar_t* kMapsFile = L"\\Program Files\\maps.exe";

using Lines = std::vector<std::wstring>;

class EditItem : public EditFixture
{
protected:
    // What the edit of one item changes in the registry, with a new name.
    Lines ChangesOfEdit(const std::wstring& path, const std::wstring& name, UINT command = IDOK)
    {
        const std::wstring before = registry.CustomDump();
        OpenEdit(path);
        SetName(name);
        EndEdit(command);
        return DumpDifference(before, registry.CustomDump());
    }
    void ExpectSelectedInView(const std::wstring& path)
    {
        ASSERT_NE(nullptr, tree.Find(path));
        EXPECT_EQ(tree.Find(path), tree.Selected());
        EXPECT_TRUE(tree.IsInView(tree.Selected()));
    }
};

} // namespace

TEST_F(EditItem, OfAUserMenuShowsItsNameAndNoPath)
{
    OpenEdit(L"My Menu");
    EXPECT_EQ(L"My Menu", Name());
    EXPECT_EQ(nullptr, Control(kPathId));
}

TEST_F(EditItem, OfAUserLinkShowsItsNameAndItsPathForReadingOnly)
{
    OpenEdit(L"Programs/Maps");
    EXPECT_EQ(L"Maps", Name());
    EXPECT_EQ(kMapsFile, TextOf(Control(kPathId)));
    EXPECT_NE(0, GetWindowLongW(Control(kPathId), GWL_STYLE) & ES_READONLY);
    SendMessageW(Control(kPathId), WM_CHAR, L'x', 1);
    EXPECT_EQ(kMapsFile, TextOf(Control(kPathId)));
}

TEST_F(EditItem, HasTheSoftKeysDoneAndCancel)
{
    for (const wchar_t* path : {L"My Menu", L"Programs/Maps"})
    {
        OpenEdit(path);
        ASSERT_EQ(2, SoftKeyCount(edit));
        EXPECT_EQ(L"Done", SoftKeyText(edit, 0));
        EXPECT_EQ(UINT{IDOK}, SoftKeyCommand(edit, 0));
        EXPECT_EQ(L"Cancel", SoftKeyText(edit, 1));
        EXPECT_EQ(UINT{IDCANCEL}, SoftKeyCommand(edit, 1));
        EndEdit(IDCANCEL);
    }
}

TEST_F(EditItem, IsOwnedByTheEditor)
{
    OpenEdit(L"My Menu");
    EXPECT_EQ(dialog, GetWindow(edit, GW_OWNER));
    EndEdit(IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(dialog));
}

TEST_F(EditItem, RenamesAUserMenuAndGivesItTheIconThatItShowed)
{
    EXPECT_EQ(
        (Lines{L"+\\User 1|Image=64000000", L"+\\User 1|Text=Mine", L"-\\User 1|Text=My Menu"}),
        ChangesOfEdit(L"My Menu", L"Mine"));
    EXPECT_EQ(nullptr, tree.Find(L"My Menu"));
    ExpectSelectedInView(L"Mine");
    EXPECT_NE(nullptr, tree.Find(L"Mine/Radio"));
}

TEST_F(EditItem, RenamesAUserLinkAndNothingElse)
{
    EXPECT_EQ((Lines{L"+\\Programs\\User 3|Text=Atlas", L"-\\Programs\\User 3|Text=Maps"}),
              ChangesOfEdit(L"Programs/Maps", L"Atlas"));
    ExpectSelectedInView(L"Programs/Atlas");
}

TEST_F(EditItem, KeepsTheIconsNumber)
{
    registry.SetCustom(kMyMenu, L"Image", 105);
    registry.SetCustom(kMaps, L"Image", 106);
    EXPECT_EQ((Lines{L"+\\User 1|Text=Mine", L"-\\User 1|Text=My Menu"}),
              ChangesOfEdit(L"My Menu", L"Mine"));
    EXPECT_EQ((Lines{L"+\\Programs\\User 3|Text=Atlas", L"-\\Programs\\User 3|Text=Maps"}),
              ChangesOfEdit(L"Programs/Maps", L"Atlas"));
}

TEST_F(EditItem, WritesTheChosenIcon)
{
    StartProcess();
    for (const wchar_t* path : {L"My Menu", L"Programs/Maps"})
    {
        OpenEdit(path);
        Choose(3);
        EndEdit(IDOK);
    }
    EXPECT_EQ(103u, registry.CustomDword(kMyMenu, L"Image"));
    EXPECT_EQ(103u, registry.CustomDword(kMaps, L"Image"));
}

TEST_F(EditItem, ChoosingTheFilesOwnIconDeletesTheNumber)
{
    registry.SetCustom(kMaps, L"Image", 106);
    StartProcess(10);
    OpenEdit(L"Programs/Maps");
    Choose(10);
    EndEdit(IDOK);
    EXPECT_FALSE(registry.CustomExists(kMaps, L"Image"));
}

TEST_F(EditItem, ALinkWithoutFileIconCanBeLeftWithoutAny)
{
    registry.SetCustom(kMaps, L"Image", 106);
    registry.SetText((std::wstring(kCustomMenu) + L"\\" + kMaps).c_str(), L"ImagePath", L"");
    StartProcess(10);
    OpenEdit(L"Programs/Maps");
    Choose(kNothing);
    EndEdit(IDOK);
    EXPECT_FALSE(registry.CustomExists(kMaps, L"Image"));
}

TEST_F(EditItem, TakesAnEmptyName)
{
    EXPECT_EQ((Lines{L"+\\Programs\\User 3|Text=", L"-\\Programs\\User 3|Text=Maps"}),
              ChangesOfEdit(L"Programs/Maps", L""));
    EXPECT_EQ(L"", tree.TextOf(tree.Selected()));
}

TEST_F(EditItem, NeverChangesThePath)
{
    OpenEdit(L"Programs/Maps");
    SetWindowTextW(Control(kPathId), L"\\other.exe");
    EndEdit(IDOK);
    EXPECT_EQ(kMapsFile, registry.CustomText(kMaps, L"File"));
    EXPECT_EQ(kMapsFile, registry.CustomText(kMaps, L"ImagePath"));
}

TEST_F(EditItem, CancelledChangesNothing)
{
    StartProcess();
    Open();
    const std::wstring shown = tree.Dump();
    const std::wstring before = registry.CustomDump();
    for (const wchar_t* path : {L"My Menu", L"Programs/Maps"})
    {
        OpenEdit(path);
        SetName(L"other");
        Choose(3);
        EXPECT_EQ(before, registry.CustomDump()) << "nothing is written before Done";
        EndEdit(IDCANCEL);
    }
    EXPECT_EQ(before, registry.CustomDump());
    EXPECT_EQ(shown, tree.Dump());
}

TEST_F(EditItem, OpensForNothingButUserItems)
{
    for (const wchar_t* path :
         {L"", L"Programs", L"Programs/Games", L"Programs/Calendar", L"Settings", L"Messaging"})
        ExpectNothingOpens(CommandEdit, path);
}

TEST_F(EditItem, WithoutASelectionDoesNothing)
{
    Open();
    tree.Select(nullptr);
    ExpectNothingOpens(CommandEdit);
}

TEST_F(EditItem, WithoutAnItemIsAnInternalError)
{
    Open();
    Orphan(L"Programs");
    Select(L"Programs");
    PostCommand(dialog, CommandEdit);
    ExpectThrown(kBroken);
}

TEST_F(EditItem, LeavesAnUnwrittenBoxAlone)
{
    Open();
    tree.SetBox(tree.Find(L"My Menu"), BoxOff);
    ChangesOfEdit(L"My Menu", L"Mine");
    EXPECT_EQ(BoxOff, tree.BoxOf(tree.Find(L"Mine")));
    EXPECT_FALSE(registry.CustomExists(kMyMenu, L"Inactive"));
    Done();
    EXPECT_EQ(1u, registry.CustomDword(kMyMenu, L"Inactive"));
}

TEST_F(EditItem, IsKeptAlthoughTheEditorIsCancelled)
{
    ChangesOfEdit(L"My Menu", L"Mine");
    const std::wstring shown = tree.Dump();
    Cancel();
    Open();
    EXPECT_EQ(shown, tree.Dump());
}

TEST_F(EditItem, ChangesTheItemThatItWasOpenedForAlthoughAnotherIsSelectedMeanwhile)
{
    OpenEdit(L"My Menu");
    SetName(L"Mine");
    Select(L"Programs/Maps");
    EndEdit(IDOK);
    EXPECT_EQ(L"Mine", registry.CustomText(kMyMenu, L"Text"));
    EXPECT_EQ(L"Maps", registry.CustomText(kMaps, L"Text"));
    ExpectSelectedInView(L"Mine");
}

TEST_F(EditItem, OfAnItemThatIsRemovedMeanwhileChangesNothing)
{
    OpenEdit(L"Programs/Maps");
    SendCommand(dialog, CommandRemove);
    ASSERT_EQ(nullptr, tree.Find(L"Programs/Maps"));
    const std::wstring before = registry.CustomDump();
    SetName(L"Atlas");
    EndEdit(IDOK);
    EXPECT_EQ(before, registry.CustomDump());
    Done();
}
