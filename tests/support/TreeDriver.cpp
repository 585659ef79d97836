#include "tests/support/TreeDriver.h"

HTREEITEM CTreeDriver::Next(HTREEITEM node, UINT code) const
{
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(m_tree, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(node)));
}

HTREEITEM CTreeDriver::FindChild(HTREEITEM parent, const std::wstring& label) const
{
    HTREEITEM child = Next(parent, TVGN_CHILD);
    while (child && TextOf(child) != label)
        child = Next(child, TVGN_NEXT);
    return child;
}

HTREEITEM CTreeDriver::Find(const std::wstring& path) const
{
    HTREEITEM node = Next(nullptr, TVGN_ROOT);
    size_t begin = 0;
    while (node && begin < path.size())
    {
        const size_t end = std::min(path.find(L'/', begin), path.size());
        node = FindChild(node, path.substr(begin, end - begin));
        begin = end + 1;
    }
    return node;
}

std::wstring CTreeDriver::TextOf(HTREEITEM node) const
{
    wchar_t text[1024] = {};
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_TEXT;
    item.hItem = node;
    item.pszText = text;
    item.cchTextMax = 1024;
    SendMessageW(m_tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.pszText;
}

LPARAM CTreeDriver::DataOf(HTREEITEM node) const
{
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = node;
    SendMessageW(m_tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return item.lParam;
}

UINT CTreeDriver::BoxOf(HTREEITEM node) const
{
    const auto state =
        SendMessageW(m_tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_STATEIMAGEMASK);
    return (static_cast<UINT>(state) & TVIS_STATEIMAGEMASK) >> 12;
}

void CTreeDriver::SetBox(HTREEITEM node, UINT box) const
{
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_STATE;
    item.hItem = node;
    item.state = INDEXTOSTATEIMAGEMASK(box);
    item.stateMask = TVIS_STATEIMAGEMASK;
    SendMessageW(m_tree, TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
}

bool CTreeDriver::IsExpanded(HTREEITEM node) const
{
    return (SendMessageW(m_tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_EXPANDED) &
            TVIS_EXPANDED) != 0;
}

bool CTreeDriver::IsBold(HTREEITEM node) const
{
    return (SendMessageW(m_tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), TVIS_BOLD) &
            TVIS_BOLD) != 0;
}

void CTreeDriver::Select(HTREEITEM node) const
{
    SendMessageW(m_tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(node));
}

HTREEITEM CTreeDriver::Selected() const
{
    return Next(nullptr, TVGN_CARET);
}

void CTreeDriver::Expand(HTREEITEM node) const
{
    SendMessageW(m_tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(node));
}

void CTreeDriver::Collapse(HTREEITEM node) const
{
    SendMessageW(m_tree, TVM_EXPAND, TVE_COLLAPSE, reinterpret_cast<LPARAM>(node));
}

std::pair<int, int> CTreeDriver::ImagesOf(HTREEITEM node) const
{
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    item.hItem = node;
    SendMessageW(m_tree, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return {item.iImage, item.iSelectedImage};
}

HIMAGELIST CTreeDriver::Images() const
{
    return reinterpret_cast<HIMAGELIST>(SendMessageW(m_tree, TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
}

std::vector<std::wstring> CTreeDriver::ChildrenOf(const std::wstring& path) const
{
    std::vector<std::wstring> labels;
    const HTREEITEM parent = Find(path);
    if (!parent)
        return labels;
    for (HTREEITEM child = Next(parent, TVGN_CHILD); child; child = Next(child, TVGN_NEXT))
        labels.push_back(TextOf(child));
    return labels;
}

std::wstring CTreeDriver::Dump() const
{
    std::wstring lines;
    DumpFrom(Next(nullptr, TVGN_ROOT), 0, lines);
    return lines;
}

void CTreeDriver::DumpFrom(HTREEITEM node, int depth, std::wstring& lines) const
{
    constexpr wchar_t kBoxes[] = L" -+?????????????";
    for (; node; node = Next(node, TVGN_NEXT))
    {
        lines.append(static_cast<size_t>(depth) * 2, L' ');
        lines += kBoxes[BoxOf(node)];
        lines += L' ' + TextOf(node) + L'\n';
        DumpFrom(Next(node, TVGN_CHILD), depth + 1, lines);
    }
}

POINT CTreeDriver::LabelCentre(HTREEITEM node) const
{
    union
    {
        HTREEITEM node;
        RECT rect;
    } position = {};
    position.node = node;
    SendMessageW(m_tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&position));
    const RECT& rect = position.rect;
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

POINT CTreeDriver::LabelCentreOnScreen(HTREEITEM node) const
{
    POINT point = LabelCentre(node);
    ClientToScreen(m_tree, &point);
    return point;
}

POINT CTreeDriver::PointOn(HTREEITEM node, UINT flag) const
{
    RECT client = {};
    GetClientRect(m_tree, &client);
    TVHITTESTINFO hit = {};
    hit.pt.y = LabelCentre(node).y;
    for (hit.pt.x = 0; hit.pt.x < client.right; ++hit.pt.x)
    {
        SendMessageW(m_tree, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        if (hit.hItem == node && (hit.flags & flag))
            return hit.pt;
    }
    return {-1, -1};
}

bool CTreeDriver::IsInView(HTREEITEM node) const
{
    RECT client = {};
    GetClientRect(m_tree, &client);
    return PtInRect(&client, LabelCentre(node)) != FALSE;
}
