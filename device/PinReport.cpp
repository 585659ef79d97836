#include "device/PinReport.h"

#include "platform/Win.h"

#include <set>

#include "device/Keys.h"
#include "menu/MenuKeys.h"
#include "menu/MenuPaths.h"
#include "menu/RatingData.h"
#include "platform/os/Text.h"

namespace report
{
namespace
{

constexpr const wchar_t* kTimestampValue = L"Timestamp";

using Names = std::set<std::wstring, CaseFreeLess>;

Names PinnedNames(const RegistrySnapshot& snapshot)
{
    Names names;
    const RegistryValue* index = FindValue(snapshot, keys::kGlobalList, L"Index");
    if (!index)
        return names;
    for (const Ratings::CEntry& entry :
         Ratings::DecodeIndex(index->Data.data(), index->Data.size()))
        if (entry.IsPinned())
            names.insert(
                TextOf(FindValue(snapshot, keys::kGlobalList, Ratings::ValueName(entry.Number))));
    return names;
}

// What an entry is called on the screen.
std::wstring TitleOf(const RegistrySnapshot& snapshot, const std::wstring& name)
{
    const std::wstring path = name.size() > 2 ? name.substr(2) : name;
    if (os::BeginsNoCase(name, L"l:"))
        return LinkText(path);
    for (const std::wstring& place : {path, MirrorPath(path)})
    {
        std::wstring text = TextOf(FindValue(snapshot, place, kTextValue));
        if (!text.empty())
            return text;
    }
    return path.substr(path.rfind(L'\\') + 1);
}

// The entries that are only in `here`.
void Describe(const RegistrySnapshot& snapshot, const Names& here, const Names& there,
              const wchar_t* what, std::vector<std::wstring>& lines)
{
    for (const std::wstring& name : here)
        if (!there.count(name))
            lines.push_back(L"\"" + TitleOf(snapshot, name) + L"\" " + what + L" (" + name + L")");
}

// How often the list was saved; nothing for a list that is gone.
std::wstring SavesOf(const RegistrySnapshot& before, const RegistrySnapshot& after)
{
    const RegistryValue* now = FindValue(after, keys::kGlobalList, kTimestampValue);
    if (!now)
        return {};
    const uint32_t count = NumberOf(now, 0);
    const uint32_t was = NumberOf(FindValue(before, keys::kGlobalList, kTimestampValue), 0);
    return L"; saves of GlobalMRUList: " + std::to_wstring(count - was) + L" (Timestamp = " +
           std::to_wstring(count) + L")";
}

} // namespace

bool IsPinList(const std::wstring& path)
{
    return os::EqualNoCase(path, keys::kGlobalList);
}

std::vector<std::wstring> DescribePins(const RegistrySnapshot& before,
                                       const RegistrySnapshot& after)
{
    const Names was = PinnedNames(before);
    const Names now = PinnedNames(after);
    std::vector<std::wstring> lines;
    Describe(after, now, was, L"is pinned to the home screen now", lines);
    Describe(before, was, now, L"is no longer pinned to the home screen", lines);
    if (lines.empty())
        return lines;
    lines.push_back(L"pinned entries: " + std::to_wstring(now.size()) + SavesOf(before, after));
    return lines;
}

} // namespace report
