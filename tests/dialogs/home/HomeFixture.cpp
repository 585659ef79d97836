#include "tests/dialogs/home/HomeFixture.h"

#include "tests/support/Wait.h"

#include <cstring>

namespace
{

constexpr const wchar_t* kList = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList";

} // namespace

HomeFixture::HomeFixture() : filter(std::make_unique<CFilterWindow>())
{
    start.AddFile(L"Programs\\Calculator.lnk");
    start.AddFile(L"Programs\\Games\\Bubbles.lnk");
    start.AddFile(L"Programs\\Mail.exe");
}

HomeFixture::~HomeFixture()
{
    run.reset();
    module.reset();
}

void HomeFixture::Open(DWORD maxPinned)
{
    if (!module)
        module = std::make_unique<CModule>();
    run = std::make_unique<CDialogRun>([=](HWND owner)
                                       { return module->CustomizeHome(owner, maxPinned, 0, 0); });
    dialog = run->WaitForDialog(L"Manage Pinned");
    ASSERT_NE(nullptr, dialog);
    tree = CTreeDriver(GetDlgItem(dialog, kTreeId));
    ASSERT_NE(nullptr, tree.Window());
}

void HomeFixture::Done()
{
    PostCommand(dialog, IDOK);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
    EXPECT_EQ(TRUE, run->Result());
}

void HomeFixture::Cancel()
{
    PostCommand(dialog, IDCANCEL);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(0, run->ThrownCode());
    EXPECT_EQ(FALSE, run->Result());
}

void HomeFixture::StoreList(const std::vector<ListEntry>& entries)
{
    std::vector<WORD> index;
    for (const ListEntry& entry : entries)
    {
        const WORD number = static_cast<WORD>(index.size() / 2);
        registry.SetText(kList, std::to_wstring(number).c_str(), entry.Name);
        index.insert(index.end(), {number, entry.Weight});
    }
    registry.SetRaw(kList, L"Index", REG_BINARY, index.data(),
                    static_cast<DWORD>(index.size() * sizeof(WORD)));
}

Lines HomeFixture::List() const
{
    const std::string index = registry.Raw(kList, L"Index");
    Lines lines;
    for (size_t at = 0; at + 4 <= index.size(); at += 4)
    {
        WORD pair[2];
        memcpy(pair, index.data() + at, sizeof(pair));
        lines.push_back((pair[1] & kPinned ? L"*" : L"") +
                        registry.Text(kList, std::to_wstring(pair[0]).c_str()));
    }
    return lines;
}

DWORD HomeFixture::Timestamp() const
{
    return registry.Dword(kList, L"Timestamp", 0);
}

std::wstring HomeFixture::MenuName(const std::wstring& path)
{
    return L"m:\\" + std::wstring(kProductMenu) + (path.empty() ? L"" : L"\\") + path;
}

HTREEITEM HomeFixture::Select(const std::wstring& path)
{
    const HTREEITEM node = tree.Find(path);
    EXPECT_NE(nullptr, node) << "no such node";
    tree.Select(node);
    return node;
}

void HomeFixture::PostSwitch(const std::wstring& path)
{
    const HTREEITEM node = tree.Find(path);
    ASSERT_NE(nullptr, node) << "no such node";
    tree.SetBox(node, tree.BoxOf(node) == BoxOn ? BoxOff : BoxOn);
    PostMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(node));
}

void HomeFixture::Switch(const std::wstring& path)
{
    const HTREEITEM node = tree.Find(path);
    ASSERT_NE(nullptr, node) << "no such node";
    tree.SetBox(node, tree.BoxOf(node) == BoxOn ? BoxOff : BoxOn);
    SendMessageW(dialog, kBoxSwitched, 0, reinterpret_cast<LPARAM>(node));
}

void HomeFixture::ExpectLimitMessage(const std::wstring& text)
{
    const HWND box = run->WaitForDialog(L"Tav Lumenar");
    ASSERT_NE(nullptr, box);
    EXPECT_EQ(dialog, GetWindow(box, GW_OWNER));
    // The text stands behind the icon.
    std::wstring found;
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetDlgCtrlID(child) != IDOK)
            found += TextOf(child);
    EXPECT_EQ(text, found);
    PostCommand(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return run->InnermostDialog() == dialog; }));
    SendMessageW(dialog, WM_NULL, 0, 0);
}
