#include "frame/VORegistry.h"

#include "platform/os/Registry.h"
#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

namespace
{

constexpr wchar_t kPath[] = L"\\SOFTWARE\\Orvane 2\\Tav Lumenar";

// A key of a fresh registry, opened for writing.
class VORegistry : public testing::Test
{
protected:
    CVORegistry Open() { return Opened(FALSE); }
    CVORegistry Created(BOOL flush = FALSE)
    {
        return CVORegistry(HKEY_LOCAL_MACHINE, kPath, TRUE, flush, 0);
    }
    CVORegistry Opened(BOOL flush)
    {
        return CVORegistry(HKEY_LOCAL_MACHINE, kPath, FALSE, flush, 0);
    }

    CRegistrySandbox hive;
};

unsigned FlushesOf(void (*work)(CVORegistry& key), BOOL create, BOOL flush)
{
    const unsigned before = os::CountedRegistryCalls().flush;
    {
        CVORegistry key(HKEY_LOCAL_MACHINE, kPath, create, flush, 0);
        work(key);
    }
    return os::CountedRegistryCalls().flush - before;
}

TEST_F(VORegistry, CreatesTheKeyWithItsParentsAndReportsIt)
{
    {
        const CVORegistry key = Created();
        EXPECT_NE(nullptr, key.Key);
        EXPECT_EQ(static_cast<DWORD>(REG_CREATED_NEW_KEY), key.Disposition);
        EXPECT_FALSE(key.Modified);
    }
    EXPECT_TRUE(hive.KeyExists(kPath));
    EXPECT_EQ(static_cast<DWORD>(REG_OPENED_EXISTING_KEY), Created().Disposition);
}

TEST_F(VORegistry, OpeningDoesNotCreateTheKey)
{
    const CVORegistry key = Open();
    EXPECT_EQ(nullptr, key.Key);
    EXPECT_FALSE(key.Modified);
    EXPECT_FALSE(hive.KeyExists(kPath));
}

TEST_F(VORegistry, EveryOperationFailsOnAKeyThatDoesNotExist)
{
    const auto before = os::CountedRegistryCalls();
    {
        CVORegistry key = Open();
        DWORD number = 77;
        BYTE data[4] = {};
        DWORD size = sizeof(data);
        EXPECT_FALSE(key.GetDWORD(L"V", number));
        EXPECT_EQ(77u, number);
        EXPECT_FALSE(key.SetDWORD(L"V", 1));
        EXPECT_EQ(L"default", key.GetString(L"V", L"default"));
        EXPECT_FALSE(key.SetString(L"V", L"text"));
        EXPECT_FALSE(key.GetBinary(L"V", data, &size));
        EXPECT_FALSE(key.SetBinary(L"V", data, sizeof(data)));
    }
    EXPECT_FALSE(hive.KeyExists(kPath));
    EXPECT_EQ(1u, os::CountedRegistryCalls().close - before.close) << "a null key is closed too";
}

TEST_F(VORegistry, AFailedCreateHoldsNoKeyAndCountsAsModified)
{
    const std::wstring tooLong(300, L'x');
    const CVORegistry key(nullptr, tooLong.c_str(), TRUE, FALSE, 0);
    EXPECT_EQ(nullptr, key.Key);
    EXPECT_TRUE(key.Modified);
}

TEST_F(VORegistry, TheFieldsStandInTheirOrder)
{
    const CVORegistry key = Created(TRUE);
    EXPECT_TRUE(key.FlushOnClose);
    EXPECT_LT(static_cast<const void*>(&key.Key), static_cast<const void*>(&key.Disposition));
    EXPECT_LT(static_cast<const void*>(&key.Disposition),
              static_cast<const void*>(&key.FlushOnClose));
    EXPECT_LT(static_cast<const void*>(&key.FlushOnClose), static_cast<const void*>(&key.Modified));
}

TEST_F(VORegistry, WritesAndReadsANumber)
{
    CVORegistry key = Created();
    EXPECT_TRUE(key.SetDWORD(L"V", 0x89ABCDEF));
    EXPECT_TRUE(key.Modified);
    DWORD number = 0;
    EXPECT_TRUE(key.GetDWORD(L"V", number));
    EXPECT_EQ(0x89ABCDEFu, number);
    DWORD type = 0;
    EXPECT_EQ(4u, hive.Raw(kPath, L"V", &type).size());
    EXPECT_EQ(static_cast<DWORD>(REG_DWORD), type);
}

TEST_F(VORegistry, AMissingNumberLeavesTheVariable)
{
    const CVORegistry key = Created();
    DWORD number = 77;
    EXPECT_FALSE(key.GetDWORD(L"V", number));
    EXPECT_EQ(77u, number);
}

TEST_F(VORegistry, ANumberIsTakenFromAnyTypeOfAtMostFourBytes)
{
    hive.SetRaw(kPath, L"Text", REG_SZ, L"1", 4);
    hive.SetRaw(kPath, L"Binary", REG_BINARY, "\x01\x02\x03\x04", 4);
    const CVORegistry key = Open();
    DWORD number = 0;
    EXPECT_TRUE(key.GetDWORD(L"Text", number));
    EXPECT_EQ(static_cast<DWORD>(L'1'), number);
    EXPECT_TRUE(key.GetDWORD(L"Binary", number));
    EXPECT_EQ(0x04030201u, number);
}

TEST_F(VORegistry, GetDWORDOnAnEightByteBinaryValueFailsAndLeavesTheVariable)
{
    hive.SetRaw(kPath, L"V", REG_BINARY, "12345678", 8);
    const CVORegistry key = Open();
    DWORD number = 77;
    EXPECT_FALSE(key.GetDWORD(L"V", number));
    EXPECT_EQ(77u, number);
}

TEST_F(VORegistry, WritesAndReadsAText)
{
    CVORegistry key = Created();
    EXPECT_TRUE(key.SetString(L"V", L"Gr\u00FC\u00DFe"));
    EXPECT_TRUE(key.Modified);
    EXPECT_EQ(L"Gr\u00FC\u00DFe", key.GetString(L"V", L"default"));
    DWORD type = 0;
    EXPECT_EQ(12u, hive.Raw(kPath, L"V", &type).size()) << "the terminating zero is stored";
    EXPECT_EQ(static_cast<DWORD>(REG_SZ), type);
}

TEST_F(VORegistry, AnEmptyTextIsATextToo)
{
    CVORegistry key = Created();
    EXPECT_TRUE(key.SetString(L"V", L""));
    EXPECT_EQ(L"", key.GetString(L"V", L"default"));
    EXPECT_EQ(2u, hive.Raw(kPath, L"V").size());
}

TEST_F(VORegistry, GetStringOnAMissingValueWritesTheDefaultAndReturnsIt)
{
    CVORegistry key = Created();
    EXPECT_EQ(L"first", key.GetString(L"V", L"first"));
    EXPECT_TRUE(key.Modified);
    EXPECT_EQ(L"first", hive.Text(kPath, L"V"));
    EXPECT_EQ(L"first", key.GetString(L"V", L"second")) << "a second call finds it";
}

TEST_F(VORegistry, GetStringWithANullDefaultOnAMissingValueWritesNothing)
{
    CVORegistry key = Created();
    EXPECT_EQ(L"", key.GetString(L"V", nullptr));
    EXPECT_FALSE(key.Modified);
    EXPECT_FALSE(hive.ValueExists(kPath, L"V"));
}

TEST_F(VORegistry, GetStringOnAValueStoredAsANumberReturnsTheDefaultAndLeavesIt)
{
    hive.SetDword(kPath, L"V", 5);
    CVORegistry key = Open();
    EXPECT_EQ(L"default", key.GetString(L"V", L"default"));
    EXPECT_EQ(L"", key.GetString(L"V", nullptr));
    EXPECT_FALSE(key.Modified);
    EXPECT_EQ(5u, hive.Dword(kPath, L"V"));
}

TEST_F(VORegistry, ATextBelowOneKilobyteCostsOneCall)
{
    hive.SetText(kPath, L"Short", L"x");
    hive.SetText(kPath, L"Longest", std::wstring(511, L'x'));
    CVORegistry key = Open();
    for (const wchar_t* name : {L"Short", L"Longest", L"Missing"})
    {
        const auto before = os::CountedRegistryCalls();
        key.GetString(name, nullptr);
        EXPECT_EQ(1u, os::CountedRegistryCalls().Total() - before.Total());
    }
}

TEST_F(VORegistry, ATextOfAnyLengthIsReadWhole)
{
    CVORegistry key = Created();
    for (const size_t length : {510u, 511u, 512u, 513u, 100000u})
    {
        const std::wstring text(length, L'y');
        hive.SetText(kPath, L"V", text);
        EXPECT_EQ(text, key.GetString(L"V", nullptr));
    }
}

TEST_F(VORegistry, WritesAndReadsBinaryData)
{
    CVORegistry key = Created();
    EXPECT_TRUE(key.SetBinary(L"V", "abc", 3));
    EXPECT_TRUE(key.Modified);
    DWORD type = 0;
    EXPECT_EQ("abc", hive.Raw(kPath, L"V", &type));
    EXPECT_EQ(static_cast<DWORD>(REG_BINARY), type);
    char data[8] = {};
    DWORD size = sizeof(data);
    EXPECT_TRUE(key.GetBinary(L"V", data, &size));
    EXPECT_EQ("abc", std::string(data, size));
}

TEST_F(VORegistry, GetBinaryTakesAnyType)
{
    hive.SetDword(kPath, L"V", 0x44434241);
    const CVORegistry key = Open();
    char data[4] = {};
    DWORD size = sizeof(data);
    EXPECT_TRUE(key.GetBinary(L"V", data, &size));
    EXPECT_EQ("ABCD", std::string(data, size));
}

TEST_F(VORegistry, ANullBufferAsksForTheSizeAlone)
{
    hive.SetRaw(kPath, L"V", REG_BINARY, "12345678", 8);
    const CVORegistry key = Open();
    DWORD size = 0;
    EXPECT_TRUE(key.GetBinary(L"V", nullptr, &size));
    EXPECT_EQ(8u, size);
}

TEST_F(VORegistry, ABufferThatIsTooSmallFails)
{
    hive.SetRaw(kPath, L"V", REG_BINARY, "12345678", 8);
    const CVORegistry key = Open();
    char data[8] = {};
    DWORD size = 4;
    EXPECT_FALSE(key.GetBinary(L"V", data, &size));
    EXPECT_EQ('\0', data[4]);
}

TEST_F(VORegistry, BinaryDataOfNoBytesIsWritten)
{
    CVORegistry key = Created();
    EXPECT_TRUE(key.SetBinary(L"V", "", 0));
    EXPECT_TRUE(hive.ValueExists(kPath, L"V"));
}

TEST_F(VORegistry, ASetterMarksTheKeyModifiedEvenWhenTheWriteFails)
{
    const CVORegistry created = Created();
    CVORegistry number = CVORegistry(HKEY_LOCAL_MACHINE, kPath, FALSE, FALSE, KEY_READ);
    EXPECT_FALSE(number.SetDWORD(L"V", 1));
    EXPECT_TRUE(number.Modified);
    CVORegistry text = CVORegistry(HKEY_LOCAL_MACHINE, kPath, FALSE, FALSE, KEY_READ);
    EXPECT_FALSE(text.SetString(L"V", L"x"));
    EXPECT_TRUE(text.Modified);
    CVORegistry binary = CVORegistry(HKEY_LOCAL_MACHINE, kPath, FALSE, FALSE, KEY_READ);
    EXPECT_FALSE(binary.SetBinary(L"V", "x", 1));
    EXPECT_TRUE(binary.Modified);
    EXPECT_FALSE(hive.ValueExists(kPath, L"V"));
}

TEST_F(VORegistry, ReadingDoesNotMarkTheKeyModified)
{
    hive.SetText(kPath, L"T", L"x");
    hive.SetDword(kPath, L"N", 1);
    CVORegistry key = Created();
    DWORD number = 0;
    DWORD size = sizeof(number);
    key.GetDWORD(L"N", number);
    key.GetString(L"T", L"default");
    key.GetBinary(L"N", &number, &size);
    EXPECT_FALSE(key.Modified);
}

TEST_F(VORegistry, AWriteIsFlushedAtTheEndWhenAskedFor)
{
    EXPECT_EQ(1u, FlushesOf([](CVORegistry& key) { key.SetDWORD(L"V", 1); }, TRUE, TRUE));
    EXPECT_EQ(1u, FlushesOf([](CVORegistry& key) { key.SetString(L"S", L"x"); }, TRUE, TRUE));
    EXPECT_EQ(1u, FlushesOf([](CVORegistry& key) { key.SetBinary(L"B", "x", 1); }, TRUE, TRUE));
    EXPECT_EQ(1u, FlushesOf(
                      [](CVORegistry& key)
                      {
                          key.SetDWORD(L"V", 1);
                          key.SetDWORD(L"W", 1);
                      },
                      TRUE, TRUE))
        << "once, however much was written";
}

TEST_F(VORegistry, AWriteIsNotFlushedWithoutBeingAskedFor)
{
    EXPECT_EQ(0u, FlushesOf([](CVORegistry& key) { key.SetDWORD(L"V", 1); }, TRUE, FALSE));
}

TEST_F(VORegistry, NothingIsFlushedWhenNothingWasWritten)
{
    EXPECT_EQ(0u, FlushesOf([](CVORegistry&) {}, TRUE, TRUE));
    EXPECT_EQ(0u, FlushesOf([](CVORegistry& key) { key.GetString(L"X", nullptr); }, TRUE, TRUE));
}

TEST_F(VORegistry, TheDefaultThatGetStringWritesIsFlushed)
{
    EXPECT_EQ(1u, FlushesOf([](CVORegistry& key) { key.GetString(L"V", L"x"); }, TRUE, TRUE));
}

TEST_F(VORegistry, TheKeyIsOpenedAndClosedOnceForAllItsWork)
{
    hive.CreateKey(kPath);
    const auto before = os::CountedRegistryCalls();
    {
        CVORegistry key = Open();
        key.SetDWORD(L"V", 1);
        key.SetDWORD(L"W", 1);
    }
    const auto after = os::CountedRegistryCalls();
    EXPECT_EQ(1u, after.open - before.open);
    EXPECT_EQ(0u, after.create - before.create);
    EXPECT_EQ(2u, after.set - before.set);
    EXPECT_EQ(1u, after.close - before.close);
}

TEST_F(VORegistry, AKeyCanBeTheRootOfAnother)
{
    CVORegistry parent = Created();
    {
        CVORegistry child(parent.Key, L"Child", TRUE, FALSE, 0);
        EXPECT_TRUE(child.SetDWORD(L"V", 3));
    }
    EXPECT_EQ(3u, hive.Dword((std::wstring(kPath) + L"\\Child").c_str(), L"V"));
}

TEST_F(VORegistry, WorksUnderTheCurrentUserToo)
{
    CRegistrySandbox user(HKEY_CURRENT_USER);
    {
        CVORegistry key(HKEY_CURRENT_USER, kPath, TRUE, TRUE, 0);
        EXPECT_TRUE(key.SetDWORD(L"V", 4));
    }
    EXPECT_EQ(4u, user.Dword(kPath, L"V"));
    EXPECT_FALSE(hive.KeyExists(kPath));
}

TEST_F(VORegistry, DeletesAValue)
{
    hive.SetDword(kPath, L"V", 1);
    CVORegistry key = Open();
    EXPECT_TRUE(key.DeleteValue(L"V"));
    EXPECT_TRUE(key.Modified);
    EXPECT_FALSE(hive.ValueExists(kPath, L"V"));
    EXPECT_FALSE(key.DeleteValue(L"V"));
}

TEST_F(VORegistry, NamesItsSubkeysOneByOne)
{
    hive.CreateKey((std::wstring(kPath) + L"\\A").c_str());
    hive.CreateKey((std::wstring(kPath) + L"\\B").c_str());
    const CVORegistry key = Open();
    std::wstring name;
    EXPECT_TRUE(key.EnumKey(0, name));
    EXPECT_EQ(L"A", name);
    EXPECT_TRUE(key.EnumKey(1, name));
    EXPECT_EQ(L"B", name);
    EXPECT_FALSE(key.EnumKey(2, name));
}

TEST_F(VORegistry, DeletesASubkeyWithEverythingBelow)
{
    hive.CreateKey((std::wstring(kPath) + L"\\A\\B\\C").c_str());
    CVORegistry key = Open();
    EXPECT_TRUE(key.DeleteKeyTree(L"A"));
    EXPECT_TRUE(key.Modified);
    EXPECT_FALSE(hive.KeyExists((std::wstring(kPath) + L"\\A").c_str()));
    EXPECT_FALSE(key.DeleteKeyTree(L"A"));
}

} // namespace
