// Archive files that are damaged or lie, read through the whole storage: on this system the numbers
// of the zip library are narrower than where the native tests run.
#include "skin/SkinStorage.h"

#include "tests/skin/StorageFixture.h"

#include <gtest/gtest.h>

namespace
{

using skin::CSkinStorage;
using zip::Entry;

class SkinStorageHostile : public testing::Test
{
protected:
    bool Open(const Entry& entry) { return OpenBytes(BytesOf(zip::Archive({entry}))); }
    bool OpenBytes(const std::string& bytes)
    {
        // What is open can't be written to.
        storage.Open(nullptr);
        return storage.Open(folder.Write(L"data.zip", bytes).c_str());
    }

    // With 16 bytes of room before a page that can't be written.
    bool ReadIntoLittleRoom()
    {
        const CGuardedBytes room(16);
        return storage.ReadMember(L"a", room.get(), 16);
    }
    void ExpectUnreadable(const Entry& entry)
    {
        ASSERT_TRUE(Open(entry));
        EXPECT_EQ(0u, storage.MemberSize(L"a"));
        EXPECT_FALSE(ReadIntoLittleRoom());
        EXPECT_EQ(std::nullopt, WholeMember(storage, L"a"));
    }

    CStorageFolder folder;
    CSkinStorage storage;
};

TEST_F(SkinStorageHostile, ASizeBeyondThirtyTwoBitsIsUnreadable)
{
    Entry entry = zip::Stored("a", Text(40000));
    entry.size = (uint64_t{1} << 32) + 16;
    ExpectUnreadable(entry);
    entry.packedSize = entry.size;
    ExpectUnreadable(entry);
}

TEST_F(SkinStorageHostile, AnUnknownMethodIsUnreadable)
{
    Entry entry = zip::Stored("a", Text(40000));
    entry.method = zip::kBzip2;
    ExpectUnreadable(entry);
    entry.size = 16;
    ExpectUnreadable(entry);
}

TEST_F(SkinStorageHostile, AnEncryptedMemberIsUnreadable)
{
    Entry entry = zip::Stored("a", "sixteen letters.");
    entry.flags = zip::kEncrypted;
    ExpectUnreadable(entry);
}

TEST_F(SkinStorageHostile, ASizeThatNoDataCouldHaveIsUnreadable)
{
    Entry entry = zip::Deflated("a", Text(1000));
    entry.size = 0xFFFFFFF0;
    ExpectUnreadable(entry);
}

TEST_F(SkinStorageHostile, AMemberThatHoldsLessThanItSaysIsUnreadable)
{
    for (Entry entry : {zip::Stored("a", Text(40000)), zip::Deflated("a", Text(40000))})
    {
        entry.size = 1 << 20;
        ASSERT_TRUE(Open(entry));
        EXPECT_EQ(std::nullopt, WholeMember(storage, L"a"));
        EXPECT_FALSE(ReadIntoLittleRoom());
    }
}

TEST_F(SkinStorageHostile, AMemberThatHoldsMoreThanItSaysStaysInItsBuffer)
{
    for (Entry entry : {zip::Stored("a", Text(40000)), zip::Deflated("a", Text(40000))})
    {
        entry.size = 16;
        ASSERT_TRUE(Open(entry));
        EXPECT_FALSE(ReadIntoLittleRoom());
        EXPECT_EQ(std::nullopt, WholeMember(storage, L"a"));
    }
}

TEST_F(SkinStorageHostile, AWrongChecksumIsUnreadable)
{
    Entry entry = zip::Deflated("a", Text(40000));
    entry.crc ^= 1;
    ASSERT_TRUE(Open(entry));
    EXPECT_EQ(std::nullopt, WholeMember(storage, L"a"));
}

TEST_F(SkinStorageHostile, MuchFromLittleIsReadAsFarAsItIsDeclared)
{
    const std::string zeros(20000000, '\0');
    ASSERT_TRUE(Open(zip::Deflated("a", zeros)));
    EXPECT_EQ(zeros, WholeMember(storage, L"a"));
}

TEST_F(SkinStorageHostile, ManyMembersAreSearchedInTime)
{
    std::vector<Entry> entries;
    for (int i = 0; i < 60000; ++i)
        entries.push_back(zip::Stored("member" + std::to_string(i), "x"));
    entries.push_back(zip::Stored("a", "abc"));
    ASSERT_TRUE(storage.Open(folder.WriteArchive(entries).c_str()));
    EXPECT_EQ("abc", WholeMember(storage, L"a"));
}

TEST_F(SkinStorageHostile, AnArchiveCutInItsDirectoryDoesNotOpen)
{
    const std::string whole = BytesOf(zip::Archive({zip::Deflated("a", Text(1000))}));
    for (const size_t cut : {size_t{22}, size_t{40}, whole.size() - 1})
        EXPECT_FALSE(OpenBytes(whole.substr(0, whole.size() - cut))) << cut;
}

TEST_F(SkinStorageHostile, AnArchiveWhoseEndRecordIsCutHasNoMembers)
{
    const std::string whole = BytesOf(zip::Archive({zip::Deflated("a", Text(1000))}));
    OpenBytes(whole.substr(0, whole.size() - 10));
    EXPECT_EQ(0u, storage.MemberSize(L"a"));
    EXPECT_FALSE(ReadIntoLittleRoom());
}

TEST_F(SkinStorageHostile, AMissingLastByteDoesNotMatter)
{
    const std::string whole = BytesOf(zip::Archive({zip::Deflated("a", Text(1000))}));
    ASSERT_TRUE(OpenBytes(whole.substr(0, whole.size() - 1)));
    EXPECT_EQ(Text(1000), WholeMember(storage, L"a"));
}

TEST_F(SkinStorageHostile, EveryTruncationIsHarmless)
{
    const std::string text = Text(60);
    const std::string whole =
        BytesOf(zip::Archive({zip::Stored("a", text), zip::Deflated("b", text)}));
    for (size_t size = 0; size <= whole.size(); ++size)
    {
        OpenBytes(whole.substr(0, size));
        for (const wchar_t* name : {L"a", L"b"})
        {
            const auto found = WholeMember(storage, name);
            EXPECT_TRUE(!found || *found == text) << size;
        }
        ReadIntoLittleRoom();
    }
}

TEST_F(SkinStorageHostile, EveryChangedByteIsHarmless)
{
    const std::string text = Text(40);
    const std::string whole =
        BytesOf(zip::Archive({zip::Stored("a", text), zip::Deflated("b", text)}));
    for (size_t i = 0; i < whole.size(); ++i)
        for (const char value : {'\0', '\xFF', '\x7F', '\x80'})
        {
            std::string changed = whole;
            changed[i] = value;
            OpenBytes(changed);
            for (const wchar_t* name : {L"a", L"b"})
            {
                const auto found = WholeMember(storage, name);
                EXPECT_TRUE(!found || *found == text) << i;
            }
            ReadIntoLittleRoom();
        }
}

} // namespace
