#include "menu/MenuMerge.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "platform/os/Text.h"

namespace
{

struct FoldedHash
{
    size_t operator()(std::wstring_view name) const
    {
        // FNV-1a, a step per code unit.
        uint64_t hash = 0xCBF29CE484222325u;
        for (const wchar_t unit : name)
            hash = (hash ^ os::FoldCase(unit)) * 0x100000001B3u;
        return static_cast<size_t>(hash ^ (hash >> 32));
    }
};

struct FoldedEqual
{
    bool operator()(std::wstring_view left, std::wstring_view right) const
    {
        return os::EqualNoCase(left, right);
    }
};

// Finds the children of a name. Several share one only if the registry tells letters apart that
// fold to the same.
class CChildIndex
{
public:
    explicit CChildIndex(std::vector<MergedChild>& children) : m_children(children) {}

    // Sets `flag` of all children of that name and returns the last one, as a search from the back
    // would find it, or null.
    MergedChild* Mark(const std::wstring& name, bool MergedChild::*flag) const
    {
        MergedChild* last = nullptr;
        const auto places = m_places.equal_range(name);
        for (auto place = places.first; place != places.second; ++place)
        {
            MergedChild* const child = &m_children[place->second];
            child->*flag = true;
            if (!last || child > last)
                last = child;
        }
        return last;
    }
    void Append(const std::wstring& name, MenuLayer layer)
    {
        m_places.emplace(name, m_children.size());
        m_children.push_back({&name, layer});
    }
    void Reserve(size_t count)
    {
        m_children.reserve(count);
        m_places.reserve(count);
    }

private:
    std::vector<MergedChild>& m_children;
    std::unordered_multimap<std::wstring_view, size_t, FoldedHash, FoldedEqual> m_places;
};

} // namespace

std::vector<MergedChild> MergeLayers(const KeyNames& own, const KeyNames& shared,
                                     const KeyNames& customised)
{
    std::vector<MergedChild> children;
    if (shared.empty() && customised.empty())
    {
        children.reserve(own.size());
        for (const std::wstring& name : own)
            children.push_back({&name, MenuLayer::Own});
        return children;
    }

    CChildIndex index(children);
    index.Reserve(own.size() + shared.size() + customised.size());
    for (const std::wstring& name : own)
        index.Append(name, MenuLayer::Own);
    for (const std::wstring& name : shared)
        if (!index.Mark(name, &MergedChild::HasShared))
            index.Append(name, MenuLayer::Shared);
    for (const std::wstring& name : customised)
    {
        if (MergedChild* const child = index.Mark(name, &MergedChild::HasCustomised))
            child->Customised.push_back(&name);
        else
            index.Append(name, MenuLayer::Customize);
    }
    return children;
}
