// The dialog base: start-up in its steps, and how a dialog ends.
#include "frame/Localizer.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/TranslationFixture.h"
#include "tests/ui/DialogFixture.h"
#include "ui/DialogFonts.h"

#include <string>
#include <vector>

namespace
{

class PPCDialog : public DialogFixture
{
};

// The same on every size of screen.
class PPCDialogGeometry : public DialogFixture
{
};

std::wstring TextOf(HWND window)
{
    wchar_t text[200] = {};
    GetWindowTextW(window, text, 200);
    return text;
}

std::vector<HWND> g_focused;

HWND WINAPI RecordFocus(HWND window)
{
    g_focused.push_back(window);
    return nullptr;
}

// The code of the exception that `call` throws; 0 without one.
template <class Call>
HRESULT CodeThrownBy(Call call)
{
    try
    {
        call();
    }
    catch (const CTavException& exception)
    {
        return exception.Code();
    }
    return S_OK;
}

} // namespace

TEST_F(PPCDialog, KeepsTheCaptionOfItsTemplate)
{
    CTestDialog dialog;
    Run(dialog, [](HWND window) { EXPECT_EQ(L"Test Dialog", TextOf(window)); });
}

TEST_F(PPCDialog, ACaptionThatIsSetReplacesTheTemplates)
{
    CTestDialog dialog;
    dialog.Caption = L"Another";
    dialog.onInit = [](HWND window) { EXPECT_EQ(L"Another", TextOf(window)); };
    Run(dialog, [](HWND window) { EXPECT_EQ(L"Another", TextOf(window)); });
}

TEST_F(PPCDialog, TheScrollMessageIsRegisteredByItsName)
{
    CTestDialog dialog;
    EXPECT_EQ(0u, dialog.ScrollMessage);
    Run(dialog, [](HWND) {});
    EXPECT_EQ(RegisterWindowMessageW(L"PPCD_ScrollMessage"), dialog.ScrollMessage);
}

TEST_F(PPCDialog, FontsAndFirstEntriesAreThereBeforeItsOwnStartUp)
{
    CTestDialog dialog;
    dialog.onInit = [](HWND window)
    {
        const HWND edit = GetDlgItem(window, IDC_FIRST);
        EXPECT_EQ(CDialogFonts::Instance().Get(false),
                  reinterpret_cast<HFONT>(SendMessageW(edit, WM_GETFONT, 0, 0)));
        EXPECT_EQ(2, SendDlgItemMessageW(window, IDC_LIST, LB_GETCOUNT, 0, 0));
        EXPECT_EQ(2, SendDlgItemMessageW(window, IDC_COMBO, CB_GETCOUNT, 0, 0));
    };
    Run(dialog, [](HWND) {});
}

TEST_F(PPCDialog, IsTranslatedAfterItsOwnStartUp)
{
    const CTempFolder folder;
    GetLocalizer().LoadFile(
        WriteTranslation(folder, L"mine|meins\nDone|Fertig\nTest Dialog|Dialog\nRed|Rot\n")
            .c_str());
    CTestDialog dialog;
    dialog.onInit = [](HWND window)
    {
        EXPECT_EQ(L"Test Dialog", TextOf(window));
        SetDlgItemTextW(window, IDC_FIRST, L"mine");
        CreateMenuBar(window, IDR_DONE_CANCEL, SHCMBF_HMENU);
    };
    Run(dialog,
        [](HWND window)
        {
            EXPECT_EQ(L"Dialog", TextOf(window));
            EXPECT_EQ(L"meins", TextOf(GetDlgItem(window, IDC_FIRST)));
            wchar_t text[100] = {};
            SendDlgItemMessageW(window, IDC_COMBO, CB_GETLBTEXT, 0, reinterpret_cast<LPARAM>(text));
            EXPECT_STREQ(L"Rot", text);
            TBBUTTONINFOW info = {};
            info.cbSize = sizeof(info);
            info.dwMask = TBIF_TEXT;
            info.pszText = text;
            info.cchText = 100;
            SendMessageW(SHFindMenuBar(window), TB_GETBUTTONINFOW, IDOK,
                         reinterpret_cast<LPARAM>(&info));
            EXPECT_STREQ(L"Fertig", text);
        });
}

TEST_F(PPCDialog, GivesTheFirstControlTheFocusWhenItsStartUpAsksForIt)
{
    CTestDialog dialog;
    dialog.focusFirst = TRUE;
    Run(dialog, [](HWND window) { EXPECT_EQ(GetDlgItem(window, IDC_FIRST), GetFocus()); });
}

TEST_F(PPCDialog, OtherwiseItLeavesTheFocusToTheSystem)
{
    const CImportPatch patch(GetModuleHandleW(nullptr), "user32.dll", "SetFocus", RecordFocus);
    g_focused.clear();
    CTestDialog dialog;
    Run(dialog, [](HWND) {});
    EXPECT_TRUE(g_focused.empty());
    dialog.focusFirst = TRUE;
    HWND first = nullptr;
    Run(dialog, [&](HWND window) { first = GetDlgItem(window, IDC_FIRST); });
    EXPECT_EQ(std::vector<HWND>{first}, g_focused);
}

TEST_F(PPCDialogGeometry, FillsTheScreenAboveTheSoftKeys)
{
    CTestDialog dialog;
    dialog.onInit = [](HWND window)
    {
        InitShellDialog(window, SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
        CreateMenuBar(window, IDR_DONE_CANCEL, SHCMBF_HMENU);
    };
    Run(dialog,
        [](HWND window)
        {
            RECT own = {};
            GetWindowRect(window, &own);
            RECT bar = {};
            GetWindowRect(SHFindMenuBar(window), &bar);
            EXPECT_EQ(0, own.left);
            EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), own.right);
            EXPECT_EQ(0, own.top);
            EXPECT_LE(own.bottom, bar.top);
            EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), bar.bottom);
        });
}

TEST_F(PPCDialogGeometry, TheMainControlIsFittedAtStartUp)
{
    CTestDialog dialog;
    int top = 0;
    dialog.onInit = [&](HWND window)
    {
        dialog.MainControl = GetDlgItem(window, IDC_MAIN);
        top = static_cast<int>(RectInParent(dialog.MainControl).top);
    };
    Run(dialog,
        [&](HWND window)
        {
            const RECT rect = RectInParent(dialog.MainControl);
            const RECT client = ClientOf(window);
            EXPECT_EQ(0, rect.left);
            EXPECT_EQ(top, rect.top);
            EXPECT_EQ(client.right, rect.right);
            EXPECT_EQ(client.bottom, rect.bottom);
        });
}

TEST_F(PPCDialog, DoneIsTheDialogsOwnMatter)
{
    CTestDialog dialog;
    EXPECT_EQ(IDOK, Run(dialog, [](HWND window) { SendMessageW(window, WM_COMMAND, IDOK, 0); }));
    EXPECT_EQ(1, dialog.confirmed);
    EXPECT_TRUE(dialog.Ended);
}

TEST_F(PPCDialog, CancelEndsItWithIdCancel)
{
    CTestDialog dialog;
    EXPECT_EQ(IDCANCEL,
              Run(dialog, [](HWND window) { SendMessageW(window, WM_COMMAND, IDCANCEL, 0); }));
    EXPECT_EQ(0, dialog.confirmed);
    EXPECT_TRUE(dialog.Ended);
}

TEST_F(PPCDialog, CanRunAgain)
{
    CTestDialog dialog;
    Run(dialog, [](HWND window) { SendMessageW(window, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(IDOK, Run(dialog, [&](HWND) { EXPECT_FALSE(dialog.Ended); }));
}

TEST_F(PPCDialog, RunningItTwiceAtOnceIsABrokenPrecondition)
{
    CTestDialog dialog;
    HRESULT code = S_OK;
    Run(dialog, [&](HWND window) { code = CodeThrownBy([&] { dialog.RunModal(window); }); });
    EXPECT_EQ(static_cast<HRESULT>(0x84000001), code);
}

TEST_F(PPCDialog, EndingItWithoutAWindowIsABrokenPrecondition)
{
    CTestDialog dialog;
    EXPECT_EQ(static_cast<HRESULT>(0x84000001), CodeThrownBy([&] { dialog.EndWith(IDOK); }));
    EXPECT_FALSE(dialog.Ended);
}

TEST_F(PPCDialog, AnExceptionInItsStartUpLeavesTheRun)
{
    CTestDialog dialog;
    HWND window = nullptr;
    dialog.onInit = [&](HWND created)
    {
        window = created;
        ThrowBroken();
    };
    EXPECT_EQ(static_cast<HRESULT>(0x84000001),
              CodeThrownBy([&] { dialog.RunModal(owner.get()); }));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(IsWindowEnabled(owner.get()));
}

TEST_F(PPCDialog, ATemplateWithoutFirstEntriesIsNoError)
{
    CPlainDialog dialog;
    EXPECT_EQ(IDOK, Run(dialog, [](HWND) {}));
}
