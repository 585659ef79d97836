// Registry contents and arguments that no honest program produces.
#include "frame/VORegistry.h"

#include "platform/os/Registry.h"
#include "tests/frame/GuardedText.h"
#include "tests/support/ImportPatch.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

extern "C" void* __imp_RegQueryValueExW;
extern "C" void* __imp_calloc;

namespace
{

constexpr wchar_t kPath[] = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar";

// No handle of this process.
const HKEY kNoSuchKey = reinterpret_cast<HKEY>(INT_PTR{0x7FFFFFF0});

class VORegistryHostile : public testing::Test
{
protected:
    void SetBytes(const wchar_t* name, DWORD type, const std::string& bytes)
    {
        hive.SetRaw(kPath, name, type, bytes.data(), static_cast<DWORD>(bytes.size()));
    }

    CRegistrySandbox hive;
    CVORegistry key{HKEY_LOCAL_MACHINE, kPath, TRUE, FALSE, 0};
};

// Characters of two bytes each, without a terminating zero.
std::string Units(size_t count)
{
    std::string bytes;
    for (size_t i = 0; i < count; ++i)
        bytes += std::string("x\0", 2);
    return bytes;
}

using QueryFunction = LONG(WINAPI*)(HKEY, const wchar_t*, DWORD*, DWORD*, BYTE*, DWORD*);
QueryFunction g_realQuery;
int g_queries;

// Calls the real function through the pointer that the patch has saved.
class CQueryPatch : public CImportPatch
{
public:
    explicit CQueryPatch(QueryFunction replacement)
        : CImportPatch(Remember(&__imp_RegQueryValueExW), replacement)
    {
    }

private:
    static void** Remember(void** slot)
    {
        g_queries = 0;
        std::memcpy(&g_realQuery, slot, sizeof(g_realQuery));
        return slot;
    }
};

// Lets the value "V" grow by a kilobyte before each query.
LONG WINAPI QueryGrowing(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type, BYTE* data,
                         DWORD* size)
{
    const std::wstring text(static_cast<size_t>(++g_queries) * 1000, L'g');
    os::SetValue(key, L"V", REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * 2));
    return g_realQuery(key, name, reserved, type, data, size);
}

// Lets it grow twice.
LONG WINAPI QueryGrowingTwice(HKEY key, const wchar_t* name, DWORD* reserved, DWORD* type,
                              BYTE* data, DWORD* size)
{
    if (g_queries < 3)
        return QueryGrowing(key, name, reserved, type, data, size);
    ++g_queries;
    return g_realQuery(key, name, reserved, type, data, size);
}

// A text that claims to be as large as a size can be.
LONG WINAPI QueryHuge(HKEY, const wchar_t*, DWORD*, DWORD* type, BYTE*, DWORD* size)
{
    ++g_queries;
    *type = REG_SZ;
    *size = 0xFFFFFFFF;
    return ERROR_MORE_DATA;
}

void*(__cdecl* g_realCalloc)(size_t, size_t);

void* __cdecl CallocSmall(size_t count, size_t size)
{
    return count * size > 2000 ? nullptr : g_realCalloc(count, size);
}

TEST_F(VORegistryHostile, R1ATextWithoutItsTerminatorEndsWithItsData)
{
    for (const size_t length : {1u, 511u, 512u, 513u, 2000u})
    {
        SetBytes(L"V", REG_SZ, Units(length));
        EXPECT_EQ(std::wstring(length, L'x'), key.GetString(L"V", L"default")) << length;
    }
}

TEST_F(VORegistryHostile, R2ATextOfOddSizeEndsWithHalfACharacter)
{
    SetBytes(L"One", REG_SZ, "a");
    SetBytes(L"Three", REG_SZ, std::string("a\0b", 3));
    SetBytes(L"Long", REG_SZ, Units(1000) + "z");
    EXPECT_EQ(L"a", key.GetString(L"One", L"default"));
    EXPECT_EQ(L"ab", key.GetString(L"Three", L"default"));
    EXPECT_EQ(std::wstring(1000, L'x') + L'z', key.GetString(L"Long", L"default"));
}

TEST_F(VORegistryHostile, R3ATextEndsAtItsFirstZero)
{
    SetBytes(L"Nothing", REG_SZ, "");
    SetBytes(L"Zeros", REG_SZ, std::string(6, '\0'));
    SetBytes(L"Inside", REG_SZ, Units(2) + std::string(2, '\0') + Units(2));
    EXPECT_EQ(L"", key.GetString(L"Nothing", L"default"));
    EXPECT_EQ(L"", key.GetString(L"Zeros", L"default"));
    EXPECT_EQ(L"xx", key.GetString(L"Inside", L"default"));
    EXPECT_FALSE(key.Modified) << "they exist: no default is written";
}

TEST_F(VORegistryHostile, R4AHugeTextIsRead)
{
    const std::wstring text(4 << 20, L'h');
    hive.SetText(kPath, L"V", text);
    EXPECT_TRUE(text == key.GetString(L"V", L"default"));
}

TEST_F(VORegistryHostile, R4ATextTooLargeForMemoryCountsAsAFailedRead)
{
    hive.SetText(kPath, L"V", std::wstring(5000, L'x'));
    std::memcpy(&g_realCalloc, &__imp_calloc, sizeof(g_realCalloc));
    {
        const CImportPatch failing(&__imp_calloc, CallocSmall);
        EXPECT_EQ(L"default", key.GetString(L"V", L"default"));
    }
    EXPECT_EQ(L"default", hive.Text(kPath, L"V"));
}

TEST_F(VORegistryHostile, R4TheLargestSizeDoesntWrapAround)
{
    const CQueryPatch patch(QueryHuge);
    EXPECT_EQ(L"", key.GetString(L"V", nullptr));
    EXPECT_LE(g_queries, 5);
}

TEST_F(VORegistryHostile, R5AValueThatGrowsWhileItIsReadIsReadAgain)
{
    const CQueryPatch patch(QueryGrowingTwice);
    EXPECT_EQ(std::wstring(3000, L'g'), key.GetString(L"V", L"default"));
    EXPECT_EQ(4, g_queries);
}

TEST_F(VORegistryHostile, R5AValueThatNeverStopsGrowingCountsAsAFailedRead)
{
    const CQueryPatch patch(QueryGrowing);
    EXPECT_EQ(L"default", key.GetString(L"V", L"default"));
    EXPECT_EQ(5, g_queries);
    EXPECT_EQ(L"default", hive.Text(kPath, L"V"));
}

TEST_F(VORegistryHostile, R6AValueOfAnotherTypeGivesTheDefaultAndStays)
{
    for (const DWORD type : {REG_EXPAND_SZ, REG_MULTI_SZ, REG_BINARY, REG_DWORD, REG_NONE})
    {
        SetBytes(L"V", type, Units(2));
        const std::wstring before = hive.Dump(kPath);
        EXPECT_EQ(L"default", key.GetString(L"V", L"default")) << type;
        EXPECT_EQ(before, hive.Dump(kPath));
    }
    SetBytes(L"V", REG_BINARY, Units(5000));
    EXPECT_EQ(L"default", key.GetString(L"V", L"default")) << "longer than the usual text";
    EXPECT_FALSE(key.Modified);
}

TEST_F(VORegistryHostile, R7TheMissingBytesOfAShortNumberAreZero)
{
    SetBytes(L"0", REG_DWORD, "");
    SetBytes(L"1", REG_BINARY, "\xFF");
    SetBytes(L"2", REG_BINARY, "\xFF\xFE");
    SetBytes(L"3", REG_DWORD, "\xFF\xFE\xFD");
    const DWORD expected[] = {0, 0xFF, 0xFEFF, 0xFDFEFF};
    for (DWORD i = 0; i < 4; ++i)
    {
        DWORD number = 0xDDDDDDDD;
        EXPECT_TRUE(key.GetDWORD(std::to_wstring(i).c_str(), number));
        EXPECT_EQ(expected[i], number);
    }
}

TEST_F(VORegistryHostile, R8ALongerNumberLeavesTheVariable)
{
    for (const size_t size : {5u, 8u, 5000u})
    {
        SetBytes(L"V", REG_DWORD, std::string(size, '\x11'));
        DWORD number = 77;
        EXPECT_FALSE(key.GetDWORD(L"V", number));
        EXPECT_EQ(77u, number);
    }
}

TEST_F(VORegistryHostile, R9BadNamesAreRefused)
{
    const CGuardedText endless(L"endless");
    DWORD number = 77;
    for (const wchar_t* name :
         {static_cast<const wchar_t*>(WildPointer()), static_cast<const wchar_t*>(endless.get())})
    {
        DWORD size = sizeof(number);
        EXPECT_FALSE(key.GetDWORD(name, number));
        EXPECT_FALSE(key.SetDWORD(name, 1));
        EXPECT_EQ(L"", key.GetString(name, L"default"));
        EXPECT_FALSE(key.SetString(name, L"text"));
        EXPECT_FALSE(key.GetBinary(name, &number, &size));
        EXPECT_FALSE(key.SetBinary(name, &number, sizeof(number)));
    }
    EXPECT_EQ(77u, number);
    EXPECT_FALSE(key.Modified);
    EXPECT_EQ(L"", hive.Dump(kPath));
}

TEST_F(VORegistryHostile, R9ANullNameIsNoReadableText)
{
    EXPECT_FALSE(key.SetDWORD(nullptr, 1));
    EXPECT_EQ(L"", key.GetString(nullptr, L"default"));
    EXPECT_FALSE(key.SetString(nullptr, L"text"));
    EXPECT_FALSE(key.Modified);
}

TEST_F(VORegistryHostile, R9BadTextsAreRefused)
{
    const CGuardedText endless(L"endless");
    for (const wchar_t* text :
         {static_cast<const wchar_t*>(nullptr), static_cast<const wchar_t*>(WildPointer()),
          static_cast<const wchar_t*>(endless.get())})
    {
        EXPECT_FALSE(key.SetString(L"V", text));
        EXPECT_EQ(L"", key.GetString(L"V", text));
    }
    EXPECT_FALSE(key.Modified);
    EXPECT_FALSE(hive.ValueExists(kPath, L"V"));
}

TEST_F(VORegistryHostile, R9BadBuffersAreRefused)
{
    SetBytes(L"V", REG_BINARY, "12345678");
    DWORD size = 8;
    EXPECT_FALSE(key.GetBinary(L"V", WildPointer(), &size));
    const CGuardedText page(L"1234");
    size = 16;
    EXPECT_FALSE(key.GetBinary(L"V", page.get(), &size)) << "the page ends after 8 bytes";
    DWORD old = 0;
    VirtualProtect(page.get(), 8, PAGE_READONLY, &old);
    size = 8;
    EXPECT_FALSE(key.GetBinary(L"V", page.get(), &size)) << "not writable";

    EXPECT_FALSE(key.SetBinary(L"W", nullptr, 4));
    EXPECT_FALSE(key.SetBinary(L"W", WildPointer(), 4));
    EXPECT_FALSE(key.SetBinary(L"W", page.get(), 16));
    EXPECT_FALSE(key.Modified);
    EXPECT_FALSE(hive.ValueExists(kPath, L"W"));
}

TEST_F(VORegistryHostile, R9ABufferWithoutASizeIsRefused)
{
    SetBytes(L"V", REG_BINARY, "12345678");
    char data[8] = {};
    EXPECT_FALSE(key.GetBinary(L"V", data, nullptr));
    EXPECT_EQ('\0', data[0]);
}

TEST_F(VORegistryHostile, R9ATextMayEndDirectlyBeforeAnUnreadablePage)
{
    const CGuardedText last(std::wstring(L"last\0", 5));
    EXPECT_TRUE(key.SetString(L"V", last.get()));
    EXPECT_EQ(L"last", key.GetString(L"V", nullptr));
}

TEST_F(VORegistryHostile, R9ATextMayFillSeveralPagesFromAnyAddress)
{
    std::vector<char> bytes(20001, 'x');
    for (const size_t offset : {0u, 1u})
    {
        auto* const text = reinterpret_cast<wchar_t*>(bytes.data() + offset);
        std::memset(bytes.data() + offset + 19998, 0, sizeof(wchar_t));
        EXPECT_TRUE(IsReadableString(text)) << offset;
        std::memset(bytes.data() + offset + 19998, 'x', sizeof(wchar_t));
    }
    EXPECT_FALSE(IsReadableString(nullptr));
}

TEST_F(VORegistryHostile, R10AFailedCreateIsClosedAsANullKey)
{
    CVORegistry failed(kNoSuchKey, L"X", TRUE, TRUE, 0);
    EXPECT_EQ(nullptr, failed.Key);
    EXPECT_FALSE(failed.SetDWORD(L"V", 1));
}

TEST_F(VORegistryHostile, R12AKeyThatMayOnlyBeReadRefusesEveryWrite)
{
    SetBytes(L"V", REG_SZ, Units(1));
    CVORegistry reader(HKEY_LOCAL_MACHINE, kPath, FALSE, TRUE, KEY_READ);
    EXPECT_EQ(L"x", reader.GetString(L"V", nullptr));
    EXPECT_FALSE(reader.SetDWORD(L"V", 1));
    EXPECT_FALSE(reader.SetString(L"V", L"y"));
    EXPECT_FALSE(reader.SetBinary(L"V", "z", 1));
    EXPECT_FALSE(reader.DeleteValue(L"V"));
    EXPECT_EQ(L"new", reader.GetString(L"New", L"new"));
    EXPECT_EQ(L"x", hive.Text(kPath, L"V"));
    EXPECT_FALSE(hive.ValueExists(kPath, L"New"));
}

TEST_F(VORegistryHostile, APathOfNothingButBackslashesOpensTheRoot)
{
    CVORegistry root(HKEY_LOCAL_MACHINE, L"\\\\", FALSE, FALSE, 0);
    EXPECT_NE(nullptr, root.Key);
}

} // namespace
