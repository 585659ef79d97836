// The launcher menu as a tree of what can be pinned to the home screen. Nodes of menu items have
// the items' Ids as their data, nodes of Start Menu entries the negative numbers of the scan.
#pragma once

#include "menu/MenuTree.h"
#include "menu/ProgramScan.h"
#include "menu/Rating.h"
#include "ui/CheckTreeView.h"

// The tree view of the home dialog.
class CPinTreeView : public CCheckTreeView
{
public:
    // Shows the whole menu afresh, its root labelled `rootText` and open, with what is pinned
    // checked. `scan` fills the Programs branch. Redraws once.
    void Fill(const CMenuTree& tree, CProgramScan& scan, const Ratings::CMruSlots& pinned,
              const wchar_t* rootText);

    // A menu item's Id, or a scanned entry's negative number.
    int32_t NumberOf(HTREEITEM node) const;

    // How many nodes other than `node` are checked.
    uint32_t CountCheckedBeside(HTREEITEM node) const;

    // Shows the menus above a node bold when something in them is checked, and normal otherwise.
    void MarkAncestors(HTREEITEM node);

private:
    // What filling the tree takes.
    struct Sources
    {
        CProgramScan& Scan;
        const Ratings::CMruSlots& Pinned;
    };

    // Both return whether they checked anything.
    bool InsertItemNode(HTREEITEM parent, const CMenuItem& item, const wchar_t* text,
                        const Sources& sources);
    bool FillBelow(HTREEITEM node, const CMenuItem& item, const Sources& sources);
    void MarkFrom(HTREEITEM node);
    bool LeadsToChecked(HTREEITEM node) const;
    void SetBold(HTREEITEM node, bool bold);
};
