// skin::CBitmapCache: the bitmaps that a picture storage keeps by name.
#pragma once

#include "platform/Win.h"

#include <cstddef>

namespace skin
{

// One name's bitmap. The names are compared exactly, so two spellings have two entries.
struct BitmapEntry
{
    wchar_t* Name;
    // Null until the bitmap was read.
    HBITMAP Bitmap;
    // A further object that is deleted with the entry; nothing fills it.
    HGDIOBJ Companion;
    // The bitmap's pixels; they live as long as it does.
    void* Bits;
};

// Owns its entries and their bitmaps.
class CBitmapCache
{
public:
    CBitmapCache() = default;
    virtual ~CBitmapCache();
    CBitmapCache(const CBitmapCache&) = delete;
    CBitmapCache& operator=(const CBitmapCache&) = delete;

    // The entry of that very name; null when there is none. An empty name is never found.
    BitmapEntry* Find(const wchar_t* name) const;

    // Appends an entry without a bitmap. Null when memory runs out; nothing has changed then.
    BitmapEntry* Append(const wchar_t* name);

    // Deletes all entries, the last one first, and the array.
    void Clear();

    size_t Count() const { return m_count; }
    // The number of entries that fit without growing.
    size_t Capacity() const { return m_capacity; }

private:
    bool Grow();

    BitmapEntry** m_entries = nullptr;
    size_t m_count = 0;
    size_t m_capacity = 0;
};

} // namespace skin
