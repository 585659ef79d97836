#include "dialogs/menu/MenuTreeView.h"

#include "menu/MenuKeys.h"
#include "platform/os/Text.h"

namespace
{

UINT BoxFor(const CMenuItem& item)
{
    return item.Inactive ? kUncheckedBox : kCheckedBox;
}

// No redrawing while many nodes come and go: it costs a hundred times what inserting them does.
class CRedrawPause
{
public:
    explicit CRedrawPause(CTreeViewCtrl& tree) : m_tree(tree) { m_tree.SetRedraw(FALSE); }
    ~CRedrawPause() { m_tree.SetRedraw(TRUE); }
    CRedrawPause(const CRedrawPause&) = delete;
    CRedrawPause& operator=(const CRedrawPause&) = delete;

private:
    CTreeViewCtrl& m_tree;
};

} // namespace

bool HasSwitch(const CMenuItem& item)
{
    return item.Parent && !os::EqualNoCase(item.KeyPath, kSettingsBranchPath);
}

void CMenuTreeView::UseCheckBoxes()
{
    ModifyStyle(0, TVS_CHECKBOXES);
    m_boxes.reset(GetImageList(TVSIL_STATE));
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

HTREEITEM CMenuTreeView::Insert(HTREEITEM parent, HTREEITEM after, const wchar_t* text, DWORD id,
                                UINT box)
{
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    insert.item.pszText = const_cast<wchar_t*>(text);
    insert.item.lParam = static_cast<LPARAM>(id);
    insert.item.state = INDEXTOSTATEIMAGEMASK(box);
    insert.item.stateMask = TVIS_STATEIMAGEMASK;
    const HTREEITEM node = InsertItem(insert);
    // A tree with check boxes gives every new node one.
    if (box == kNoBox)
        SetBox(node, kNoBox);
    return node;
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

void CMenuTreeView::Show(HTREEITEM node)
{
    SelectItem(node);
    EnsureVisible(node);
}

UINT CMenuTreeView::BoxOf(HTREEITEM node) const
{
    return (GetItemState(node, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK) >> 12;
}

void CMenuTreeView::SetBox(HTREEITEM node, UINT box)
{
    SetItemState(node, INDEXTOSTATEIMAGEMASK(box), TVIS_STATEIMAGEMASK);
}

DWORD CMenuTreeView::ItemIdOf(HTREEITEM node) const
{
    return static_cast<DWORD>(GetItemData(node));
}

POINT CMenuTreeView::LabelCentre(HTREEITEM node) const
{
    RECT rect = {};
    GetItemRect(node, rect, TRUE);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

void CMenuTreeView::ForEachNode(const std::function<void(HTREEITEM)>& visit) const
{
    VisitFrom(GetRootItem(), visit);
}

void CMenuTreeView::VisitFrom(HTREEITEM node, const std::function<void(HTREEITEM)>& visit) const
{
    for (; node; node = GetNextSiblingItem(node))
    {
        visit(node);
        VisitFrom(GetChildItem(node), visit);
    }
}
