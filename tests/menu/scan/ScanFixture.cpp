#include "tests/menu/scan/ScanFixture.h"

namespace
{

HWND CreateTree()
{
    INITCOMMONCONTROLSEX classes = {sizeof(classes), ICC_TREEVIEW_CLASSES};
    InitCommonControlsEx(&classes);
    return CreateWindowExW(0, WC_TREEVIEWW, L"", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr,
                           nullptr, nullptr);
}

} // namespace

ScanFixture::ScanFixture() : window(CreateTree()), tree(window)
{
    EXPECT_NE(nullptr, window);
    SetWindowLongW(window, GWL_STYLE, GetWindowLongW(window, GWL_STYLE) | TVS_CHECKBOXES);
}

ScanFixture::~ScanFixture()
{
    ImageList_Destroy(
        reinterpret_cast<HIMAGELIST>(SendMessageW(window, TVM_GETIMAGELIST, TVSIL_STATE, 0)));
    DestroyWindow(window);
}

void ScanFixture::StartFilterBut(const std::wstring& name, LRESULT answer)
{
    StartFilter(
        [=](const std::wstring& path)
        {
            const bool isIt = path.size() >= name.size() &&
                              path.compare(path.size() - name.size(), name.size(), name) == 0;
            return isIt ? answer : LRESULT(1);
        });
}

HTREEITEM ScanFixture::ClearTree()
{
    CTreeViewCtrl view(window);
    view.DeleteAllItems();
    TVINSERTSTRUCTW insert = {};
    insert.hParent = TVI_ROOT;
    insert.item.mask = TVIF_TEXT;
    insert.item.pszText = const_cast<wchar_t*>(L"Programs");
    return view.InsertItem(insert);
}

std::wstring ScanFixture::FillPinned(const std::vector<std::wstring>& names)
{
    const Ratings::CMruSlots pinned = {names, static_cast<uint32_t>(names.size())};
    CProgramScan scan(false);
    scan.Fill(CTreeViewCtrl(window), ClearTree(), &pinned);
    return tree.Dump();
}

std::wstring ScanFixture::Fill(CProgramScan& scan)
{
    scan.Fill(CTreeViewCtrl(window), ClearTree(), nullptr);
    return tree.Dump();
}
