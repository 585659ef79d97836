// Measures expanding a folder of 5,000 entries in Select File, from the tree's message until the
// rows are on the screen, beside the least that any such tree has to do: the same rows inserted
// into a tree of the same kind without redrawing, and expanded. Listing the folder and asking the
// system for the icons of the rows in view are reported apart. Under Wine pin the program and the
// wineserver to one processor (taskset).
#include "platform/Win.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <shellapi.h>

#include "bench/DialogOpening.h"
#include "bench/Goals.h"
#include "tests/support/DeviceRoot.h"
#include "tests/support/DialogRun.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/TreeDriver.h"

namespace
{

using Clock = std::chrono::steady_clock;
using opening::Median;
using opening::PrintMedian;

constexpr int kEntries = 5000;
constexpr int kRounds = 9;
constexpr UINT kAddFile = 32785;
constexpr const wchar_t* kFolder = L"Many";

double SecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

// What the module spends on the file system and on the system's icons.
double g_listing;
double g_icons;

template <class Call>
auto Timed(double& sum, Call call)
{
    const auto begin = Clock::now();
    const auto result = call();
    sum += SecondsSince(begin);
    return result;
}

HANDLE WINAPI TimedFindFirst(const wchar_t* pattern, WIN32_FIND_DATAW* found)
{
    return Timed(g_listing, [=] { return FindFirstFileW(pattern, found); });
}

BOOL WINAPI TimedFindNext(HANDLE find, WIN32_FIND_DATAW* found)
{
    return Timed(g_listing, [=] { return FindNextFileW(find, found); });
}

BOOL WINAPI TimedFindClose(HANDLE find)
{
    return Timed(g_listing, [=] { return FindClose(find); });
}

DWORD WINAPI TimedFullPath(const wchar_t* path, DWORD size, wchar_t* full, wchar_t** name)
{
    return Timed(g_icons, [=] { return GetFullPathNameW(path, size, full, name); });
}

DWORD_PTR WINAPI TimedIcon(const wchar_t* path, DWORD attributes, SHFILEINFOW* info, UINT size,
                           UINT flags)
{
    return Timed(g_icons, [=] { return SHGetFileInfoW(path, attributes, info, size, flags); });
}

// One row of the tree, and whether it has the child without a name that unlisted folders have.
struct Row
{
    std::wstring text;
    int image;
    bool isFolder;
};

std::vector<Row> RowsOf(const CTreeDriver& tree, HTREEITEM folder)
{
    std::vector<Row> rows;
    for (HTREEITEM node = tree.Next(folder, TVGN_CHILD); node; node = tree.Next(node, TVGN_NEXT))
        rows.push_back({tree.TextOf(node), 0, tree.Next(node, TVGN_CHILD) != nullptr});
    return rows;
}

HTREEITEM Insert(HWND tree, HTREEITEM parent, const Row& row)
{
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<wchar_t*>(row.text.c_str());
    insert.item.iImage = insert.item.iSelectedImage = row.image;
    const auto node = reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    if (row.isFolder)
        Insert(tree, node, {L"", 0, false});
    return node;
}

double TimeToExpand(HWND tree, HTREEITEM folder, const std::vector<Row>& rows)
{
    const CTreeDriver driver(tree);
    UpdateWindow(tree);
    const auto begin = Clock::now();
    if (!rows.empty())
    {
        SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
        SendMessageW(tree, TVM_DELETEITEM, 0,
                     reinterpret_cast<LPARAM>(driver.Next(folder, TVGN_CHILD)));
        for (const Row& row : rows)
            Insert(tree, folder, row);
        SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
    }
    driver.Expand(folder);
    UpdateWindow(tree);
    GdiFlush();
    return SecondsSince(begin);
}

// In the place of the other tree, in the same dialog.
double TimeOfLimit(HWND other, const std::vector<Row>& rows)
{
    RECT rect = {};
    GetClientRect(other, &rect);
    MapWindowPoints(other, GetParent(other), reinterpret_cast<POINT*>(&rect), 2);
    const HWND tree =
        CreateWindowExW(0, WC_TREEVIEWW, L"", static_cast<DWORD>(GetWindowLongW(other, GWL_STYLE)),
                        rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                        GetParent(other), nullptr, nullptr, nullptr);
    ShowWindow(other, SW_HIDE);
    SendMessageW(tree, WM_SETFONT, static_cast<WPARAM>(SendMessageW(other, WM_GETFONT, 0, 0)), 0);
    SendMessageW(tree, TVM_SETIMAGELIST, TVSIL_NORMAL,
                 reinterpret_cast<LPARAM>(CTreeDriver(other).Images()));
    const HTREEITEM root = Insert(tree, TVI_ROOT, {L"\\", 0, false});
    const HTREEITEM folder = Insert(tree, root, {kFolder, 0, true});
    CTreeDriver(tree).Expand(root);
    const double seconds = TimeToExpand(tree, folder, rows);
    DestroyWindow(tree);
    return seconds;
}

struct Times
{
    std::vector<double> listing;
    std::vector<double> icons;
    std::vector<double> tree;
    std::vector<double> again;
    std::vector<double> whole;
    std::vector<double> limit;
};
Times g_times;
// The first dialogs of a process only warm up.
bool g_isWarm;

// Both in turn, so that each meets the same conditions.
void MeasureIn(HWND picker)
{
    const HWND window = GetDlgItem(picker, 207);
    const CTreeDriver tree(window);
    const HTREEITEM folder = tree.Find(kFolder);
    g_listing = g_icons = 0;
    const double whole = TimeToExpand(window, folder, {});
    const double listing = g_listing;
    const double icons = g_icons;
    const std::vector<Row> rows = RowsOf(tree, folder);
    tree.Collapse(folder);
    const double again = TimeToExpand(window, folder, {});
    const double limit = TimeOfLimit(window, rows);
    if (!g_isWarm || rows.size() != kEntries)
        return;
    g_times.listing.push_back(listing);
    g_times.icons.push_back(icons);
    g_times.tree.push_back(whole - listing - icons);
    g_times.again.push_back(again);
    g_times.whole.push_back(whole);
    g_times.limit.push_back(limit);
}

bool g_pickerWanted;

void CALLBACK WorkDialog(HWND, UINT, UINT_PTR, DWORD)
{
    const HWND dialog = OpenDialogOf(GetCurrentThreadId());
    if (!dialog)
        return;
    if (TextOf(dialog) != L"Customize Menu")
        MeasureIn(dialog);
    else if (g_pickerWanted)
    {
        const CTreeDriver tree(GetDlgItem(dialog, 203));
        tree.Select(tree.Find(L"Programs"));
        g_pickerWanted = false;
        PostMessageW(dialog, WM_COMMAND, kAddFile, 0);
        return;
    }
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
}

// Of the entries that many are folders.
void Fill(const CDeviceRoot& device, int folders)
{
    for (int i = 0; i < kEntries; ++i)
    {
        wchar_t path[64];
        swprintf(path, 64, i < folders ? L"\\%ls\\Folder %04d" : L"\\%ls\\Program %04d.exe",
                 kFolder, i);
        i < folders ? device.AddFolder(path) : device.AddFile(path);
    }
}

void Measure(const CModule& module, int folders, CGoals& goals)
{
    const CDeviceRoot device;
    Fill(device, folders);
    g_times = Times();
    for (int round = -1; round < kRounds; ++round)
    {
        g_isWarm = round >= 0;
        g_pickerWanted = true;
        module.CustomizeMenu(nullptr, 0, 0, 0);
    }
    std::printf("expand a folder of %d entries, %d of them folders (medians of %d)\n", kEntries,
                folders, kRounds);
    if (g_times.tree.size() != kRounds)
    {
        std::printf("  not every round showed all entries\n");
        std::exit(1);
    }
    PrintMedian("listing the folder", g_times.listing);
    PrintMedian("asking for icons", g_times.icons);
    PrintMedian("the tree", g_times.tree);
    PrintMedian("all together", g_times.whole);
    PrintMedian("limit: the same rows in a tree", g_times.limit);
    PrintMedian("collapsed and expanded again", g_times.again);
    goals.Check("tree / limit", Median(g_times.tree) / Median(g_times.limit), 1.3);
}

} // namespace

int main()
{
    CMenuSandbox registry;
    const CModule module;
    const HMODULE dll = module.Handle();
    const CImportPatch findFirst(dll, "kernel32.dll", "FindFirstFileW", TimedFindFirst);
    const CImportPatch findNext(dll, "kernel32.dll", "FindNextFileW", TimedFindNext);
    const CImportPatch findClose(dll, "kernel32.dll", "FindClose", TimedFindClose);
    const CImportPatch fullPath(dll, "kernel32.dll", "GetFullPathNameW", TimedFullPath);
    const CImportPatch icon(dll, "shell32.dll", "SHGetFileInfoW", TimedIcon);
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, WorkDialog);
    CGoals goals;
    Measure(module, 0, goals);
    Measure(module, 500, goals);
    KillTimer(nullptr, timer);
    return goals.Finish();
}
