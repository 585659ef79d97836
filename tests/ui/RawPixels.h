// Looks into the memory of a bitmap buffer.
#pragma once

#include "ui/BitmapBuffer.h"

#include <gtest/gtest.h>

#include <cstdint>

inline DIBSECTION SectionOf(const CBitmapBuffer& buffer)
{
    DIBSECTION section = {};
    EXPECT_EQ(static_cast<int>(sizeof(section)),
              GetObjectW(buffer.Bitmap(), sizeof(section), &section));
    return section;
}

// The byte at a row counted from the top, which is the last one in memory.
inline uint8_t ByteAt(const CBitmapBuffer& buffer, int row, int offset)
{
    const auto* const bits = static_cast<const uint8_t*>(buffer.Bits());
    return bits[(buffer.Height() - 1 - row) * buffer.Stride() + offset];
}

// A pixel's number as it lies in memory.
inline uint32_t RawPixel(const CBitmapBuffer& buffer, int x, int y)
{
    switch (buffer.BitsPerPixel())
    {
    case 1:
        return ByteAt(buffer, y, x / 8) >> (7 - x % 8) & 1u;
    case 4:
        return ByteAt(buffer, y, x / 2) >> (x % 2 == 0 ? 4 : 0) & 15u;
    case 8:
        return ByteAt(buffer, y, x);
    case 16:
        return ByteAt(buffer, y, 2 * x) | static_cast<uint32_t>(ByteAt(buffer, y, 2 * x + 1)) << 8;
    default:
        return ByteAt(buffer, y, 3 * x) | static_cast<uint32_t>(ByteAt(buffer, y, 3 * x + 1)) << 8 |
               static_cast<uint32_t>(ByteAt(buffer, y, 3 * x + 2)) << 16;
    }
}
