// Measures opening Customize Menu, from the call until its first picture is on the screen, beside
// the least that any such dialog has to do: the same tree with the same nodes, filled without
// redrawing. Reading the menu from the registry is reported apart. Under Wine pin the program and
// the wineserver to one processor (taskset).
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include <aygshell.h>

#include "bench/Goals.h"
#include "menu/MenuTree.h"
#include "resources/resource.h"
#include "tests/menu/support/GeneratedMenu.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kRounds = 30;
constexpr int kTreeId = 203;

// The moment when the tree of the dialog that is opening was painted.
Clock::time_point g_painted;

// In front of the tree's own procedure. Not a subclass of the common controls: looking that up
// costs more than inserting a node.
WNDPROC g_treeProcedure;
bool g_isUnpainted;

LRESULT CALLBACK StampFirstPaint(HWND tree, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcW(g_treeProcedure, tree, message, wParam, lParam);
    if (message == WM_PAINT && g_isUnpainted)
    {
        g_isUnpainted = false;
        const HWND dialog = GetParent(tree);
        UpdateWindow(dialog);
        GdiFlush();
        g_painted = Clock::now();
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    return result;
}

// Waits for the next tree view to be created. Only as long as that: a hook makes every message
// dear.
HHOOK g_hook;

LRESULT CALLBACK FindTree(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    wchar_t name[32] = {};
    if (code == HC_ACTION && sent.message == WM_CREATE && GetClassNameW(sent.hwnd, name, 32) &&
        lstrcmpW(name, WC_TREEVIEWW) == 0)
    {
        g_isUnpainted = true;
        g_treeProcedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
            sent.hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(StampFirstPaint)));
        UnhookWindowsHookEx(g_hook);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The part of an opening that reads the registry: from the first opened to the last closed key.
Clock::time_point g_firstOpened;
Clock::time_point g_lastClosed;
bool g_isReading;

LSTATUS WINAPI StampOpen(HKEY root, const wchar_t* path, DWORD options, REGSAM access, HKEY* key)
{
    if (!g_isReading)
        g_firstOpened = Clock::now();
    g_isReading = true;
    return RegOpenKeyExW(root, path, options, access, key);
}

LSTATUS WINAPI StampClose(HKEY key)
{
    const LSTATUS result = RegCloseKey(key);
    g_lastClosed = Clock::now();
    return result;
}

// A template for a dialog without controls, over the whole screen.
struct EmptyTemplate
{
    DLGTEMPLATE head = {WS_POPUP, 0, 0, 0, 0, 0, 0};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

void InsertItems(HWND tree, HTREEITEM parent, const CMenuItem& item)
{
    for (const CMenuItemPtr& child : item.Children)
    {
        TVINSERTSTRUCTW insert = {};
        insert.hParent = parent;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
        insert.item.pszText = child->Text.data();
        insert.item.lParam = static_cast<LPARAM>(child->Id);
        insert.item.state = INDEXTOSTATEIMAGEMASK(2);
        insert.item.stateMask = TVIS_STATEIMAGEMASK;
        const auto node = reinterpret_cast<HTREEITEM>(
            SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
        InsertItems(tree, node, *child);
    }
}

void ShowTree(HWND dialog, const CMenuItem& root)
{
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    SetWindowPos(dialog, nullptr, 0, 0, width, height, SWP_NOZORDER);
    const HWND tree = CreateWindowExW(
        0, WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES, 0, 24, width,
        height - 24, dialog, reinterpret_cast<HMENU>(INT_PTR{kTreeId}), nullptr, nullptr);
    SetWindowLongW(tree, GWL_STYLE, GetWindowLongW(tree, GWL_STYLE) | TVS_CHECKBOXES);
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    TVINSERTSTRUCTW insert = {};
    insert.hParent = TVI_ROOT;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(L"root");
    const auto node = reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    InsertItems(tree, node, root);
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
    SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
}

// What the limit dialog shows, and whether it asks the shell for what every dialog needs.
struct LimitRequest
{
    const CMenuItem& root;
    // Where the soft keys are taken from; null for a dialog without any.
    HINSTANCE softKeys;
};

void GiveSoftKeys(HWND dialog, HINSTANCE module)
{
    SHINITDLGINFO info = {SHIDIM_FLAGS, dialog, SHIDIF_SIZEDLGFULLSCREEN};
    SHInitDialog(&info);
    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof(bar);
    bar.hwndParent = dialog;
    bar.dwFlags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON;
    bar.nToolBarId = IDR_MENU_EDITOR;
    bar.hInstRes = module;
    SHCreateMenuBar(&bar);
}

INT_PTR CALLBACK LimitProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        const auto& request = *reinterpret_cast<const LimitRequest*>(lParam);
        if (request.softKeys)
            GiveSoftKeys(dialog, request.softKeys);
        ShowTree(dialog, request.root);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
    {
        const HWND tree = GetDlgItem(dialog, kTreeId);
        ImageList_Destroy(
            reinterpret_cast<HIMAGELIST>(SendMessageW(tree, TVM_GETIMAGELIST, TVSIL_STATE, 0)));
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return FALSE;
}

// Seconds from the call of `open` until the tree was painted.
template <class Open>
double TimeToPaint(Open open)
{
    g_hook = SetWindowsHookExW(WH_CALLWNDPROCRET, FindTree, nullptr, GetCurrentThreadId());
    const auto begin = Clock::now();
    open();
    return Seconds(g_painted - begin).count();
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

double TimeOfLimit(HWND owner, const LimitRequest& request)
{
    static const EmptyTemplate empty;
    return TimeToPaint(
        [&]
        {
            DialogBoxIndirectParamW(nullptr, &empty.head, owner, LimitProcedure,
                                    reinterpret_cast<LPARAM>(&request));
        });
}

// All in turn, so that each meets the same conditions.
struct Times
{
    std::vector<double> reading;
    std::vector<double> product;
    std::vector<double> limit;
    std::vector<double> limitWithKeys;
};

Times RunAll(const CMenuItem& root, const CModule& module, HWND owner)
{
    Times times;
    for (int round = -1; round < kRounds; ++round)
    {
        g_isReading = false;
        const double whole = TimeToPaint([&] { module.CustomizeMenu(owner, 0, 0, 0); });
        const double reading = Seconds(g_lastClosed - g_firstOpened).count();
        const double limit = TimeOfLimit(owner, {root, nullptr});
        const double withKeys = TimeOfLimit(owner, {root, module.Handle()});
        // The first dialogs of a process only warm up.
        if (round < 0)
            continue;
        times.reading.push_back(reading);
        times.product.push_back(whole - reading);
        times.limit.push_back(limit);
        times.limitWithKeys.push_back(withKeys);
    }
    return times;
}

void PrintMedian(const char* what, const std::vector<double>& seconds)
{
    std::printf("  %-46s %8.3f ms\n", what, Median(seconds) * 1000);
}

void Measure(uint32_t items, CGoals& goals)
{
    CRegistrySandbox sandbox;
    const GeneratedMenu menu = GenerateMenu(items);
    CMenuTree tree(false);
    tree.Load();
    const CModule module;
    const CImportPatch open(module.Handle(), "advapi32.dll", "RegOpenKeyExW", StampOpen);
    const CImportPatch close(module.Handle(), "advapi32.dll", "RegCloseKey", StampClose);
    const HWND owner = CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, 240, 320,
                                       nullptr, nullptr, nullptr, nullptr);
    const Times times = RunAll(*tree.Root, module, owner);
    DestroyWindow(owner);
    std::printf("open Customize Menu with %u items, call to first paint (medians of %d)\n",
                menu.Items, kRounds);
    PrintMedian("reading the menu", times.reading);
    PrintMedian("the dialog", times.product);
    PrintMedian("limit: the same tree, nothing else", times.limit);
    PrintMedian("limit with soft keys", times.limitWithKeys);
    goals.Check("dialog / limit", Median(times.product) / Median(times.limit), 1.3);
    goals.Check("dialog / limit with soft keys",
                Median(times.product) / Median(times.limitWithKeys), 1.3);
}

} // namespace

int main()
{
    CGoals goals;
    Measure(200, goals);
    Measure(2000, goals);
    return goals.Finish();
}
