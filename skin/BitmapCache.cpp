#include "skin/BitmapCache.h"

#include "platform/Handles.h"

#include <cwchar>

namespace skin
{

namespace
{

// The array grows by this many entries at a time.
constexpr size_t kGrowth = 128;

wchar_t* CopyOf(const wchar_t* text)
{
    const size_t bytes = (std::wcslen(text) + 1) * sizeof(wchar_t);
    void* const copy = LocalAlloc(LMEM_FIXED, bytes);
    if (copy)
        CopyMemory(copy, text, bytes);
    return static_cast<wchar_t*>(copy);
}

void Delete(BitmapEntry* entry)
{
    if (entry->Bitmap)
        DeleteObject(entry->Bitmap);
    if (entry->Companion)
        DeleteObject(entry->Companion);
    LocalFree(entry->Name);
    LocalFree(entry);
}

} // namespace

CBitmapCache::~CBitmapCache()
{
    Clear();
}

BitmapEntry* CBitmapCache::Find(const wchar_t* name) const
{
    if (name[0] == 0)
        return nullptr;
    for (size_t i = 0; i < m_count; ++i)
        if (std::wcscmp(m_entries[i]->Name, name) == 0)
            return m_entries[i];
    return nullptr;
}

BitmapEntry* CBitmapCache::Append(const wchar_t* name)
{
    UniqueLocal entry(LocalAlloc(LMEM_FIXED | LMEM_ZEROINIT, sizeof(BitmapEntry)));
    UniqueLocal copy(CopyOf(name));
    if (!entry || !copy || (m_count == m_capacity && !Grow()))
        return nullptr;
    auto* const appended = static_cast<BitmapEntry*>(entry.release());
    appended->Name = static_cast<wchar_t*>(copy.release());
    m_entries[m_count++] = appended;
    return appended;
}

void CBitmapCache::Clear()
{
    while (m_count > 0)
        Delete(m_entries[--m_count]);
    LocalFree(m_entries);
    m_entries = nullptr;
    m_capacity = 0;
}

// The old array stays when there is no room for a larger one.
bool CBitmapCache::Grow()
{
    const size_t bytes = (m_capacity + kGrowth) * sizeof(*m_entries);
    void* const grown =
        m_entries ? LocalReAlloc(m_entries, bytes, LMEM_MOVEABLE) : LocalAlloc(LMEM_FIXED, bytes);
    if (!grown)
        return false;
    m_entries = static_cast<BitmapEntry**>(grown);
    m_capacity += kGrowth;
    return true;
}

} // namespace skin
