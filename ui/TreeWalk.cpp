#include "ui/TreeWalk.h"

namespace
{

void VisitFrom(const CTreeViewCtrl& tree, HTREEITEM node,
               const std::function<void(HTREEITEM)>& visit)
{
    for (; node; node = tree.GetNextSiblingItem(node))
    {
        visit(node);
        VisitFrom(tree, tree.GetChildItem(node), visit);
    }
}

} // namespace

void ForEachNode(const CTreeViewCtrl& tree, const std::function<void(HTREEITEM)>& visit)
{
    VisitFrom(tree, tree.GetRootItem(), visit);
}

bool HasNode(const CTreeViewCtrl& tree, HTREEITEM node)
{
    bool found = false;
    ForEachNode(tree, [&](HTREEITEM each) { found = found || each == node; });
    return found;
}
