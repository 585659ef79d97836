#include "tests/menu/support/MenuFixture.h"

#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"

MenuTest::~MenuTest()
{
    os::DeleteKeyTree(HKEY_LOCAL_MACHINE, L"SOFTWARE");
}

std::wstring MenuTest::Product(const std::wstring& below)
{
    return kMenuRootPath + below;
}

std::wstring MenuTest::Shared(const std::wstring& below)
{
    return kSharedRootPath + below;
}

std::wstring MenuTest::Custom(const std::wstring& below)
{
    return kCustomizeRootPath + below;
}

std::wstring MenuTest::RatingsKey(const std::wstring& name)
{
    return std::wstring(kRatingsRootPath) + L"\\" + name;
}

void MenuTest::SetDword(const std::wstring& path, const wchar_t* name, DWORD value)
{
    m_hive.SetDword(path.c_str(), name, value);
}

void MenuTest::SetText(const std::wstring& path, const wchar_t* name, const std::wstring& text)
{
    m_hive.SetText(path.c_str(), name, text);
}

void MenuTest::CreateKey(const std::wstring& path)
{
    m_hive.CreateKey(path.c_str());
}

DWORD MenuTest::Dword(const std::wstring& path, const wchar_t* name) const
{
    return m_hive.Dword(path.c_str(), name);
}

std::wstring MenuTest::Text(const std::wstring& path, const wchar_t* name) const
{
    return m_hive.Text(path.c_str(), name);
}

std::wstring MenuTest::Dump() const
{
    return m_hive.Dump(L"SOFTWARE");
}

void MenuTest::AddProductMenu(const std::wstring& below, const std::wstring& text, DWORD index)
{
    SetText(Product(below), kTextValue, text);
    SetDword(Product(below), kIndexValue, index);
}

void MenuTest::AddUserItem(const std::wstring& below, const std::wstring& text, DWORD index)
{
    SetText(Custom(below), kTextValue, text);
    SetDword(Custom(below), kIndexValue, index);
    SetDword(Custom(below), kUserValue, 1);
}

CMenuTree LoadedTree(bool includeSettings)
{
    CMenuTree tree(includeSettings);
    tree.Load();
    return tree;
}

namespace
{

void FindByText(const CMenuItemPtr& item, const std::wstring& text, CMenuItemPtr& found)
{
    if (item->Text == text)
        found = item;
    for (const CMenuItemPtr& child : item->Children)
        FindByText(child, text, found);
}

void DescribeInto(const CMenuItemPtr& item, const std::wstring& indentation, std::wstring& lines)
{
    lines += indentation + item->KeyPath + L" '" + item->Text + L"' " +
             std::to_wstring(item->Index) + (item->Inactive ? L" hidden\n" : L"\n");
    for (const CMenuItemPtr& child : item->Children)
        DescribeInto(child, indentation + L" ", lines);
}

} // namespace

CMenuItemPtr ItemOf(const CMenuTree& tree, const std::wstring& text)
{
    CMenuItemPtr found;
    FindByText(tree.Root, text, found);
    EXPECT_TRUE(found) << "no item " << testing::PrintToString(text);
    return found;
}

std::wstring ChildTexts(const CMenuItemPtr& item)
{
    std::wstring texts;
    for (const CMenuItemPtr& child : item->Children)
        texts += (texts.empty() ? L"" : L" ") + child->Text;
    return texts;
}

std::wstring Describe(const CMenuItemPtr& item)
{
    std::wstring lines;
    DescribeInto(item, L"", lines);
    return lines;
}

std::wstring LinesWith(const std::wstring& front, const std::wstring& lines)
{
    std::wstring found;
    for (size_t begin = 0; begin < lines.size();)
    {
        const size_t end = lines.find(L'\n', begin) + 1;
        if (lines.compare(begin, front.size(), front) == 0)
            found += lines.substr(begin, end - begin);
        begin = end;
    }
    return found;
}
