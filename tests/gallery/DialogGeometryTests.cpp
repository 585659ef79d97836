// Every view of the dialogs, in every language and on every size of screen: nothing is cut off,
// overlaps or leaves its place.
#include "tests/gallery/GalleryFixture.h"

#include "resources/resource.h"
#include "tests/support/Wait.h"

namespace
{

// Where the sample menu has a folder with many items, the user's favourites with a link, and the
// games.
constexpr int kOffice = 5;
constexpr int kFavorites = 4;
constexpr int kGames = 7;

// As many of the menu's entries as are pinned in the sample.
constexpr DWORD kPinned = 2;

class GalleryGeometryIn : public GalleryFixture
{
protected:
    HWND Tree(HWND dialog) const { return FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr); }

    // Looks over the editor and its menus with a folder open.
    void CheckEditor(HWND editor)
    {
        ExpandNode(Tree(editor), SelectNode(Tree(editor), {kOffice}));
        Check("customize-menu").Dialog(editor);
        CheckSoftKeyMenu();
        CheckContextMenu(editor);
    }
    void CheckSoftKeyMenu()
    {
        PressKey(VK_F2);
        ASSERT_NE(nullptr, run->WaitForPopup());
        Check("customize-menu-popup").Menus(run->ThreadId());
        // The last but one entry opens the menu of things to add.
        const HWND first = run->OpenPopup();
        for (const WORD key : std::initializer_list<WORD>{VK_UP, VK_UP, VK_RIGHT})
            PressKey(key);
        EXPECT_TRUE(WaitUntil([&] { return run->OpenPopup() != first; }));
        Check("customize-menu-add").Menus(run->ThreadId());
        CloseMenus();
    }
    void CheckContextMenu(HWND editor)
    {
        PostMessageW(editor, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(Tree(editor)),
                     MAKELPARAM(-1, -1));
        ASSERT_NE(nullptr, run->WaitForPopup());
        Check("customize-menu-context").Menus(run->ThreadId());
        CloseMenus();
    }
    // Looks over a dialog that a command of the editor opens for the selected node.
    void CheckCommand(HWND editor, UINT command, const char* view)
    {
        SCOPED_TRACE(view);
        const HWND dialog = OpenWith(editor, command);
        Check(view).Dialog(dialog);
        EndBack(dialog, editor);
    }
    void CheckChooseIcon(HWND editor)
    {
        const HWND edit = OpenWith(editor, ID_EDIT_ITEM);
        const HWND choice = OpenWith(edit, IDC_CHANGE_ICON);
        Check("choose-icon").Dialog(choice);
        EndBack(choice, edit);
        EndBack(edit, editor);
    }
    void CheckNow(const char* view)
    {
        const HWND dialog =
            Open([this](HWND owner) { return module->CustomizeNow(owner, 0, 0, 0); });
        Check(view).Dialog(dialog);
        End(dialog);
    }
    void CheckCities(const char* view)
    {
        CITYINFO city = {};
        const HWND dialog = Open([&](HWND owner) { return module->SelectCity(owner, &city, 0); });
        Check(view).Dialog(dialog);
        End(dialog);
    }
};

} // namespace

TEST_P(GalleryGeometryIn, TheMenuEditorAndItsMenusShowTheirTextsWhole)
{
    const HWND editor = OpenEditor();
    CheckEditor(editor);
    End(editor);
}

TEST_P(GalleryGeometryIn, TheEditorsDialogsShowTheirTextsWhole)
{
    const HWND editor = OpenEditor();
    SelectNode(Tree(editor), {kGames});
    CheckCommand(editor, ID_MENU_OPTIONS, "menu-options");
    SelectNode(Tree(editor), {kFavorites});
    CheckCommand(editor, ID_EDIT_ITEM, "edit-menu");
    CheckCommand(editor, ID_ADD_FILE, "select-file");
    CheckCommand(editor, ID_ADD_LINK, "select-link");
    SelectNode(Tree(editor), {kFavorites, 0});
    CheckCommand(editor, ID_EDIT_ITEM, "edit-item");
    CheckChooseIcon(editor);
    End(editor);
}

TEST_P(GalleryGeometryIn, ManagePinnedAndItsMessageShowTheirTextsWhole)
{
    const HWND dialog =
        Open([this](HWND owner) { return module->CustomizeHome(owner, kPinned, 0, 0); });
    const HWND tree = Tree(dialog);
    ExpandNode(tree, SelectNode(tree, {kOffice}));
    Check("customize-home").Dialog(dialog);
    // One more than there is room for.
    SelectNode(tree, {kGames});
    PressKey(VK_RETURN);
    const HWND box = WaitForNext(dialog);
    Check("customize-home-limit").MessageBox(box);
    PostCommand(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return run->InnermostDialog() == dialog; }));
    End(dialog);
}

TEST_P(GalleryGeometryIn, CustomizeNowShowsItsTextsWholeWithAndWithoutPlugins)
{
    CheckNow("customize-now");
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Orvane\\Shared\\Tav Menu\\Now");
    CheckNow("customize-now-empty");
}

// Only with its pictures: without them its buttons are as narrow as the pictures are not there.
TEST_P(GalleryGeometryIn, TheInstallWizardShowsItsTextsWhole)
{
    const HWND dialog = Open([this](HWND) { return module->InstallWizard(0, 0, 0, 0); });
    Check("install-wizard").Dialog(dialog, TitleBand::None);
    End(dialog);
}

TEST_P(GalleryGeometryIn, SelectCityShowsItsTextsWholeWithAndWithoutCities)
{
    CheckCities("select-city");
    device.RemoveCities();
    CheckCities("select-city-no-database");
}

INSTANTIATE_TEST_SUITE_P(All, GalleryGeometryIn, testing::ValuesIn(DeviceLanguages()),
                         LanguageName);
