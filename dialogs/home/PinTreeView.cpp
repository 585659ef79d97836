#include "dialogs/home/PinTreeView.h"

#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

void CPinTreeView::Fill(const CMenuTree& tree, CProgramScan& scan, const Ratings::CMruSlots& pinned,
                        const wchar_t* rootText)
{
    const CRedrawPause pause(*this);
    DeleteAllItems();
    InsertItemNode(TVI_ROOT, *tree.Root, rootText, {scan, pinned});
    Expand(GetRootItem(), TVE_EXPAND);
}

// The bold marks follow from what is checked on the way: asking the tree for it afterwards would
// take longer than filling it.
bool CPinTreeView::InsertItemNode(HTREEITEM parent, const CMenuItem& item, const wchar_t* text,
                                  const Sources& sources)
{
    const bool isPinned = sources.Pinned.IsPinned(Ratings::MenuEntryName(item.KeyPath));
    const UINT box = isPinned ? kCheckedBox : kUncheckedBox;
    const HTREEITEM node = Insert(parent, TVI_LAST, text, item.Id, box);
    const bool leadsToChecked = FillBelow(node, item, sources);
    if (leadsToChecked)
        SetBold(node, true);
    return isPinned || leadsToChecked;
}

// What the registry holds below the Programs branch isn't shown: the Start Menu takes its place.
bool CPinTreeView::FillBelow(HTREEITEM node, const CMenuItem& item, const Sources& sources)
{
    if (os::EqualNoCase(item.KeyPath, kProgramsBranchPath))
    {
        if (sources.Scan.Fill(*this, node, &sources.Pinned) == 0)
            return false;
        MarkFrom(node);
        return true;
    }
    bool anyChecked = false;
    for (const CMenuItemPtr& child : item.Children)
        anyChecked |= InsertItemNode(node, *child, child->Text.c_str(), sources);
    return anyChecked;
}

int32_t CPinTreeView::NumberOf(HTREEITEM node) const
{
    return static_cast<int32_t>(GetItemData(node));
}

uint32_t CPinTreeView::CountCheckedBeside(HTREEITEM node) const
{
    uint32_t count = 0;
    ForEachNode(*this, [&](HTREEITEM each)
                { count += each != node && BoxOf(each) == kCheckedBox ? 1u : 0u; });
    return count;
}

void CPinTreeView::MarkAncestors(HTREEITEM node)
{
    while ((node = GetParentItem(node)) != nullptr)
        SetBold(node, LeadsToChecked(node));
}

// Children first: a menu's mark follows from theirs.
void CPinTreeView::MarkFrom(HTREEITEM node)
{
    for (HTREEITEM child = GetChildItem(node); child; child = GetNextSiblingItem(child))
        MarkFrom(child);
    if (LeadsToChecked(node))
        SetBold(node, true);
}

bool CPinTreeView::LeadsToChecked(HTREEITEM node) const
{
    for (HTREEITEM child = GetChildItem(node); child; child = GetNextSiblingItem(child))
        if (BoxOf(child) == kCheckedBox || (GetItemState(child, TVIS_BOLD) & TVIS_BOLD))
            return true;
    return false;
}

void CPinTreeView::SetBold(HTREEITEM node, bool bold)
{
    SetItemState(node, bold ? TVIS_BOLD : 0u, TVIS_BOLD);
}
