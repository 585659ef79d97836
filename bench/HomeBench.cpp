// Measures opening Manage Pinned, from the call until its first picture is on the screen, beside
// the least that any such dialog has to do: the same tree with the same nodes in their final order,
// filled without redrawing. Reading the registry and the Start Menu, and asking the launcher-menu
// process, are reported apart. Under Wine pin the program and the wineserver to one processor
// (taskset).
#include <chrono>
#include <cstdio>

#include <shlobj.h>

#include "bench/DialogOpening.h"
#include "bench/Goals.h"
#include "menu/MenuKeys.h"
#include "menu/MenuTree.h"
#include "platform/os/Text.h"
#include "resources/resource.h"
#include "tests/menu/support/GeneratedMenu.h"
#include "tests/support/FilterWindow.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/StartMenu.h"

namespace
{

using Clock = std::chrono::steady_clock;
using opening::Median;
using opening::PrintMedian;

constexpr int kRounds = 30;
constexpr DWORD kLimit = 8;

// What the scan spends on finding and listing folders and on the launcher-menu process.
double g_scanning;

// Adds the time of one call to it.
template <class Call>
auto Timed(Call call)
{
    const auto begin = Clock::now();
    const auto result = call();
    g_scanning += std::chrono::duration<double>(Clock::now() - begin).count();
    return result;
}

HANDLE WINAPI TimedFindFirst(const wchar_t* pattern, WIN32_FIND_DATAW* found)
{
    return Timed([=] { return FindFirstFileW(pattern, found); });
}

BOOL WINAPI TimedFindNext(HANDLE find, WIN32_FIND_DATAW* found)
{
    return Timed([=] { return FindNextFileW(find, found); });
}

BOOL WINAPI TimedFindClose(HANDLE find)
{
    return Timed([=] { return FindClose(find); });
}

LRESULT WINAPI TimedSend(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT flags,
                         UINT timeout, DWORD_PTR* answer)
{
    return Timed(
        [=]
        { return SendMessageTimeoutW(window, message, wParam, lParam, flags, timeout, answer); });
}

BOOL WINAPI TimedFolderPath(HWND owner, wchar_t* path, int id, BOOL create)
{
    return Timed([=] { return SHGetSpecialFolderPathW(owner, path, id, create); });
}

// Names in their sorted order: as many digits for each.
std::wstring ProgramName(int number)
{
    wchar_t name[32];
    swprintf(name, 32, L"Program %04d", number);
    return name;
}

void FillLimit(HWND tree, HTREEITEM parent, const CMenuItem& item, int programs)
{
    for (const CMenuItemPtr& child : item.Children)
    {
        const HTREEITEM node =
            opening::InsertNode(tree, parent, child->Text.c_str(), static_cast<LPARAM>(child->Id));
        if (!os::EqualNoCase(child->KeyPath, kProgramsBranchPath))
        {
            FillLimit(tree, node, *child, programs);
            continue;
        }
        for (int i = 0; i < programs; ++i)
            opening::InsertNode(tree, node, ProgramName(i).c_str(), -1 - i);
    }
}

struct Times
{
    std::vector<double> reading;
    std::vector<double> scanning;
    std::vector<double> product;
    std::vector<double> limit;
};

// Both in turn, so that each meets the same conditions.
Times RunAll(const CMenuItem& root, int programs, const CModule& module, HWND owner)
{
    const HMODULE dll = module.Handle();
    const CImportPatch findFirst(dll, "kernel32.dll", "FindFirstFileW", TimedFindFirst);
    const CImportPatch findNext(dll, "kernel32.dll", "FindNextFileW", TimedFindNext);
    const CImportPatch findClose(dll, "kernel32.dll", "FindClose", TimedFindClose);
    const CImportPatch send(dll, "user32.dll", "SendMessageTimeoutW", TimedSend);
    const CImportPatch path(dll, "shell32.dll", "SHGetSpecialFolderPathW", TimedFolderPath);
    opening::CReadingTime reading(dll);
    Times times;
    for (int round = -1; round < kRounds; ++round)
    {
        reading.Reset();
        g_scanning = 0;
        const double whole =
            opening::TimeToPaint([&] { module.CustomizeHome(owner, kLimit, 0, 0); });
        const double apart = reading.Seconds() + g_scanning;
        const double limit = opening::TimeOfLimit(
            owner, {[&](HWND tree, HTREEITEM node) { FillLimit(tree, node, root, programs); }, dll,
                    IDR_DONE_CANCEL});
        // The first dialogs of a process only warm up.
        if (round < 0)
            continue;
        times.reading.push_back(reading.Seconds());
        times.scanning.push_back(g_scanning);
        times.product.push_back(whole - apart);
        times.limit.push_back(limit);
    }
    return times;
}

void Measure(uint32_t items, int programs, CGoals& goals)
{
    CRegistrySandbox sandbox;
    const CStartMenu start;
    const CFilterWindow filter;
    const GeneratedMenu menu = GenerateMenu(items);
    sandbox.SetText(kProgramsBranchPath, L"Text", L"Programs");
    for (int i = 0; i < programs; ++i)
        start.AddFile(L"Programs\\" + ProgramName(i) + L".lnk");
    CMenuTree tree(true);
    tree.Load();
    const CModule module;
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    const Times times = RunAll(*tree.Root, programs, module, owner);
    DestroyWindow(owner);
    std::printf("open Manage Pinned with %u items and %d programs, call to first paint "
                "(medians of %d)\n",
                menu.Items, programs, kRounds);
    PrintMedian("reading the list and the menu", times.reading);
    PrintMedian("listing and asking for the programs", times.scanning);
    PrintMedian("the dialog", times.product);
    PrintMedian("limit: the same tree with soft keys", times.limit);
    goals.Check("dialog / limit with soft keys", Median(times.product) / Median(times.limit), 1.3);
}

} // namespace

int main()
{
    CGoals goals;
    Measure(200, 50, goals);
    Measure(2000, 500, goals);
    return goals.Finish();
}
