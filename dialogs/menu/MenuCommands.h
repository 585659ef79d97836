// Which commands of the menu editor fit an item.
#pragma once

#include "menu/MenuItem.h"

// How many ancestors an item has; the root has none.
int DepthOf(const CMenuItem& item);

// True when menus may be added below the item: it takes items and isn't too deep.
bool CanAddMenu(CMenuItem& item);

// Enables or grays every command in `menu`, sub-menus included, for the selected item (null when
// there is none). Asking an item whether it can move normalises its siblings' stored positions.
void EnableMenuCommands(HMENU menu, CMenuItem* item);
