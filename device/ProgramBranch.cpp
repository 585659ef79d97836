#include "device/ProgramBranch.h"

#include "menu/ProgramScan.h"
#include "platform/Handles.h"

namespace
{

std::wstring TextOf(CTreeViewCtrl tree, HTREEITEM node)
{
    wchar_t text[MAX_PATH] = {};
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_TEXT;
    item.hItem = node;
    item.pszText = text;
    item.cchTextMax = MAX_PATH;
    return tree.GetItem(item) ? std::wstring(item.pszText) : std::wstring();
}

// The nodes from `node` on.
std::vector<Program> ReadNodes(CTreeViewCtrl tree, HTREEITEM node, const CProgramScan& scan)
{
    std::vector<Program> programs;
    for (; node; node = tree.GetNextSiblingItem(node))
    {
        Program program;
        program.Text = TextOf(tree, node);
        program.Path = scan.PathOf(static_cast<int32_t>(tree.GetItemData(node)));
        program.Files = ReadNodes(tree, tree.GetChildItem(node), scan);
        // A folder in which nothing is shown has no node.
        program.IsFolder = !program.Files.empty();
        programs.push_back(std::move(program));
    }
    return programs;
}

} // namespace

std::vector<Program> ReadPrograms()
{
    const INITCOMMONCONTROLSEX wanted = {sizeof(wanted), ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&wanted);
    const UniqueWindow window(CreateWindowExW(0, WC_TREEVIEWW, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                              nullptr, nullptr, nullptr));
    const CTreeViewCtrl tree(window.get());
    CProgramScan scan(false);
    scan.Fill(tree, TVI_ROOT, nullptr);
    return ReadNodes(tree, tree.GetRootItem(), scan);
}
