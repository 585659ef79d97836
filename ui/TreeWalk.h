// Walking all nodes of a tree view.
#pragma once

#include <atlctrls.h>

#include <functional>

// Calls `visit` for every node, each before its children.
void ForEachNode(const CTreeViewCtrl& tree, const std::function<void(HTREEITEM)>& visit);

// Whether the tree has such a node; it need not be one.
bool HasNode(const CTreeViewCtrl& tree, HTREEITEM node);
