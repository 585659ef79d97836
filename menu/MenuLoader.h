// Reads the menu from its three registry layers into items; CMenuTree::Load is the caller.
#pragma once

#include "menu/MenuItem.h"

// The deepest item: what nests deeper is not loaded. Registry links can lead back to an ancestor.
constexpr uint32_t kMaxMenuDepth = 512;
// No menu comes near it: ends a load in which several such links multiply what is below them.
constexpr uint32_t kMostMenuItems = 120000;

// Reads everything below `item`, which has no children yet. The product's layer comes first, what
// only the shared component has follows it, and the customisation layer changes positions and
// visibility and adds the user's own items. Unless `tree` includes the settings, the Settings menu
// stays without children. Throws CTavException.
void LoadChildren(const CMenuItemPtr& item, const CMenuTree& tree);
