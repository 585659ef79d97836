// Opening storages and reading members, alike in both forms.
#include "skin/SkinStorage.h"

#include "tests/skin/StorageFixture.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace
{

using skin::CSkinStorage;

static_assert(std::has_virtual_destructor_v<CSkinStorage>);
static_assert(!std::is_copy_constructible_v<CSkinStorage>);

class SkinStorageForm : public testing::TestWithParam<Form>
{
protected:
    void SetUp() override
    {
        const CStorageFolder::Members members = {
            {"Classic.bmp", "picture"}, {"large.dat", large}, {"empty.dat", ""}};
        const std::wstring path =
            GetParam() == Form::Folder ? folder.WriteFiles(members) : folder.WriteArchive(members);
        ASSERT_TRUE(storage.Open(path.c_str()));
    }

    const std::string large = Text(100001);
    CStorageFolder folder;
    CSkinStorage storage;
};

INSTANTIATE_TEST_SUITE_P(Both, SkinStorageForm, testing::Values(Form::Folder, Form::Archive),
                         FormName);

TEST_P(SkinStorageForm, TheFormIsRecognised)
{
    EXPECT_EQ(GetParam() == Form::Folder, storage.IsFolder());
}

TEST_P(SkinStorageForm, AMembersSizeIsItsBytes)
{
    EXPECT_EQ(7u, storage.MemberSize(L"Classic.bmp"));
    EXPECT_EQ(100001u, storage.MemberSize(L"large.dat"));
}

TEST_P(SkinStorageForm, AMissingMemberHasNoSizeAndCantBeRead)
{
    char buffer[16] = {};
    EXPECT_EQ(0u, storage.MemberSize(L"missing"));
    EXPECT_FALSE(storage.ReadMember(L"missing", buffer, sizeof(buffer)));
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"missing"));
}

TEST_P(SkinStorageForm, AMemberFillsTheBuffer)
{
    std::string buffer(100001, '?');
    ASSERT_TRUE(storage.ReadMember(L"large.dat", buffer.data(), 100001));
    EXPECT_EQ(large, buffer);
}

TEST_P(SkinStorageForm, ALargerBufferIsLeftAloneBehindTheMember)
{
    std::string buffer(10, '?');
    ASSERT_TRUE(storage.ReadMember(L"Classic.bmp", buffer.data(), 10));
    EXPECT_EQ("picture???", buffer);
}

TEST_P(SkinStorageForm, ASmallerBufferGetsNothing)
{
    std::string buffer(10, '?');
    EXPECT_FALSE(storage.ReadMember(L"Classic.bmp", buffer.data(), 6));
    EXPECT_EQ("??????????", buffer);
    EXPECT_FALSE(storage.ReadMember(L"Classic.bmp", buffer.data(), 0));
}

TEST_P(SkinStorageForm, TheBufferMayEndWhereMemoryEnds)
{
    const CGuardedBytes buffer(100001);
    ASSERT_TRUE(storage.ReadMember(L"large.dat", buffer.get(), 100001));
    EXPECT_EQ(0, memcmp(large.data(), buffer.get(), large.size()));
}

TEST_P(SkinStorageForm, AMemberReadWholeComesInABlockOfItsOwn)
{
    EXPECT_EQ("picture", WholeMember(storage, L"Classic.bmp"));
    EXPECT_EQ(large, WholeMember(storage, L"large.dat"));
    const UniqueLocal block(storage.ReadMemberWhole(L"Classic.bmp"));
    EXPECT_TRUE(block);
}

TEST_P(SkinStorageForm, FourZerosFollowAMemberReadWhole)
{
    uint32_t size = 0;
    const UniqueLocal block(storage.ReadMemberWhole(L"Classic.bmp", &size));
    ASSERT_EQ(7u, size);
    EXPECT_GE(LocalSize(block.get()), 11u);
    EXPECT_EQ(0, memcmp("picture\0\0\0\0", block.get(), 11));
}

TEST_P(SkinStorageForm, AnEmptyMemberReadsAsMissing)
{
    uint32_t size = 5;
    EXPECT_EQ(0u, storage.MemberSize(L"empty.dat"));
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"empty.dat", &size));
    EXPECT_EQ(5u, size);
}

TEST_P(SkinStorageForm, NamesAreFoundWhateverTheirCase)
{
    EXPECT_EQ("picture", WholeMember(storage, L"CLASSIC.BMP"));
    EXPECT_EQ("picture", WholeMember(storage, L"classic.bmp"));
}

TEST_P(SkinStorageForm, NoNameAndAnEmptyOneAreRefused)
{
    char buffer[16] = {};
    for (const wchar_t* name : {static_cast<const wchar_t*>(nullptr), L""})
    {
        EXPECT_EQ(0u, storage.MemberSize(name));
        EXPECT_FALSE(storage.ReadMember(name, buffer, sizeof(buffer)));
        EXPECT_EQ(nullptr, storage.ReadMemberWhole(name));
    }
}

TEST_P(SkinStorageForm, ItCanBeOpenedAgainOnSomethingElse)
{
    const std::wstring other = folder.WriteArchive({{"Other", "text"}}, L"other.zip");
    ASSERT_TRUE(storage.Open(other.c_str()));
    EXPECT_FALSE(storage.IsFolder());
    EXPECT_EQ("text", WholeMember(storage, L"Other"));
    EXPECT_EQ(0u, storage.MemberSize(L"Classic.bmp"));
}

TEST_P(SkinStorageForm, AFailedOpenLeavesNothingOpen)
{
    EXPECT_FALSE(storage.Open((folder.Path() + L"\\nothing").c_str()));
    EXPECT_EQ(0u, storage.MemberSize(L"Classic.bmp"));
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"Classic.bmp"));
}

class SkinStorage : public testing::Test
{
protected:
    CStorageFolder folder;
    CSkinStorage storage;
};

TEST_F(SkinStorage, AnUnopenedStorageHasNoMembers)
{
    char buffer[4] = {};
    EXPECT_EQ(0u, storage.MemberSize(L"a"));
    EXPECT_FALSE(storage.ReadMember(L"a", buffer, 4));
    EXPECT_EQ(nullptr, storage.ReadMemberWhole(L"a"));
}

TEST_F(SkinStorage, NoPathAndAnEmptyOneDontOpen)
{
    EXPECT_FALSE(storage.Open(nullptr));
    EXPECT_FALSE(storage.Open(L""));
}

TEST_F(SkinStorage, AMissingPathDoesNotOpen)
{
    EXPECT_FALSE(storage.Open((folder.Path() + L"\\missing.zip").c_str()));
    EXPECT_FALSE(storage.Open((folder.Path() + L"\\missing\\").c_str()));
}

TEST_F(SkinStorage, AFileThatIsNoArchiveDoesNotOpen)
{
    EXPECT_FALSE(storage.Open(folder.Write(L"text", "just text").c_str()));
    EXPECT_FALSE(storage.Open(folder.Write(L"empty", "").c_str()));
}

TEST_F(SkinStorage, AFolderOpensWithAndWithoutABackslash)
{
    const std::wstring path = folder.WriteFiles({{"member", "text"}});
    for (const std::wstring& spelling : {path, path + L"\\"})
    {
        ASSERT_TRUE(storage.Open(spelling.c_str()));
        EXPECT_EQ(path + L"\\", storage.Path());
        EXPECT_EQ("text", WholeMember(storage, L"member"));
    }
}

TEST_F(SkinStorage, AnArchivesPathIsKeptAsItIs)
{
    const std::wstring path = folder.WriteArchive({{"member", "text"}});
    ASSERT_TRUE(storage.Open(path.c_str()));
    EXPECT_EQ(path, storage.Path());
}

TEST_F(SkinStorage, MembersInFoldersBelowAreRead)
{
    CreateDirectoryW((folder.Path() + L"\\below").c_str(), nullptr);
    folder.Write(L"below\\member", "text");
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    EXPECT_EQ("text", WholeMember(storage, L"below\\member"));
    DeleteFileW((folder.Path() + L"\\below\\member").c_str());
    RemoveDirectoryW((folder.Path() + L"\\below").c_str());
}

TEST_F(SkinStorage, AFolderInAFolderIsNoMember)
{
    CreateDirectoryW((folder.Path() + L"\\below").c_str(), nullptr);
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    char buffer[16] = {};
    EXPECT_EQ(0u, storage.MemberSize(L"below"));
    EXPECT_FALSE(storage.ReadMember(L"below", buffer, sizeof(buffer)));
    RemoveDirectoryW((folder.Path() + L"\\below").c_str());
}

TEST_F(SkinStorage, DevicesAreNoMembers)
{
    ASSERT_TRUE(storage.Open(folder.Path().c_str()));
    for (const wchar_t* device : {L"CON", L"NUL", L"COM1", L"nul.txt"})
        EXPECT_EQ(nullptr, storage.ReadMemberWhole(device)) << device;
}

TEST_F(SkinStorage, NamesThatLeadOutOfTheFolderAreRefused)
{
    folder.Write(L"secret", "text");
    CreateDirectoryW((folder.Path() + L"\\below").c_str(), nullptr);
    ASSERT_TRUE(storage.Open((folder.Path() + L"\\below").c_str()));
    char buffer[16] = {};
    for (const std::wstring& name :
         {std::wstring(L"..\\secret"), std::wstring(L"x\\..\\..\\secret"), L"\\" + folder.Path()})
    {
        EXPECT_EQ(0u, storage.MemberSize(name.c_str()));
        EXPECT_FALSE(storage.ReadMember(name.c_str(), buffer, sizeof(buffer)));
    }
    RemoveDirectoryW((folder.Path() + L"\\below").c_str());
}

TEST_F(SkinStorage, TheLastMembersAttributesAreKept)
{
    EXPECT_EQ(UINT32_MAX, storage.LastMemberAttribute());
    zip::Entry entry = zip::Stored("a", "abc");
    entry.attributes = 0x21;
    ASSERT_TRUE(storage.Open(folder.WriteArchive({entry}).c_str()));
    char buffer[3];
    ASSERT_TRUE(storage.ReadMember(L"a", buffer, sizeof(buffer)));
    EXPECT_EQ(0x21u, storage.LastMemberAttribute());
    EXPECT_FALSE(storage.ReadMember(L"missing", buffer, sizeof(buffer)));
    EXPECT_EQ(UINT32_MAX, storage.LastMemberAttribute());
    // A name that can't even be looked for.
    ASSERT_TRUE(storage.ReadMember(L"a", buffer, sizeof(buffer)));
    EXPECT_FALSE(storage.ReadMember(std::wstring(260, L'n').c_str(), buffer, sizeof(buffer)));
    EXPECT_EQ(UINT32_MAX, storage.LastMemberAttribute());
}

TEST_F(SkinStorage, ItsEndClosesTheArchive)
{
    const std::wstring path = folder.WriteArchive({{"member", "text"}});
    {
        CSkinStorage open;
        ASSERT_TRUE(open.Open(path.c_str()));
        EXPECT_FALSE(DeleteFileW(path.c_str()));
    }
    EXPECT_TRUE(DeleteFileW(path.c_str()));
}

TEST_F(SkinStorage, OpeningAgainClosesTheArchive)
{
    const std::wstring path = folder.WriteArchive({{"member", "text"}});
    ASSERT_TRUE(storage.Open(path.c_str()));
    EXPECT_FALSE(storage.Open(L""));
    EXPECT_TRUE(DeleteFileW(path.c_str()));
}

} // namespace
