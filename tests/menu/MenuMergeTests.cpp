// The merge of the layers' key names, compared with the search from the back that it stands for.
#include "menu/MenuMerge.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "frame/VORegistry.h"
#include "menu/MenuKeys.h"
#include "menu/MenuPaths.h"
#include "platform/os/Registry.h"
#include "platform/os/Text.h"
#include "tests/menu/support/MenuFixture.h"
#include "tests/support/ImportPatch.h"

namespace
{

std::wstring Names(const std::vector<MergedChild>& children)
{
    std::wstring names;
    for (const MergedChild& child : children)
        names += (names.empty() ? L"" : L" ") + *child.Name;
    return names;
}

TEST(MenuMerge, OwnKeysComeFirstThenSharedThenCustomisedOnes)
{
    const KeyNames own = {L"b", L"a"}, shared = {L"d", L"c"}, customised = {L"f", L"e"};
    const auto children = MergeLayers(own, shared, customised);
    EXPECT_EQ(L"b a d c f e", Names(children));
    EXPECT_EQ(MenuLayer::Own, children[1].Layer);
    EXPECT_EQ(MenuLayer::Shared, children[2].Layer);
    EXPECT_EQ(MenuLayer::Customize, children[4].Layer);
}

TEST(MenuMerge, AKnownNameJoinsItsChildIgnoringCase)
{
    const KeyNames own = {L"Games"}, shared = {L"gAMES"}, customised = {L"GAMES"};
    const auto children = MergeLayers(own, shared, customised);
    ASSERT_EQ(1u, children.size());
    EXPECT_EQ(&own[0], children[0].Name);
    EXPECT_TRUE(children[0].HasShared);
    EXPECT_EQ(std::vector<const std::wstring*>{&customised[0]}, children[0].Customised);
}

TEST(MenuMerge, OfSeveralMatchingChildrenTheLastTakesTheName)
{
    const KeyNames own = {L"a", L"A"}, shared = {L"a"}, customised = {L"a"};
    const auto children = MergeLayers(own, shared, customised);
    ASSERT_EQ(2u, children.size());
    EXPECT_TRUE(children[0].Customised.empty());
    EXPECT_EQ(1u, children[1].Customised.size());
    EXPECT_TRUE(children[0].HasShared && children[1].HasShared) << "either may be the same key";
    EXPECT_TRUE(children[0].HasCustomised && children[1].HasCustomised);
}

TEST(MenuMerge, TenThousandNamesMergeInAFractionOfASecond)
{
    KeyNames own, customised;
    for (int i = 0; i < 10000; ++i)
    {
        own.push_back(L"A menu item of some length " + std::to_wstring(i));
        customised.push_back(L"a MENU item of some length " + std::to_wstring(9999 - i));
    }
    const DWORD begin = GetTickCount();
    const auto children = MergeLayers(own, {}, customised);
    EXPECT_LT(GetTickCount() - begin, 1000u) << "a search per name takes several seconds";
    EXPECT_EQ(10000u, children.size());
    EXPECT_EQ(customised[9999], *children[0].Customised.at(0));
}

// The load in its simplest form: every key opened by its full path, every name searched from the
// last child to the first. No settings branch, no translation.
class CSimpleLoad
{
public:
    static void Children(const CMenuItemPtr& item)
    {
        for (const std::wstring& name : Subkeys(item->KeyPath))
            Add(item, ChildPath(item->KeyPath, name), 0);
        if (IsProductPath(item->KeyPath))
            for (const std::wstring& name : Subkeys(SharedPath(item->KeyPath)))
                if (!Find(item, name))
                    Add(item, ChildPath(SharedPath(item->KeyPath), name), 10000);
        if (!IsCustomizePath(item->KeyPath))
            for (const std::wstring& name : Subkeys(MirrorPath(item->KeyPath)))
                Customise(item, name);
        item->SortChildren();
        for (const CMenuItemPtr& child : item->Children)
            Children(child);
    }

private:
    static KeyNames Subkeys(const std::wstring& path)
    {
        const CVORegistry key(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0);
        KeyNames names;
        std::wstring name;
        while (key.EnumKey(static_cast<DWORD>(names.size()), name))
            names.push_back(name);
        return names;
    }
    static DWORD Value(const std::wstring& path, const wchar_t* name, DWORD value)
    {
        CVORegistry(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0).GetDWORD(name, value);
        return value;
    }
    static CMenuItemPtr Find(const CMenuItemPtr& item, const std::wstring& name)
    {
        for (size_t i = item->Children.size(); i > 0; --i)
            if (os::EqualNoCase(KeyNameOf(item->Children[i - 1]->KeyPath), name))
                return item->Children[i - 1];
        return nullptr;
    }
    static void Add(const CMenuItemPtr& parent, const std::wstring& path, DWORD offset)
    {
        const CMenuItemPtr item(new CMenuItem(parent.get()));
        item->KeyPath = path;
        item->Text = CVORegistry(HKEY_LOCAL_MACHINE, path.c_str(), FALSE, FALSE, 0)
                         .GetString(kTextValue, nullptr);
        item->Index = static_cast<int32_t>(Value(path, kIndexValue, 10000) + offset);
        item->Inactive = Value(path, kInactiveValue, 0) != 0;
        parent->AppendChild(item);
    }
    static void Customise(const CMenuItemPtr& item, const std::wstring& name)
    {
        const std::wstring path = ChildPath(MirrorPath(item->KeyPath), name);
        const CMenuItemPtr child = Find(item, name);
        if (child)
        {
            child->Index =
                static_cast<int32_t>(Value(path, kIndexValue, static_cast<DWORD>(child->Index)));
            child->Inactive = Value(path, kInactiveValue, child->Inactive) != 0;
        }
        else if (Value(path, kUserValue, 0) != 0)
            Add(item, path, 0);
    }
};

// Folds the dotted capital I to "i", as Windows does and Wine doesn't: two keys, one folded name.
DWORD WINAPI FoldDottedI(wchar_t* text, DWORD length)
{
    using FoldFunction = DWORD(WINAPI*)(wchar_t*, DWORD);
    const auto address = GetProcAddress(GetModuleHandleW(L"user32.dll"), "CharLowerBuffW");
    const auto fold = reinterpret_cast<FoldFunction>(reinterpret_cast<void*>(address));
    std::replace(text, text + length, L'\x0130', L'i');
    return fold(text, length);
}

class MenuMergeOracle : public MenuTest
{
protected:
    // Case is folded by a table that the first comparison of the process makes.
    MenuMergeOracle()
    {
        const CImportPatch patch(GetModuleHandleW(nullptr), "user32.dll", "CharLowerBuffW",
                                 FoldDottedI);
        os::FoldCase(L'A');
    }
};

TEST_F(MenuMergeOracle, AnyRegistryLoadsAsTheSimplestAlgorithmLoadsIt)
{
    // Names that differ in case only, and two that differ for the registry but not when folded.
    const wchar_t* const names[] = {L"i", L"I", L"\x0130", L"Games", L"gAMES", L"x", L"User 1"};
    std::mt19937 random(20240612);
    for (int round = 0; round < 60; ++round)
    {
        for (int keys = 0; keys < 40; ++keys)
        {
            const std::wstring roots[] = {Product(L""), Shared(L""), Custom(L"")};
            std::wstring path = roots[random() % 3];
            for (unsigned depth = 1 + random() % 3; depth > 0; --depth)
                path += std::wstring(L"\\") + names[random() % std::size(names)];
            CreateKey(path);
            if (random() % 2)
                SetText(path, kTextValue,
                        std::wstring(1, static_cast<wchar_t>(L'a' + random() % 4)));
            if (random() % 2)
                SetDword(path, kIndexValue, random() % 5);
            if (random() % 2)
                SetDword(path, kInactiveValue, random() % 2);
            if (random() % 2)
                SetDword(path, kUserValue, random() % 2);
        }
        const CMenuItemPtr expected(new CMenuItem(std::wstring(kMenuRootPath)));
        CSimpleLoad::Children(expected);
        ASSERT_EQ(Describe(expected), Describe(LoadedTree(true).Root)) << round << "\n";
        os::DeleteKeyTree(HKEY_LOCAL_MACHINE, L"SOFTWARE");
    }
}

} // namespace
