// The dialog base: start-up in its steps, the messages that every dialog answers, how one ends.
#include "frame/Localizer.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Pixels.h"
#include "tests/support/TranslationFixture.h"
#include "tests/ui/DialogFixture.h"
#include "tests/ui/ProcessPatch.h"
#include "ui/DialogFonts.h"

#include <climits>

namespace
{

class PPCDialog : public DialogFixture
{
};

// The same on every size of screen.
class PPCDialogGeometry : public DialogFixture
{
};

RECT ClientOf(HWND window)
{
    RECT rect = {};
    GetClientRect(window, &rect);
    return rect;
}

RECT RectInParent(HWND control)
{
    RECT rect = {};
    GetWindowRect(control, &rect);
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

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

TEST_F(PPCDialogGeometry, ARotatedScreenFitsTheMainControlAgain)
{
    CTestDialog dialog;
    dialog.onInit = [&](HWND window) { dialog.MainControl = GetDlgItem(window, IDC_MAIN); };
    Run(dialog,
        [&](HWND window)
        {
            SetWindowPos(window, nullptr, 0, 0, 150, 140, SWP_NOMOVE | SWP_NOZORDER);
            EXPECT_EQ(0, SendMessageW(window, WM_SETTINGCHANGE, 0x3002, 0));
            EXPECT_EQ(ClientOf(window).right, RectInParent(dialog.MainControl).right);
            EXPECT_EQ(ClientOf(window).bottom, RectInParent(dialog.MainControl).bottom);
        });
}

TEST_F(PPCDialog, AnyOtherSettingFitsNothing)
{
    CTestDialog dialog;
    dialog.onInit = [&](HWND window) { dialog.MainControl = GetDlgItem(window, IDC_MAIN); };
    Run(dialog,
        [&](HWND)
        {
            MoveWindow(dialog.MainControl, 5, 60, 30, 30, FALSE);
            dialog.Offer(WM_SETTINGCHANGE, 0x3001);
            dialog.Offer(WM_SETTINGCHANGE, 0);
            EXPECT_EQ(35, RectInParent(dialog.MainControl).right);
        });
}

TEST_F(PPCDialog, EverySettingIsAnsweredWithZero)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND)
        {
            for (const WPARAM setting : {0x3002u, 0u, 47u, 0xFFFFFFFFu})
            {
                EXPECT_TRUE(dialog.Offer(WM_SETTINGCHANGE, setting));
                EXPECT_EQ(0, dialog.offeredResult);
            }
        });
}

TEST_F(PPCDialog, ASettingsTextIsNeverLookedAt)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND)
        {
            for (const WPARAM setting : {0x3002u, 0u})
                EXPECT_TRUE(dialog.Offer(WM_SETTINGCHANGE, setting, 4));
        });
}

TEST_F(PPCDialog, ErasingItsBackgroundEnablesTheOwner)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND)
        {
            EnableWindow(owner.get(), FALSE);
            EXPECT_FALSE(dialog.Offer(WM_ERASEBKGND, 0)) << "left to default processing";
            EXPECT_TRUE(IsWindowEnabled(owner.get()));
        });
}

TEST_F(PPCDialog, ErasingWithoutAnOwnerDoesNothing)
{
    owner.reset();
    CTestDialog dialog;
    EXPECT_EQ(IDOK, Run(dialog, [&](HWND) { EXPECT_FALSE(dialog.Offer(WM_ERASEBKGND, 0)); }));
}

namespace
{

// What the dialog has to repaint after the scroll message with `position`; empty for nothing.
RECT RepaintedBy(CTestDialog& dialog, HWND window, int position)
{
    UpdateWindow(window);
    EXPECT_EQ(0, SendMessageW(window, dialog.ScrollMessage, static_cast<WPARAM>(position), 0));
    RECT rect = {};
    GetUpdateRect(window, &rect, FALSE);
    ValidateRect(window, nullptr);
    return rect;
}

} // namespace

TEST_F(PPCDialogGeometry, TheScrollMessageRepaintsWhatIsLeftOfTheBand)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            const RECT whole = RepaintedBy(dialog, window, Px(5));
            EXPECT_EQ(0, whole.left);
            EXPECT_EQ(0, whole.top);
            EXPECT_EQ(ClientOf(window).right, whole.right);
            EXPECT_EQ(Px(24), whole.bottom);
            // Scrolling back, the band reaches further down than it does now.
            EXPECT_EQ(Px(28), RepaintedBy(dialog, window, -Px(4)).bottom);
        });
}

TEST_F(PPCDialog, TheScrollMessageForTheSamePlaceRepaintsNothing)
{
    CTestDialog dialog;
    Run(dialog, [&](HWND window) { EXPECT_EQ(0, RepaintedBy(dialog, window, 0).bottom); });
}

TEST_F(PPCDialog, TheScrollMessageErasesWhatItRepaints)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            UpdateWindow(window);
            EnableWindow(owner.get(), FALSE);
            SendMessageW(window, dialog.ScrollMessage, 5, 0);
            UpdateWindow(window);
            // Erasing is what enables the owner.
            EXPECT_TRUE(IsWindowEnabled(owner.get()));
        });
}

TEST_F(PPCDialog, AForgedScrollMessageIsHarmless)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            EXPECT_EQ(ClientOf(window).bottom, RepaintedBy(dialog, window, INT_MIN).bottom);
            EXPECT_EQ(Px(24), RepaintedBy(dialog, window, INT_MAX).bottom);
        });
}

TEST_F(PPCDialog, BeforeTheScrollMessageIsKnownNoMessageIsTakenForIt)
{
    CTestDialog dialog;
    EXPECT_FALSE(dialog.Offer(WM_NULL, 5));
}

TEST_F(PPCDialog, HelpOpensTheDialogsTopic)
{
    const CProcessPatch processes;
    CTestDialog dialog;
    dialog.topic = L"Chapter";
    Run(dialog, [](HWND window) { SendMessageW(window, WM_HELP, 0, 0); });
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"TavLumenar.htm#Chapter", processes.Started()[0].commandLine);
}

TEST_F(PPCDialog, HelpWithoutATopicOpensTheMainContents)
{
    const CProcessPatch processes;
    CTestDialog dialog;
    // The structure that comes with the message is not looked at.
    Run(dialog, [](HWND window) { SendMessageW(window, WM_HELP, 0, 4); });
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"TavLumenar.htm#Main_Contents", processes.Started()[0].commandLine);
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

TEST_F(PPCDialog, ANotificationOfAnOwnControlIsTaken)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            NMHDR header = {};
            header.hwndFrom = GetDlgItem(window, IDC_MAIN);
            header.code = static_cast<UINT>(NM_CLICK);
            EXPECT_TRUE(dialog.Offer(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)));
        });
}

TEST_F(PPCDialog, AForgedNotificationIsNotTaken)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            for (const LPARAM forged : {LPARAM(0), LPARAM(4), LPARAM(-1), LPARAM(0x7FFF00000000)})
                EXPECT_FALSE(dialog.Offer(WM_NOTIFY, 0, forged)) << forged;
            NMHDR header = {};
            header.code = static_cast<UINT>(NM_CLICK);
            for (const HWND foreign : {static_cast<HWND>(nullptr), window, GetDesktopWindow(),
                                       reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF1234))})
            {
                header.hwndFrom = foreign;
                EXPECT_FALSE(dialog.Offer(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header)));
            }
        });
}
