// The five formats of off-screen bitmaps, byte by byte.
#include "tests/ui/RawPixels.h"

#include <vector>

namespace
{

constexpr int kWidth = 5;
constexpr int kHeight = 3;
constexpr COLORREF kWhite = RGB(255, 255, 255);

struct Colour
{
    COLORREF colour;
    uint32_t raw;
};

struct Format
{
    const char* name;
    int number;
    int bitsPerPixel;
    // Of a row of five pixels.
    int stride;
    DWORD compression;
    std::vector<Colour> colours;
};

void PrintTo(const Format& format, std::ostream* stream)
{
    *stream << format.name;
}

const Format kFormats[] = {
    {"Mono", 0, 1, 4, BI_RGB, {{RGB(0, 0, 0), 0}, {kWhite, 1}}},
    {"Grey4",
     1,
     4,
     4,
     BI_RGB,
     {{RGB(0, 0, 0), 0}, {RGB(16, 16, 16), 1}, {RGB(128, 128, 128), 8}, {RGB(240, 240, 240), 15}}},
    {"Grey8",
     2,
     8,
     8,
     BI_RGB,
     {{RGB(0, 0, 0), 0}, {RGB(1, 1, 1), 1}, {RGB(200, 200, 200), 200}, {kWhite, 255}}},
    {"Rgb565",
     3,
     16,
     12,
     BI_BITFIELDS,
     {{RGB(255, 0, 0), 0xF800},
      {RGB(0, 255, 0), 0x07E0},
      {RGB(0, 0, 255), 0x001F},
      {RGB(8, 4, 8), 0x0821},
      {kWhite, 0xFFFF}}},
    {"Rgb24",
     4,
     24,
     16,
     BI_RGB,
     {{RGB(1, 2, 3), 0x010203}, {RGB(255, 128, 0), 0xFF8000}, {kWhite, 0xFFFFFF}}},
};

class BitmapFormats : public testing::TestWithParam<Format>
{
protected:
    BitmapFormats() { EXPECT_TRUE(buffer.Create(kWidth, kHeight, GetParam().number)); }
    CBitmapBuffer buffer;
};

INSTANTIATE_TEST_SUITE_P(, BitmapFormats, testing::ValuesIn(kFormats),
                         [](const auto& each) { return each.param.name; });

} // namespace

TEST_P(BitmapFormats, HasItsSizeAndStride)
{
    EXPECT_EQ(kWidth, buffer.Width());
    EXPECT_EQ(kHeight, buffer.Height());
    EXPECT_EQ(GetParam().bitsPerPixel, buffer.BitsPerPixel());
    EXPECT_EQ(GetParam().stride, buffer.Stride());
}

TEST_P(BitmapFormats, TheSystemKnowsItAsDescribed)
{
    const DIBSECTION section = SectionOf(buffer);
    const BITMAPINFOHEADER& header = section.dsBmih;
    EXPECT_EQ(40u, header.biSize);
    EXPECT_EQ(kWidth, header.biWidth);
    EXPECT_EQ(kHeight, header.biHeight);
    EXPECT_EQ(1u, header.biPlanes);
    EXPECT_EQ(GetParam().bitsPerPixel, header.biBitCount);
    EXPECT_EQ(GetParam().compression, header.biCompression);
    EXPECT_EQ(static_cast<DWORD>(GetParam().stride * kHeight), header.biSizeImage);
    EXPECT_EQ(GetParam().stride, section.dsBm.bmWidthBytes);
    EXPECT_EQ(buffer.Bits(), section.dsBm.bmBits);
}

TEST_P(BitmapFormats, BeginsWithZeroes)
{
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            EXPECT_EQ(0u, RawPixel(buffer, x, y));
}

TEST_P(BitmapFormats, EveryPixelTakesEveryColour)
{
    for (const Colour& colour : GetParam().colours)
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
            {
                SetPixel(buffer.GetMemoryDC(), x, y, colour.colour);
                GdiFlush();
                EXPECT_EQ(colour.raw, RawPixel(buffer, x, y)) << x << "," << y;
            }
}

TEST_P(BitmapFormats, FillsJustTheRectangle)
{
    const Colour last = GetParam().colours.back();
    buffer.Fill(1, 1, 4, 2, last.colour, 255);
    GdiFlush();
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            EXPECT_EQ(y == 1 && x >= 1 && x < 4 ? last.raw : 0u, RawPixel(buffer, x, y));
}

namespace
{

std::vector<RGBQUAD> PaletteOf(int format)
{
    CBitmapBuffer buffer;
    EXPECT_TRUE(buffer.Create(8, 8, format));
    std::vector<RGBQUAD> palette(256);
    palette.resize(GetDIBColorTable(buffer.GetMemoryDC(), 0, 256, palette.data()));
    return palette;
}

void ExpectGrey(int level, const RGBQUAD& colour)
{
    EXPECT_EQ(level, colour.rgbRed);
    EXPECT_EQ(level, colour.rgbGreen);
    EXPECT_EQ(level, colour.rgbBlue);
}

} // namespace

TEST(BitmapFormat, MonoIsBlackAndWhite)
{
    const auto palette = PaletteOf(0);
    ASSERT_EQ(2u, palette.size());
    ExpectGrey(0, palette[0]);
    ExpectGrey(255, palette[1]);
}

TEST(BitmapFormat, FourBitsAreSixteenGreysInStepsOfSixteen)
{
    const auto palette = PaletteOf(1);
    ASSERT_EQ(16u, palette.size());
    for (int i = 0; i < 16; ++i)
        ExpectGrey(i * 16, palette[static_cast<size_t>(i)]);
}

TEST(BitmapFormat, EightBitsAreAllGreys)
{
    const auto palette = PaletteOf(2);
    ASSERT_EQ(256u, palette.size());
    for (int i = 0; i < 256; ++i)
        ExpectGrey(i, palette[static_cast<size_t>(i)]);
}

TEST(BitmapFormat, SixteenBitsHaveTheirMasks)
{
    CBitmapBuffer buffer;
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    const DIBSECTION section = SectionOf(buffer);
    EXPECT_EQ(0xF800u, section.dsBitfields[0]);
    EXPECT_EQ(0x07E0u, section.dsBitfields[1]);
    EXPECT_EQ(0x001Fu, section.dsBitfields[2]);
}

TEST(BitmapFormat, RowsArePaddedToFourBytes)
{
    const struct
    {
        int width;
        int format;
        int stride;
    } kRows[] = {{1, 0, 4}, {32, 0, 4},  {33, 0, 8}, {8, 1, 4}, {9, 1, 8},
                 {4, 2, 4}, {30, 3, 60}, {1, 4, 4},  {4, 4, 12}};
    for (const auto& row : kRows)
    {
        CBitmapBuffer buffer;
        ASSERT_TRUE(buffer.Create(row.width, 1, row.format));
        EXPECT_EQ(row.stride, buffer.Stride()) << row.width << " in format " << row.format;
    }
}
