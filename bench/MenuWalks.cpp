#include "bench/MenuWalks.h"

#include <algorithm>
#include <functional>
#include <unordered_map>
#include <utility>

#include "menu/MenuKeys.h"
#include "platform/os/Registry.h"
#include "platform/os/Text.h"

namespace
{

// One open key; null when it couldn't be opened.
class CKey
{
public:
    CKey() = default;
    CKey(HKEY parent, const std::wstring& path) { os::OpenKey(parent, path.c_str(), 0, &m_key); }
    CKey(CKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr)) {}
    ~CKey()
    {
        if (m_key)
            os::CloseKey(m_key);
    }
    HKEY get() const { return m_key; }

private:
    HKEY m_key = nullptr;
};

// A subkey, unless the parent isn't open or `exists` is false.
CKey Below(const CKey& parent, const std::wstring& name, bool exists = true)
{
    return parent.get() && exists ? CKey(parent.get(), name) : CKey();
}

bool ReadDword(const CKey& key, const wchar_t* name, DWORD& value)
{
    DWORD size = sizeof(value);
    return key.get() && os::QueryValue(key.get(), name, nullptr, &value, &size) == ERROR_SUCCESS;
}

std::wstring ReadText(const CKey& key)
{
    wchar_t text[512];
    DWORD size = sizeof(text) - sizeof(wchar_t);
    if (os::QueryValue(key.get(), kTextValue, nullptr, text, &size) != ERROR_SUCCESS)
        return std::wstring();
    text[size / sizeof(wchar_t)] = L'\0';
    return text;
}

std::vector<std::wstring> Subkeys(const CKey& key)
{
    std::vector<std::wstring> names;
    std::wstring name;
    while (key.get() &&
           os::EnumKey(key.get(), static_cast<DWORD>(names.size()), name) == ERROR_SUCCESS)
        names.push_back(name);
    return names;
}

void Sort(std::vector<WalkedItem>& items)
{
    std::stable_sort(items.begin(), items.end(),
                     [](const WalkedItem& left, const WalkedItem& right)
                     {
                         if (left.Index != right.Index)
                             return left.Index < right.Index;
                         return os::CompareNoCase(left.Text, right.Text) < 0;
                     });
}

// What a folded key name stands for in one menu.
struct Place
{
    std::wstring Name;
    bool Own = false;
    bool Shared = false;
    bool Customised = false;
};

// The merged names of a menu, in the order of the layers.
std::vector<Place> MergedNames(const std::vector<std::wstring>& own,
                               const std::vector<std::wstring>& shared,
                               const std::vector<std::wstring>& customised)
{
    std::vector<Place> places;
    std::unordered_map<std::wstring, size_t> known;
    const auto mark = [&](const std::vector<std::wstring>& names, bool Place::*layer)
    {
        for (const std::wstring& name : names)
        {
            const auto entry = known.emplace(os::FoldCase(name), places.size());
            if (entry.second)
                places.push_back({name});
            places[entry.first->second].*layer = true;
        }
    };
    mark(own, &Place::Own);
    mark(shared, &Place::Shared);
    mark(customised, &Place::Customised);
    return places;
}

void ReadPlacing(WalkedItem& item, const CKey& key, const CKey& customised, DWORD offset)
{
    DWORD index = kDefaultIndex;
    if (!ReadDword(customised, kIndexValue, index))
    {
        ReadDword(key, kIndexValue, index);
        index += offset;
    }
    DWORD inactive = 0;
    if (!ReadDword(customised, kInactiveValue, inactive))
        ReadDword(key, kInactiveValue, inactive);
    item.Index = static_cast<int32_t>(index);
    item.Inactive = inactive != 0;
}

void WalkLayers(WalkedItem& menu, const CKey& own, const CKey& shared, const CKey& customised)
{
    for (const Place& place : MergedNames(Subkeys(own), Subkeys(shared), Subkeys(customised)))
    {
        WalkedItem item;
        item.Name = place.Name;
        const CKey custom = Below(customised, place.Name, place.Customised);
        if (!place.Own && !place.Shared)
        {
            DWORD user = 0;
            if (!ReadDword(custom, kUserValue, user) || user == 0)
                continue;
            item.Text = ReadText(custom);
            ReadPlacing(item, custom, CKey(), 0);
            WalkLayers(item, custom, CKey(), CKey());
        }
        else
        {
            const CKey key = Below(place.Own ? own : shared, place.Name);
            item.Text = ReadText(key);
            ReadPlacing(item, key, custom, place.Own ? 0 : kSharedIndexOffset);
            WalkLayers(item, key, Below(shared, place.Name, place.Own && place.Shared), custom);
        }
        menu.Children.push_back(std::move(item));
    }
    Sort(menu.Children);
}

void WalkOwn(WalkedItem& menu, const CKey& key)
{
    for (std::wstring& name : Subkeys(key))
    {
        WalkedItem item;
        const CKey child(key.get(), name);
        item.Text = ReadText(child);
        ReadPlacing(item, child, CKey(), 0);
        item.Name = std::move(name);
        WalkOwn(item, child);
        menu.Children.push_back(std::move(item));
    }
}

// The plain walk. Paths of a menu in the three layers; the latter two may be empty.
struct Paths
{
    std::wstring Own, Shared, Customised;
};

CKey KeyAt(const std::wstring& path)
{
    return path.empty() ? CKey() : CKey(HKEY_LOCAL_MACHINE, path);
}

std::wstring Joined(const std::wstring& path, const std::wstring& name)
{
    return path.empty() ? path : path + L"\\" + name;
}

void ReadPlain(WalkedItem& item, const std::wstring& path, DWORD offset)
{
    const CKey key = KeyAt(path);
    DWORD size = 0;
    os::QueryValue(key.get(), kTextValue, nullptr, nullptr, &size);
    item.Text = ReadText(key);
    ReadPlacing(item, key, CKey(), offset);
}

void CustomisePlain(WalkedItem& item, const std::wstring& path)
{
    const CKey key = KeyAt(path);
    DWORD value = 0;
    if (ReadDword(key, kIndexValue, value))
        item.Index = static_cast<int32_t>(value);
    if (ReadDword(key, kInactiveValue, value))
        item.Inactive = value != 0;
}

void WalkByPath(WalkedItem& menu, const Paths& paths)
{
    const auto own = Subkeys(KeyAt(paths.Own));
    const auto shared = Subkeys(KeyAt(paths.Shared));
    const auto customised = Subkeys(KeyAt(paths.Customised));
    for (const Place& place : MergedNames(own, shared, customised))
    {
        WalkedItem item;
        item.Name = place.Name;
        const bool userOnly = !place.Own && !place.Shared;
        const std::wstring& layer = place.Own  ? paths.Own
                                    : userOnly ? paths.Customised
                                               : paths.Shared;
        DWORD user = 0;
        if (userOnly && (!ReadDword(KeyAt(Joined(layer, place.Name)), kUserValue, user) || !user))
            continue;
        ReadPlain(item, Joined(layer, place.Name),
                  place.Shared && !place.Own ? kSharedIndexOffset : 0);
        if (place.Customised && !userOnly)
            CustomisePlain(item, Joined(paths.Customised, place.Name));
        menu.Children.push_back(std::move(item));
    }
    Sort(menu.Children);
    for (WalkedItem& item : menu.Children)
        WalkByPath(item, {Joined(paths.Own, item.Name), Joined(paths.Shared, item.Name),
                          Joined(paths.Customised, item.Name)});
}

} // namespace

WalkedItem WalkMinimal()
{
    WalkedItem root;
    WalkLayers(root, CKey(HKEY_LOCAL_MACHINE, kMenuRootPath),
               CKey(HKEY_LOCAL_MACHINE, kSharedRootPath),
               CKey(HKEY_LOCAL_MACHINE, kCustomizeRootPath));
    return root;
}

WalkedItem WalkOwnLayer()
{
    WalkedItem root;
    WalkOwn(root, CKey(HKEY_LOCAL_MACHINE, kMenuRootPath));
    return root;
}

WalkedItem WalkPlain()
{
    WalkedItem root;
    WalkByPath(root, {kMenuRootPath, kSharedRootPath, kCustomizeRootPath});
    return root;
}

size_t CountItems(const WalkedItem& item)
{
    size_t count = 1;
    for (const WalkedItem& child : item.Children)
        count += CountItems(child);
    return count;
}
