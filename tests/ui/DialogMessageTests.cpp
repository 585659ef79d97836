// The messages that every dialog answers.
#include "tests/support/Pixels.h"
#include "tests/ui/DialogFixture.h"
#include "tests/support/ProcessPatch.h"

#include <climits>

namespace
{

class DialogMessages : public DialogFixture
{
};

// The same on every size of screen.
class DialogMessagesGeometry : public DialogFixture
{
};

} // namespace

TEST_F(DialogMessagesGeometry, ARotatedScreenFitsTheMainControlAgain)
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

TEST_F(DialogMessages, AnyOtherSettingFitsNothing)
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

TEST_F(DialogMessages, EverySettingIsAnsweredWithZero)
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

TEST_F(DialogMessages, ASettingsTextIsNeverLookedAt)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND)
        {
            for (const WPARAM setting : {0x3002u, 0u})
                EXPECT_TRUE(dialog.Offer(WM_SETTINGCHANGE, setting, 4));
        });
}

TEST_F(DialogMessages, ErasingItsBackgroundEnablesTheOwner)
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

TEST_F(DialogMessages, ErasingWithoutAnOwnerDoesNothing)
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

TEST_F(DialogMessagesGeometry, TheScrollMessageRepaintsWhatIsLeftOfTheBand)
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

TEST_F(DialogMessages, TheScrollMessageForTheSamePlaceRepaintsNothing)
{
    CTestDialog dialog;
    Run(dialog, [&](HWND window) { EXPECT_EQ(0, RepaintedBy(dialog, window, 0).bottom); });
}

TEST_F(DialogMessages, TheScrollMessageErasesWhatItRepaints)
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

TEST_F(DialogMessages, AForgedScrollMessageIsHarmless)
{
    CTestDialog dialog;
    Run(dialog,
        [&](HWND window)
        {
            EXPECT_EQ(ClientOf(window).bottom, RepaintedBy(dialog, window, INT_MIN).bottom);
            EXPECT_EQ(Px(24), RepaintedBy(dialog, window, INT_MAX).bottom);
        });
}

TEST_F(DialogMessages, BeforeTheScrollMessageIsKnownNoMessageIsTakenForIt)
{
    CTestDialog dialog;
    EXPECT_FALSE(dialog.Offer(WM_NULL, 5));
}

TEST_F(DialogMessages, HelpOpensTheDialogsTopic)
{
    const CProcessPatch processes;
    CTestDialog dialog;
    dialog.topic = L"Chapter";
    Run(dialog, [](HWND window) { SendMessageW(window, WM_HELP, 0, 0); });
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"TavLumenar.htm#Chapter", processes.Started()[0].commandLine);
}

TEST_F(DialogMessages, HelpWithoutATopicOpensTheMainContents)
{
    const CProcessPatch processes;
    CTestDialog dialog;
    // The structure that comes with the message is not looked at.
    Run(dialog, [](HWND window) { SendMessageW(window, WM_HELP, 0, 4); });
    ASSERT_EQ(1u, processes.Started().size());
    EXPECT_EQ(L"TavLumenar.htm#Main_Contents", processes.Started()[0].commandLine);
}

TEST_F(DialogMessages, ANotificationOfAnOwnControlIsTaken)
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

TEST_F(DialogMessages, AForgedNotificationIsNotTaken)
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
