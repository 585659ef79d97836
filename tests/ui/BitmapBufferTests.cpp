// Off-screen bitmaps: when they can't be made, their device context, what they own.
#include "tests/support/ImportPatch.h"
#include "tests/ui/RawPixels.h"

#include <limits>

extern "C"
{
    extern void* __imp_CreateDIBSection;
    extern void* __imp_CreateCompatibleDC;
}

namespace
{

constexpr COLORREF kWhite = RGB(255, 255, 255);

} // namespace

TEST(BitmapBuffer, AnyOtherFormatFails)
{
    CBitmapBuffer buffer;
    for (const int format : {-1, 5, 32, std::numeric_limits<int>::max()})
        EXPECT_FALSE(buffer.Create(8, 8, format)) << format;
}

TEST(BitmapBuffer, AWidthOrHeightBelowOneFails)
{
    CBitmapBuffer buffer;
    for (const int size : {0, -1, std::numeric_limits<int>::min()})
    {
        EXPECT_FALSE(buffer.Create(size, 8, 3)) << size;
        EXPECT_FALSE(buffer.Create(8, size, 3)) << size;
    }
}

TEST(BitmapBuffer, ASizeThatNoMemoryHoldsFails)
{
    constexpr int kLargest = std::numeric_limits<int>::max();
    CBitmapBuffer buffer;
    EXPECT_FALSE(buffer.Create(40000, 40000, 3));
    EXPECT_FALSE(buffer.Create(kLargest, 1, 4));
    EXPECT_FALSE(buffer.Create(1, kLargest, 0));
    EXPECT_FALSE(buffer.Create(kLargest, kLargest, 4));
    EXPECT_EQ(nullptr, buffer.Bitmap());
}

TEST(BitmapBuffer, AFailureLeavesTheBufferEmpty)
{
    CBitmapBuffer buffer;
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    const HBITMAP old = buffer.Bitmap();
    const HDC dc = buffer.GetMemoryDC();
    SetLastError(0);
    EXPECT_FALSE(buffer.Create(8, 0, 3));
    EXPECT_NE(0u, GetLastError());
    EXPECT_EQ(nullptr, buffer.Bitmap());
    EXPECT_EQ(nullptr, buffer.Bits());
    EXPECT_EQ(nullptr, buffer.GetMemoryDC());
    EXPECT_EQ(0, buffer.Width());
    EXPECT_EQ(0, buffer.Height());
    EXPECT_EQ(0, buffer.Stride());
    EXPECT_EQ(0u, GetObjectType(old));
    EXPECT_EQ(0u, GetObjectType(dc));
}

namespace
{

HBITMAP WINAPI RefuseBitmap(HDC, const BITMAPINFO*, UINT, void** bits, HANDLE, DWORD)
{
    *bits = nullptr;
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

// What some systems do with a header that they can't read.
HBITMAP WINAPI GiveNoPixels(HDC dc, const BITMAPINFO* info, UINT use, void** bits, HANDLE, DWORD)
{
    (void)dc, (void)info, (void)use;
    *bits = nullptr;
    return CreateBitmap(1, 1, 1, 1, nullptr);
}

HDC WINAPI RefuseDc(HDC)
{
    return nullptr;
}

} // namespace

TEST(BitmapBuffer, FailsAsTheSystemDoes)
{
    const CImportPatch patch(&__imp_CreateDIBSection, RefuseBitmap);
    CBitmapBuffer buffer;
    EXPECT_FALSE(buffer.Create(8, 8, 3));
    EXPECT_EQ(static_cast<DWORD>(ERROR_NOT_ENOUGH_MEMORY), GetLastError());
    EXPECT_EQ(0, buffer.Width());
}

TEST(BitmapBuffer, ABitmapWithoutPixelsIsNotKept)
{
    const CImportPatch patch(&__imp_CreateDIBSection, GiveNoPixels);
    CBitmapBuffer buffer;
    EXPECT_FALSE(buffer.Create(8, 8, 3));
    EXPECT_EQ(nullptr, buffer.Bitmap());
}

TEST(BitmapBuffer, WithoutADeviceContextNothingIsDrawn)
{
    CBitmapBuffer buffer;
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    {
        const CImportPatch patch(&__imp_CreateCompatibleDC, RefuseDc);
        EXPECT_EQ(nullptr, buffer.GetMemoryDC());
        buffer.Fill(0, 0, 8, 8, kWhite, 255);
    }
    EXPECT_EQ(0u, RawPixel(buffer, 0, 0));
    EXPECT_NE(nullptr, buffer.GetMemoryDC());
}

TEST(BitmapBuffer, CreatingAnewReleasesTheOldBitmap)
{
    CBitmapBuffer buffer;
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    buffer.GetMemoryDC();
    const HBITMAP old = buffer.Bitmap();
    ASSERT_TRUE(buffer.Create(9, 7, 4));
    EXPECT_NE(old, buffer.Bitmap());
    EXPECT_EQ(9, SectionOf(buffer).dsBm.bmWidth);
    EXPECT_EQ(buffer.Bitmap(), GetCurrentObject(buffer.GetMemoryDC(), OBJ_BITMAP));
}

TEST(BitmapBuffer, HasOneDeviceContextWithTheBitmapInIt)
{
    CBitmapBuffer buffer;
    EXPECT_EQ(nullptr, buffer.GetMemoryDC());
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    const HDC dc = buffer.GetMemoryDC();
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), GetObjectType(dc));
    EXPECT_EQ(dc, buffer.GetMemoryDC());
    EXPECT_EQ(buffer.Bitmap(), GetCurrentObject(dc, OBJ_BITMAP));
}

TEST(BitmapBuffer, ReleasingTheDeviceContextFreesTheBitmapForAnother)
{
    CBitmapBuffer buffer;
    ASSERT_TRUE(buffer.Create(8, 8, 3));
    buffer.Fill(0, 0, 8, 8, kWhite, 255);
    const HDC dc = buffer.GetMemoryDC();
    buffer.ReleaseMemoryDC();
    EXPECT_EQ(0u, GetObjectType(dc));
    const UniqueMemoryDc other(CreateCompatibleDC(nullptr));
    {
        const CSelectObject selected(other.get(), buffer.Bitmap());
        EXPECT_EQ(kWhite, GetPixel(other.get(), 7, 7));
    }
    buffer.ReleaseMemoryDC();
    EXPECT_EQ(kWhite, GetPixel(buffer.GetMemoryDC(), 0, 0));
}

TEST(BitmapBuffer, FillsWhatLiesWithinIt)
{
    CBitmapBuffer buffer;
    buffer.Fill(0, 0, 8, 8, kWhite, 255);
    ASSERT_TRUE(buffer.Create(4, 4, 4));
    buffer.Fill(-100, -100, 100, 100, RGB(1, 2, 3), 255);
    GdiFlush();
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(0x010203u, RawPixel(buffer, x, y));
}

TEST(BitmapBuffer, TakesTheBitmapAndItsContextWithIt)
{
    HBITMAP bitmap = nullptr;
    HDC dc = nullptr;
    {
        CBitmapBuffer buffer;
        ASSERT_TRUE(buffer.Create(8, 8, 3));
        bitmap = buffer.Bitmap();
        dc = buffer.GetMemoryDC();
    }
    EXPECT_EQ(0u, GetObjectType(bitmap));
    EXPECT_EQ(0u, GetObjectType(dc));
}

TEST(BitmapBuffer, TakesOverASectionWithPixels)
{
    BITMAPINFO info = {};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), 6, -7, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    {
        CBitmapBuffer buffer;
        ASSERT_TRUE(buffer.Create(8, 8, 3));
        EXPECT_TRUE(buffer.Attach(bitmap));
        EXPECT_EQ(bitmap, buffer.Bitmap());
        EXPECT_EQ(bits, buffer.Bits());
        EXPECT_EQ(6, buffer.Width());
        EXPECT_EQ(7, buffer.Height());
        EXPECT_EQ(20, buffer.Stride());
        EXPECT_EQ(24, buffer.BitsPerPixel());
    }
    EXPECT_EQ(0u, GetObjectType(bitmap));
}

TEST(BitmapBuffer, LeavesABitmapWithoutPixelsToItsOwner)
{
    CBitmapBuffer buffer;
    const UniqueBitmap plain(CreateBitmap(4, 4, 1, 1, nullptr));
    EXPECT_FALSE(buffer.Attach(plain.get()));
    EXPECT_FALSE(buffer.Attach(nullptr));
    EXPECT_EQ(nullptr, buffer.Bitmap());
    EXPECT_EQ(0, buffer.Width());
    EXPECT_EQ(static_cast<DWORD>(OBJ_BITMAP), GetObjectType(plain.get()));
}
