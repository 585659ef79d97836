// A dialog with a check-box tree for the stylus tests. It records what the tree announces, and how
// the first node's box stood at each step.
#pragma once

#include "tests/platform/aygshell/TestDialog.h"

#include <memory>
#include <thread>

#include <gtest/gtest.h>

constexpr int kTreeId = 203;
constexpr UINT kPostedInAnnouncement = WM_APP + 1;

// Well beyond the time of a tap-and-hold, in milliseconds.
constexpr DWORD kLong = 1500;

// What the dialog answers: a gesture may be recognised, or none.
constexpr LRESULT kRecognise = 0;
constexpr LRESULT kNoGesture = 1;

inline UINT BoxState(HWND tree, HTREEITEM node)
{
    return TreeView_GetItemState(tree, node, TVIS_STATEIMAGEMASK) >> 12;
}

// Does something from another thread after a while; the destructor waits for it.
class CLater
{
public:
    template <class Action>
    CLater(DWORD milliseconds, Action action)
        : m_thread(
              [=]
              {
                  Sleep(milliseconds);
                  action();
              })
    {
    }
    ~CLater() { m_thread.join(); }

private:
    std::thread m_thread;
};

class StylusTree : public testing::Test
{
protected:
    StylusTree() : dialog({{WC_TREEVIEWW, WS_TABSTOP | TVS_HASLINES, kTreeId, 0, 10, 100, 80}})
    {
        tree = dialog.Control(kTreeId);
        const LONG_PTR style = GetWindowLongPtrW(tree, GWL_STYLE);
        SetWindowLongPtrW(tree, GWL_STYLE, style | TVS_CHECKBOXES);
        first = Insert(L"First", 1);
        second = Insert(L"Second node", 2);
        boxless = Insert(L"Boxless node", 0);
        dialog.SetHandler([this](const LoggedMessage& entry, LRESULT& result)
                          { return OnMessage(entry, result); });
        dialog.Open();
        SetFocus(tree);
        dialog.ParkPointer({0, 0});
        dialog.ClearLog();
    }

    HTREEITEM Insert(const wchar_t* text, UINT state)
    {
        TVINSERTSTRUCTW item{};
        item.hInsertAfter = TVI_LAST;
        item.item.mask = TVIF_TEXT;
        item.item.pszText = const_cast<wchar_t*>(text);
        const HTREEITEM node = TreeView_InsertItem(tree, &item);
        TreeView_SetItemState(tree, node, INDEXTOSTATEIMAGEMASK(state), TVIS_STATEIMAGEMASK);
        return node;
    }

    bool OnMessage(const LoggedMessage& entry, LRESULT& result)
    {
        if (entry.Message == kPostedInAnnouncement)
            stateWhenPosted = BoxState(tree, first);
        if (entry.Code == static_cast<UINT>(NM_CLICK))
            stateAtClick = BoxState(tree, first);
        if (entry.Message != WM_NOTIFY || entry.Code != NM_STYLUSDOWN)
            return false;
        const auto& down = *reinterpret_cast<const NMSTYLUSDOWN*>(entry.LParam);
        announced = down;
        stateAtAnnouncement = BoxState(tree, first);
        PostMessageW(dialog.Window(), kPostedInAnnouncement, 0, 0);
        result = answer;
        return true;
    }

    POINT LabelOf(HTREEITEM node)
    {
        RECT rect{};
        TreeView_GetItemRect(tree, node, &rect, TRUE);
        return CentreOf(rect);
    }

    POINT BoxOf(HTREEITEM node)
    {
        POINT point = LabelOf(node);
        for (point.x = 0; point.x < 200; ++point.x)
        {
            TVHITTESTINFO hit{};
            hit.pt = {point.x + 3, point.y};
            TreeView_HitTest(tree, &hit);
            if (hit.flags == TVHT_ONITEMSTATEICON)
                return hit.pt;
        }
        ADD_FAILURE() << "the node has no box";
        return point;
    }

    POINT OnScreen(POINT point)
    {
        ClientToScreen(tree, &point);
        return point;
    }

    // Puts the stylus down at a point, by message; it is lifted after that many milliseconds.
    void PostPress(POINT point, DWORD liftAfter)
    {
        PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(point));
        const HWND window = tree;
        m_lift = std::make_unique<CLater>(
            liftAfter, [=] { PostMessageW(window, WM_LBUTTONUP, 0, PointParam(point)); });
    }

    const LoggedMessage* ContextMenu()
    {
        for (const LoggedMessage& entry : dialog.Log())
            if (entry.Message == WM_CONTEXTMENU)
                return &entry;
        return nullptr;
    }

    bool RunUntilContextMenu()
    {
        return dialog.RunUntil([this] { return dialog.Count(WM_CONTEXTMENU) > 0; });
    }

    CTestDialog dialog;
    HWND tree = nullptr;
    HTREEITEM first = nullptr;
    HTREEITEM second = nullptr;
    HTREEITEM boxless = nullptr;
    LRESULT answer = kNoGesture;
    NMSTYLUSDOWN announced{};
    UINT stateAtAnnouncement = 99;
    UINT stateAtClick = 99;
    UINT stateWhenPosted = 99;

private:
    std::unique_ptr<CLater> m_lift;
};
