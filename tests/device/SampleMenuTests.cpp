// The sample data as tables: every kind of item that a used device has.
#include "device/SampleMenu.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "device/SampleFiles.h"
#include "device/SampleRatings.h"
#include "platform/os/Text.h"

namespace
{

using sample::Layer;
using sample::MenuKey;

std::wstring LastComponent(const std::wstring& path)
{
    return path.substr(path.rfind(L'\\') + 1);
}

bool Exists(Layer layer, const std::wstring& path)
{
    for (const MenuKey& key : sample::MenuKeys())
        if (key.Where == layer && os::EqualNoCase(key.Path, path))
            return true;
    return false;
}

template <class Condition>
int CountKeys(Condition condition)
{
    const auto keys = sample::MenuKeys();
    return static_cast<int>(std::count_if(keys.begin(), keys.end(), condition));
}

bool IsOrphan(const MenuKey& key)
{
    return key.Where == Layer::Customised && key.User == MenuKey::kNone &&
           !Exists(Layer::Product, key.Path) && !Exists(Layer::Shared, key.Path);
}

} // namespace

TEST(SampleMenu, NoKeyIsListedTwiceInOneLayer)
{
    std::set<std::pair<Layer, std::wstring>> seen;
    for (const MenuKey& key : sample::MenuKeys())
        EXPECT_TRUE(seen.insert({key.Where, os::FoldCase(key.Path)}).second) << key.Path;
}

TEST(SampleMenu, SomeItemsExistOnlyInTheSharedLayer)
{
    EXPECT_GE(
        CountKeys([](const MenuKey& key)
                  { return key.Where == Layer::Shared && !Exists(Layer::Product, key.Path); }),
        5);
}

TEST(SampleMenu, SomeItemsExistInBothBuiltInLayers)
{
    EXPECT_GE(CountKeys([](const MenuKey& key)
                        { return key.Where == Layer::Shared && Exists(Layer::Product, key.Path); }),
              2);
}

TEST(SampleMenu, SharedItemsComeWithAndWithoutAPosition)
{
    const auto shared = [](bool placed)
    {
        return CountKeys(
            [&](const MenuKey& key)
            { return key.Where == Layer::Shared && (key.Index != MenuKey::kNone) == placed; });
    };
    EXPECT_GE(shared(true), 1);
    EXPECT_GE(shared(false), 1);
}

TEST(SampleMenu, TheUserHasMovedHiddenAndShownBuiltInItems)
{
    const auto customised = [](auto condition)
    {
        return CountKeys(
            [&](const MenuKey& key)
            {
                return key.Where == Layer::Customised && key.User == MenuKey::kNone &&
                       !IsOrphan(key) && condition(key);
            });
    };
    EXPECT_GE(customised([](const MenuKey& key) { return key.Index != MenuKey::kNone; }), 3);
    EXPECT_GE(customised([](const MenuKey& key) { return key.Inactive == 1; }), 3);
    EXPECT_GE(customised([](const MenuKey& key) { return key.Inactive == 0; }), 1);
}

TEST(SampleMenu, TheUserHasMenusWithLinksInside)
{
    EXPECT_GE(CountKeys(
                  [](const MenuKey& link)
                  {
                      const std::wstring path = link.Path;
                      return link.File &&
                             Exists(Layer::Customised, path.substr(0, path.rfind(L'\\'))) &&
                             link.User == 1;
                  }),
              3);
}

TEST(SampleMenu, ThereAreOrphanedLeftovers)
{
    EXPECT_GE(CountKeys(IsOrphan), 2);
}

TEST(SampleMenu, ThereAreContainersGridsAndLists)
{
    EXPECT_GE(CountKeys([](const MenuKey& key) { return key.Add == 1; }), 5);
    const auto drawn = [](const wchar_t* type)
    {
        return CountKeys([&](const MenuKey& key)
                         { return key.DrawType && std::wstring(key.DrawType) == type; });
    };
    EXPECT_GE(drawn(L"Grid"), 3);
    EXPECT_GE(drawn(L"List"), 2);
}

TEST(SampleMenu, EveryRatedMenuHasItsList)
{
    int rated = 0;
    for (const MenuKey& key : sample::MenuKeys())
    {
        if (!key.Rating)
            continue;
        ++rated;
        const auto lists = sample::RatingLists();
        EXPECT_TRUE(std::any_of(lists.begin(), lists.end(),
                                [&](const sample::RatingList& list)
                                { return std::wstring(list.Name) == key.Rating; }))
            << key.Rating;
    }
    EXPECT_GE(rated, 2);
}

TEST(SampleMenu, LastKeyIsTheHighestUserNumber)
{
    int highest = 0;
    const auto take = [&](const std::wstring& name)
    {
        if (name.rfind(L"User ", 0) == 0)
            highest = std::max(highest, std::stoi(name.substr(5)));
    };
    for (const MenuKey& key : sample::MenuKeys())
    {
        take(LastComponent(key.Path));
        if (key.Rating)
            take(key.Rating);
    }
    EXPECT_EQ(static_cast<int>(sample::kLastKey), highest);
}

TEST(SampleMenu, EveryUserLinkLeadsToAShortcutOfTheStartMenu)
{
    for (const MenuKey& key : sample::MenuKeys())
    {
        if (!key.File)
            continue;
        const auto files = sample::StartMenuFiles();
        EXPECT_TRUE(std::any_of(
            files.begin(), files.end(),
            [&](const sample::StartMenuFile& file)
            { return std::wstring(sample::kStartMenuFolder) + L"\\" + file.Path == key.File; }))
            << key.File;
    }
}

TEST(SampleRatings, EntriesStandHeaviestFirstWithNumbersOfTheirOwn)
{
    for (const sample::RatingList& list : sample::RatingLists())
    {
        std::set<uint16_t> numbers;
        int before = 0x10000;
        for (const sample::RatingEntry& entry : list.Entries)
        {
            EXPECT_TRUE(numbers.insert(entry.Number).second) << list.Name;
            EXPECT_LE(entry.Weight, before) << list.Name;
            before = entry.Weight;
        }
        for (const uint16_t number : list.Layout)
            EXPECT_EQ(1u, numbers.count(number)) << list.Name;
    }
}

TEST(SampleRatings, TheGlobalListHasPinnedAndOtherEntriesAndALayout)
{
    const sample::RatingList& global = *sample::RatingLists().begin();
    EXPECT_STREQ(L"GlobalMRUList", global.Name);
    const auto isPinned = [](const sample::RatingEntry& entry)
    { return (entry.Weight & sample::kPinned) != 0; };
    const auto pinned = std::count_if(global.Entries.begin(), global.Entries.end(), isPinned);
    EXPECT_GE(pinned, 2);
    EXPECT_LT(static_cast<size_t>(pinned), global.Entries.Count);
    EXPECT_GT(global.Layout.Count, 0u);
}

TEST(SampleFiles, TheStartMenuHasTwentyFiveEntriesInFiveFoldersAndMore)
{
    std::set<std::wstring> paths;
    std::set<std::wstring> folders;
    for (const sample::StartMenuFile& file : sample::StartMenuFiles())
    {
        const std::wstring path = file.Path;
        EXPECT_TRUE(paths.insert(os::FoldCase(path)).second) << path;
        if (path.rfind(L"Programs\\", 0) == 0 && path.rfind(L'\\') > 9)
            folders.insert(path.substr(0, path.rfind(L'\\')));
    }
    EXPECT_GE(paths.size(), 25u);
    EXPECT_GE(folders.size(), 5u);
}

TEST(SampleRatings, EachPinnedLinkIsAFileOfTheStartMenu)
{
    std::set<std::wstring> files;
    for (const sample::StartMenuFile& file : sample::StartMenuFiles())
        files.insert(std::wstring(L"l:") + sample::kStartMenuFolder + L"\\" + file.Path);
    for (const sample::RatingEntry& entry : sample::RatingLists().begin()->Entries)
        EXPECT_TRUE(entry.Name[0] == L'm' || files.count(entry.Name)) << entry.Name;
}
