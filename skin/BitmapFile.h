// Where the parts of a Windows bitmap file lie. The file may be damaged: what is found here lies
// within it, and the system may be handed the header without reading past its end.
#pragma once

#include <cstddef>
#include <cstdint>

namespace skin
{

// Offsets and sizes in bytes, from the file's start.
struct BitmapFile
{
    // Header, colour masks and palette.
    size_t InfoOffset;
    size_t InfoSize;
    size_t PixelOffset;
    // All rows, each padded to a multiple of 4.
    size_t PixelSize;
};

// Checks the whole file of `size` bytes and says where its parts are. False for anything but
// uncompressed pixels of 1, 4, 8, 16, 24 or 32 bits, and for a file that lacks a part of its
// header, masks, palette or pixels; `file` is untouched then. There is no signature to match, and
// a height may be negative for rows from the top.
bool ReadBitmapFile(const uint8_t* data, size_t size, BitmapFile& file);

} // namespace skin
