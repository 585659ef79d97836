#include "device/ImageRequest.h"

#include "platform/Bytes.h"

namespace requests
{
namespace
{

// Byte offsets of the record that asks for a picture.
constexpr size_t kKindOffset = 0;
constexpr size_t kPathOffset = 4;
constexpr size_t kPathUnits = 260;
constexpr size_t kNumberOffset = 524;
constexpr size_t kDcOffset = 528;
constexpr size_t kRectOffset = 532;

// No handheld's screen, and no icon, is larger.
constexpr int32_t kLargestExtent = 4096;

int32_t SignedAt(const uint8_t* p)
{
    return static_cast<int32_t>(bytes::GetU32LE(p));
}

// Reads a zero-terminated text from its field; false without a terminator.
bool ReadPath(const uint8_t* field, String16& path)
{
    path.clear();
    for (size_t i = 0; i < kPathUnits; ++i)
    {
        const uint16_t unit = bytes::GetU16LE(field + i * 2);
        if (unit == 0)
            return true;
        path += static_cast<Char16>(unit);
    }
    return false;
}

bool IsSensibleSpan(int32_t low, int32_t high)
{
    return low > -kLargestExtent && high <= kLargestExtent && high > low &&
           high - low <= kLargestExtent;
}

} // namespace

bool ReadImageRequest(const uint8_t* data, size_t size, ImageRequest& request)
{
    if (!data || size != kDrawImageSize)
        return false;
    const uint32_t kind = bytes::GetU32LE(data + kKindOffset);
    if (kind != static_cast<uint32_t>(ImageKind::File) &&
        kind != static_cast<uint32_t>(ImageKind::IconNumber))
        return false;
    ImageRequest read;
    read.Kind = static_cast<ImageKind>(kind);
    if (!ReadPath(data + kPathOffset, read.Path))
        return false;
    read.Number = SignedAt(data + kNumberOffset);
    read.Dc = bytes::GetU32LE(data + kDcOffset);
    read.Left = SignedAt(data + kRectOffset);
    read.Top = SignedAt(data + kRectOffset + 4);
    read.Right = SignedAt(data + kRectOffset + 8);
    read.Bottom = SignedAt(data + kRectOffset + 12);
    if (!IsSensibleSpan(read.Left, read.Right) || !IsSensibleSpan(read.Top, read.Bottom))
        return false;
    request = read;
    return true;
}

bool ReadShownRequest(const uint8_t* data, size_t size, String16& path)
{
    if (!data || size != kIsShownSize)
        return false;
    String16 read;
    if (!ReadPath(data + 4, read) || read.empty())
        return false;
    path = read;
    return true;
}

} // namespace requests
