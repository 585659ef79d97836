// Reads and works a tree view from outside its thread.
#pragma once

#include "platform/Win.h"

#include <string>
#include <utility>
#include <vector>

// A tree view in this process. Nodes are named by their path of labels below the root node, such as
// L"Programs/Games"; the empty path is the root node.
class CTreeDriver
{
public:
    explicit CTreeDriver(HWND tree) : m_tree(tree) {}

    HWND Window() const { return m_tree; }
    // The node at a path; null when there is none.
    HTREEITEM Find(const std::wstring& path) const;
    std::wstring TextOf(HTREEITEM node) const;
    LPARAM DataOf(HTREEITEM node) const;
    // 0 = no box, 1 = unchecked, 2 = checked.
    UINT BoxOf(HTREEITEM node) const;
    void SetBox(HTREEITEM node, UINT box) const;
    bool IsExpanded(HTREEITEM node) const;
    bool IsBold(HTREEITEM node) const;
    void Select(HTREEITEM node) const;
    HTREEITEM Selected() const;
    void Expand(HTREEITEM node) const;
    void Collapse(HTREEITEM node) const;
    // The numbers of a node's pictures: as it is and when it is selected.
    std::pair<int, int> ImagesOf(HTREEITEM node) const;
    // The tree's list of the pictures.
    HIMAGELIST Images() const;
    HTREEITEM Next(HTREEITEM node, UINT code) const;
    // The labels of a node's children, in order.
    std::vector<std::wstring> ChildrenOf(const std::wstring& path) const;
    // The whole tree, a line per node, indented by depth, with its box: " ", "-" or "+".
    std::wstring Dump() const;
    // Centre of a node's label in client and in screen coordinates.
    POINT LabelCentre(HTREEITEM node) const;
    POINT LabelCentreOnScreen(HTREEITEM node) const;
    // A point, in client coordinates, in the node's row of which a hit test says `flag` (TVHT_...);
    // (-1, -1) when there is none.
    POINT PointOn(HTREEITEM node, UINT flag) const;
    // Whether the node's label is within the tree's client area.
    bool IsInView(HTREEITEM node) const;

private:
    HTREEITEM FindChild(HTREEITEM parent, const std::wstring& label) const;
    void DumpFrom(HTREEITEM node, int depth, std::wstring& lines) const;

    HWND m_tree;
};
