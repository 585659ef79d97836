// The launcher menu as the shell shows it: the customised tree, read with the module's own model,
// and the menu in it that is open at the moment.
#pragma once

#include <string>
#include <vector>

#include "menu/MenuItem.h"
#include "menu/MenuTree.h"

class CLauncherMenu
{
public:
    CLauncherMenu();

    // Reads the menu anew and opens its first level. Throws CTavException.
    void Reload();

    // The shown items of the open menu, in order; hidden ones are left out.
    std::vector<CMenuItemPtr> Items() const;
    // How many items of the open menu are hidden.
    int HiddenCount() const;
    // The name of the open menu; empty for the first level.
    std::wstring Title() const;
    bool IsGrid() const;

    // Opens a menu among Items(); false, doing nothing, for an item that isn't a menu.
    bool Open(const CMenuItemPtr& item);
    // Goes up one level; false at the first level.
    bool Back();

    // True for items that can be opened.
    static bool IsMenu(const CMenuItem& item);
    // The number of the icon that stands for an item, 0 when its image path does.
    static int IconOf(const CMenuItem& item);

private:
    CMenuTree m_tree;
    CMenuItem* m_open = nullptr;
};
