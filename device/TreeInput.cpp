#include "device/TreeInput.h"

#include <cstring>

#include "device/Stylus.h"
#include "device/Waiting.h"

namespace treeinput
{
namespace
{

HTREEITEM Step(HWND tree, WPARAM code, HTREEITEM from)
{
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(from)));
}

bool IsExpanded(HWND tree, HTREEITEM node)
{
    return (SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_EXPANDED) &
            TVIS_EXPANDED) != 0;
}

} // namespace

HWND TreeOf(HWND dialog)
{
    return FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr);
}

HTREEITEM Root(HWND tree)
{
    return Step(tree, TVGN_ROOT, nullptr);
}

HTREEITEM Child(HWND tree, HTREEITEM parent, int position)
{
    HTREEITEM node = Step(tree, TVGN_CHILD, parent);
    for (int i = 0; i < position && node; ++i)
        node = Step(tree, TVGN_NEXT, node);
    return node;
}

UINT BoxOf(HWND tree, HTREEITEM node)
{
    const LRESULT state =
        SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_STATEIMAGEMASK);
    return (static_cast<UINT>(state) & TVIS_STATEIMAGEMASK) >> 12;
}

POINT MiddleOf(HWND tree, HTREEITEM node)
{
    // The message takes the node from where it puts the rectangle.
    RECT label = {};
    memcpy(&label, &node, sizeof(HTREEITEM));
    SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&label));
    POINT middle = {(label.left + label.right) / 2, (label.top + label.bottom) / 2};
    ClientToScreen(tree, &middle);
    return middle;
}

bool Select(HWND tree, HTREEITEM node)
{
    SendMessageW(tree, TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(node));
    return stylus::TapUntil([&] { return MiddleOf(tree, node); },
                            [&] { return Step(tree, TVGN_CARET, nullptr) == node; });
}

HTREEITEM Open(HWND tree, std::initializer_list<int> positions)
{
    HTREEITEM node = Root(tree);
    for (const int position : positions)
    {
        node = Child(tree, node, position);
        if (!node || !Select(tree, node))
            return nullptr;
        stylus::Key(VK_RIGHT);
        if (!waiting::Until([&] { return IsExpanded(tree, node); }))
            return nullptr;
    }
    return node;
}

} // namespace treeinput
