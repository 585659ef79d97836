// Fuzzes the check of bitmap files: what it makes of any bytes is compared with a plain second
// reading that counts in wide numbers.
#include "skin/BitmapFile.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace
{

using Wide = __int128;

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "differs from the plain reading: %s\n", what);
    std::abort();
}

class CPlainReading
{
public:
    CPlainReading(const uint8_t* data, size_t size) : m_data(data), m_size(size)
    {
        if (size < 54)
            return;
        m_offset = Number(10, 4);
        m_isUsable = m_offset >= 54 && m_offset <= m_size && HasHeader() && HasFormat() &&
                     HasColors() && HasPixels();
    }
    bool IsUsable() const { return m_isUsable; }
    Wide PixelOffset() const { return m_offset; }
    Wide PixelSize() const { return m_stride * m_rows; }

private:
    Wide Number(size_t offset, size_t count) const
    {
        Wide value = 0;
        while (count-- > 0)
            value = value * 256 + m_data[offset + count];
        return value;
    }
    Wide Signed(size_t offset) const
    {
        const Wide value = Number(offset, 4);
        return value < (Wide{1} << 31) ? value : value - (Wide{1} << 32);
    }

    bool HasHeader() const { return Number(14, 4) >= 40 && 14 + Number(14, 4) <= m_offset; }
    bool HasMasks() const { return Number(30, 4) == 3; }
    bool HasFormat() const
    {
        const auto bits = static_cast<int>(Number(28, 2));
        const bool wide = bits == 16 || bits == 32;
        const bool narrow = bits == 1 || bits == 4 || bits == 8 || bits == 24;
        return Number(26, 2) == 1 &&
               ((Number(30, 4) == 0 && (wide || narrow)) || (HasMasks() && wide));
    }
    bool HasColors() const
    {
        Wide colors = Number(46, 4);
        if (colors == 0 && Number(28, 2) <= 8)
            colors = Wide{1} << static_cast<int>(Number(28, 2));
        Wide begin = 14 + Number(14, 4);
        if (HasMasks() && begin < 66)
            begin = 66;
        return begin + 4 * colors <= m_offset;
    }
    bool HasPixels()
    {
        m_rows = Signed(22);
        if (Signed(18) <= 0 || m_rows == 0 || m_rows == -(Wide{1} << 31))
            return false;
        if (m_rows < 0)
            m_rows = -m_rows;
        m_stride = (Number(28, 2) * Signed(18) + 31) / 32 * 4;
        return m_offset + PixelSize() <= static_cast<Wide>(m_size);
    }

    const uint8_t* m_data;
    size_t m_size;
    Wide m_offset = 0;
    Wide m_rows = 0;
    Wide m_stride = 0;
    bool m_isUsable = false;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const CPlainReading expected(data, size);
    skin::BitmapFile file = {};
    const bool isUsable = skin::ReadBitmapFile(data, size, file);
    Require(isUsable == expected.IsUsable(), "usable");
    if (!isUsable)
        return 0;
    Require(file.InfoOffset == 14, "header");
    Require(file.InfoOffset + file.InfoSize == file.PixelOffset, "header's size");
    Require(file.PixelOffset == static_cast<size_t>(expected.PixelOffset()), "pixels");
    Require(file.PixelSize == static_cast<size_t>(expected.PixelSize()), "pixels' size");
    return 0;
}
