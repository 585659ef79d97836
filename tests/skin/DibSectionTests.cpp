// Bitmap files made into DIB sections, sound ones and such as lie.
#include "skin/DibSection.h"

#include "platform/Handles.h"
#include "tests/skin/BitmapSample.h"
#include "tests/skin/StorageFixture.h"
#include "tests/support/ImportPatch.h"

#include <gtest/gtest.h>

extern "C" void* __imp_CreateDIBSection;
extern "C" void* __imp_GetObjectW;
extern "C" void* __imp_LocalAlloc;

namespace
{

constexpr uint16_t kDepths[] = {1, 4, 8, 16, 24, 32};

// A DIB section made of a file that ends where memory ends.
class CMadeDib
{
public:
    explicit CMadeDib(const zip::Bytes& file)
    {
        const CGuardedBytes guarded(file);
        bits = this;
        bitmap.reset(skin::CreateDibFromFile(guarded.get(), file.size(), bits));
    }
    explicit CMadeDib(const BitmapSample& sample) : CMadeDib(sample.Bytes()) {}

    explicit operator bool() const { return static_cast<bool>(bitmap); }
    DIBSECTION Section() const
    {
        DIBSECTION section = {};
        GetObjectW(bitmap.get(), sizeof(section), &section);
        return section;
    }
    zip::Bytes Pixels(size_t count) const
    {
        const auto* const first = static_cast<const uint8_t*>(bits);
        return zip::Bytes(first, first + count);
    }
    COLORREF ColorAt(int x, int y) const
    {
        const UniqueMemoryDc dc(CreateCompatibleDC(nullptr));
        const CSelectObject selected(dc.get(), bitmap.get());
        return GetPixel(dc.get(), x, y);
    }

    UniqueBitmap bitmap;
    void* bits;
};

zip::Bytes PixelsOf(const BitmapSample& sample)
{
    const zip::Bytes file = sample.Bytes();
    return zip::Bytes(file.begin() + static_cast<ptrdiff_t>(sample.PixelOffset()), file.end());
}

void ExpectMade(const BitmapSample& sample)
{
    const CMadeDib dib(sample);
    ASSERT_TRUE(dib);
    const DIBSECTION section = dib.Section();
    EXPECT_EQ(dib.bits, section.dsBm.bmBits);
    EXPECT_EQ(sample.width, section.dsBm.bmWidth);
    EXPECT_EQ(static_cast<LONG>(sample.Rows()), section.dsBm.bmHeight);
    EXPECT_EQ(sample.bitCount, section.dsBm.bmBitsPixel);
    EXPECT_EQ(PixelsOf(sample), dib.Pixels(sample.PixelSize()));
}

void ExpectRefused(const zip::Bytes& file)
{
    const CMadeDib dib(file);
    EXPECT_FALSE(dib);
    EXPECT_EQ(nullptr, dib.bits);
}

TEST(DibSection, EveryDepthIsMade)
{
    for (const uint16_t depth : kDepths)
    {
        SCOPED_TRACE(depth);
        BitmapSample sample = SampleOfDepth(depth);
        sample.width = 30;
        sample.height = 5;
        ExpectMade(sample);
    }
}

TEST(DibSection, MasksAreTakenOver)
{
    ExpectMade(SampleWithMasks(32));
    BitmapSample sample = SampleWithMasks(16);
    ExpectMade(sample);
    const CMadeDib dib(sample);
    EXPECT_EQ(0x07E0u, dib.Section().dsBitfields[1]);
}

TEST(DibSection, ThePaletteIsTakenOver)
{
    BitmapSample sample = SampleOfDepth(1);
    sample.words = {0x112233, 0xAABBCC};
    sample.width = 8;
    sample.height = 1;
    const CMadeDib dib(sample);
    ASSERT_TRUE(dib);
    // The one pixel byte is 1: only the last pixel has the second colour.
    EXPECT_EQ(RGB(0x11, 0x22, 0x33), dib.ColorAt(0, 0));
    EXPECT_EQ(RGB(0xAA, 0xBB, 0xCC), dib.ColorAt(7, 0));
}

TEST(DibSection, TheLastRowOfTheFileIsTheTopOne)
{
    BitmapSample sample;
    sample.width = 1;
    const CMadeDib dib(sample);
    EXPECT_EQ(RGB(3, 2, 1), dib.ColorAt(0, 1));
    EXPECT_EQ(RGB(7, 6, 5), dib.ColorAt(0, 0));
}

TEST(DibSection, RowsMayBeginAtTheTop)
{
    BitmapSample sample;
    sample.width = 1;
    sample.height = -2;
    ExpectMade(sample);
    const CMadeDib dib(sample);
    EXPECT_EQ(RGB(3, 2, 1), dib.ColorAt(0, 0));
    EXPECT_EQ(RGB(7, 6, 5), dib.ColorAt(0, 1));
}

TEST(DibSection, LongerHeadersAndGapsAreUnderstood)
{
    BitmapSample sample;
    sample.gap = 6;
    ExpectMade(sample);
    sample.headerSize = 124;
    ExpectMade(sample);
}

TEST(DibSection, TheSignatureIsNotLookedAt)
{
    zip::Bytes file = BitmapSample().Bytes();
    Patch(file, 0, 0, 2);
    EXPECT_TRUE(CMadeDib(file));
}

// One field of a sound file with a value that can't be true.
struct Lie
{
    size_t field;
    uint32_t value;
    size_t bytes = 4;
};

// The fields' places in the file.
constexpr size_t kPixelOffset = 10;
constexpr size_t kHeaderSize = 14;
constexpr size_t kWidth = 18;
constexpr size_t kHeight = 22;
constexpr size_t kPlanes = 26;
constexpr size_t kBitCount = 28;
constexpr size_t kCompression = 30;
constexpr size_t kColoursUsed = 46;

void ExpectLiesRefused(const BitmapSample& sample, const std::vector<Lie>& lies)
{
    for (const Lie& lie : lies)
    {
        SCOPED_TRACE(testing::Message() << lie.field << " = " << lie.value);
        zip::Bytes file = sample.Bytes();
        Patch(file, lie.field, lie.value, lie.bytes);
        ExpectRefused(file);
    }
}

TEST(DibSection, AFileShorterThanItsHeadersIsRefused)
{
    zip::Bytes file = BitmapSample().Bytes();
    for (const size_t size : {53u, 40u, 18u, 14u, 13u, 1u, 0u})
    {
        file.resize(size);
        ExpectRefused(file);
    }
}

TEST(DibSection, PixelsThatBeginInsideTheHeadersOrBehindTheFileAreRefused)
{
    ExpectLiesRefused(BitmapSample(), {{kPixelOffset, 0},
                                       {kPixelOffset, 13},
                                       {kPixelOffset, 53},
                                       {kPixelOffset, 10000},
                                       {kPixelOffset, 0x80000000},
                                       {kPixelOffset, 0xFFFFFFFF}});
}

TEST(DibSection, AHeaderThatIsTooSmallOrDoesNotFitIsRefused)
{
    ExpectLiesRefused(BitmapSample(), {{kHeaderSize, 0},
                                       {kHeaderSize, 12},
                                       {kHeaderSize, 39},
                                       {kHeaderSize, 124},
                                       {kHeaderSize, 0xFFFFFFFF}});
}

TEST(DibSection, APaletteOrMasksThatAreNotThereAreRefused)
{
    // A sound file without colours of its own claims depths that need some.
    ExpectLiesRefused(BitmapSample(), {{kBitCount, 1, 2},
                                       {kBitCount, 4, 2},
                                       {kBitCount, 8, 2},
                                       {kColoursUsed, 1},
                                       {kColoursUsed, 0xFFFFFFFF}});
    BitmapSample masked = SampleOfDepth(32);
    ExpectLiesRefused(masked, {{kCompression, BI_BITFIELDS}});
}

TEST(DibSection, AHeightOfZeroAndTheLowestOneAreRefused)
{
    ExpectLiesRefused(BitmapSample(), {{kHeight, 0}, {kHeight, 0x80000000}, {kHeight, 0x7FFFFFFF}});
}

TEST(DibSection, AWidthBelowOneAndOneThatOverflowsAreRefused)
{
    ExpectLiesRefused(BitmapSample(), {{kWidth, 0},
                                       {kWidth, ~0u},
                                       {kWidth, 0x80000000},
                                       {kWidth, 0x7FFFFFFF},
                                       {kWidth, 0x55555556}});
}

TEST(DibSection, CompressionsDepthsAndPlanesThatNobodyKnowsAreRefused)
{
    ExpectLiesRefused(BitmapSample(), {{kCompression, BI_RLE8},
                                       {kCompression, BI_RLE4},
                                       {kCompression, BI_JPEG},
                                       {kCompression, BI_PNG},
                                       {kBitCount, 0, 2},
                                       {kBitCount, 7, 2},
                                       {kBitCount, 64, 2},
                                       {kPlanes, 0, 2}});
}

TEST(DibSection, NothingIsMadeForPixelsThatAreNotThere)
{
    zip::Bytes file = BitmapSample().Bytes();
    file.resize(54);
    Patch(file, 18, 30000);
    Patch(file, 22, 30000);
    Patch(file, 28, 32, 2);
    ExpectRefused(file);
}

TEST(DibSection, EveryTruncationIsRefused)
{
    for (const uint16_t depth : kDepths)
    {
        zip::Bytes file = SampleOfDepth(depth).Bytes();
        while (!file.empty())
        {
            file.pop_back();
            ExpectRefused(file);
        }
    }
}

TEST(DibSection, EveryChangedByteIsHarmless)
{
    std::vector<BitmapSample> samples = {SampleWithMasks(16), SampleWithMasks(32)};
    for (const uint16_t depth : kDepths)
        samples.push_back(SampleOfDepth(depth));
    for (const BitmapSample& sample : samples)
    {
        const zip::Bytes file = sample.Bytes();
        for (size_t i = 0; i < 100 && i < file.size(); ++i)
            for (const int value : {0x00, 0xFF, 0x7F, 0x80})
            {
                zip::Bytes changed = file;
                changed[i] = static_cast<uint8_t>(value);
                const CMadeDib dib(changed);
                EXPECT_EQ(static_cast<bool>(dib), dib.bits != nullptr);
                EXPECT_TRUE(!dib || GetObjectType(dib.bitmap.get()) == OBJ_BITMAP);
            }
    }
}

HBITMAP WINAPI NoBitmap(HDC, const BITMAPINFO*, UINT, void** bits, HANDLE, DWORD)
{
    *bits = nullptr;
    return nullptr;
}

// As systems have been seen to answer headers that they fail to read.
HBITMAP WINAPI FaultAsHandle(HDC, const BITMAPINFO*, UINT, void** bits, HANDLE, DWORD)
{
    *bits = nullptr;
    return reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(0xC0000005));
}

uint8_t g_strangePixels[64];

HBITMAP WINAPI NoHandleButPixels(HDC, const BITMAPINFO*, UINT, void** bits, HANDLE, DWORD)
{
    *bits = g_strangePixels;
    return reinterpret_cast<HBITMAP>(static_cast<INT_PTR>(0xC0000005));
}

TEST(DibSection, AnswersThatAreNoBitmapAreRefused)
{
    for (const auto answer : {NoBitmap, FaultAsHandle, NoHandleButPixels})
    {
        const CImportPatch creation(&__imp_CreateDIBSection, answer);
        ExpectRefused(BitmapSample().Bytes());
    }
    EXPECT_EQ(0, g_strangePixels[0]);
}

// Says that the bitmap is one row high.
int WINAPI OneRow(HANDLE object, int size, void* shape)
{
    const int result = reinterpret_cast<decltype(&GetObjectW)>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"gdi32.dll"), "GetObjectW")))(object, size, shape);
    static_cast<BITMAP*>(shape)->bmHeight = 1;
    return result;
}

TEST(DibSection, NoMoreIsCopiedThanTheBitmapHolds)
{
    const BitmapSample sample;
    const CImportPatch shape(&__imp_GetObjectW, OneRow);
    const CMadeDib dib(sample);
    ASSERT_TRUE(dib);
    zip::Bytes expected = PixelsOf(sample);
    std::fill(expected.begin() + static_cast<ptrdiff_t>(sample.Stride()), expected.end(),
              uint8_t{0});
    EXPECT_EQ(expected, dib.Pixels(sample.PixelSize()));
}

HLOCAL WINAPI NoMemory(UINT /*flags*/, SIZE_T /*size*/)
{
    return nullptr;
}

bool g_isAsked;

HBITMAP WINAPI RecordQuestion(HDC, const BITMAPINFO*, UINT, void** bits, HANDLE, DWORD)
{
    g_isAsked = true;
    *bits = nullptr;
    return nullptr;
}

TEST(DibSection, WithoutMemoryForTheHeaderTheSystemIsNotAsked)
{
    g_isAsked = false;
    const CImportPatch memory(&__imp_LocalAlloc, NoMemory);
    const CImportPatch creation(&__imp_CreateDIBSection, RecordQuestion);
    ExpectRefused(BitmapSample().Bytes());
    EXPECT_FALSE(g_isAsked);
}

TEST(DibSection, NothingIsLeftBehind)
{
    const auto use = []
    {
        EXPECT_TRUE(CMadeDib(SampleOfDepth(8)));
        zip::Bytes file = BitmapSample().Bytes();
        file.pop_back();
        ExpectRefused(file);
        const CImportPatch creation(&__imp_CreateDIBSection, NoBitmap);
        ExpectRefused(BitmapSample().Bytes());
    };
    use();
    const ResourceCounts before = SteadyCounts();
    for (int i = 0; i < 100; ++i)
        use();
    EXPECT_EQ(before, CountResources());
}

} // namespace
