// Thin wrappers of the common controls: one member per message, no state but the handle.
#pragma once

#include "atlwin.h"

namespace WTL
{

// A tree view.
class CTreeViewCtrl : public ATL::CWindow
{
public:
    explicit CTreeViewCtrl(HWND window = nullptr) : CWindow(window) {}

    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    BOOL DeleteItem(HTREEITEM item)
    {
        return static_cast<BOOL>(SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)));
    }
    HTREEITEM InsertItem(const TVINSERTSTRUCTW& item)
    {
        return Item(SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    }
    BOOL GetItem(TVITEMW& item) const
    {
        return static_cast<BOOL>(SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    }
    BOOL SetItem(const TVITEMW& item)
    {
        return static_cast<BOOL>(SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    }
    BOOL SetItemText(HTREEITEM node, const wchar_t* text)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_TEXT;
        item.hItem = node;
        item.pszText = const_cast<wchar_t*>(text);
        return SetItem(item);
    }
    LPARAM GetItemData(HTREEITEM node) const
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_PARAM;
        item.hItem = node;
        return GetItem(item) ? item.lParam : 0;
    }
    BOOL SetItemData(HTREEITEM node, LPARAM data)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_PARAM;
        item.hItem = node;
        item.lParam = data;
        return SetItem(item);
    }
    UINT GetItemState(HTREEITEM node, UINT mask) const
    {
        return static_cast<UINT>(
            SendMessage(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), mask));
    }
    BOOL SetItemState(HTREEITEM node, UINT state, UINT mask)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_STATE;
        item.hItem = node;
        item.state = state;
        item.stateMask = mask;
        return SetItem(item);
    }
    HTREEITEM GetNextItem(HTREEITEM node, UINT code) const
    {
        return Item(SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(node)));
    }
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetChildItem(HTREEITEM node) const { return GetNextItem(node, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM node) const { return GetNextItem(node, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM node) const { return GetNextItem(node, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM node) const { return GetNextItem(node, TVGN_PARENT); }
    BOOL SelectItem(HTREEITEM node)
    {
        return static_cast<BOOL>(
            SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node)));
    }
    BOOL EnsureVisible(HTREEITEM node)
    {
        return static_cast<BOOL>(SendMessage(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(node)));
    }
    BOOL Expand(HTREEITEM node, UINT code)
    {
        return static_cast<BOOL>(SendMessage(TVM_EXPAND, code, reinterpret_cast<LPARAM>(node)));
    }
    HTREEITEM HitTest(TVHITTESTINFO& info) const
    {
        return Item(SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&info)));
    }
    // The node's rectangle in the tree's client area; with `textOnly`, that of its label.
    BOOL GetItemRect(HTREEITEM node, RECT& rect, BOOL textOnly) const
    {
        TVITEMPOSITION position = {};
        position.node = node;
        const auto result = SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(textOnly),
                                        reinterpret_cast<LPARAM>(&position));
        rect = position.rect;
        return static_cast<BOOL>(result);
    }
    HIMAGELIST GetImageList(int kind) const
    {
        return reinterpret_cast<HIMAGELIST>(
            SendMessage(TVM_GETIMAGELIST, static_cast<WPARAM>(kind)));
    }
    // The list of that kind before; the tree doesn't own either.
    HIMAGELIST SetImageList(HIMAGELIST images, int kind)
    {
        return reinterpret_cast<HIMAGELIST>(SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(kind),
                                                        reinterpret_cast<LPARAM>(images)));
    }
    // By their texts, in the order of the language.
    BOOL SortChildren(HTREEITEM node)
    {
        return static_cast<BOOL>(
            SendMessage(TVM_SORTCHILDREN, FALSE, reinterpret_cast<LPARAM>(node)));
    }
    void SetRedraw(BOOL redraw) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }

private:
    // TVM_GETITEMRECT takes the node in the place where it returns the rectangle.
    union TVITEMPOSITION
    {
        HTREEITEM node;
        RECT rect;
    };

    static HTREEITEM Item(LRESULT result) { return reinterpret_cast<HTREEITEM>(result); }
};

// A list view.
class CListViewCtrl : public ATL::CWindow
{
public:
    explicit CListViewCtrl(HWND window = nullptr) : CWindow(window) {}

    int InsertColumn(int index, const LVCOLUMNW& column)
    {
        return static_cast<int>(SendMessage(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                                            reinterpret_cast<LPARAM>(&column)));
    }
    int GetColumnWidth(int index) const
    {
        return static_cast<int>(SendMessage(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(index)));
    }
    BOOL SetColumnWidth(int index, int width)
    {
        return static_cast<BOOL>(
            SendMessage(LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(index), MAKELPARAM(width, 0)));
    }
    DWORD GetExtendedListViewStyle() const
    {
        return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
    }
    // Sets the bits of `mask` to those of `style`.
    void SetExtendedListViewStyle(DWORD style, DWORD mask)
    {
        SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, mask, static_cast<LPARAM>(style));
    }
    HIMAGELIST SetImageList(HIMAGELIST images, int kind)
    {
        return reinterpret_cast<HIMAGELIST>(SendMessage(LVM_SETIMAGELIST, static_cast<WPARAM>(kind),
                                                        reinterpret_cast<LPARAM>(images)));
    }
    // Pixels from one icon to the next. Returns the earlier spacing.
    DWORD SetIconSpacing(int x, int y)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(x, y)));
    }
    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    BOOL SetItemCount(int count)
    {
        return static_cast<BOOL>(SendMessage(LVM_SETITEMCOUNT, static_cast<WPARAM>(count)));
    }
    // The place that the item got: a sorted list chooses it by itself. -1 on failure.
    int InsertItem(const LVITEMW& item)
    {
        return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item)));
    }
    BOOL DeleteAllItems() { return static_cast<BOOL>(SendMessage(LVM_DELETEALLITEMS)); }
    // 0 for an item that isn't there.
    LPARAM GetItemData(int item) const
    {
        LVITEMW data = {};
        data.mask = LVIF_PARAM;
        data.iItem = item;
        SendMessage(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data));
        return data.lParam;
    }
    UINT GetItemState(int item, UINT mask) const
    {
        return static_cast<UINT>(
            SendMessage(LVM_GETITEMSTATE, static_cast<WPARAM>(item), static_cast<LPARAM>(mask)));
    }
    // An item of -1 stands for all items.
    BOOL SetItemState(int item, UINT state, UINT mask)
    {
        LVITEMW change = {};
        change.state = state;
        change.stateMask = mask;
        return static_cast<BOOL>(SendMessage(LVM_SETITEMSTATE, static_cast<WPARAM>(item),
                                             reinterpret_cast<LPARAM>(&change)));
    }
    int GetNextItem(int item, UINT flags) const
    {
        return static_cast<int>(
            SendMessage(LVM_GETNEXTITEM, static_cast<WPARAM>(item), MAKELPARAM(flags, 0)));
    }
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    int GetSelectionMark() const { return static_cast<int>(SendMessage(LVM_GETSELECTIONMARK)); }
    int SetSelectionMark(int item)
    {
        return static_cast<int>(SendMessage(LVM_SETSELECTIONMARK, 0, item));
    }
    BOOL EnsureVisible(int item, BOOL partialIsEnough)
    {
        return static_cast<BOOL>(
            SendMessage(LVM_ENSUREVISIBLE, static_cast<WPARAM>(item), partialIsEnough));
    }
    BOOL GetItemRect(int item, RECT& rect, int part) const
    {
        rect.left = part;
        return static_cast<BOOL>(SendMessage(LVM_GETITEMRECT, static_cast<WPARAM>(item),
                                             reinterpret_cast<LPARAM>(&rect)));
    }
    void SetRedraw(BOOL redraw) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
};

// A push button, check box or radio button.
class CButton : public ATL::CWindow
{
public:
    explicit CButton(HWND window = nullptr) : CWindow(window) {}

    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
};

} // namespace WTL

using WTL::CButton;
using WTL::CListViewCtrl;
using WTL::CTreeViewCtrl;
