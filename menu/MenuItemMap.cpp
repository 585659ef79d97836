#include "menu/MenuItemMap.h"

#include "menu/MemoryFailure.h"

CMenuItemMap::CMenuItemMap(uint32_t buckets)
{
    if (buckets == 0)
        ThrowBroken();
    WithMemoryFailure([&] { m_items.rehash(buckets); });
}

CMenuItemPtr CMenuItemMap::Find(uint32_t id) const
{
    const auto found = m_items.find(id);
    return found == m_items.end() ? CMenuItemPtr() : found->second;
}

void CMenuItemMap::Insert(uint32_t id, const CMenuItemPtr& item)
{
    if (!item)
        ThrowBroken();
    WithMemoryFailure([&] { m_items.insert_or_assign(id, item); });
}

void CMenuItemMap::Erase(uint32_t id)
{
    m_items.erase(id);
}

void CMenuItemMap::Clear()
{
    m_items.clear();
}
