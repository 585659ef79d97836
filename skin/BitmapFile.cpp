#include "skin/BitmapFile.h"

#include "platform/Bytes.h"

#include <cstdlib>

namespace skin
{

namespace
{

// The file header, and the offset of the pixels in it.
constexpr size_t kFileHeaderSize = 14;
constexpr size_t kPixelOffsetField = 10;

// The shortest header that is understood, and the fields in it.
constexpr size_t kInfoHeaderSize = 40;
constexpr size_t kWidthField = 4;
constexpr size_t kHeightField = 8;
constexpr size_t kPlanesField = 12;
constexpr size_t kBitCountField = 14;
constexpr size_t kCompressionField = 16;
constexpr size_t kColorsUsedField = 32;

// The three masks stand directly behind that header, in longer ones too.
constexpr size_t kMasksSize = 12;
constexpr size_t kColorSize = 4;

constexpr uint32_t kUncompressed = 0;
constexpr uint32_t kBitFields = 3;

int64_t SignedAt(const uint8_t* p)
{
    return static_cast<int32_t>(bytes::GetU32LE(p));
}

bool IsKnownFormat(const uint8_t* info)
{
    if (bytes::GetU16LE(info + kPlanesField) != 1)
        return false;
    const uint32_t compression = bytes::GetU32LE(info + kCompressionField);
    switch (bytes::GetU16LE(info + kBitCountField))
    {
    case 1:
    case 4:
    case 8:
    case 24:
        return compression == kUncompressed;
    case 16:
    case 32:
        return compression == kUncompressed || compression == kBitFields;
    default:
        return false;
    }
}

// The number of bytes up to the end of the masks or the palette, whichever the file is to have.
uint64_t NeededInfoSize(const uint8_t* info)
{
    const uint64_t headerSize = bytes::GetU32LE(info);
    const bool hasMasks = bytes::GetU32LE(info + kCompressionField) == kBitFields;
    const bool masksFollow = hasMasks && headerSize < kInfoHeaderSize + kMasksSize;
    uint64_t colors = bytes::GetU32LE(info + kColorsUsedField);
    const unsigned bitCount = bytes::GetU16LE(info + kBitCountField);
    if (colors == 0 && bitCount <= 8)
        colors = uint64_t{1} << bitCount;
    const uint64_t header = masksFollow ? kInfoHeaderSize + kMasksSize : headerSize;
    return header + colors * kColorSize;
}

// The number of bytes of all rows; 0 when there are none or more than `available`.
size_t PixelSizeWithin(const uint8_t* info, uint64_t available)
{
    const int64_t width = SignedAt(info + kWidthField);
    const int64_t height = SignedAt(info + kHeightField);
    if (width <= 0)
        return 0;
    const uint64_t rowBits = static_cast<uint64_t>(width) * bytes::GetU16LE(info + kBitCountField);
    const uint64_t stride = ((rowBits + 7) / 8 + 3) / 4 * 4;
    const auto rows = static_cast<uint64_t>(std::abs(height));
    return rows <= available / stride ? static_cast<size_t>(rows * stride) : 0;
}

} // namespace

bool ReadBitmapFile(const uint8_t* data, size_t size, BitmapFile& file)
{
    if (size < kFileHeaderSize + kInfoHeaderSize)
        return false;
    const size_t pixelOffset = bytes::GetU32LE(data + kPixelOffsetField);
    if (pixelOffset < kFileHeaderSize + kInfoHeaderSize || pixelOffset > size)
        return false;

    const uint8_t* const info = data + kFileHeaderSize;
    const size_t infoSize = pixelOffset - kFileHeaderSize;
    if (bytes::GetU32LE(info) < kInfoHeaderSize || !IsKnownFormat(info) ||
        NeededInfoSize(info) > infoSize)
        return false;

    const size_t pixelSize = PixelSizeWithin(info, size - pixelOffset);
    if (pixelSize == 0)
        return false;
    file = {kFileHeaderSize, infoSize, pixelOffset, pixelSize};
    return true;
}

} // namespace skin
