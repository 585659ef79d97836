#include "bench/DialogOpening.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include <aygshell.h>

namespace opening
{
namespace
{

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kTreeId = 203;

// The class of the control that is waited for, and the moment when it was painted.
const wchar_t* g_controlClass;
Clock::time_point g_painted;

// In front of the control's own procedure. Not a subclass of the common controls: looking that up
// costs more than inserting a node.
WNDPROC g_procedure;
bool g_isUnpainted;

LRESULT CALLBACK StampFirstPaint(HWND control, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcW(g_procedure, control, message, wParam, lParam);
    if (message == WM_PAINT && g_isUnpainted)
    {
        g_isUnpainted = false;
        const HWND dialog = GetParent(control);
        UpdateWindow(dialog);
        GdiFlush();
        g_painted = Clock::now();
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    }
    return result;
}

// Waits for the next such control to be created. Only as long as that: a hook makes every message
// dear.
HHOOK g_hook;

LRESULT CALLBACK FindControl(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& sent = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
    wchar_t name[32] = {};
    if (code == HC_ACTION && sent.message == WM_CREATE && GetClassNameW(sent.hwnd, name, 32) &&
        lstrcmpW(name, g_controlClass) == 0)
    {
        g_isUnpainted = true;
        g_procedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
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

void FillScreen(HWND dialog)
{
    SetWindowPos(dialog, nullptr, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                 GetSystemMetrics(SM_CYSCREEN), SWP_NOZORDER);
}

void ShowTree(HWND dialog, const LimitRequest& request)
{
    RECT client = {};
    GetClientRect(dialog, &client);
    const HWND tree =
        CreateWindowExW(0, WC_TREEVIEWW, L"", WS_CHILD | WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES,
                        0, 24, client.right, client.bottom - 24, dialog,
                        reinterpret_cast<HMENU>(INT_PTR{kTreeId}), nullptr, nullptr);
    SetWindowLongW(tree, GWL_STYLE, GetWindowLongW(tree, GWL_STYLE) | TVS_CHECKBOXES);
    SendMessageW(tree, WM_SETREDRAW, FALSE, 0);
    TVINSERTSTRUCTW insert = {};
    insert.hParent = TVI_ROOT;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(L"root");
    const auto node = reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
    request.Fill(tree, node);
    SendMessageW(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
    SendMessageW(tree, WM_SETREDRAW, TRUE, 0);
}

// The control makes the pictures of its boxes but leaves them behind.
void FreeBoxes(HWND dialog)
{
    ImageList_Destroy(reinterpret_cast<HIMAGELIST>(
        SendDlgItemMessageW(dialog, kTreeId, TVM_GETIMAGELIST, TVSIL_STATE, 0)));
}

void GiveSoftKeys(HWND dialog, const BareDialog& request)
{
    SHINITDLGINFO info = {SHIDIM_FLAGS, dialog, SHIDIF_SIZEDLGFULLSCREEN};
    SHInitDialog(&info);
    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof(bar);
    bar.hwndParent = dialog;
    bar.dwFlags = SHCMBF_HMENU | SHCMBF_HIDESIPBUTTON;
    bar.nToolBarId = request.SoftKeyMenu;
    bar.hInstRes = request.SoftKeys;
    SHCreateMenuBar(&bar);
}

// The one that is open.
const BareDialog* g_bareDialog;

INT_PTR CALLBACK BareProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM /*lParam*/)
{
    if (message == WM_INITDIALOG)
    {
        if (g_bareDialog->SoftKeys)
            GiveSoftKeys(dialog, *g_bareDialog);
        FillScreen(dialog);
        g_bareDialog->Show(dialog);
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
    {
        if (g_bareDialog->Close)
            g_bareDialog->Close(dialog);
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return FALSE;
}

} // namespace

double TimeToPaint(const std::function<void()>& open, const wchar_t* controlClass)
{
    g_controlClass = controlClass;
    g_hook = SetWindowsHookExW(WH_CALLWNDPROCRET, FindControl, nullptr, GetCurrentThreadId());
    const auto begin = Clock::now();
    open();
    return opening::Seconds(g_painted - begin).count();
}

double TimeOfBareDialog(HWND owner, const BareDialog& request, const wchar_t* controlClass)
{
    static const EmptyTemplate empty;
    g_bareDialog = &request;
    return TimeToPaint([&]
                       { DialogBoxIndirectParamW(nullptr, &empty.head, owner, BareProcedure, 0); },
                       controlClass);
}

double TimeOfLimit(HWND owner, const LimitRequest& request)
{
    const auto show = [&](HWND dialog) { ShowTree(dialog, request); };
    return TimeOfBareDialog(owner, {show, request.SoftKeys, request.SoftKeyMenu, FreeBoxes},
                            WC_TREEVIEWW);
}

HTREEITEM InsertNode(HWND tree, HTREEITEM parent, const wchar_t* text, LPARAM data)
{
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    insert.item.pszText = const_cast<wchar_t*>(text);
    insert.item.lParam = data;
    insert.item.state = INDEXTOSTATEIMAGEMASK(2);
    insert.item.stateMask = TVIS_STATEIMAGEMASK;
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&insert)));
}

void InsertItems(HWND tree, HTREEITEM parent, const CMenuItem& item)
{
    for (const CMenuItemPtr& child : item.Children)
        InsertItems(tree,
                    InsertNode(tree, parent, child->Text.c_str(), static_cast<LPARAM>(child->Id)),
                    *child);
}

CReadingTime::CReadingTime(HMODULE module)
    : m_open(module, "advapi32.dll", "RegOpenKeyExW", StampOpen),
      m_close(module, "advapi32.dll", "RegCloseKey", StampClose)
{
}

void CReadingTime::Reset()
{
    g_isReading = false;
}

double CReadingTime::Seconds() const
{
    return opening::Seconds(g_lastClosed - g_firstOpened).count();
}

double Median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + static_cast<long>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

void PrintMedian(const char* what, const std::vector<double>& seconds)
{
    std::printf("  %-46s %8.3f ms\n", what, Median(seconds) * 1000);
}

} // namespace opening
