// A tree of check boxes, as the menu editor and the home dialog show it.
#pragma once

#include "menu/NodeBox.h"
#include "platform/Handles.h"

#include <atlctrls.h>

#include <functional>

// Does not own the window, but the pictures of its boxes.
class CCheckTreeView : public CTreeViewCtrl
{
public:
    // Gives the tree its check boxes; before any node is inserted.
    void UseCheckBoxes();

    // Inserts a node with that box and data. Returns it.
    HTREEITEM Insert(HTREEITEM parent, HTREEITEM after, const wchar_t* text, LPARAM data, UINT box);

    // Selects a node and scrolls it into view.
    void Show(HTREEITEM node);

    // The state image of a node.
    UINT BoxOf(HTREEITEM node) const;
    void SetBox(HTREEITEM node, UINT box);

    // The centre of the node's label, in the tree's client area.
    POINT LabelCentre(HTREEITEM node) const;

    // Calls `visit` for every node, each before its children.
    void ForEachNode(const std::function<void(HTREEITEM)>& visit) const;

private:
    void VisitFrom(HTREEITEM node, const std::function<void(HTREEITEM)>& visit) const;

    // Made by the tree view, which leaves it to us to destroy them.
    UniqueImageList m_boxes;
};

// No redrawing while many nodes come and go: it costs a hundred times what inserting them does.
class CRedrawPause
{
public:
    explicit CRedrawPause(CTreeViewCtrl& tree) : m_tree(tree) { m_tree.SetRedraw(FALSE); }
    ~CRedrawPause() { m_tree.SetRedraw(TRUE); }
    CRedrawPause(const CRedrawPause&) = delete;
    CRedrawPause& operator=(const CRedrawPause&) = delete;

private:
    CTreeViewCtrl& m_tree;
};
