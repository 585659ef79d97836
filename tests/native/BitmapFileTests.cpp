// What is taken for a bitmap file, and where its parts are said to be.
#include "skin/BitmapFile.h"

#include "tests/skin/BitmapSample.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{

using Bytes = std::vector<uint8_t>;

constexpr uint16_t kDepths[] = {1, 4, 8, 16, 24, 32};
constexpr uint8_t kBytes[] = {0x00, 0xFF, 0x7F, 0x80};
constexpr size_t kPixelOffsetField = 10;
constexpr size_t kHeaderSizeField = 14;
constexpr size_t kWidthField = 18;
constexpr size_t kHeightField = 22;
constexpr size_t kBitCountField = 28;
constexpr size_t kCompressionField = 30;
constexpr size_t kColorsUsedField = 46;

// The file in memory of exactly its size, so that reading on is noticed.
bool Read(const Bytes& bytes, skin::BitmapFile& file)
{
    const Bytes exact(bytes.begin(), bytes.end());
    return skin::ReadBitmapFile(exact.data(), exact.size(), file);
}

bool IsUsable(const Bytes& bytes)
{
    skin::BitmapFile file = {};
    return Read(bytes, file);
}

// The sample with one field changed.
Bytes With(const BitmapSample& sample, size_t field, uint64_t value, size_t count = 4)
{
    Bytes bytes = sample.Bytes();
    Patch(bytes, field, value, count);
    return bytes;
}

Bytes Cut(Bytes bytes, size_t count)
{
    bytes.resize(bytes.size() - count);
    return bytes;
}

void ExpectParts(const BitmapSample& sample)
{
    skin::BitmapFile file = {};
    ASSERT_TRUE(Read(sample.Bytes(), file));
    EXPECT_EQ(14u, file.InfoOffset);
    EXPECT_EQ(sample.PixelOffset() - 14, file.InfoSize);
    EXPECT_EQ(sample.PixelOffset(), file.PixelOffset);
    EXPECT_EQ(sample.PixelSize(), file.PixelSize);
}

TEST(BitmapFile, EveryDepthIsUnderstood)
{
    for (const uint16_t depth : kDepths)
    {
        SCOPED_TRACE(depth);
        ExpectParts(SampleOfDepth(depth));
    }
}

TEST(BitmapFile, MasksBehindTheHeaderAreUnderstood)
{
    ExpectParts(SampleWithMasks(16));
    ExpectParts(SampleWithMasks(32));
}

TEST(BitmapFile, RowsArePaddedToFourBytes)
{
    const struct
    {
        uint16_t bitCount;
        size_t stride;
    } rows[] = {{1, 4}, {4, 16}, {8, 32}, {16, 60}, {24, 92}, {32, 120}};
    for (const auto& row : rows)
    {
        BitmapSample sample = SampleOfDepth(row.bitCount);
        sample.width = 30;
        sample.height = 7;
        skin::BitmapFile file = {};
        ASSERT_TRUE(Read(sample.Bytes(), file));
        EXPECT_EQ(row.stride * 7, file.PixelSize) << row.bitCount;
    }
}

TEST(BitmapFile, BytesBehindTheHeaderAndThePixelsDontMatter)
{
    BitmapSample sample;
    sample.gap = 10;
    ExpectParts(sample);
    Bytes longer = sample.Bytes();
    longer.resize(longer.size() + 100);
    EXPECT_TRUE(IsUsable(longer));
}

TEST(BitmapFile, TheSignatureAndTheFileSizeAreNotLookedAt)
{
    EXPECT_TRUE(IsUsable(With(BitmapSample(), 0, 0, 2)));
    EXPECT_TRUE(IsUsable(With(BitmapSample(), 2, 0xFFFFFFFF)));
}

TEST(BitmapFile, AFileShorterThanItsHeadersIsRefused)
{
    for (size_t size = 0; size < 54; ++size)
    {
        Bytes bytes = BitmapSample().Bytes();
        bytes.resize(size);
        EXPECT_FALSE(IsUsable(bytes)) << size;
    }
}

TEST(BitmapFile, PixelsInsideTheHeadersAreRefused)
{
    for (uint32_t offset = 0; offset < 54; ++offset)
        EXPECT_FALSE(IsUsable(With(BitmapSample(), kPixelOffsetField, offset))) << offset;
}

TEST(BitmapFile, PixelsBehindTheFileAreRefused)
{
    const size_t size = BitmapSample().Bytes().size();
    for (const uint64_t offset : {uint64_t{size}, uint64_t{size} + 1, uint64_t{0x7FFFFFFF},
                                  uint64_t{0x80000000}, uint64_t{0xFFFFFFFF}})
        EXPECT_FALSE(IsUsable(With(BitmapSample(), kPixelOffsetField, offset))) << offset;
}

TEST(BitmapFile, AHeaderOfAnotherKindIsRefused)
{
    for (const uint32_t headerSize : {0u, 12u, 39u, 0x80000000u, 0xFFFFFFFFu})
        EXPECT_FALSE(IsUsable(With(BitmapSample(), kHeaderSizeField, headerSize))) << headerSize;
}

TEST(BitmapFile, ALongerHeaderIsUnderstoodWhenItIsThere)
{
    BitmapSample sample;
    sample.headerSize = 124;
    ExpectParts(sample);
    EXPECT_FALSE(IsUsable(With(sample, kPixelOffsetField, 14 + 123)));
    EXPECT_FALSE(IsUsable(With(BitmapSample(), kHeaderSizeField, 124)));
}

TEST(BitmapFile, ALongerHeaderHoldsTheMasks)
{
    BitmapSample sample;
    sample.headerSize = 108;
    sample.bitCount = 16;
    sample.compression = 3;
    ExpectParts(sample);
}

TEST(BitmapFile, AMissingPaletteIsRefused)
{
    for (const uint16_t depth : {uint16_t{1}, uint16_t{4}, uint16_t{8}})
    {
        BitmapSample sample = SampleOfDepth(depth);
        sample.words.pop_back();
        EXPECT_FALSE(IsUsable(sample.Bytes())) << depth;
        sample.gap = 3;
        EXPECT_FALSE(IsUsable(sample.Bytes())) << depth;
        sample.gap = 4;
        EXPECT_TRUE(IsUsable(sample.Bytes())) << depth;
    }
}

TEST(BitmapFile, MissingMasksAreRefused)
{
    BitmapSample sample = SampleWithMasks(16);
    sample.words.pop_back();
    EXPECT_FALSE(IsUsable(sample.Bytes()));
    sample.gap = 3;
    EXPECT_FALSE(IsUsable(sample.Bytes()));
}

TEST(BitmapFile, AShorterPaletteNeedsItsColorsOnly)
{
    BitmapSample sample = SampleOfDepth(8);
    sample.words = Greys(5);
    sample.colorsUsed = 5;
    ExpectParts(sample);
    sample.colorsUsed = 6;
    EXPECT_FALSE(IsUsable(sample.Bytes()));
}

TEST(BitmapFile, MoreColorsThanThereAreIsRefused)
{
    for (const uint16_t depth : kDepths)
        for (const uint32_t colors : {257u, 0x40000000u, 0x40000001u, 0xFFFFFFFFu})
            EXPECT_FALSE(IsUsable(With(SampleOfDepth(depth), kColorsUsedField, colors)))
                << depth << " " << colors;
}

TEST(BitmapFile, MasksAndColorsMustBothBeThere)
{
    BitmapSample sample = SampleWithMasks(16);
    sample.colorsUsed = 1;
    EXPECT_FALSE(IsUsable(sample.Bytes()));
    sample.words.push_back(0);
    EXPECT_TRUE(IsUsable(sample.Bytes()));
}

TEST(BitmapFile, RowsMayBeginAtTheTop)
{
    BitmapSample sample;
    sample.height = -2;
    ExpectParts(sample);
    EXPECT_EQ(24u, sample.PixelSize());
}

TEST(BitmapFile, NoHeightAndTheLowestAreRefused)
{
    EXPECT_FALSE(IsUsable(With(BitmapSample(), kHeightField, 0)));
    EXPECT_FALSE(IsUsable(With(BitmapSample(), kHeightField, static_cast<uint32_t>(INT_MIN))));
    EXPECT_FALSE(IsUsable(With(BitmapSample(), kHeightField, static_cast<uint32_t>(INT_MIN + 1))));
}

TEST(BitmapFile, NoWidthAndANegativeOneAreRefused)
{
    for (const int32_t width : {0, -1, -3, INT_MIN, INT_MIN + 1})
        EXPECT_FALSE(IsUsable(With(BitmapSample(), kWidthField, static_cast<uint32_t>(width))))
            << width;
}

TEST(BitmapFile, SizesThatWrapAroundAreRefused)
{
    const uint32_t sizes[] = {0x08000000, 0x10000000, 0x20000000, 0x40000000, INT_MAX};
    for (const uint16_t depth : kDepths)
        for (const uint32_t width : sizes)
            for (const uint32_t height : sizes)
            {
                Bytes bytes = With(SampleOfDepth(depth), kWidthField, width);
                Patch(bytes, kHeightField, height);
                EXPECT_FALSE(IsUsable(bytes)) << depth << " " << width << " " << height;
            }
}

TEST(BitmapFile, OtherDepthsAreRefused)
{
    for (const uint32_t depth : {0u, 2u, 7u, 15u, 48u, 64u, 0xFFFFu})
        EXPECT_FALSE(IsUsable(With(BitmapSample(), kBitCountField, depth, 2))) << depth;
}

TEST(BitmapFile, CompressedPixelsAreRefused)
{
    for (const uint32_t compression : {1u, 2u, 4u, 5u, 6u, 0xFFFFFFFFu})
        for (const uint16_t depth : kDepths)
            EXPECT_FALSE(IsUsable(With(SampleOfDepth(depth), kCompressionField, compression)))
                << compression << " " << depth;
    // Masks make sense for two depths only.
    for (const uint16_t depth : {uint16_t{1}, uint16_t{4}, uint16_t{8}, uint16_t{24}})
    {
        BitmapSample sample = SampleOfDepth(depth);
        sample.compression = 3;
        sample.gap = 12;
        EXPECT_FALSE(IsUsable(sample.Bytes())) << depth;
    }
}

TEST(BitmapFile, AnythingButOnePlaneIsRefused)
{
    for (const uint16_t planes : {uint16_t{0}, uint16_t{2}, uint16_t{0xFFFF}})
    {
        BitmapSample sample;
        sample.planes = planes;
        EXPECT_FALSE(IsUsable(sample.Bytes())) << planes;
    }
}

TEST(BitmapFile, MissingPixelsAreRefused)
{
    EXPECT_FALSE(IsUsable(Cut(BitmapSample().Bytes(), 1)));
    BitmapSample huge;
    huge.bitCount = 32;
    Bytes bytes = huge.Bytes();
    bytes.resize(54);
    Patch(bytes, kWidthField, 30000);
    Patch(bytes, kHeightField, 30000);
    EXPECT_FALSE(IsUsable(bytes));
}

TEST(BitmapFile, ARefusedFileLeavesTheAnswerAlone)
{
    skin::BitmapFile file = {1, 2, 3, 4};
    EXPECT_FALSE(Read(Cut(BitmapSample().Bytes(), 1), file));
    EXPECT_EQ(1u, file.InfoOffset);
    EXPECT_EQ(4u, file.PixelSize);
}

// All parts lie within a file that is taken for usable.
void CheckPartsLieInside(const Bytes& bytes)
{
    skin::BitmapFile file = {};
    if (!Read(bytes, file))
        return;
    ASSERT_EQ(14u, file.InfoOffset);
    ASSERT_GE(file.InfoSize, 40u);
    ASSERT_EQ(file.InfoOffset + file.InfoSize, file.PixelOffset);
    ASSERT_LE(file.PixelOffset, bytes.size());
    ASSERT_GT(file.PixelSize, 0u);
    ASSERT_LE(file.PixelSize, bytes.size() - file.PixelOffset);
}

std::vector<BitmapSample> AllSamples()
{
    std::vector<BitmapSample> samples = {SampleWithMasks(16), SampleWithMasks(32)};
    for (const uint16_t depth : kDepths)
        samples.push_back(SampleOfDepth(depth));
    return samples;
}

TEST(BitmapFileMutation, EveryTruncationIsHarmless)
{
    for (const BitmapSample& sample : AllSamples())
    {
        Bytes bytes = sample.Bytes();
        while (!bytes.empty())
        {
            bytes.pop_back();
            EXPECT_FALSE(IsUsable(bytes)) << sample.bitCount << " " << bytes.size();
        }
    }
}

TEST(BitmapFileMutation, EveryChangedByteIsHarmless)
{
    for (const BitmapSample& sample : AllSamples())
    {
        const Bytes bytes = sample.Bytes();
        for (size_t i = 0; i < bytes.size(); ++i)
            for (const uint8_t value : kBytes)
            {
                Bytes changed = bytes;
                changed[i] = value;
                CheckPartsLieInside(changed);
            }
    }
}

} // namespace
