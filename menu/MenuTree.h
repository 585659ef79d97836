// The launcher menu as a dialog edits it: the root item and an index of all items by Id.
#pragma once

#include "menu/MenuItemMap.h"

// Lives as long as its dialog and is touched by the dialog's thread only.
class CMenuTree
{
public:
    // Builds an empty tree. Without `includeSettings` the Settings menu gets no children.
    explicit CMenuTree(bool includeSettings);

    // Reads the whole menu anew from the registry. Throws CTavException; the tree may then hold a
    // part of the menu.
    void Load();

    // Null when the Id is unknown.
    CMenuItemPtr Find(uint32_t id) const { return Items.Find(id); }
    void Insert(uint32_t id, const CMenuItemPtr& item) { Items.Insert(id, item); }
    void Erase(uint32_t id) { Items.Erase(id); }

    bool IncludeSettings;
    CMenuItemMap Items;
    CMenuItemPtr Root;

private:
    void Register(const CMenuItemPtr& item);
};
