#include "skin/SkinBitmapStorage.h"

#include "skin/DibSection.h"

namespace skin
{

HBITMAP CSkinBitmapStorage::Bitmap(const wchar_t* name, void** bits, bool useCache, bool callerOwns)
{
    void* unwanted = nullptr;
    void*& result = bits ? *bits : unwanted;
    result = nullptr;
    if (!name)
        return nullptr;
    BitmapEntry* entry = m_cache.Find(name);
    if (!entry && useCache)
    {
        entry = m_cache.Append(name);
        if (!entry)
            return nullptr;
    }
    if (entry)
        return CachedBitmap(*entry, result);

    UniqueBitmap bitmap(ReadBitmap(name, result));
    if (callerOwns || !bitmap)
        return bitmap.release();
    m_lastBitmap = std::move(bitmap);
    return m_lastBitmap.get();
}

// A bitmap that could not be made is tried again the next time.
HBITMAP CSkinBitmapStorage::CachedBitmap(BitmapEntry& entry, void*& bits)
{
    if (!entry.Bitmap)
        entry.Bitmap = ReadBitmap(entry.Name, entry.Bits);
    bits = entry.Bits;
    return entry.Bitmap;
}

HBITMAP CSkinBitmapStorage::ReadBitmap(const wchar_t* name, void*& bits)
{
    uint32_t size = 0;
    const UniqueLocal file(ReadMemberWhole(name, &size));
    return file ? CreateDibFromFile(static_cast<const uint8_t*>(file.get()), size, bits) : nullptr;
}

} // namespace skin
