#include "tests/dialogs/menu/pick/PickFixture.h"

#include <algorithm>

void PickFixture::LoadModule()
{
    if (!module)
        module = std::make_unique<CModule>();
}

void PickFixture::OpenPicker(EditorCommand command, const std::wstring& menu)
{
    if (!run)
        Open();
    ASSERT_FALSE(HasFatalFailure());
    Select(menu);
    m_treeBefore = tree.Dump();
    m_storeBefore = registry.CustomDump();
    PostCommand(dialog, command);
    const bool isFile = command == CommandAddFile;
    picker = run->WaitForDialog(isFile ? L"Select File" : L"Select Link");
    ASSERT_NE(nullptr, picker);
    entries = CTreeDriver(GetDlgItem(picker, isFile ? 207 : 209));
    ASSERT_NE(nullptr, entries.Window());
}

HTREEITEM PickFixture::SelectEntry(const std::wstring& path)
{
    const HTREEITEM node = entries.Find(path);
    EXPECT_NE(nullptr, node) << "no such entry";
    entries.Select(node);
    return node;
}

void PickFixture::EndPicker(UINT command)
{
    PostCommand(picker, command);
    ASSERT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
}

void PickFixture::ExpectAdds(const std::wstring& menu, const std::wstring& key,
                             const std::wstring& file, const std::wstring& text)
{
    const size_t place = tree.ChildrenOf(menu).size();
    EndPicker(IDOK);
    ASSERT_FALSE(HasFatalFailure());
    const Lines labels = tree.ChildrenOf(menu);
    ASSERT_EQ(place + 1, labels.size());
    EXPECT_EQ(text, labels.back());
    const HTREEITEM node = tree.Find(menu + L"/" + text);
    EXPECT_EQ(node, tree.Selected());
    EXPECT_EQ(BoxOn, tree.BoxOf(node));
    EXPECT_TRUE(tree.IsInView(node));
    // The sample menu's counter stands at 3.
    const std::wstring item = key + L"\\User 4";
    EXPECT_EQ(4u, registry.CustomDword(L"", L"LastKey"));
    EXPECT_EQ(file, registry.CustomText(item, L"File"));
    EXPECT_EQ(file, registry.CustomText(item, L"ImagePath"));
    EXPECT_EQ(text, registry.CustomText(item, L"Text"));
    EXPECT_EQ(place, registry.CustomDword(item, L"Index"));
    EXPECT_EQ(1u, registry.CustomDword(item, L"User"));
}

void PickFixture::ExpectAddsNothing(UINT command)
{
    EndPicker(command);
    EXPECT_EQ(m_treeBefore, tree.Dump());
    EXPECT_EQ(m_storeBefore, registry.CustomDump());
    EXPECT_FALSE(run->HasEnded());
}

void PickFixture::ExpectOpensNothing(EditorCommand command)
{
    const std::wstring before = registry.CustomDump();
    // Comes back only after a picker would have been closed.
    SendCommand(dialog, command);
    EXPECT_EQ(dialog, run->InnermostDialog());
    EXPECT_EQ(before, registry.CustomDump());
}

HTREEITEM FileFixture::Expand(const std::wstring& path)
{
    const HTREEITEM node = entries.Find(path);
    EXPECT_NE(nullptr, node) << "no such folder";
    entries.Expand(node);
    return node;
}

void FileFixture::OpenFilesAt(const std::wstring& path)
{
    OpenFiles();
    for (size_t end = 0; end < path.size() && !HasFatalFailure();)
    {
        end = std::min(path.find(L'/', end + 1), path.size());
        Expand(path.substr(0, end));
    }
}
