#include "platform/aygshell/StylusControls.h"

#include <new>
#include <unordered_map>

#include "aygshell.h"

#include "platform/aygshell/Gesture.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"

namespace shell
{

namespace
{

enum Kind
{
    Other,
    Tree,
    List
};

// A control with these manners and the procedure that it had before.
struct Control
{
    Kind kind;
    WNDPROC procedure;
};

// All of them. Looked up here and not in the system's own list of subclasses, where a look-up costs
// more than a tree takes to insert a node.
class CControls
{
public:
    // Returns false for a control that is there already, and without memory for another one.
    bool Add(HWND window, const Control& control)
    {
        const CLock lock(m_lock);
        try
        {
            return m_controls.emplace(window, control).second;
        }
        catch (const std::bad_alloc&)
        {
            return false;
        }
    }
    void Remove(HWND window)
    {
        const CLock lock(m_lock);
        m_controls.erase(window);
    }
    // The default procedure and no manners for a window that isn't there.
    Control Find(HWND window)
    {
        const CLock lock(m_lock);
        const auto found = m_controls.find(window);
        return found != m_controls.end() ? found->second : Control{Other, DefWindowProcW};
    }

private:
    class CLock
    {
    public:
        explicit CLock(SRWLOCK& lock) : m_lock(lock) { AcquireSRWLockExclusive(&m_lock); }
        ~CLock() { ReleaseSRWLockExclusive(&m_lock); }
        CLock(const CLock&) = delete;
        CLock& operator=(const CLock&) = delete;

    private:
        SRWLOCK& m_lock;
    };

    SRWLOCK m_lock = SRWLOCK_INIT;
    std::unordered_map<HWND, Control> m_controls;
};

CControls g_controls;

// What the control would do without its manners.
LRESULT Default(HWND control, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(g_controls.Find(control).procedure, control, message, wParam, lParam);
}

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

bool IsOnListBox(HWND list, POINT point)
{
    if ((ListView_GetExtendedListViewStyle(list) & LVS_EX_CHECKBOXES) == 0)
        return false;
    LVHITTESTINFO hit{};
    hit.pt = point;
    // Without the row the flag has another meaning.
    return ListView_HitTest(list, &hit) >= 0 && hit.flags == LVHT_ONITEMSTATEICON;
}

// What a press is to the control behind the manners: some lists flip a box at single presses only,
// which would lose every second one of quick taps.
UINT PressFor(HWND control, UINT message, POINT point, Kind kind)
{
    return kind == List && IsOnListBox(control, point) ? WM_LBUTTONDOWN : message;
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
    if (!IsWindow(control))
        return 0;
    return Default(control, PressFor(control, message, point, kind), wParam, lParam);
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
    const LRESULT code = Default(tree, WM_GETDLGCODE, wParam, lParam);
    const MSG* message = reinterpret_cast<const MSG*>(lParam);
    const bool isEnter =
        message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    return isEnter ? code | DLGC_WANTMESSAGE : code;
}

// The control's last message: its own procedure gets it with nothing in front of it.
LRESULT OnGone(HWND control, const Control& before, WPARAM wParam, LPARAM lParam)
{
    g_controls.Remove(control);
    SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before.procedure));
    return CallWindowProcW(before.procedure, control, WM_NCDESTROY, wParam, lParam);
}

LRESULT CALLBACK StylusProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Control before = g_controls.Find(control);
    const Kind kind = before.kind;
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
        return OnGone(control, before, wParam, lParam);
    }
    return CallWindowProcW(before.procedure, control, message, wParam, lParam);
}

} // namespace

void GiveStylusManners(HWND control)
{
    const Kind kind = KindOf(control);
    if (kind == Other)
        return;
    const LONG_PTR procedure = GetWindowLongPtrW(control, GWLP_WNDPROC);
    if (g_controls.Add(control, {kind, reinterpret_cast<WNDPROC>(procedure)}))
        SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(StylusProc));
    if (kind == Tree)
        TreeView_SetIndent(control, Scaled(kTreeIndent));
}

} // namespace shell
