// A tree of check boxes, as the menu editor and the home dialog show it.
#pragma once

#include "menu/NodeBox.h"
#include "platform/Handles.h"
#include "ui/RedrawPause.h"
#include "ui/TreeWalk.h"

#include <atlctrls.h>

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

private:
    // Made by the tree view, which leaves it to us to destroy them.
    UniqueImageList m_boxes;
};
