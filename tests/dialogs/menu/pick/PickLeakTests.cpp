// Opening and closing the pickers again and again leaves nothing behind.
#include "tests/support/DeviceRoot.h"
#include "tests/support/DialogRun.h"
#include "tests/support/FilterWindow.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/StartMenu.h"
#include "tests/support/TreeDriver.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;
constexpr UINT kAddLink = 32783;
constexpr UINT kAddFile = 32785;

// What the timer does with each dialog that it finds open; works on the dialogs' own thread, since
// a thread per round would cost memory of its own.
UINT g_command;
bool g_pickerWanted;
int g_pickersSeen;

void ExpandAll(const CTreeDriver& tree, HTREEITEM node)
{
    for (; node; node = tree.Next(node, TVGN_NEXT))
    {
        tree.Expand(node);
        ExpandAll(tree, tree.Next(node, TVGN_CHILD));
    }
}

void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    if (TextOf(dialog) != L"Customize Menu")
    {
        const CTreeDriver entries(GetDlgItem(dialog, g_command == kAddFile ? 207 : 209));
        ExpandAll(entries, entries.Find(L""));
        ++g_pickersSeen;
    }
    else if (g_pickerWanted)
    {
        const CTreeDriver tree(GetDlgItem(dialog, 203));
        tree.Select(tree.Find(L"Programs"));
        g_pickerWanted = false;
        PostMessageW(dialog, WM_COMMAND, g_command, 0);
        return;
    }
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

class PickLeaks : public testing::Test
{
protected:
    PickLeaks() : m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog)) {}
    ~PickLeaks() override { KillTimer(nullptr, m_timer); }

    // `forget` gives back what the test itself gathered.
    void ExpectNothingLeft(
        UINT command, const std::function<void()>& forget = [] {})
    {
        g_command = command;
        Run(kWarmUp);
        forget();
        g_pickersSeen = 0;
        ExpectNothingLeftBy(
            [&]
            {
                Run(kRounds);
                forget();
            });
        EXPECT_GE(g_pickersSeen, kRounds);
    }

private:
    void Run(int rounds)
    {
        for (int i = 0; i < rounds; ++i)
        {
            g_pickerWanted = true;
            ASSERT_FALSE(m_module.CustomizeMenu(nullptr, 0, 0, 0));
        }
    }

    CMenuSandbox m_registry;
    CModule m_module;
    UINT_PTR m_timer;
};

} // namespace

TEST_F(PickLeaks, OpeningBrowsingAndClosingSelectFileTwoHundredTimes)
{
    const CDeviceRoot device;
    device.AddFile(L"\\Windows\\Programs\\calc.exe");
    device.AddFile(L"\\Windows\\a.lnk");
    device.AddFile(L"\\Storage Card\\game.exe");
    ExpectNothingLeft(kAddFile);
}

TEST_F(PickLeaks, OpeningBrowsingAndClosingSelectLinkTwoHundredTimes)
{
    const CStartMenu start;
    CFilterWindow filter;
    start.AddFile(L"Programs\\Games\\Chess.lnk");
    start.AddFile(L"Programs\\Mail.lnk");
    ExpectNothingLeft(kAddLink, [&] { filter.ForgetQuestions(); });
}
