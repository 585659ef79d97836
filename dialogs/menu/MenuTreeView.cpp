#include "dialogs/menu/MenuTreeView.h"

#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

namespace
{

UINT BoxFor(const CMenuItem& item)
{
    return item.Inactive ? kUncheckedBox : kCheckedBox;
}

} // namespace

bool HasSwitch(const CMenuItem& item)
{
    return item.Parent && !os::EqualNoCase(item.KeyPath, kSettingsBranchPath);
}

void CMenuTreeView::Fill(const CMenuTree& tree, const wchar_t* rootText)
{
    const CRedrawPause pause(*this);
    DeleteAllItems();
    const CMenuItem& root = *tree.Root;
    const HTREEITEM node = Insert(TVI_ROOT, TVI_LAST, rootText, root.Id, kNoBox);
    InsertChildren(node, root);
    Expand(node, TVE_TOGGLE);
}

HTREEITEM CMenuTreeView::InsertNode(HTREEITEM parent, HTREEITEM after, const CMenuItem& item)
{
    return Insert(parent, after, item.Text.c_str(), item.Id, BoxFor(item));
}

void CMenuTreeView::InsertChildren(HTREEITEM node, const CMenuItem& item)
{
    for (size_t i = 0; i < item.Children.size(); ++i)
    {
        const CMenuItem& child = *item.Children[i];
        const UINT box = HasSwitch(child) ? BoxFor(child) : kNoBox;
        const HTREEITEM inserted = Insert(node, TVI_LAST, child.Text.c_str(), child.Id, box);
        InsertChildren(inserted, child);
    }
}

HTREEITEM CMenuTreeView::NodeOf(const CMenuItem& item) const
{
    HTREEITEM found = nullptr;
    ForEachNode(*this,
                [&](HTREEITEM node)
                {
                    if (ItemIdOf(node) == item.Id)
                        found = node;
                });
    return found;
}

DWORD CMenuTreeView::ItemIdOf(HTREEITEM node) const
{
    return static_cast<DWORD>(GetItemData(node));
}
