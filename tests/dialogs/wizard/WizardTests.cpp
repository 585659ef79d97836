// The dialog as a whole: its call, its controls, what it has of the other dialogs and what not.
#include "tests/dialogs/wizard/WizardFixture.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/ProcessPatch.h"

#include <climits>

namespace
{

class Wizard : public WizardFixture
{
protected:
    void OpenBy(std::function<BOOL(HWND)> call)
    {
        module = std::make_unique<CModule>();
        run = std::make_unique<CDialogRun>(std::move(call));
        dialog = run->WaitForDialog(L"Tav Lumenar");
        ASSERT_NE(nullptr, dialog);
    }
};

} // namespace

TEST_F(Wizard, DoneReturnsTrueAndCancelFalse)
{
    Open();
    End(IDOK);
    Open();
    End(IDCANCEL);
}

TEST_F(Wizard, IsOwnedByTheActiveWindowWhateverTheArguments)
{
    OpenBy([this](HWND) { return module->InstallWizard(0xFFFFFFFF, 0x12345678, 1, 0x80000000); });
    EXPECT_EQ(run->Owner(), GetWindow(dialog, GW_OWNER));
    End(IDOK);
    EXPECT_TRUE(run->OwnerEnabledAtEnd());
}

TEST_F(Wizard, WithoutAnActiveWindowHasNoOwner)
{
    OpenBy(
        [this](HWND owner)
        {
            ShowWindow(owner, SW_HIDE);
            SetActiveWindow(nullptr);
            EXPECT_EQ(nullptr, GetActiveWindow());
            return module->InstallWizard(0, 0, 0, 0);
        });
    EXPECT_EQ(nullptr, GetWindow(dialog, GW_OWNER));
    End(IDOK);
}

TEST_F(Wizard, HasTheSoftKeysDoneAndCancel)
{
    Open();
    ASSERT_EQ(2, SoftKeyCount(dialog));
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(dialog, 1));
    EXPECT_EQ(static_cast<UINT>(IDOK), SoftKeyCommand(dialog, 0));
    EXPECT_EQ(static_cast<UINT>(IDCANCEL), SoftKeyCommand(dialog, 1));
}

TEST_F(Wizard, HasItsControlsInOrder)
{
    Open();
    const struct
    {
        int id;
        const wchar_t* className;
        const wchar_t* text;
        LONG set;
        LONG clear;
    } kControls[] = {
        {kClassicPicture, L"Static", L"", WS_VISIBLE, 0},
        {kProfessionalPicture, L"Static", L"", WS_VISIBLE, 0},
        {kClassic, L"Button", L"Classic", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 0},
        {kProfessional, L"Button", L"Professional", BS_AUTORADIOBUTTON, WS_GROUP},
        {0xFFFF, L"SIPPREF", L"", 0, WS_VISIBLE}};
    HWND control = GetWindow(dialog, GW_CHILD);
    for (const auto& expected : kControls)
    {
        wchar_t name[32] = {};
        GetClassNameW(control, name, 32);
        const LONG style = GetWindowLongW(control, GWL_STYLE);
        EXPECT_EQ(expected.id, static_cast<WORD>(GetDlgCtrlID(control)));
        EXPECT_STREQ(expected.className, name) << expected.id;
        EXPECT_EQ(expected.text, TextOf(control)) << expected.id;
        EXPECT_EQ(expected.set, style & expected.set) << expected.id;
        EXPECT_EQ(0, style & expected.clear) << expected.id;
        control = GetWindow(control, GW_HWNDNEXT);
    }
    EXPECT_EQ(nullptr, control);
}

TEST_F(Wizard, TheButtonsAreBold)
{
    Open();
    for (const int id : {kClassic, kProfessional})
    {
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Control(id), WM_GETFONT, 0, 0)),
                   sizeof(font), &font);
        EXPECT_EQ(700, font.lfWeight);
        EXPECT_EQ(Px(13), font.lfHeight);
        EXPECT_STREQ(L"Tahoma", font.lfFaceName);
    }
}

TEST_F(Wizard, TheFirstControlHasTheFocus)
{
    Open();
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(run->ThreadId(), &info);
    EXPECT_EQ(Control(kClassicPicture), info.hwndFocus);
}

TEST_F(Wizard, TheChoiceCanBeMadeByKeys)
{
    OpenWithPictures();
    PressKey(VK_TAB);
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([this] { return IsChecked(kProfessional); }));
    EXPECT_FALSE(IsChecked(kClassic));
}

TEST_F(Wizard, TheChoiceCanBeMadeByAPress)
{
    OpenWithPictures();
    TapScreen(MiddleOf(Control(kProfessional)));
    EXPECT_TRUE(WaitUntil([this] { return IsChecked(kProfessional); }));
}

TEST_F(Wizard, HasNoTitleBand)
{
    Open();
    const COLORREF background = GetSysColor(COLOR_BTNFACE);
    const int right = GetSystemMetrics(SM_CXSCREEN) - 1;
    EXPECT_TRUE(TurnsInto(background, 0, Px(23)));
    EXPECT_TRUE(TurnsInto(background, right, Px(23)));
    EXPECT_TRUE(TurnsInto(background, Px(1), Px(1)));
    // The dialog's background is asked of it, so that something would have been painted by now.
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_FALSE(GetUpdateRect(dialog, nullptr, FALSE));
    EXPECT_TRUE(TurnsInto(background, 0, Px(23)));
}

TEST_F(Wizard, PaintingEnablesTheOwnerLikeInAnyDialog)
{
    Open();
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_TRUE(IsWindowEnabled(run->Owner()));
}

TEST_F(Wizard, IsTranslated)
{
    WriteWizardArchive(folder, BothPictures());
    WriteTranslation(folder, L"Tav Lumenar|Tav Lumenar Start\nClassic|Klassisch\n"
                             L"Professional|Fachlich\nDone|Fertig\n");
    Open(L"Tav Lumenar Start");
    EXPECT_EQ(L"Klassisch", TextOf(Control(kClassic)));
    EXPECT_EQ(L"Fachlich", TextOf(Control(kProfessional)));
    EXPECT_EQ(L"Fertig", SoftKeyText(dialog, 0));
    Choose(kProfessional);
    End(IDOK);
    EXPECT_EQ(L"Detailed", StoredType());
}

TEST_F(Wizard, WithoutAnInstallationFolderOpensAllTheSame)
{
    registry.SetText(L"SOFTWARE\\Orvane 2\\Tav Lumenar", L"InstallDir", L"");
    Open();
    EXPECT_EQ(nullptr, ImageOf(kClassicPicture));
    End(IDOK);
}

TEST_F(Wizard, HelpShowsTheMainContents)
{
    Open();
    ExpectHelp(module->Handle(), dialog);
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(Wizard, ForgedMessagesChangeNothing)
{
    OpenWithPictures();
    const CFaultCounter faults(module->Handle());
    const std::wstring before = registry.Dump(L"");
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1)})
    {
        SendMessageW(dialog, WM_NOTIFY, kClassic, data);
        SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, data);
    }
    const UINT scroll = RegisterWindowMessageW(L"PPCD_ScrollMessage");
    for (const int position : {INT_MIN, -1, 0, 24, INT_MAX})
        EXPECT_EQ(0, SendMessageW(dialog, scroll, static_cast<WPARAM>(position), 0));
    for (const UINT command : {0u, 3u, 221u, 224u, 0xFFFFu})
        SendCommand(dialog, command);
    EXPECT_TRUE(IsChecked(kClassic));
    EXPECT_EQ(before, registry.Dump(L""));
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(0, faults.Count());
}
