#include "menu/MenuLoader.h"

#include <optional>

#include "frame/Localizer.h"
#include "frame/VORegistry.h"
#include "menu/MemoryFailure.h"
#include "menu/MenuKeys.h"
#include "menu/MenuMerge.h"
#include "menu/MenuPaths.h"
#include "menu/MenuTree.h"
#include "platform/os/Text.h"

namespace
{

// A key of one layer that is open for as long as the menu is read, or isn't there.
class CLayerKey
{
public:
    void Open(HKEY root, const std::wstring& path)
    {
        m_key.emplace(root, path.c_str(), FALSE, FALSE, 0);
    }
    void OpenBelow(const CLayerKey& parent, const std::wstring& name)
    {
        if (parent.IsOpen())
            Open(parent.m_key->Key, name);
    }
    bool IsOpen() const { return m_key && m_key->Key; }

    std::optional<DWORD> Dword(const wchar_t* name) const
    {
        DWORD value = 0;
        if (!IsOpen() || !m_key->GetDWORD(name, value))
            return std::nullopt;
        return value;
    }
    std::wstring Text()
    {
        return IsOpen() ? m_key->GetString(kTextValue, nullptr) : std::wstring();
    }
    KeyNames Subkeys() const
    {
        KeyNames names;
        std::wstring name;
        while (IsOpen() && m_key->EnumKey(static_cast<DWORD>(names.size()), name))
            names.push_back(name);
        return names;
    }

private:
    std::optional<CVORegistry> m_key;
};

// One menu's keys in the three layers.
struct LayerKeys
{
    CLayerKey Own;
    CLayerKey Shared;
    CLayerKey Customize;
};

// What the customisation layer says about a built-in or user item.
struct Overrides
{
    std::optional<DWORD> Index;
    std::optional<DWORD> Inactive;
};

using CustomisedNames = std::vector<const std::wstring*>;

// The later of several keys overrules the earlier, value by value; those before `first` don't
// count. One key is the usual case: it is left open in `key` for whoever reads its subkeys.
Overrides ReadOverrides(const CLayerKey& parent, const CustomisedNames& names, size_t first,
                        CLayerKey& key)
{
    Overrides overrides;
    for (size_t i = names.size(); i > first && !(overrides.Index && overrides.Inactive); --i)
    {
        key.OpenBelow(parent, *names[i - 1]);
        if (!overrides.Index)
            overrides.Index = key.Dword(kIndexValue);
        if (!overrides.Inactive)
            overrides.Inactive = key.Dword(kInactiveValue);
    }
    return overrides;
}

// Reads one tree. Every key is opened once, relative to its parent's, which stays open meanwhile;
// a level of the menu holds three keys at most.
class CMenuLoader
{
public:
    explicit CMenuLoader(bool includeSettings) : m_includeSettings(includeSettings) {}

    void LoadTree(CMenuItem& item)
    {
        if (IsLeftOut(item))
            return;
        LayerKeys keys;
        keys.Own.Open(HKEY_LOCAL_MACHINE, item.KeyPath);
        if (IsProductPath(item.KeyPath))
            keys.Shared.Open(HKEY_LOCAL_MACHINE, SharedPath(item.KeyPath));
        if (!IsCustomizePath(item.KeyPath))
            keys.Customize.Open(HKEY_LOCAL_MACHINE, MirrorPath(item.KeyPath));
        LoadLevel(item, keys, 0);
    }

private:
    bool IsLeftOut(const CMenuItem& item) const
    {
        return !m_includeSettings && os::EqualNoCase(item.KeyPath, kSettingsBranchPath);
    }

    void LoadLevel(CMenuItem& item, const LayerKeys& keys, uint32_t depth)
    {
        if (depth >= kMaxMenuDepth)
            return;
        const KeyNames own = keys.Own.Subkeys();
        const KeyNames shared = keys.Shared.Subkeys();
        const KeyNames customised = keys.Customize.Subkeys();
        for (const MergedChild& child : MergeLayers(own, shared, customised))
        {
            if (child.Layer == MenuLayer::Customize)
                LoadUserItem(item, keys, child, depth + 1);
            else
                LoadBuiltIn(item, keys, child, depth + 1);
        }
        item.SortChildren();
    }

    void LoadBuiltIn(CMenuItem& parent, const LayerKeys& keys, const MergedChild& child,
                     uint32_t depth)
    {
        const bool sharedOnly = child.Layer == MenuLayer::Shared;
        LayerKeys below;
        below.Own.OpenBelow(sharedOnly ? keys.Shared : keys.Own, *child.Name);
        const Overrides overrides =
            ReadOverrides(keys.Customize, child.Customised, 0, below.Customize);
        const std::wstring menuPath = sharedOnly ? SharedPath(parent.KeyPath) : parent.KeyPath;
        const DWORD offset = sharedOnly ? kSharedIndexOffset : 0;
        CMenuItem* const item =
            AppendItem(parent, ChildPath(menuPath, *child.Name), below.Own, overrides, offset);
        if (!item || IsLeftOut(*item))
            return;
        if (child.HasShared)
            below.Shared.OpenBelow(keys.Shared, *child.Name);
        // The values may have come from another key, whose name only folds to the same.
        if (child.HasCustomised &&
            (child.Customised.size() != 1 || *child.Customised.front() != *child.Name))
            below.Customize.OpenBelow(keys.Customize, *child.Name);
        LoadLevel(*item, below, depth);
    }

    // The first user's key of that name becomes the item; what follows it customises the item.
    void LoadUserItem(CMenuItem& parent, const LayerKeys& keys, const MergedChild& child,
                      uint32_t depth)
    {
        LayerKeys below;
        below.Own.OpenBelow(keys.Customize, *child.Name);
        size_t next = 0;
        while (below.Own.Dword(kUserValue).value_or(0) == 0)
        {
            if (next == child.Customised.size())
                return;
            below.Own.OpenBelow(keys.Customize, *child.Customised[next++]);
        }
        const std::wstring& name = next == 0 ? *child.Name : *child.Customised[next - 1];
        CLayerKey later;
        const Overrides overrides = ReadOverrides(keys.Customize, child.Customised, next, later);
        CMenuItem* const item = AppendItem(parent, ChildPath(MirrorPath(parent.KeyPath), name),
                                           below.Own, overrides, 0);
        if (item)
            LoadLevel(*item, below, depth);
    }

    // Returns the new item, which its parent owns, or null when there are too many.
    CMenuItem* AppendItem(CMenuItem& parent, std::wstring keyPath, CLayerKey& key,
                          const Overrides& overrides, DWORD indexOffset)
    {
        if (m_items == kMostMenuItems)
            return nullptr;
        ++m_items;
        const CMenuItemPtr item(new CMenuItem(&parent));
        item->KeyPath = std::move(keyPath);
        item->Text = key.Text();
        if (!IsCustomizePath(item->KeyPath))
            item->Text = GetLocalizer().TranslateToString(item->Text.c_str());
        std::optional<DWORD> index = overrides.Index;
        if (!index)
            index = key.Dword(kIndexValue).value_or(kDefaultIndex) + indexOffset;
        item->Index = static_cast<int32_t>(*index);
        std::optional<DWORD> inactive = overrides.Inactive;
        if (!inactive)
            inactive = key.Dword(kInactiveValue);
        item->Inactive = inactive.value_or(0) != 0;
        parent.AppendChild(item);
        return item.get();
    }

    bool m_includeSettings;
    uint32_t m_items = 0;
};

} // namespace

void LoadChildren(const CMenuItemPtr& item, const CMenuTree& tree)
{
    WithMemoryFailure([&] { CMenuLoader(tree.IncludeSettings).LoadTree(*item); });
}
