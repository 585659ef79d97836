// skin::CSkinBitmapStorage: a storage whose members can be had as bitmaps. Used through CSkin.
#pragma once

#include "skin/BitmapCache.h"
#include "skin/SkinStorage.h"

namespace skin
{

// Owns the bitmaps in its cache and the last one that nobody else wanted to own.
class CSkinBitmapStorage : public CSkinStorage
{
public:
    CSkinBitmapStorage() = default;
    // Deletes every bitmap that the storage still owns.
    ~CSkinBitmapStorage() override = default;

    // Returns the bitmap file `name` as a DIB section, and in `bits`, when given, the address of
    // its pixels; both are null when the member is missing or no usable bitmap.
    //   useCache     the bitmap is made once and stays with the storage, under this very spelling.
    //   callerOwns   a bitmap that is not in the cache goes to the caller, who deletes it. Without
    //                it, it stays good only until the next such call.
    // A name that is in the cache gives the cached bitmap whatever the two flags say.
    HBITMAP Bitmap(const wchar_t* name, void** bits, bool useCache, bool callerOwns);

    const CBitmapCache& Cache() const { return m_cache; }

private:
    HBITMAP ReadBitmap(const wchar_t* name, void*& bits);
    HBITMAP CachedBitmap(BitmapEntry& entry, void*& bits);

    CBitmapCache m_cache;
    UniqueBitmap m_lastBitmap;
};

} // namespace skin
