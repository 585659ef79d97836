// Names of any length and writing, translations, and texts and messages from outside.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Wait.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/TranslationFixture.h"

namespace
{

constexpr const wchar_t* kMyMenu = L"User 1";

class EditText : public EditFixture
{
protected:
    // Names the user menu in the registry, opens Edit Item for it and checks what it shows.
    void OpenNamed(const std::wstring& name)
    {
        registry.SetText((std::wstring(kCustomMenu) + L"\\User 1").c_str(), L"Text", name);
        Open();
        tree.Select(tree.Next(tree.Find(L"Tools"), TVGN_NEXT));
        PostCommand(dialog, CommandEdit);
        edit = run->WaitForDialog(L"Edit Item");
        ASSERT_NE(nullptr, edit);
        EXPECT_TRUE(Name() == name);
    }
    // Renames the user menu and checks that every character arrives.
    void ExpectTaken(const std::wstring& name)
    {
        SetName(name);
        EndEdit(IDOK);
        EXPECT_TRUE(registry.CustomText(kMyMenu, L"Text") == name);
    }
    void Translate(const std::wstring& entries)
    {
        SetInstallFolder(registry, folder);
        WriteTranslation(folder, entries);
    }

    CTempFolder folder;
};

} // namespace

TEST_F(EditText, OfFiveThousandCharactersIsShownAndTakenWhole)
{
    OpenNamed(std::wstring(5000, L'n') + L"!");
    ExpectTaken(std::wstring(6000, L'm') + L"?");
}

TEST_F(EditText, RightToLeftAndBeyondTheBasicPlaneIsKept)
{
    OpenNamed(L"\u05E9\u05DC\u05D5\u05DD \u202E\u0645\u0631\u062D\u0628\u0627");
    ExpectTaken(L"\U0001F4C1 \U0001D49C \u05E9");
}

TEST_F(EditText, OfHalvesOfCharactersIsKept)
{
    OpenNamed(L"\xD83D lone \xDCC1");
    ExpectTaken(L"\xDCC1\xD83D");
}

TEST_F(EditText, IsNoFormatAndNoPrefix)
{
    OpenNamed(L"&File %s %n \\ | \"");
    ExpectTaken(L"%1000000d &&");
}

TEST_F(EditText, ALongPathIsShownWholeAndNotChanged)
{
    const std::wstring path = L"\\" + std::wstring(4999, L'p') + L".exe";
    registry.SetText((std::wstring(kCustomMenu) + L"\\Programs\\User 3").c_str(), L"File", path);
    OpenEdit(L"Programs/Maps");
    EXPECT_EQ(static_cast<int>(path.size()), GetWindowTextLengthW(Control(kPathId)));
    EndEdit(IDOK);
    EXPECT_TRUE(registry.CustomText(L"Programs\\User 3", L"File") == path);
}

TEST_F(EditText, ALongImagePathIsDrawnHereWithoutAsking)
{
    const std::wstring path = L"\\" + std::wstring(5000, L'p') + L".exe,-5";
    registry.SetText((std::wstring(kCustomMenu) + L"\\Programs\\User 3").c_str(), L"ImagePath",
                     path);
    StartProcess(5, true);
    OpenEdit(L"Programs/Maps");
    EXPECT_TRUE(WaitUntil([this] { return IsPreviewWhite(); }));
    EXPECT_TRUE(process->Requests().empty());
    OpenChoice();
    EXPECT_EQ(6, Count());
    EXPECT_TRUE(Asked(kDrawFile).empty());
    EndChoice(IDOK);
}

TEST_F(EditText, SetFromOutsideIsWhatDoneTakes)
{
    OpenEdit(L"My Menu");
    SendMessageW(Control(kNameId), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"from outside"));
    SetWindowTextW(Control(kChangeId), L"another button");
    SetWindowTextW(Control(kIconId), L"a text on the preview");
    SetWindowTextW(edit, L"Edit Item");
    EndEdit(IDOK);
    EXPECT_EQ(L"from outside", registry.CustomText(kMyMenu, L"Text"));
}

TEST_F(EditText, TheDialogsAreTranslated)
{
    Translate(L"Edit Item|Eintrag\nChange...|Anders...\nName:|Wie:\nIcon:|Bild:\nPath:|Wo:\n"
              L"Choose Icon|Bild\nDone|Fertig\nCancel|Zur\u00FCck\n");
    Open();
    Select(L"Programs/Maps");
    PostCommand(dialog, CommandEdit);
    edit = run->WaitForDialog(L"Eintrag");
    ASSERT_NE(nullptr, edit);
    EXPECT_EQ(L"Wie:", TextOf(Control(216)));
    EXPECT_EQ(L"Wo:", TextOf(Control(217)));
    EXPECT_EQ(L"Bild:", TextOf(Control(218)));
    EXPECT_EQ(L"Anders...", TextOf(Control(kChangeId)));
    EXPECT_EQ(L"Fertig", SoftKeyText(edit, 0));
    PostCommand(edit, kChangeId);
    choice = run->WaitForDialog(L"Bild");
    ASSERT_NE(nullptr, choice);
    EXPECT_EQ(L"Zur\u00FCck", SoftKeyText(choice, 1));
}

// The whole dialog is translated when its controls are filled, the name included.
TEST_F(EditText, ANameThatHasATranslationIsShownAndTakenTranslated)
{
    Translate(L"My Menu|Mein Men\u00FC\n");
    OpenEdit(L"My Menu");
    EXPECT_EQ(L"Mein Men\u00FC", Name());
    EndEdit(IDOK);
    EXPECT_EQ(L"Mein Men\u00FC", registry.CustomText(kMyMenu, L"Text"));
    EXPECT_NE(nullptr, tree.Find(L"Mein Men\u00FC"));
}

TEST_F(EditText, APathThatHasATranslationIsShownTranslatedButStaysTheSame)
{
    Translate(L"\\\\Program Files\\\\maps.exe|Karten\n");
    OpenEdit(L"Programs/Maps");
    EXPECT_EQ(L"Karten", TextOf(Control(kPathId)));
    EndEdit(IDOK);
    EXPECT_EQ(L"\\Program Files\\maps.exe", registry.CustomText(L"Programs\\User 3", L"File"));
}

TEST_F(EditText, ForgedMessagesAreSurvived)
{
    StartProcess();
    OpenEdit(L"Programs/Maps");
    OpenChoice();
    const CFaultCounter faults(module->Handle());
    for (const HWND window : {edit, choice})
    {
        SendMessageW(window, WM_NOTIFY, kIconListId, 4);
        SendMessageW(window, WM_SETTINGCHANGE, 0x3002, -1);
        SendMessageW(window, WM_SIZE, 0, -1);
        SendMessageW(window, WM_SIZE, SIZE_MINIMIZED, 0);
        SendMessageW(window, WM_COPYDATA, 0, 0);
        SendMessageW(window, RegisterWindowMessageW(L"PPCD_ScrollMessage"), 0x80000000, 0);
    }
    SendMessageW(Control(kIconId), WM_SIZE, 0, -1);
    EXPECT_EQ(0, faults.Count());
    EndChoice(IDOK);
    EndEdit(IDOK);
    Done();
}
