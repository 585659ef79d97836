#include "bench/CityLimit.h"

#include "resources/resource.h"

#include <aygshell.h>

namespace
{

// Distances in logical pixels of a 96-dpi screen, which is what the benchmark runs on.
constexpr int kLeft = 5;
constexpr int kSearchTop = 29;
constexpr int kSearchHeight = 20;
constexpr int kListTop = 54;

// A template for a dialog without controls.
struct EmptyTemplate
{
    DLGTEMPLATE head = {WS_POPUP, 0, 0, 0, 0, 0, 0};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

void GiveSoftKeys(HWND dialog, HINSTANCE module)
{
    SHINITDLGINFO info = {SHIDIM_FLAGS, dialog, SHIDIF_SIZEDLGFULLSCREEN};
    SHInitDialog(&info);
    SHMENUBARINFO bar = {};
    bar.cbSize = sizeof(bar);
    bar.hwndParent = dialog;
    bar.dwFlags = SHCMBF_HMENU;
    bar.nToolBarId = IDR_DONE_CANCEL;
    bar.hInstRes = module;
    SHCreateMenuBar(&bar);
}

HWND AddControl(HWND dialog, const wchar_t* name, DWORD style, const RECT& place, int id)
{
    return CreateWindowExW(0, name, L"", WS_CHILD | style, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, dialog,
                           reinterpret_cast<HMENU>(INT_PTR{id}), nullptr, nullptr);
}

void ShowList(HWND dialog, const LimitRequest& request)
{
    RECT client = {};
    GetClientRect(dialog, &client);
    const HWND list =
        AddControl(dialog, WC_LISTVIEWW,
                   WS_VISIBLE | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER |
                       LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                   {kLeft, kListTop, client.right - kLeft, client.bottom - 4}, kLimitListId);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT, LVS_EX_FULLROWSELECT);
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    for (WPARAM i = 0; i < 2; ++i)
    {
        column.cx = (client.right - 2 * kLeft - 20) / (i == 0 ? 2 : 3);
        SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    SendMessageW(list, LVM_SETITEMCOUNT, request.texts.Names.size(), 0);
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendMessageW(list, LVM_SETITEMSTATE, request.selected, reinterpret_cast<LPARAM>(&item));
    SendMessageW(list, LVM_ENSUREVISIBLE, request.selected, 0);
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void ShowSearchBox(HWND dialog)
{
    RECT client = {};
    GetClientRect(dialog, &client);
    SHInitExtraControls();
    const HWND box =
        AddControl(dialog, WC_EDITW, WS_VISIBLE | WS_BORDER,
                   {kLeft, kSearchTop, client.right - kLeft, kSearchTop + kSearchHeight}, 0);
    AddControl(dialog, L"SIPPREF", 0, {}, 0);
    SetFocus(box);
}

void Start(HWND dialog, const LimitRequest& request)
{
    SetWindowLongPtrW(dialog, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&request));
    SetWindowPos(dialog, nullptr, 0, 0, GetSystemMetrics(SM_CXSCREEN),
                 GetSystemMetrics(SM_CYSCREEN), SWP_NOZORDER);
    if (request.softKeys)
        GiveSoftKeys(dialog, request.softKeys);
    if (request.withSearchBox)
        ShowSearchBox(dialog);
    ShowList(dialog, request);
}

void GiveText(HWND dialog, NMHDR* header)
{
    const auto* const request =
        reinterpret_cast<const LimitRequest*>(GetWindowLongPtrW(dialog, GWLP_USERDATA));
    LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
    const std::wstring& text = item.iSubItem == 0
                                   ? request->texts.Names[static_cast<size_t>(item.iItem)]
                                   : request->texts.Area;
    item.pszText = const_cast<wchar_t*>(text.c_str());
}

INT_PTR CALLBACK LimitProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        Start(dialog, *reinterpret_cast<const LimitRequest*>(lParam));
        return FALSE;
    }
    if (message == WM_NOTIFY &&
        reinterpret_cast<NMHDR*>(lParam)->code == static_cast<UINT>(LVN_GETDISPINFOW))
    {
        GiveText(dialog, reinterpret_cast<NMHDR*>(lParam));
        return TRUE;
    }
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
    {
        EndDialog(dialog, IDCANCEL);
        return TRUE;
    }
    return FALSE;
}

} // namespace

void RunLimitDialog(HWND owner, const LimitRequest& request)
{
    static const EmptyTemplate empty;
    DialogBoxIndirectParamW(nullptr, &empty.head, owner, LimitProcedure,
                            reinterpret_cast<LPARAM>(&request));
}
