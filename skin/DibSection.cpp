#include "skin/DibSection.h"

#include "platform/Handles.h"
#include "skin/BitmapFile.h"

#include <algorithm>
#include <cstdlib>

namespace skin
{

namespace
{

// The header is copied for its alignment: in the file it lies at an odd word.
UniqueLocal CopyOfInfo(const uint8_t* data, const BitmapFile& file)
{
    UniqueLocal info(LocalAlloc(LMEM_FIXED, file.InfoSize));
    if (info)
        CopyMemory(info.get(), data + file.InfoOffset, file.InfoSize);
    return info;
}

// The number of bytes that the bitmap's pixels take.
size_t PixelSizeOf(HBITMAP bitmap)
{
    BITMAP shape = {};
    if (GetObjectW(bitmap, sizeof(shape), &shape) == 0)
        return 0;
    return static_cast<size_t>(shape.bmWidthBytes) * static_cast<size_t>(std::abs(shape.bmHeight));
}

} // namespace

HBITMAP CreateDibFromFile(const uint8_t* data, size_t size, void*& bits)
{
    bits = nullptr;
    BitmapFile file;
    if (!ReadBitmapFile(data, size, file))
        return nullptr;
    const UniqueLocal info = CopyOfInfo(data, file);
    if (!info)
        return nullptr;

    void* pixels = nullptr;
    const UniqueScreenDc screen(GetDC(nullptr));
    const HBITMAP bitmap =
        CreateDIBSection(screen.get(), static_cast<const BITMAPINFO*>(info.get()), DIB_RGB_COLORS,
                         &pixels, nullptr, 0);
    // A system may answer a header that it could not read with what is no handle at all.
    if (!bitmap || !pixels || GetObjectType(bitmap) != OBJ_BITMAP)
        return nullptr;
    CopyMemory(pixels, data + file.PixelOffset, std::min(file.PixelSize, PixelSizeOf(bitmap)));
    bits = pixels;
    return bitmap;
}

} // namespace skin
