// Which names may be put behind a folder's path.
#include "skin/MemberName.h"

#include <gtest/gtest.h>

namespace
{

using skin::StaysInFolder;

TEST(MemberName, OrdinaryNamesStay)
{
    for (const wchar_t* name : {L"Database.dat", L"a", L"below\\member", L"below/member", L"a..b",
                                L"..a", L"a..", L".", L".hidden", L"x\\.\\y", L"x\\", L"a b"})
        EXPECT_TRUE(StaysInFolder(name)) << name;
}

TEST(MemberName, NamesThatGoUpDont)
{
    for (const wchar_t* name : {L"..", L"..\\a", L"../a", L"x\\..\\..\\a", L"x\\..", L"x/../a",
                                L".. \\a", L". .\\a", L"...\\a", L"x\\.. "})
        EXPECT_FALSE(StaysInFolder(name)) << name;
}

TEST(MemberName, RootedNamesDont)
{
    for (const wchar_t* name : {L"\\a", L"\\\\server\\share\\a", L"/a", L"\\"})
        EXPECT_FALSE(StaysInFolder(name)) << name;
}

TEST(MemberName, DrivesAndStreamsDont)
{
    for (const wchar_t* name : {L"c:a", L"C:\\a", L"a:stream", L":"})
        EXPECT_FALSE(StaysInFolder(name)) << name;
}

TEST(MemberName, NoNameDoesNot)
{
    EXPECT_FALSE(StaysInFolder(L""));
}

} // namespace
