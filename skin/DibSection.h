// Makes device-independent bitmaps of bitmap files in memory. Used by the picture storage.
#pragma once

#include "platform/Win.h"

#include <cstddef>
#include <cstdint>

namespace skin
{

// Makes a DIB section of the whole bitmap file of `size` bytes. `bits` gets the address of its
// pixels, which live as long as the bitmap; the caller deletes that. Null, with `bits` null too,
// when the file is no usable bitmap (see BitmapFile.h) or the system refuses.
HBITMAP CreateDibFromFile(const uint8_t* data, size_t size, void*& bits);

} // namespace skin
