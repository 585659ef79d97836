// The menu as a tree of check boxes: nodes stand for menu items, whose Ids are their data.
#pragma once

#include "menu/MenuTree.h"
#include "platform/Handles.h"

#include <atlctrls.h>

#include <functional>

// State images of a node: which box it shows, if any.
constexpr UINT kNoBox = 0;
constexpr UINT kUncheckedBox = 1;
constexpr UINT kCheckedBox = 2;

// The tree view of the menu editor. Does not own the window, but the pictures of its boxes.
class CMenuTreeView : public CTreeViewCtrl
{
public:
    // Gives the tree its check boxes; before any node is inserted.
    void UseCheckBoxes();

    // Shows the whole tree afresh, its root labelled `rootText` and open. Redraws once.
    void Fill(const CMenuTree& tree, const wchar_t* rootText);

    // Inserts a node for one item, with a box that shows whether it is active. Returns the node.
    HTREEITEM InsertNode(HTREEITEM parent, HTREEITEM after, const CMenuItem& item);

    // Selects a node and scrolls it into view.
    void Show(HTREEITEM node);

    // The state image of a node.
    UINT BoxOf(HTREEITEM node) const;
    void SetBox(HTREEITEM node, UINT box);

    // The Id of the node's item.
    DWORD ItemIdOf(HTREEITEM node) const;

    // The centre of the node's label, in the tree's client area.
    POINT LabelCentre(HTREEITEM node) const;

    // Calls `visit` for every node, each before its children.
    void ForEachNode(const std::function<void(HTREEITEM)>& visit) const;

private:
    HTREEITEM Insert(HTREEITEM parent, HTREEITEM after, const wchar_t* text, DWORD id, UINT box);
    void InsertChildren(HTREEITEM node, const CMenuItem& item);
    void VisitFrom(HTREEITEM node, const std::function<void(HTREEITEM)>& visit) const;

    // Made by the tree view, which leaves it to us to destroy them.
    UniqueImageList m_boxes;
};

// True for the items whose box can be switched: all but the root and the Settings menu.
bool HasSwitch(const CMenuItem& item);
