#include "device/help/BookText.h"

#include "platform/Bytes.h"

namespace help
{
namespace
{

constexpr Char16 kReplacement = 0xFFFD;

String16 DecodeUtf16(const uint8_t* data, size_t size)
{
    String16 text;
    text.reserve(size / 2);
    for (size_t i = 0; i + 1 < size; i += 2)
        text += static_cast<Char16>(bytes::GetU16LE(data + i));
    return text;
}

// How many bytes follow the first one, and the smallest character that needs so many.
struct Lead
{
    int Following;
    uint32_t Bits;
    uint32_t Smallest;
};

Lead LeadOf(uint8_t byte)
{
    if (byte < 0x80)
        return {0, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0)
        return {1, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF5)
        return {3, byte & 0x07U, 0x10000};
    return {-1, 0, 0};
}

// Reads the character at `at` and goes behind it; behind one byte when there is none.
uint32_t TakeUtf8(const uint8_t* data, size_t size, size_t& at)
{
    const Lead lead = LeadOf(data[at++]);
    if (lead.Following < 0 || size - at < static_cast<size_t>(lead.Following))
        return kReplacement;
    uint32_t point = lead.Bits;
    for (int i = 0; i < lead.Following; ++i)
    {
        const uint8_t next = data[at + static_cast<size_t>(i)];
        if ((next & 0xC0) != 0x80)
            return kReplacement;
        point = point << 6 | (next & 0x3FU);
    }
    if (point < lead.Smallest || point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF))
        return kReplacement;
    at += static_cast<size_t>(lead.Following);
    return point;
}

} // namespace

String16 DecodePage(const uint8_t* data, size_t size)
{
    if (size >= 2 && data[0] == 0xFF && data[1] == 0xFE)
        return DecodeUtf16(data + 2, size - 2);
    const bool isMarked = size >= 3 && data[0] == 0xEF && data[1] == 0xBB && data[2] == 0xBF;
    String16 text;
    text.reserve(size);
    for (size_t at = isMarked ? 3 : 0; at < size;)
    {
        const uint32_t point = TakeUtf8(data, size, at);
        if (point < 0x10000)
        {
            text += static_cast<Char16>(point);
            continue;
        }
        text += static_cast<Char16>(0xD800 + ((point - 0x10000) >> 10));
        text += static_cast<Char16>(0xDC00 + (point & 0x3FF));
    }
    return text;
}

} // namespace help
