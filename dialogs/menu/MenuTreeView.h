// The menu as a tree of check boxes: nodes stand for menu items, whose Ids are their data.
#pragma once

#include "menu/MenuTree.h"
#include "ui/CheckTreeView.h"

// The tree view of the menu editor.
class CMenuTreeView : public CCheckTreeView
{
public:
    // Shows the whole tree afresh, its root labelled `rootText` and open. Redraws once.
    void Fill(const CMenuTree& tree, const wchar_t* rootText);

    // Inserts a node for one item, with a box that shows whether it is active. Returns the node.
    HTREEITEM InsertNode(HTREEITEM parent, HTREEITEM after, const CMenuItem& item);

    // The node of an item; null when it has none.
    HTREEITEM NodeOf(const CMenuItem& item) const;

    // The Id of the node's item.
    DWORD ItemIdOf(HTREEITEM node) const;

private:
    void InsertChildren(HTREEITEM node, const CMenuItem& item);
};

// True for the items whose box can be switched: all but the root and the Settings menu.
bool HasSwitch(const CMenuItem& item);
