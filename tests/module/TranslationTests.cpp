// The dialogs in another language, and without one.
#include "tests/dialogs/menu/support/EditorFixture.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/Wait.h"

namespace
{

constexpr const wchar_t* kGerman = L"Customize Menu|Menü anpassen\n"
                                   L"Done|Fertig\n"
                                   L"Cancel|Abbrechen\n"
                                   L"Menu|Menü\n"
                                   L"Move Up|Nach oben\n"
                                   L"Add|Hinzufügen\n"
                                   L"File...|Datei ...\n"
                                   L"Tav Menu|Startmenü\n"
                                   L"Menu Options ('%s')|Optionen von »%s«\n"
                                   L"One by one|Untereinander\n"
                                   L"Layout|Anordnung\n"
                                   L"Display most used items first|Häufige zuerst\n"
                                   L"Programs|Programme\n"
                                   L"My Menu|Mein Menü\n"
                                   L"Calendar|Kalender\n";

class Translation : public EditorFixture
{
protected:
    // Opens the editor with a translation installed; its title is translated as given.
    void OpenIn(const std::wstring& entries, const std::wstring& title)
    {
        WriteTranslation(folder, entries);
        SetInstallFolder(registry, folder);
        module = std::make_unique<CModule>();
        run = std::make_unique<CDialogRun>([this](HWND owner)
                                           { return module->CustomizeMenu(owner, 0, 0, 0); });
        dialog = run->WaitForDialog(title);
        ASSERT_NE(nullptr, dialog);
        tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    }
    void OpenInGerman() { OpenIn(kGerman, L"Menü anpassen"); }

    CTempFolder folder;
};

} // namespace

TEST_F(Translation, WithoutAFileEverythingIsEnglish)
{
    SetInstallFolder(registry, folder);
    Open();
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Tav Menu", tree.TextOf(tree.Find(L"")));
}

TEST_F(Translation, WithoutAnInstallationFolderEverythingIsEnglish)
{
    Open();
    EXPECT_EQ(L"Menu", SoftKeyText(dialog, 1));
    EXPECT_EQ(L"Move Up", MenuText(MenuOfSoftKey(dialog), 0));
}

TEST_F(Translation, TheSoftKeysAreTranslated)
{
    OpenInGerman();
    EXPECT_EQ(L"Fertig", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Menü", SoftKeyText(dialog, 1));
}

TEST_F(Translation, TheSoftKeysMenuIsTranslatedWithItsSubMenu)
{
    OpenInGerman();
    const HMENU menu = MenuOfSoftKey(dialog);
    EXPECT_EQ(L"Nach oben", MenuText(menu, 0));
    EXPECT_EQ(L"Hinzufügen", MenuText(menu, 6));
    EXPECT_EQ(L"Datei ...", MenuText(GetSubMenu(menu, 6), 2));
    // No entry: English.
    EXPECT_EQ(L"Move Down", MenuText(menu, 1));
}

TEST_F(Translation, TheContextMenuIsTranslated)
{
    OpenInGerman();
    Select(L"");
    PostMessageW(dialog, WM_CONTEXTMENU, 0, MAKELPARAM(10, 10));
    const HWND popup = run->WaitForPopup();
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(popup, MN_GETHMENU, 0, 0));
    EXPECT_EQ(L"Nach oben", MenuText(menu, 0));
    EXPECT_EQ(L"Datei ...", MenuText(GetSubMenu(menu, 6), 2));
}

TEST_F(Translation, TheRootsLabelIsTranslated)
{
    OpenInGerman();
    EXPECT_EQ(L"Startmenü", tree.TextOf(tree.Find(L"")));
}

TEST_F(Translation, BuiltInItemsAreTranslatedAndUsersItemsAreNot)
{
    OpenInGerman();
    EXPECT_NE(nullptr, tree.Find(L"Programme/Kalender"));
    EXPECT_NE(nullptr, tree.Find(L"My Menu"));
}

TEST_F(Translation, MenuOptionsAreTranslated)
{
    OpenInGerman();
    const HWND options = OpenOptions(L"Programme", L"Optionen von »Programme«");
    ASSERT_NE(nullptr, options);
    EXPECT_EQ(L"Untereinander", TextOf(GetDlgItem(options, 210)));
    EXPECT_EQ(L"Grid", TextOf(GetDlgItem(options, 211)));
    EXPECT_EQ(L"Häufige zuerst", TextOf(GetDlgItem(options, 212)));
    EXPECT_EQ(L"Anordnung", TextOf(GetDlgItem(options, 214)));
    EXPECT_EQ(L"Fertig", SoftKeyText(options, 0));
    EXPECT_EQ(L"Abbrechen", SoftKeyText(options, 1));
}

TEST_F(Translation, ACaptionWithHostilePlaceholdersStaysEnglish)
{
    for (const wchar_t* hostile : {L"%n%n%n", L"%s%s%s%s", L"%1000000d", L"no place"})
    {
        OpenIn(std::wstring(L"Menu Options ('%s')|") + hostile + L"\n", L"Customize Menu");
        const HWND options = OpenOptions(L"Programs", L"Menu Options ('Programs')");
        EXPECT_NE(nullptr, options) << hostile;
        run.reset();
        module.reset();
    }
}

TEST_F(Translation, TextsOfAnyLengthAreSurvived)
{
    const std::wstring longText(20000, L'x');
    OpenIn(L"Done|" + longText + L"\nMove Up|" + longText + L"\nTav Menu|" + longText + L"\n",
           L"Customize Menu");
    EXPECT_EQ(255u, SoftKeyText(dialog, 0).size());
    EXPECT_FALSE(tree.TextOf(tree.Find(L"")).empty());
    Done();
}

TEST_F(Translation, TheTranslationMayMakeTheFontsLarger)
{
    OpenIn(L"_LARGE_SMALL_FONTS|1\n", L"Customize Menu");
    LOGFONTW font = {};
    const auto handle = reinterpret_cast<HFONT>(SendMessageW(tree.Window(), WM_GETFONT, 0, 0));
    GetObjectW(handle, sizeof(font), &font);
    EXPECT_EQ(14, font.lfHeight);
}
