#include "ui/BitmapBuffer.h"

#include <cstdint>
#include <limits>

namespace
{

// 96 dots per inch.
constexpr LONG kPixelsPerMetre = 3780;

struct FormatTraits
{
    WORD BitCount;
    DWORD Compression;
};

constexpr FormatTraits kFormats[] = {
    {1, BI_RGB}, {4, BI_RGB}, {8, BI_RGB}, {16, BI_BITFIELDS}, {24, BI_RGB},
};
constexpr int kFormatCount = sizeof(kFormats) / sizeof(kFormats[0]);

// Header and colour table, or colour masks, as the system takes them.
struct BitmapDescription
{
    BITMAPINFOHEADER Header;
    union
    {
        RGBQUAD Palette[256];
        DWORD Masks[3];
    };
};

RGBQUAD Grey(int level)
{
    const auto value = static_cast<BYTE>(level);
    return {value, value, value, 0};
}

void FillColours(BitmapDescription& description, int format)
{
    switch (format)
    {
    case BitmapFormatMono:
        description.Palette[1] = Grey(255);
        break;
    case BitmapFormatGrey4:
        for (int i = 0; i < 16; ++i)
            description.Palette[i] = Grey(i * 16);
        break;
    case BitmapFormatGrey8:
        for (int i = 0; i < 256; ++i)
            description.Palette[i] = Grey(i);
        break;
    case BitmapFormatRgb565:
        description.Masks[0] = 0xF800;
        description.Masks[1] = 0x07E0;
        description.Masks[2] = 0x001F;
        break;
    default:
        break;
    }
}

// Wide enough for any width that fits an int.
int64_t StrideOf(int width, int bitsPerPixel)
{
    const int64_t bytes = (static_cast<int64_t>(width) * bitsPerPixel + 7) / 8;
    return (bytes + 3) / 4 * 4;
}

BitmapDescription Describe(int width, int height, int format, int64_t size)
{
    BitmapDescription description = {};
    BITMAPINFOHEADER& header = description.Header;
    header.biSize = sizeof(header);
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = kFormats[format].BitCount;
    header.biCompression = kFormats[format].Compression;
    header.biSizeImage = static_cast<DWORD>(size);
    header.biXPelsPerMeter = kPixelsPerMetre;
    header.biYPelsPerMeter = kPixelsPerMetre;
    FillColours(description, format);
    return description;
}

bool IsPossible(int width, int height, int format)
{
    if (width < 1 || height < 1 || format < 0 || format >= kFormatCount)
        return false;
    const int64_t stride = StrideOf(width, kFormats[format].BitCount);
    return stride <= std::numeric_limits<int>::max() / height;
}

} // namespace

CBitmapBuffer::~CBitmapBuffer()
{
    Release();
}

bool CBitmapBuffer::Create(int width, int height, int format)
{
    Release();
    if (!IsPossible(width, height, format))
    {
        SetLastError(ERROR_INVALID_PARAMETER);
        return false;
    }
    const int64_t stride = StrideOf(width, kFormats[format].BitCount);
    const BitmapDescription description = Describe(width, height, format, stride * height);
    void* bits = nullptr;
    const UniqueScreenDc screen(GetDC(nullptr));
    m_bitmap.reset(CreateDIBSection(screen.get(), reinterpret_cast<const BITMAPINFO*>(&description),
                                    DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!m_bitmap || !bits)
    {
        const DWORD error = GetLastError();
        m_bitmap.reset();
        SetLastError(error);
        return false;
    }
    m_width = width;
    m_height = height;
    m_stride = static_cast<int>(stride);
    m_bitsPerPixel = kFormats[format].BitCount;
    m_bits = bits;
    return true;
}

bool CBitmapBuffer::Attach(HBITMAP bitmap)
{
    Release();
    DIBSECTION section = {};
    if (!bitmap || GetObjectW(bitmap, sizeof(section), &section) != sizeof(section) ||
        !section.dsBm.bmBits)
        return false;
    m_bitmap.reset(bitmap);
    m_width = section.dsBm.bmWidth;
    m_height = section.dsBm.bmHeight;
    m_bitsPerPixel = section.dsBm.bmBitsPixel;
    m_stride = static_cast<int>(StrideOf(m_width, m_bitsPerPixel));
    m_bits = section.dsBm.bmBits;
    return true;
}

HDC CBitmapBuffer::GetMemoryDC()
{
    if (m_dc || !m_bitmap)
        return m_dc.get();
    // Null stands for the screen.
    m_dc.reset(CreateCompatibleDC(nullptr));
    if (m_dc)
    {
        m_savedState = SaveDC(m_dc.get());
        SelectObject(m_dc.get(), m_bitmap.get());
    }
    return m_dc.get();
}

void CBitmapBuffer::ReleaseMemoryDC()
{
    if (!m_dc)
        return;
    RestoreDC(m_dc.get(), m_savedState);
    m_dc.reset();
}

void CBitmapBuffer::Fill(int left, int top, int right, int bottom, COLORREF colour, BYTE /*alpha*/)
{
    const HDC dc = GetMemoryDC();
    if (!dc)
        return;
    const RECT rect = {left, top, right, bottom};
    const UniqueBrush brush(CreateSolidBrush(colour));
    FillRect(dc, &rect, brush.get());
}

void CBitmapBuffer::Release()
{
    ReleaseMemoryDC();
    m_bitmap.reset();
    m_bits = nullptr;
    m_width = m_height = m_stride = m_bitsPerPixel = 0;
}
