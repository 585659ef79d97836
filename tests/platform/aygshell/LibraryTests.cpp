// The DLL as a whole: its export table, and that it leaves nothing behind.
#include "tests/platform/aygshell/TestDialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/ImportTable.h"
#include "tests/support/LeakCounter.h"

namespace
{

HMODULE Library()
{
    return GetModuleHandleW(L"aygshell.dll");
}

int g_hooks = 0;

HHOOK WINAPI CountedHook(int kind, HOOKPROC procedure, HINSTANCE module, DWORD thread)
{
    const HHOOK hook = SetWindowsHookExW(kind, procedure, module, thread);
    g_hooks += hook != nullptr ? 1 : 0;
    return hook;
}

BOOL WINAPI CountedUnhook(HHOOK hook)
{
    const BOOL done = UnhookWindowsHookEx(hook);
    g_hooks -= done ? 1 : 0;
    return done;
}

HHOOK WINAPI FailingHook(int, HOOKPROC, HINSTANCE, DWORD)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

// What one dialog does with the shell, from start to end.
void UseOnce()
{
    CTestDialog dialog({{L"Edit", WS_TABSTOP, 201, 0, 12, 40, 10},
                        {WC_TREEVIEWW, WS_TABSTOP, 203, 0, 30, 40, 20},
                        {L"SIPPREF", 0, 65535, 0, 0, 0, 0}});
    dialog.CreateBar(0, SHCMBF_EMPTYBAR);
    dialog.InitDialog(SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN);
    dialog.CreateBar(IDM_KEY_AND_POPUP, SHCMBF_HMENU);
    dialog.CreateBar(999);
    ShowWindow(dialog.Window(), SW_SHOW);
    SetFocus(dialog.Control(201));
    dialog.RunPending();
    SendMessageW(dialog.Window(), WM_SETTINGCHANGE, 0x3002, 0);
    UpdateWindow(SHFindMenuBar(dialog.Window()));
}

void UseOften(int times)
{
    for (int i = 0; i < times; ++i)
        UseOnce();
}

void SwitchPanel(DWORD state)
{
    SIPINFO info{};
    info.cbSize = sizeof info;
    info.fdwFlags = state;
    EXPECT_TRUE(SHSipInfo(SPI_SETSIPINFO, 0, &info, 0));
}

bool SameObjects(ResourceCounts left, const ResourceCounts& right)
{
    left.heapBytes = right.heapBytes;
    return left == right;
}

// The announcements end on threads of their own, soon after: waits until the counts stand still.
ResourceCounts CountWhenQuiet()
{
    const ULONGLONG end = GetTickCount64() + 3000;
    ResourceCounts counts = CountResources();
    for (int still = 0; still < 10 && GetTickCount64() < end; ++still)
    {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        Sleep(20);
        const ResourceCounts now = CountResources();
        if (!SameObjects(now, counts))
            still = 0;
        counts = now;
    }
    return counts;
}

} // namespace

TEST(Library, ExportsTheSixFunctionsByTheirPlainNamesAndNothingElse)
{
    EXPECT_THAT(ExportsOf(Library()),
                testing::UnorderedElementsAre("SHInitDialog", "SHCreateMenuBar", "SHFindMenuBar",
                                              "SHRecognizeGesture", "SHSipInfo",
                                              "SHInitExtraControls"));
}

TEST(Library, TwoHundredDialogsLeaveNothingBehind)
{
    // The panel keeps its fonts and brushes once it was up.
    SwitchPanel(SIPF_ON);
    SwitchPanel(SIPF_OFF);
    UseOften(20);
    // What the system caches on first use grows once; a leak grows each time.
    ResourceCounts before;
    ResourceCounts after = CountWhenQuiet();
    for (int attempt = 0; attempt == 0 || (attempt < 3 && !SameObjects(after, before)); ++attempt)
    {
        before = after;
        UseOften(200);
        after = CountWhenQuiet();
    }
    EXPECT_TRUE(SameObjects(after, before)) << "before: " << before << "\nafter: " << after;
    // The heap breathes with the system's own caches.
    EXPECT_LT(after.heapBytes, before.heapBytes + 20000);
}

TEST(Library, EveryHookGoesWithItsBar)
{
    const CImportPatch hooking(Library(), "user32.dll", "SetWindowsHookExW", CountedHook);
    const CImportPatch unhooking(Library(), "user32.dll", "UnhookWindowsHookEx", CountedUnhook);
    g_hooks = 0;
    {
        CTestDialog dialog;
        dialog.CreateBar(IDM_TWO_KEYS);
        dialog.CreateBar(IDM_ONE_KEY);
        EXPECT_EQ(g_hooks, 1);
    }
    EXPECT_EQ(g_hooks, 0);
}

TEST(Library, ABarWithoutAKeyboardIsRefusedAndLeavesNothing)
{
    CTestDialog dialog;
    // The first bar of a process also makes what the system keeps for all.
    dialog.CreateBar(IDM_KEY_AND_POPUP);
    DestroyWindow(BarOf(dialog.Window()));
    const CImportPatch hooking(Library(), "user32.dll", "SetWindowsHookExW", FailingHook);
    const ResourceCounts before = CountResources();
    EXPECT_FALSE(dialog.CreateBar(IDM_KEY_AND_POPUP));
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY));
    EXPECT_EQ(SHFindMenuBar(dialog.Window()), nullptr);
    const ResourceCounts after = CountResources();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_EQ(after.menus, before.menus);
    EXPECT_EQ(after.gdiObjects, before.gdiObjects);
}
