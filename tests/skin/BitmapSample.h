// Bitmap files for tests, with every field of the header open to lies. Works without windows.h: the
// native tests and the fuzzers' seeds use it too.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Describes a file; what is not said is as it should be.
struct BitmapSample
{
    int32_t width = 3;
    int32_t height = 2;
    uint16_t bitCount = 24;
    uint32_t compression = 0;
    uint16_t planes = 1;
    uint32_t headerSize = 40;
    uint32_t colorsUsed = 0;
    // 32-bit words behind the header: palette or masks.
    std::vector<uint32_t> words;
    // Bytes between these and the pixels.
    size_t gap = 0;

    // The bytes of one row, counted by hand rather than by a formula.
    size_t Stride() const
    {
        size_t bytes = 0;
        for (int64_t bits = 0; bits < int64_t{width} * bitCount; bits += 32)
            bytes += 4;
        return bytes;
    }
    size_t Rows() const { return static_cast<size_t>(height < 0 ? -int64_t{height} : height); }
    size_t PixelSize() const { return Stride() * Rows(); }
    size_t PixelOffset() const { return 14 + headerSize + words.size() * 4 + gap; }

    // The file, its pixels numbered bytewise from 1.
    std::vector<uint8_t> Bytes() const
    {
        std::vector<uint8_t> file;
        const auto number = [&file](uint64_t value, int count)
        {
            for (int i = 0; i < count; ++i)
                file.push_back(static_cast<uint8_t>(value >> (8 * i)));
        };
        number(0x4D42, 2);
        number(PixelOffset() + PixelSize(), 4);
        number(0, 4);
        number(PixelOffset(), 4);
        number(headerSize, 4);
        number(static_cast<uint32_t>(width), 4);
        number(static_cast<uint32_t>(height), 4);
        number(planes, 2);
        number(bitCount, 2);
        number(compression, 4);
        number(0, 4); // image size
        number(0, 8); // resolution
        number(colorsUsed, 4);
        number(0, 4); // important colours
        file.resize(14 + headerSize);
        for (const uint32_t word : words)
            number(word, 4);
        file.resize(PixelOffset());
        for (size_t i = 0; i < PixelSize(); ++i)
            file.push_back(static_cast<uint8_t>(i + 1));
        return file;
    }
    std::string Text() const
    {
        const std::vector<uint8_t> bytes = Bytes();
        return std::string(bytes.begin(), bytes.end());
    }
};

// A palette of greys.
inline std::vector<uint32_t> Greys(size_t count)
{
    std::vector<uint32_t> colors;
    for (size_t i = 0; i < count; ++i)
        colors.push_back(static_cast<uint32_t>(i * 0xFF / (count - 1) * 0x010101));
    return colors;
}

// A whole file of that depth, with its palette.
inline BitmapSample SampleOfDepth(uint16_t bitCount)
{
    BitmapSample sample;
    sample.bitCount = bitCount;
    if (bitCount <= 8)
        sample.words = Greys(size_t{1} << bitCount);
    return sample;
}

// 5-6-5 or 8-8-8 masks behind the header.
inline BitmapSample SampleWithMasks(uint16_t bitCount)
{
    BitmapSample sample;
    sample.bitCount = bitCount;
    sample.compression = 3;
    if (bitCount == 16)
        sample.words = {0xF800, 0x07E0, 0x001F};
    else
        sample.words = {0xFF0000, 0x00FF00, 0x0000FF};
    return sample;
}

// Puts a little-endian number into a file.
inline void Patch(std::vector<uint8_t>& file, size_t offset, uint64_t value, size_t count = 4)
{
    for (size_t i = 0; i < count; ++i)
        file.at(offset + i) = static_cast<uint8_t>(value >> (8 * i));
}
