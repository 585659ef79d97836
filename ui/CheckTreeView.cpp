#include "ui/CheckTreeView.h"

void CCheckTreeView::UseCheckBoxes()
{
    ModifyStyle(0, TVS_CHECKBOXES);
    m_boxes.reset(GetImageList(TVSIL_STATE));
}

HTREEITEM CCheckTreeView::Insert(HTREEITEM parent, HTREEITEM after, const wchar_t* text,
                                 LPARAM data, UINT box)
{
    TVINSERTSTRUCTW insert = {};
    insert.hParent = parent;
    insert.hInsertAfter = after;
    insert.item.mask = TVIF_TEXT | TVIF_PARAM | TVIF_STATE;
    insert.item.pszText = const_cast<wchar_t*>(text);
    insert.item.lParam = data;
    insert.item.state = INDEXTOSTATEIMAGEMASK(box);
    insert.item.stateMask = TVIS_STATEIMAGEMASK;
    const HTREEITEM node = InsertItem(insert);
    // A tree with check boxes gives every new node one.
    if (box == kNoBox)
        SetBox(node, kNoBox);
    return node;
}

void CCheckTreeView::Show(HTREEITEM node)
{
    SelectItem(node);
    EnsureVisible(node);
}

UINT CCheckTreeView::BoxOf(HTREEITEM node) const
{
    return (GetItemState(node, TVIS_STATEIMAGEMASK) & TVIS_STATEIMAGEMASK) >> 12;
}

void CCheckTreeView::SetBox(HTREEITEM node, UINT box)
{
    SetItemState(node, INDEXTOSTATEIMAGEMASK(box), TVIS_STATEIMAGEMASK);
}

POINT CCheckTreeView::LabelCentre(HTREEITEM node) const
{
    RECT rect = {};
    GetItemRect(node, rect, TRUE);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}
