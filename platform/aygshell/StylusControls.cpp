#include "platform/aygshell/StylusControls.h"

#include "aygshell.h"

#include "platform/aygshell/Gesture.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"

namespace shell
{

namespace
{

constexpr UINT_PTR kStylusSubclass = 4;

enum Kind : DWORD_PTR
{
    Other,
    Tree,
    List
};

// How far a level of a tree is set in, in logical pixels; desktops don't scale it.
constexpr int kTreeIndent = 19;

// lParam of key messages: the key was down before.
constexpr LPARAM kRepeated = 1 << 30;

// lParam of WM_CONTEXTMENU that was asked for by keyboard: no point.
constexpr LPARAM kNoPoint = -1;

Kind KindOf(HWND control)
{
    wchar_t name[32] = {};
    GetClassNameW(control, name, ARRAYSIZE(name));
    if (lstrcmpiW(name, WC_TREEVIEWW) == 0)
        return Tree;
    return lstrcmpiW(name, WC_LISTVIEWW) == 0 ? List : Other;
}

NMHDR HeaderFor(HWND control, UINT code)
{
    return {control, static_cast<UINT_PTR>(GetDlgCtrlID(control)), code};
}

// Returns whether the dialog lets a tap-and-hold be recognised at the point.
bool AnnounceStylus(HWND control, POINT point)
{
    NMSTYLUSDOWN down{HeaderFor(control, NM_STYLUSDOWN), point};
    return SendMessageW(GetParent(control), WM_NOTIFY, down.hdr.idFrom,
                        reinterpret_cast<LPARAM>(&down)) == 0;
}

void RequestMenu(HWND control, LPARAM screenPoint)
{
    SendMessageW(GetParent(control), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(control),
                 screenPoint);
}

void RequestMenuAt(HWND control, POINT point)
{
    ClientToScreen(control, &point);
    RequestMenu(control, MAKELPARAM(point.x, point.y));
}

// The node whose check box lies at the point; null beside boxes and for nodes without one.
HTREEITEM BoxAt(HWND tree, POINT point)
{
    if ((GetWindowLongPtrW(tree, GWL_STYLE) & TVS_CHECKBOXES) == 0)
        return nullptr;
    TVHITTESTINFO hit{};
    hit.pt = point;
    TreeView_HitTest(tree, &hit);
    return (hit.flags & TVHT_ONITEMSTATEICON) != 0 ? hit.hItem : nullptr;
}

// Flips the check box at the point before anything posted during the announcement is handled;
// the tree's own way runs a message loop first. Returns false where there is no box.
bool FlipBox(HWND tree, POINT point)
{
    const HTREEITEM node = BoxAt(tree, point);
    if (node == nullptr)
        return false;
    const UINT state = TreeView_GetItemState(tree, node, TVIS_STATEIMAGEMASK);
    if ((state & TVIS_STATEIMAGEMASK) == 0)
        return false;
    const UINT flipped = (state & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(1) ? 2 : 1;
    SetFocus(tree);
    TreeView_SetItemState(tree, node, INDEXTOSTATEIMAGEMASK(flipped), TVIS_STATEIMAGEMASK);
    NMHDR click = HeaderFor(tree, static_cast<UINT>(NM_CLICK));
    SendMessageW(GetParent(tree), WM_NOTIFY, click.idFrom, reinterpret_cast<LPARAM>(&click));
    return true;
}

LRESULT OnPress(HWND control, UINT message, WPARAM wParam, LPARAM lParam, Kind kind)
{
    const POINT point = PointOf(lParam);
    const bool recognise = AnnounceStylus(control, point);
    if (!IsWindow(control) || (kind == Tree && FlipBox(control, point)))
        return 0;
    if (recognise && IsStylusHeld(control))
    {
        SetFocus(control);
        RequestMenuAt(control, point);
        return 0;
    }
    return IsWindow(control) ? DefSubclassProc(control, message, wParam, lParam) : 0;
}

// A desktop's right button is a tap-and-hold that needs no waiting.
LRESULT OnRightPress(HWND control, LPARAM lParam)
{
    const POINT point = PointOf(lParam);
    SetFocus(control);
    if (AnnounceStylus(control, point) && IsWindow(control))
        RequestMenuAt(control, point);
    return 0;
}

// Whether the message is of Shift+F10, which asks for the context menu like the Apps key. Systems
// differ in what they make of it by themselves, so it doesn't go on to them; the Apps key gives one
// WM_CONTEXTMENU everywhere.
bool TakeMenuKey(HWND control, UINT message, WPARAM key, LPARAM lParam)
{
    if (key != VK_F10)
        return false;
    if (message == WM_SYSKEYUP)
        return true;
    if (GetKeyState(VK_SHIFT) >= 0)
        return false;
    if ((lParam & kRepeated) == 0)
        RequestMenu(control, kNoPoint);
    return true;
}

// Enter belongs to trees, not to the dialog's default button.
LRESULT DialogCode(HWND tree, WPARAM wParam, LPARAM lParam)
{
    const LRESULT code = DefSubclassProc(tree, WM_GETDLGCODE, wParam, lParam);
    const MSG* message = reinterpret_cast<const MSG*>(lParam);
    const bool isEnter =
        message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    return isEnter ? code | DLGC_WANTMESSAGE : code;
}

LRESULT CALLBACK StylusProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR kindValue)
{
    const Kind kind = static_cast<Kind>(kindValue);
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return OnPress(control, message, wParam, lParam, kind);
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
        return OnRightPress(control, lParam);
    case WM_RBUTTONUP:
        // Its default is a second WM_CONTEXTMENU.
        return 0;
    case WM_SYSKEYDOWN:
    case WM_SYSKEYUP:
        if (TakeMenuKey(control, message, wParam, lParam))
            return 0;
        break;
    case WM_GETDLGCODE:
        if (kind == Tree)
            return DialogCode(control, wParam, lParam);
        break;
    case WM_CHAR:
        // The character of an Enter that was handled as a key; the tree would beep.
        if (kind == Tree && wParam == L'\r')
            return 0;
        break;
    case WM_NCDESTROY:
        RemoveWindowSubclass(control, StylusProc, id);
        break;
    }
    return DefSubclassProc(control, message, wParam, lParam);
}

} // namespace

void GiveStylusManners(HWND control)
{
    const Kind kind = KindOf(control);
    if (kind != Other)
        SetWindowSubclass(control, StylusProc, kStylusSubclass, kind);
    if (kind == Tree)
        TreeView_SetIndent(control, Scaled(kTreeIndent));
}

} // namespace shell
