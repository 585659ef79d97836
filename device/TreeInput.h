// Works a dialog's tree view with the stylus and the keys, for the picture drivers. Called on a
// thread of its own.
#pragma once

#include "platform/Win.h"

#include <initializer_list>

namespace treeinput
{

// The dialog's tree view; null when it has none.
HWND TreeOf(HWND dialog);

// The root node; null in an empty tree.
HTREEITEM Root(HWND tree);

// The n-th child of a node, from 0; null when there is none.
HTREEITEM Child(HWND tree, HTREEITEM parent, int position);

// The state of a node's box, by the number of its picture; 0 when it has none.
constexpr UINT kUnchecked = 1;
UINT BoxOf(HWND tree, HTREEITEM node);

// The middle of a node's label on the screen.
POINT MiddleOf(HWND tree, HTREEITEM node);

// Scrolls to a node and selects it by tapping it; false when that doesn't come about.
bool Select(HWND tree, HTREEITEM node);

// Selects and expands one node after the other: the root's child at the first position, that one's
// child at the second and so on. Returns the last; null when one can't be opened.
HTREEITEM Open(HWND tree, std::initializer_list<int> positions);

} // namespace treeinput
