// Requests to the launcher-menu process, byte for byte, and what its answers mean.
#include "ui/ImageRequest.h"

#include "frame/MenuProcess.h"
#include "tests/support/ImageProcess.h"
#include "ui/BitmapBuffer.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

constexpr RECT kRect = {1, 2, 33, -4};

class ImageRequest : public testing::Test
{
protected:
    ImageRequest() { EXPECT_TRUE(m_buffer.Create(32, 32, 3)); }

    HDC Dc() { return m_buffer.GetMemoryDC(); }

    // A record of zeroes but for the context and the rectangle above.
    std::vector<uint8_t> EmptyRecord(uint8_t kind)
    {
        std::vector<uint8_t> record(548);
        record[0] = kind;
        const auto dc = reinterpret_cast<uintptr_t>(Dc());
        for (size_t i = 0; i < 4; ++i)
            record[528 + i] = static_cast<uint8_t>(dc >> (8 * i));
        record[532] = 1;
        record[536] = 2;
        record[540] = 33;
        record[544] = 0xFC;
        record[545] = record[546] = record[547] = 0xFF;
        return record;
    }

    static LRESULT DrawsAll(const ImageProcessRequest&) { return 1; }

private:
    CBitmapBuffer m_buffer;
};

} // namespace

TEST_F(ImageRequest, AnIconNumberIsSentByteForByte)
{
    CImageProcess process(DrawsAll);
    RefreshMenuProcess();
    EXPECT_TRUE(DrawIconNumber(0x12345678, Dc(), kRect));
    const auto requests = process.Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(6000u, requests[0].code);
    EXPECT_EQ(0u, requests[0].wParam);
    std::vector<uint8_t> expected = EmptyRecord(2);
    expected[524] = 0x78;
    expected[525] = 0x56;
    expected[526] = 0x34;
    expected[527] = 0x12;
    EXPECT_EQ(expected, requests[0].bytes);
}

TEST_F(ImageRequest, ANegativeNumberKeepsItsSign)
{
    CImageProcess process(DrawsAll);
    RefreshMenuProcess();
    DrawIconNumber(-2, Dc(), kRect);
    EXPECT_EQ(0xFFFFFFFEu, process.Requests().at(0).Field(524));
}

TEST_F(ImageRequest, AFileIsSentByteForByte)
{
    CImageProcess process(DrawsAll);
    RefreshMenuProcess();
    EXPECT_TRUE(DrawFileImage(L"\\Ä.exe", Dc(), kRect));
    const auto requests = process.Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(6000u, requests[0].code);
    EXPECT_EQ(0u, requests[0].wParam);
    std::vector<uint8_t> expected = EmptyRecord(0);
    const uint8_t path[] = {'\\', 0, 0xC4, 0, '.', 0, 'e', 0, 'x', 0, 'e', 0};
    std::copy(std::begin(path), std::end(path), expected.begin() + 4);
    EXPECT_EQ(expected, requests[0].bytes);
}

TEST_F(ImageRequest, APathOf259CharactersIsSentWhole)
{
    CImageProcess process(DrawsAll);
    RefreshMenuProcess();
    const std::wstring path(259, L'p');
    EXPECT_TRUE(DrawFileImage(path, Dc(), kRect));
    const auto requests = process.Requests();
    ASSERT_EQ(1u, requests.size());
    EXPECT_EQ(path, requests[0].TextAt(4));
    EXPECT_EQ(0u, requests[0].Field(524));
}

TEST_F(ImageRequest, APathOf260CharactersOrMoreIsNotSent)
{
    CImageProcess process(DrawsAll);
    RefreshMenuProcess();
    for (const size_t length : {260u, 261u, 1000u})
        EXPECT_FALSE(DrawFileImage(std::wstring(length, L'p'), Dc(), kRect)) << length;
    EXPECT_TRUE(process.Requests().empty());
}

TEST_F(ImageRequest, WithoutTheProcessNothingIsDrawn)
{
    RefreshMenuProcess();
    EXPECT_FALSE(DrawIconNumber(100, Dc(), kRect));
    EXPECT_FALSE(DrawFileImage(L"\\a.exe", Dc(), kRect));
}

TEST_F(ImageRequest, ZeroMeansThatItCouldNotDraw)
{
    CImageProcess process;
    RefreshMenuProcess();
    EXPECT_FALSE(DrawIconNumber(100, Dc(), kRect));
    EXPECT_FALSE(DrawFileImage(L"\\a.exe", Dc(), kRect));
    EXPECT_EQ(2u, process.Requests().size());
}

TEST_F(ImageRequest, EveryOtherAnswerMeansThatItHasDrawn)
{
    LRESULT answer = 0;
    CImageProcess process([&](const ImageProcessRequest&) { return answer; });
    RefreshMenuProcess();
    for (const uint64_t each : {UINT64_C(1), UINT64_C(0xFFFFFFFFFFFFFFFF), UINT64_C(0x100000000),
                                UINT64_C(0x8000000000000001), UINT64_C(0x8000000000000000)})
    {
        answer = static_cast<LRESULT>(each);
        EXPECT_TRUE(DrawIconNumber(100, Dc(), kRect)) << std::hex << each;
    }
}

TEST_F(ImageRequest, WhatTheProcessDrawsIsInTheBitmap)
{
    CImageProcess process(
        [](const ImageProcessRequest& request)
        {
            const RECT rect = request.Rect();
            for (int x = rect.left; x < rect.right; ++x)
                SetPixel(request.Dc(), x, rect.top, RGB(0, 255, 0));
            return LRESULT{1};
        });
    RefreshMenuProcess();
    EXPECT_TRUE(DrawIconNumber(100, Dc(), {3, 7, 6, 8}));
    for (int x = 0; x < 10; ++x)
        EXPECT_EQ(x >= 3 && x < 6 ? RGB(0, 255, 0) : RGB(0, 0, 0), GetPixel(Dc(), x, 7)) << x;
}
