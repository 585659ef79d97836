// The registry examples of the documents: imported by the system, read by the module's own code,
// and compared with what the document says comes of them.
#include "tests/docs/Examples.h"

#include "dialogs/now/PluginList.h"
#include "dialogs/wizard/LayoutType.h"
#include "frame/InstallFolder.h"
#include "frame/Module.h"
#include "menu/MenuKeys.h"
#include "menu/MenuTree.h"
#include "menu/Rating.h"
#include "tests/support/Module.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

namespace
{

using Ratings::CEntry;
using Ratings::CRating;

constexpr const wchar_t* kNowKey = L"SOFTWARE\\Orvane\\Shared\\Tav Menu\\Now";
constexpr const wchar_t* kGlobalList = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Ratings\\GlobalMRUList";

// The documents hold ASCII alone.
std::string Narrow(const std::wstring& text)
{
    std::string narrow;
    for (const wchar_t unit : text)
        narrow += static_cast<char>(unit);
    return narrow;
}

std::string DescribeFolder(const CRegistrySandbox& /*registry*/)
{
    return Narrow(InstallFolder()) + "\n";
}

void DescribeItems(const CMenuItem& menu, const std::string& indent, std::ostream& lines)
{
    for (const CMenuItemPtr& item : menu.Children)
    {
        lines << indent << Narrow(item->Text) << ", place " << item->Index;
        lines << (item->Inactive ? ", hidden" : "") << (item->IsUserItem() ? ", the user's" : "")
              << (item->CanAdd() ? ", takes items" : "") << "\n";
        DescribeItems(*item, indent + "    ", lines);
    }
}

std::string DescribeMenu(const CRegistrySandbox& /*registry*/)
{
    CMenuTree tree(false);
    tree.Load();
    std::ostringstream lines;
    DescribeItems(*tree.Root, "", lines);
    return lines.str();
}

std::string DescribeOptions(const CRegistrySandbox& /*registry*/)
{
    CMenuTree tree(false);
    tree.Load();
    std::ostringstream lines;
    for (const CMenuItemPtr& item : tree.Root->Children)
    {
        const uint32_t flags = item->GetRtFlags();
        lines << Narrow(item->Text) << ": "
              << (item->GetDrawType() == MenuDrawType::Grid ? "Grid" : "List")
              << ((flags & kRtHardwareNavigation) ? ", hardware keys" : "")
              << ((flags & kRtMostUsedFirst) ? ", most used first" : "")
              << ((flags & kRtHasRating) ? ", rating list " : "") << '"'
              << Narrow(item->GetRating()) << "\"\n";
    }
    return lines.str();
}

std::string DescribeLayoutType(const CRegistrySandbox& /*registry*/)
{
    return LoadLayoutType() == LayoutType::Professional ? "Professional\n" : "Classic\n";
}

std::string DescribePlugins(const CRegistrySandbox& registry)
{
    // The names of the kinds are strings of the module.
    const CModule module;
    SetModuleInstance(module.Handle());
    std::ostringstream lines;
    for (const Plugin& plugin : LoadPlugins())
        lines << Narrow(plugin.Label) << (plugin.IsUsed ? ", used\n" : ", not used\n");
    lines << "keys left:";
    for (const wchar_t* const name : {L"Agenda", L"Forecast", L"Mail", L"Malformed"})
        if (registry.KeyExists((std::wstring(kNowKey) + L"\\" + name).c_str()))
            lines << " " << Narrow(name);
    lines << "\n";
    return lines.str();
}

std::string DescribeList(const CRegistrySandbox& /*registry*/)
{
    std::ostringstream lines;
    for (const CEntry& entry : CRating(L"GlobalMRUList").Entries)
        lines << "entry " << entry.Number << ", weight " << (entry.Weight & ~Ratings::kPinnedBit)
              << (entry.IsPinned() ? ", pinned: " : ": ") << Narrow(entry.Name) << "\n";
    return lines.str();
}

std::string DescribeSlots(const CRegistrySandbox& registry)
{
    Ratings::CMruSlots slots;
    EXPECT_TRUE(Ratings::ReadGlobalMru(slots, 4));
    std::ostringstream lines;
    for (size_t i = 0; i < slots.Names.size(); ++i)
        lines << "slot " << i << (i < slots.Pinned ? ", pinned: " : ": ") << Narrow(slots.Names[i])
              << "\n";
    lines << "Layout: ";
    const char* comma = "";
    for (const char byte : registry.Raw(kGlobalList, L"Layout"))
    {
        char digits[3];
        snprintf(digits, sizeof(digits), "%02x", static_cast<unsigned char>(byte));
        lines << std::exchange(comma, ",") << digits;
    }
    lines << "\n";
    return lines.str();
}

using Description = std::function<std::string(const CRegistrySandbox& registry)>;

// What the module makes of each example, in the words of the document.
const std::map<std::wstring, Description>& Descriptions()
{
    static const std::map<std::wstring, Description> descriptions = {
        {L"install-folder", DescribeFolder}, {L"layout-type", DescribeLayoutType},
        {L"menu-layers", DescribeMenu},      {L"menu-options", DescribeOptions},
        {L"mru-index", DescribeList},        {L"mru-layout", DescribeSlots},
        {L"now-plugins", DescribePlugins},
    };
    return descriptions;
}

class RegistryExample : public testing::TestWithParam<std::wstring>
{
};

std::string CaseName(const testing::TestParamInfo<std::wstring>& info)
{
    std::string name = Narrow(info.param);
    for (char& letter : name)
        letter = letter == '-' ? '_' : letter;
    return name;
}

} // namespace

TEST_P(RegistryExample, MeansWhatTheDocumentSays)
{
    const auto description = Descriptions().find(GetParam());
    ASSERT_NE(Descriptions().end(), description) << "no test reads this example";
    const CRegistrySandbox registry;
    ImportExample(GetParam(), registry);
    EXPECT_EQ(OutputOf(GetParam()), description->second(registry));
}

INSTANTIATE_TEST_SUITE_P(Docs, RegistryExample, testing::ValuesIn(ExamplesIn(L"reg")), CaseName);

TEST(RegistryExamples, EachDescriptionHasItsExample)
{
    const std::vector<std::wstring> names = ExamplesIn(L"reg");
    for (const auto& [name, description] : Descriptions())
        EXPECT_EQ(1, std::count(names.begin(), names.end(), name)) << Narrow(name);
}
