#include "platform/os/Registry.h"

#include "tests/support/RegistrySandbox.h"

#include <gtest/gtest.h>

namespace
{

TEST(OsRegistry, ALeadingBackslashAndAccessZeroGiveAKeyThatCanBeReadAndWritten)
{
    CRegistrySandbox hive;
    HKEY key = nullptr;
    DWORD disposition = 0;
    ASSERT_EQ(ERROR_SUCCESS,
              os::CreateKey(HKEY_LOCAL_MACHINE, L"\\SOFTWARE\\A\\B", 0, &key, &disposition));
    EXPECT_EQ(static_cast<DWORD>(REG_CREATED_NEW_KEY), disposition);
    os::CloseKey(key);
    ASSERT_EQ(ERROR_SUCCESS, os::OpenKey(HKEY_LOCAL_MACHINE, L"\\SOFTWARE\\A\\B", 0, &key));
    const DWORD value = 7;
    EXPECT_EQ(ERROR_SUCCESS, os::SetValue(key, L"V", REG_DWORD, &value, sizeof(value)));
    os::CloseKey(key);
    EXPECT_EQ(7u, hive.Dword(L"SOFTWARE\\A\\B", L"V"));
}

} // namespace
