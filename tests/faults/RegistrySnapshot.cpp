#include "tests/faults/RegistrySnapshot.h"

#include "platform/Win.h"

#include <gtest/gtest.h>

namespace
{

constexpr const wchar_t* kSoftware = L"SOFTWARE";
constexpr const wchar_t* kCopy = L"TavLumenarTestCopy";

void CopyTree(const wchar_t* from, const wchar_t* to)
{
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, to);
    HKEY target = nullptr;
    EXPECT_EQ(ERROR_SUCCESS, RegCreateKeyExW(HKEY_LOCAL_MACHINE, to, 0, nullptr, 0, KEY_ALL_ACCESS,
                                             nullptr, &target, nullptr));
    EXPECT_EQ(ERROR_SUCCESS, RegCopyTreeW(HKEY_LOCAL_MACHINE, from, target));
    RegCloseKey(target);
}

} // namespace

CRegistrySnapshot::CRegistrySnapshot()
{
    CopyTree(kSoftware, kCopy);
}

void CRegistrySnapshot::Restore() const
{
    CopyTree(kCopy, kSoftware);
}
