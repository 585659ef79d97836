#include "device/HomeEntries.h"

#include <algorithm>

#include "device/Usage.h"
#include "menu/GlobalMruLock.h"
#include "menu/Rating.h"
#include "platform/os/Text.h"

namespace
{

// How many milliseconds the list is waited for; the old picture does meanwhile.
constexpr DWORD kPatience = 500;

constexpr const wchar_t* kLinkMark = L"l:";
constexpr const wchar_t* kMenuMark = L"m:";
constexpr size_t kMarkLength = 2;

// An entry without a mark, or with another one, leads nowhere.
ShellEntry EntryOfName(const CLauncherMenu& menu, const std::wstring& name)
{
    if (os::BeginsNoCase(name, kLinkMark))
        return EntryOfFile(name.substr(kMarkLength));
    const std::wstring path = os::BeginsNoCase(name, kMenuMark) ? name.substr(kMarkLength) : name;
    const CMenuItemPtr item = menu.FindByPath(path);
    return item ? EntryOf(item) : EntryOfMissingItem(path);
}

} // namespace

ListLength ReadListLength()
{
    const Ratings::CRating list(usage::kGlobalList);
    const auto pinned =
        std::count_if(list.Entries.begin(), list.Entries.end(),
                      [](const Ratings::CEntry& entry) { return entry.IsPinned(); });
    return {static_cast<int>(list.Entries.size()), static_cast<int>(pinned)};
}

bool ReadHomeEntries(const CLauncherMenu& menu, int count, HomeEntries& entries)
{
    Ratings::CMruSlots slots;
    {
        // Reading waits for the list without end, but not for the thread that has it already.
        const Ratings::CGlobalMruLock lock(kPatience);
        if (!lock.IsHeld() || !Ratings::ReadGlobalMru(slots, static_cast<uint32_t>(count)))
            return false;
    }
    HomeEntries read;
    for (const std::wstring& name : slots.Names)
        read.Slots.push_back(EntryOfName(menu, name));
    read.Pinned = static_cast<int>(slots.Pinned);
    entries = std::move(read);
    return true;
}
