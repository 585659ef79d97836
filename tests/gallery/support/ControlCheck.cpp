// The part of the check that knows the kinds of controls, and menus.
#include "tests/gallery/support/GeometryCheck.h"

#include "tests/gallery/support/TextMeasure.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

// Between a button's text and its edges, and on both sides of a list's text within its column. In
// pixels of a 96-dpi screen.
constexpr int kButtonMargin = 4;
constexpr int kColumnMargin = 2;
// Asks the window of a pop-up menu for its menu.
constexpr UINT kGetMenu = 0x01E1;

bool HasStyle(HWND window, LONG_PTR style)
{
    return (GetWindowLongPtrW(window, GWL_STYLE) & style) == style;
}

LONG_PTR KindOf(HWND window, LONG_PTR mask)
{
    return GetWindowLongPtrW(window, GWL_STYLE) & mask;
}

HTREEITEM Step(HWND tree, WPARAM code, HTREEITEM from)
{
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(from)));
}

std::wstring RowText(HWND list, int row)
{
    wchar_t text[512] = {};
    LVITEMW item = {};
    item.pszText = text;
    item.cchTextMax = 512;
    SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return item.pszText;
}

} // namespace

void CGeometryCheck::Control(HWND control)
{
    const std::wstring name = ClassOf(control);
    const std::wstring text = TextOf(control);
    if (name == L"static")
        Static(control, text);
    else if (name == L"button")
        Button(control, text);
    else if (name == L"edit")
        Edit(control);
    else if (name == L"systreeview32")
        Tree(control);
    else if (name == L"syslistview32")
        List(control);
    else
        Fail(ControlName(control), "is of an unknown kind");
}

void CGeometryCheck::Static(HWND control, const std::wstring& text)
{
    const LONG_PTR kind = KindOf(control, SS_TYPEMASK);
    if (text.empty() || kind == SS_BITMAP || kind == SS_ICON)
        return;
    const RECT client = ClientOf(control);
    const bool prefix = !HasStyle(control, SS_NOPREFIX);
    Fits(ControlName(control), text, ParagraphSize(control, text, client.right, prefix),
         SizeOf(client));
}

void CGeometryCheck::Button(HWND control, const std::wstring& text)
{
    const LONG_PTR kind = KindOf(control, BS_TYPEMASK);
    const bool isPush = kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON;
    const int beside = isPush ? 2 * Px(kButtonMargin) : CheckGlyphWidth(control);
    const SIZE given = SizeOf(ClientOf(control));
    SIZE needed = HasStyle(control, BS_MULTILINE) ? ParagraphSize(control, text, given.cx - beside)
                                                  : LineSize(control, text);
    needed.cx += beside;
    Fits(ControlName(control), text, needed, given);
}

// What is typed scrolls; a line must be seen whole.
void CGeometryCheck::Edit(HWND control)
{
    Fits(ControlName(control), L"", {0, LineSize(control, L"Ag").cy}, SizeOf(ClientOf(control)));
}

// A row that is wider than the tree can be scrolled to.
void CGeometryCheck::Tree(HWND tree)
{
    const RECT client = ClientOf(tree);
    for (HTREEITEM node = Step(tree, TVGN_ROOT, nullptr); node;
         node = Step(tree, TVGN_NEXTVISIBLE, node))
    {
        // The message takes the node from where it puts the rectangle.
        RECT label = {};
        std::memcpy(&label, &node, sizeof(node));
        SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&label));
        if (label.right > client.right && !HasStyle(tree, WS_HSCROLL))
            Fail(ControlName(tree), "has a row that ends at " + std::to_string(label.right) +
                                        " and can't be scrolled");
    }
}

void CGeometryCheck::List(HWND list)
{
    const LONG_PTR kind = KindOf(list, LVS_TYPEMASK);
    const bool isData = HasStyle(list, LVS_OWNERDATA);
    if (kind != LVS_REPORT)
        return;
    if (HasStyle(list, WS_HSCROLL))
        Fail(ControlName(list), "is narrower than its columns");
    const int rows = isData ? 0 : static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < rows; ++row)
        Row(list, row);
}

void CGeometryCheck::Row(HWND list, int row)
{
    RECT label = {};
    label.left = LVIR_LABEL;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
    InflateRect(&label, -Px(kColumnMargin), 0);
    const std::wstring text = RowText(list, row);
    Fits(ControlName(list), text, LineSize(list, text, false), SizeOf(label));
}

void CGeometryCheck::Menus(DWORD threadId)
{
    std::vector<HWND> popups;
    EnumThreadWindows(
        threadId,
        [](HWND window, LPARAM found) -> BOOL
        {
            if (ClassOf(window) == L"#32768" && IsWindowVisible(window))
                reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&popups));
    EXPECT_FALSE(popups.empty()) << m_view;
    for (const HWND popup : popups)
        Menu(popup);
}

void CGeometryCheck::Menu(HWND popup)
{
    Inside("a menu", RectOf(popup),
           {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)});
    const auto menu = reinterpret_cast<HMENU>(SendMessageW(popup, kGetMenu, 0, 0));
    ASSERT_NE(nullptr, menu) << m_view;
    for (int i = 0; i < GetMenuItemCount(menu); ++i)
        MenuItem(popup, menu, static_cast<UINT>(i));
}

// The check mark's column stands before a text, the arrow's behind it.
void CGeometryCheck::MenuItem(HWND popup, HMENU menu, UINT position)
{
    RECT place = {};
    ASSERT_TRUE(GetMenuItemRect(popup, menu, position, &place)) << m_view << " " << position;
    Inside("a menu's entry", place, RectOf(popup));
    const std::wstring text = MenuText(menu, position);
    if (text.empty())
        return;
    place.left += GetSystemMetrics(SM_CXMENUCHECK);
    if (GetSubMenu(menu, static_cast<int>(position)))
        place.right -= GetSystemMetrics(SM_CXMENUCHECK);
    Fits("a menu's entry", text, MenuTextSize(text), SizeOf(place));
}
