// Opening and closing the dialog again and again leaves nothing behind.
#include "frame/TavException.h"
#include "tests/dialogs/now/NowSandbox.h"
#include "tests/support/DialogRun.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/Module.h"

#include <gtest/gtest.h>

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;

// What the timer does with a dialog that it finds open; works on the dialog's own thread, since a
// thread per round would cost memory of its own.
UINT g_command;
int g_seen;

void CALLBACK EndDialogs(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    ++g_seen;
    PostMessageW(dialog, WM_COMMAND, g_command, 0);
}

int g_bars;

// Refuses the dialog's own bar: the base's one has come before it.
BOOL WINAPI RefuseSecondBar(void*)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return ++g_bars % 2 != 0;
}

class NowLeaks : public testing::Test
{
protected:
    NowLeaks()
        : m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                  nullptr, nullptr, nullptr, nullptr)),
          m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, EndDialogs))
    {
        g_seen = 0;
    }
    ~NowLeaks() override
    {
        KillTimer(nullptr, m_timer);
        DestroyWindow(m_owner);
    }

    BOOL Open() { return m_module.CustomizeNow(m_owner, 0, 0, 0); }
    HMODULE Module() const { return m_module.Handle(); }
    // Opens the dialog two hundred times and ends it with the command.
    void ExpectNothingLeft(UINT command)
    {
        g_command = command;
        const BOOL expected = command == IDOK;
        for (int i = 0; i < kWarmUp; ++i)
            ASSERT_EQ(expected, Open());
        ExpectNothingLeftBy(
            [&]
            {
                for (int i = 0; i < kRounds; ++i)
                    ASSERT_EQ(expected, Open());
            });
        EXPECT_GE(g_seen, kWarmUp + kRounds);
    }

    CNowSandbox registry;

private:
    CModule m_module;
    HWND m_owner;
    UINT_PTR m_timer;
};

} // namespace

TEST_F(NowLeaks, OpeningAndCancellingTwoHundredTimes)
{
    registry.AddMany(20, L"p");
    ExpectNothingLeft(IDCANCEL);
}

TEST_F(NowLeaks, OpeningAndConfirmingTwoHundredTimes)
{
    registry.AddMany(20, L"p");
    ExpectNothingLeft(IDOK);
}

TEST_F(NowLeaks, OpeningTheEmptyDialogTwoHundredTimes)
{
    ExpectNothingLeft(IDCANCEL);
}

TEST_F(NowLeaks, FailingToOpenTwoHundredTimes)
{
    g_bars = 0;
    registry.AddMany(20, L"p");
    const CImportPatch patch(Module(), "aygshell.dll", "SHCreateMenuBar", RefuseSecondBar);
    int failures = 0;
    const auto fail = [&](int rounds)
    {
        for (int i = 0; i < rounds; ++i, ++failures)
            EXPECT_THROW(Open(), CTavException);
    };
    fail(kWarmUp);
    ExpectNothingLeftBy([&] { fail(kRounds); });
    EXPECT_EQ(2 * failures, g_bars);
}
