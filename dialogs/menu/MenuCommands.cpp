#include "dialogs/menu/MenuCommands.h"

#include "resources/resource.h"

namespace
{

// The launcher shows menus this deep and no deeper.
constexpr int kDeepestMenu = 6;

void Enable(HMENU menu, UINT command, bool enabled)
{
    EnableMenuItem(menu, command,
                   static_cast<UINT>(MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED)));
}

} // namespace

int DepthOf(const CMenuItem& item)
{
    int depth = 0;
    for (const CMenuItem* ancestor = item.Parent; ancestor; ancestor = ancestor->Parent)
        ++depth;
    return depth;
}

bool CanAddMenu(CMenuItem& item)
{
    return item.CanAdd() && DepthOf(item) < kDeepestMenu;
}

void EnableMenuCommands(HMENU menu, CMenuItem* item)
{
    const bool canAdd = item && item->CanAdd();
    const bool isUserItem = item && item->IsUserItem();
    Enable(menu, ID_MOVE_UP, item && item->Move(true, true));
    Enable(menu, ID_MOVE_DOWN, item && item->Move(false, true));
    Enable(menu, ID_ADD_FILE, canAdd);
    Enable(menu, ID_ADD_LINK, canAdd);
    Enable(menu, ID_ADD_MENU, item && CanAddMenu(*item));
    Enable(menu, ID_EDIT_ITEM, isUserItem);
    Enable(menu, ID_REMOVE_ITEM, isUserItem);
    Enable(menu, ID_MENU_OPTIONS, item && (canAdd || !item->Parent));
}
