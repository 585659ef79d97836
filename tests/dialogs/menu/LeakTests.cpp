// Opening and closing the dialogs again and again leaves nothing behind.
#include "frame/TavException.h"
#include "tests/support/DialogRun.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/LeakCounter.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/TreeDriver.h"

#include <gtest/gtest.h>

namespace
{

constexpr int kWarmUp = 10;
constexpr int kRounds = 200;
constexpr UINT kMenuOptions = 32792;
constexpr int kTreeId = 203;

// What the timer does with each dialog that it finds open; works on the dialogs' own thread, since
// a thread per round would cost memory of its own.
bool g_optionsWanted;
int g_optionsSeen;
int g_editorsSeen;

void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    const bool isEditor = TextOf(dialog) == L"Customize Menu";
    if (isEditor && g_optionsWanted)
    {
        const CTreeDriver tree(GetDlgItem(dialog, kTreeId));
        tree.Select(tree.Find(L"Programs"));
        g_optionsWanted = false;
        PostMessageW(dialog, WM_COMMAND, kMenuOptions, 0);
        return;
    }
    ++(isEditor ? g_editorsSeen : g_optionsSeen);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

class Leaks : public testing::Test
{
protected:
    Leaks()
        : m_owner(CreateWindowExW(0, L"Static", L"owner", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100,
                                  nullptr, nullptr, nullptr, nullptr)),
          m_timer(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog))
    {
    }
    ~Leaks() override
    {
        KillTimer(nullptr, m_timer);
        DestroyWindow(m_owner);
    }

    BOOL Open() { return m_module.CustomizeMenu(m_owner, 0, 0, 0); }
    HMODULE Module() const { return m_module.Handle(); }

    void Run(int rounds, bool withOptions)
    {
        for (int i = 0; i < rounds; ++i)
        {
            g_optionsWanted = withOptions;
            ASSERT_FALSE(Open());
        }
    }

    void ExpectNothingLeft(bool withOptions)
    {
        Run(kWarmUp, withOptions);
        g_editorsSeen = 0;
        g_optionsSeen = 0;
        ExpectNothingLeftBy([&] { Run(kRounds, withOptions); });
        EXPECT_GE(g_editorsSeen, kRounds);
    }

private:
    CMenuSandbox m_registry;
    CModule m_module;
    HWND m_owner;
    UINT_PTR m_timer;
};

} // namespace

TEST_F(Leaks, OpeningAndClosingTheEditorTwoHundredTimes)
{
    ExpectNothingLeft(false);
}

TEST_F(Leaks, OpeningAndClosingMenuOptionsTwoHundredTimes)
{
    ExpectNothingLeft(true);
    EXPECT_GE(g_optionsSeen, kRounds);
}

namespace
{

int g_bars;

// Refuses the bar of every editor: the base's own one has come before it.
BOOL WINAPI RefuseSecondBar(void*)
{
    SetLastError(ERROR_ACCESS_DENIED);
    return ++g_bars % 2 != 0;
}

} // namespace

TEST_F(Leaks, FailingToOpenTheEditorTwoHundredTimes)
{
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

TEST(LeakCounter, SeesEachKindOfLeak)
{
    const ResourceCounts before = CountResources();
    const HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindowExW(0, L"Static", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                        nullptr, nullptr);
    const HWND child = CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, 10, 10, window, nullptr,
                                       nullptr, nullptr);
    const HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    void* const memory = HeapAlloc(GetProcessHeap(), 0, 5000);
    const ResourceCounts after = CountResources();
    EXPECT_EQ(before.gdiObjects + 1, after.gdiObjects);
    EXPECT_EQ(before.menus + 1, after.menus);
    EXPECT_GE(after.windows, before.windows + 2);
    EXPECT_GE(after.kernelHandles, before.kernelHandles + 1);
    EXPECT_GE(after.heapBytes, before.heapBytes + 5000);
    HeapFree(GetProcessHeap(), 0, memory);
    CloseHandle(event);
    DestroyWindow(child);
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteObject(pen);
}
