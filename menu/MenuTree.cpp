#include "menu/MenuTree.h"

#include "menu/MemoryFailure.h"
#include "menu/MenuKeys.h"
#include "menu/MenuLoader.h"

namespace
{

constexpr uint32_t kItemBuckets = 10;

} // namespace

CMenuTree::CMenuTree(bool includeSettings) : IncludeSettings(includeSettings), Items(kItemBuckets)
{
}

void CMenuTree::Load()
{
    Items.Clear();
    Root = nullptr;
    Root = WithMemoryFailure([] { return CMenuItemPtr(new CMenuItem(kMenuRootPath)); });
    LoadChildren(Root, *this);
    Register(Root);
}

void CMenuTree::Register(const CMenuItemPtr& item)
{
    Insert(item->Id, item);
    for (auto child = item->Children.rbegin(); child != item->Children.rend(); ++child)
        Register(*child);
}
