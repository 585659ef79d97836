#include "platform/aygshell/SoftKeys.h"

#include <algorithm>

#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/SoftKeyPainting.h"

namespace shell
{

namespace
{

constexpr UINT_PTR kSoftKeysSubclass = 3;

// Pop-up keys send no command, but the toolbar wants an id for each; they start here.
constexpr UINT kFirstPopupId = 0xE000;

constexpr UINT kNotFound = static_cast<UINT>(-1);

int CountKeys(HWND toolbar)
{
    return static_cast<int>(SendMessageW(toolbar, TB_BUTTONCOUNT, 0, 0));
}

// Texts reshape the toolbar's buttons, and the handheld shows a new text at once.
LRESULT OnTextSet(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = DefSubclassProc(toolbar, message, wParam, lParam);
    LayoutSoftKeys(toolbar);
    RedrawWindow(toolbar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return result;
}

LRESULT CALLBACK SoftKeysProc(HWND toolbar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                              DWORD_PTR background)
{
    switch (message)
    {
    case WM_PAINT:
        PaintSoftKeys(toolbar, static_cast<COLORREF>(background));
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case TB_SETBUTTONINFOA:
    case TB_SETBUTTONINFOW:
        if (lParam != 0 &&
            (reinterpret_cast<const TBBUTTONINFOW*>(lParam)->dwMask & TBIF_TEXT) != 0)
            return OnTextSet(toolbar, message, wParam, lParam);
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(toolbar, SoftKeysProc, id);
        break;
    }
    return DefSubclassProc(toolbar, message, wParam, lParam);
}

// An id that neither the menu's commands nor an earlier button uses.
int UnusedId(HWND toolbar, HMENU menu)
{
    UINT id = kFirstPopupId;
    while (GetMenuState(menu, id, MF_BYCOMMAND) != kNotFound ||
           SendMessageW(toolbar, TB_COMMANDTOINDEX, id, 0) != -1)
        ++id;
    return static_cast<int>(id);
}

bool AddSoftKey(HWND toolbar, HMENU menu, UINT position)
{
    wchar_t text[256] = {};
    MENUITEMINFOW entry{};
    entry.cbSize = sizeof entry;
    entry.fMask = MIIM_FTYPE | MIIM_ID | MIIM_STATE | MIIM_SUBMENU | MIIM_STRING;
    entry.dwTypeData = text;
    entry.cch = ARRAYSIZE(text);
    if (!GetMenuItemInfoW(menu, position, TRUE, &entry))
        return false;
    if ((entry.fType & MFT_SEPARATOR) != 0)
        return true;

    const bool isPopup = entry.hSubMenu != nullptr;
    TBBUTTON key{};
    key.iBitmap = I_IMAGENONE;
    key.idCommand = isPopup ? UnusedId(toolbar, menu) : static_cast<int>(entry.wID);
    key.fsState = (entry.fState & MFS_DISABLED) != 0 ? 0 : TBSTATE_ENABLED;
    key.fsStyle = isPopup ? BTNS_DROPDOWN | BTNS_WHOLEDROPDOWN : BTNS_BUTTON;
    key.dwData = reinterpret_cast<DWORD_PTR>(entry.hSubMenu);
    key.iString = reinterpret_cast<INT_PTR>(text);
    return SendMessageW(toolbar, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&key)) != 0;
}

} // namespace

HWND CreateSoftKeys(HWND bar, COLORREF background, HFONT font)
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_BAR_CLASSES};
    InitCommonControlsEx(&classes);
    const HWND toolbar =
        CreateWindowExW(0, TOOLBARCLASSNAMEW, nullptr,
                        WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | TBSTYLE_LIST | TBSTYLE_FLAT |
                            CCS_NOPARENTALIGN | CCS_NODIVIDER | CCS_NORESIZE,
                        0, 0, 0, 0, bar, nullptr, Instance(), nullptr);
    if (toolbar == nullptr)
        return nullptr;
    SendMessageW(toolbar, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
    SendMessageW(toolbar, TB_SETBITMAPSIZE, 0, 0);
    SendMessageW(toolbar, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
    return SetWindowSubclass(toolbar, SoftKeysProc, kSoftKeysSubclass, background) ? toolbar
                                                                                   : nullptr;
}

HWND FindSoftKeys(HWND bar)
{
    return FindWindowExW(bar, nullptr, TOOLBARCLASSNAMEW, nullptr);
}

bool AddSoftKeys(HWND toolbar, HMENU menu)
{
    const int count = GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position)
        if (!AddSoftKey(toolbar, menu, static_cast<UINT>(position)))
            return false;
    return true;
}

void RemoveSoftKeys(HWND toolbar)
{
    while (SendMessageW(toolbar, TB_DELETEBUTTON, 0, 0) != FALSE)
        continue;
}

void LayoutSoftKeys(HWND toolbar)
{
    RECT area{};
    GetClientRect(toolbar, &area);
    const int count = CountKeys(toolbar);
    const int columns = std::max(count, 2);
    SendMessageW(toolbar, TB_SETBUTTONSIZE, 0, MAKELPARAM(area.right / columns, area.bottom));
    for (int index = 0; index < count; ++index)
    {
        TBBUTTONINFOW size{};
        size.cbSize = sizeof size;
        size.dwMask = TBIF_BYINDEX | TBIF_SIZE;
        size.cx =
            static_cast<WORD>(area.right * (index + 1) / columns - area.right * index / columns);
        SendMessageW(toolbar, TB_SETBUTTONINFOW, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&size));
    }
}

RECT SoftKeyRect(HWND toolbar, int index)
{
    RECT area{};
    GetClientRect(toolbar, &area);
    RECT key{};
    SendMessageW(toolbar, TB_GETITEMRECT, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&key));
    key.top = area.top;
    key.bottom = area.bottom;
    return key;
}

} // namespace shell
