// The two request records, byte by byte.
#include "device/ImageRequest.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/Bytes.h"

using namespace requests;

namespace
{

std::vector<uint8_t> IconRecord()
{
    std::vector<uint8_t> record(548);
    record[0] = 2;
    bytes::PutU32LE(&record[524], 107);
    bytes::PutU32LE(&record[528], 0xFFFF1234);
    bytes::PutU32LE(&record[532], 1);
    bytes::PutU32LE(&record[536], 2);
    bytes::PutU32LE(&record[540], 33);
    bytes::PutU32LE(&record[544], 34);
    return record;
}

void PutPath(std::vector<uint8_t>& record, const std::wstring& path)
{
    for (size_t i = 0; i < path.size(); ++i)
        bytes::PutU16LE(&record[4 + i * 2], path[i]);
}

bool IsRead(const std::vector<uint8_t>& record)
{
    ImageRequest request;
    return ReadImageRequest(record.data(), record.size(), request);
}

} // namespace

TEST(ImageRequest, EveryFieldComesFromItsOwnPlace)
{
    std::vector<uint8_t> record = IconRecord();
    PutPath(record, L"\\a.exe");
    ImageRequest request;
    ASSERT_TRUE(ReadImageRequest(record.data(), record.size(), request));
    EXPECT_EQ(ImageKind::IconNumber, request.Kind);
    EXPECT_EQ(L"\\a.exe", request.Path);
    EXPECT_EQ(107, request.Number);
    EXPECT_EQ(0xFFFF1234u, request.Dc);
    EXPECT_EQ(1, request.Left);
    EXPECT_EQ(2, request.Top);
    EXPECT_EQ(33, request.Right);
    EXPECT_EQ(34, request.Bottom);
}

TEST(ImageRequest, AnyOtherSizeIsRefused)
{
    std::vector<uint8_t> record = IconRecord();
    ImageRequest request;
    EXPECT_FALSE(ReadImageRequest(nullptr, 548, request));
    for (const size_t size : {size_t{0}, size_t{4}, size_t{547}, size_t{549}})
    {
        record.resize(size);
        EXPECT_FALSE(IsRead(record)) << size;
    }
}

TEST(ImageRequest, OnlyTheTwoKindsAreKnown)
{
    for (const uint32_t kind : {1u, 3u, 0x100u, 0x80000000u, 0xFFFFFFFFu})
    {
        std::vector<uint8_t> record = IconRecord();
        bytes::PutU32LE(&record[0], kind);
        EXPECT_FALSE(IsRead(record)) << kind;
    }
}

TEST(ImageRequest, APathThatFillsItsFieldWithoutAnEndIsRefused)
{
    std::vector<uint8_t> record = IconRecord();
    PutPath(record, std::wstring(260, L'a'));
    EXPECT_FALSE(IsRead(record));
    PutPath(record, std::wstring(259, L'a') + L'\0');
    EXPECT_TRUE(IsRead(record));
}

TEST(ImageRequest, NegativeEmptyAndGiganticAreasAreRefused)
{
    const auto withArea = [](int left, int top, int right, int bottom)
    {
        std::vector<uint8_t> record = IconRecord();
        bytes::PutU32LE(&record[532], static_cast<uint32_t>(left));
        bytes::PutU32LE(&record[536], static_cast<uint32_t>(top));
        bytes::PutU32LE(&record[540], static_cast<uint32_t>(right));
        bytes::PutU32LE(&record[544], static_cast<uint32_t>(bottom));
        return IsRead(record);
    };
    EXPECT_TRUE(withArea(0, 0, 1, 1));
    EXPECT_TRUE(withArea(-5, -5, 27, 27));
    EXPECT_FALSE(withArea(0, 0, 0, 32));
    EXPECT_FALSE(withArea(0, 0, 32, 0));
    EXPECT_FALSE(withArea(32, 0, 0, 32));
    EXPECT_FALSE(withArea(0, 32, 32, 0));
    EXPECT_FALSE(withArea(INT32_MIN, 0, INT32_MAX, 32));
    EXPECT_FALSE(withArea(0, INT32_MIN, 32, INT32_MAX));
    EXPECT_FALSE(withArea(0, 0, 4097, 32));
}

TEST(ShownRequest, ThePathFollowsTheFirstWord)
{
    std::vector<uint8_t> record(524);
    PutPath(record, L"\\a.lnk");
    String16 path;
    ASSERT_TRUE(ReadShownRequest(record.data(), record.size(), path));
    EXPECT_EQ(L"\\a.lnk", path);
}

TEST(ShownRequest, WrongSizesEmptyAndEndlessPathsAreRefused)
{
    std::vector<uint8_t> record(524);
    String16 path = L"untouched";
    EXPECT_FALSE(ReadShownRequest(record.data(), record.size(), path));
    PutPath(record, std::wstring(260, L'a'));
    EXPECT_FALSE(ReadShownRequest(record.data(), record.size(), path));
    EXPECT_FALSE(ReadShownRequest(record.data(), 523, path));
    EXPECT_FALSE(ReadShownRequest(record.data(), 525, path));
    EXPECT_FALSE(ReadShownRequest(nullptr, 524, path));
    EXPECT_EQ(L"untouched", path);
}
