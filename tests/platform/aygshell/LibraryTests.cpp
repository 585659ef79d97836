// The DLL as a whole: its export table, and that it leaves nothing behind.
#include "tests/platform/aygshell/TestDialog.h"

#include <set>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/platform/aygshell/TestMenus.h"
#include "tests/support/LeakCounter.h"

namespace
{

std::set<std::string> ExportsOf(HMODULE module)
{
    const auto* base = reinterpret_cast<const BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const IMAGE_DATA_DIRECTORY& place =
        headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* directory =
        reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(base + place.VirtualAddress);
    const auto* names = reinterpret_cast<const DWORD*>(base + directory->AddressOfNames);
    std::set<std::string> exports;
    for (DWORD i = 0; i < directory->NumberOfNames; ++i)
        exports.insert(reinterpret_cast<const char*>(base + names[i]));
    return exports;
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

// The announcements end on threads of their own, soon after.
ResourceCounts CountWhenQuiet(const ResourceCounts& expected)
{
    const ULONGLONG end = GetTickCount64() + 3000;
    ResourceCounts counts = CountResources();
    while (!(counts == expected) && GetTickCount64() < end)
    {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
        Sleep(20);
        counts = CountResources();
    }
    return counts;
}

} // namespace

TEST(Library, ExportsTheSixFunctionsByTheirPlainNamesAndNothingElse)
{
    EXPECT_THAT(ExportsOf(GetModuleHandleW(L"aygshell.dll")),
                testing::UnorderedElementsAre("SHInitDialog", "SHCreateMenuBar", "SHFindMenuBar",
                                              "SHRecognizeGesture", "SHSipInfo",
                                              "SHInitExtraControls"));
}

TEST(Library, TwoHundredDialogsLeaveNothingBehind)
{
    UseOften(20);
    const ResourceCounts settled = CountWhenQuiet({});
    UseOften(200);
    ResourceCounts after = CountWhenQuiet(settled);
    // The heap breathes with the system's own caches; everything else must be exact.
    EXPECT_LT(after.heapBytes, settled.heapBytes + 20000);
    after.heapBytes = settled.heapBytes;
    EXPECT_EQ(after, settled);
}
