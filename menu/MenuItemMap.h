// The tree's index of its items by Id.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>

#include "menu/MenuItem.h"

// Holds one reference to every item in it.
class CMenuItemMap
{
public:
    // `buckets` 0 throws 0x84000001.
    explicit CMenuItemMap(uint32_t buckets);

    // Null when the Id is unknown.
    CMenuItemPtr Find(uint32_t id) const;
    // Replaces what is stored under the Id. A null item throws 0x84000001.
    void Insert(uint32_t id, const CMenuItemPtr& item);
    void Erase(uint32_t id);
    void Clear();
    size_t Count() const { return m_items.size(); }

private:
    std::unordered_map<uint32_t, CMenuItemPtr> m_items;
};
