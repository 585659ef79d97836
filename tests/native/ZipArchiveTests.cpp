// Members of archives in memory, sound ones and such as lie.
#include "skin/ZipArchive.h"

#include "tests/support/ZipMemory.h"
#include "tests/support/ZipWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace
{

using zip::Archive;
using zip::Bytes;
using zip::Entry;

constexpr uint8_t kBytes[] = {0x00, 0xFF, 0x7F, 0x80};

std::string Text(size_t size)
{
    std::string text;
    for (size_t i = 0; i < size; ++i)
        text += static_cast<char>('a' + i * i % 23);
    return text;
}

// An archive that is open; its bytes lie in a block of exactly their size.
class COpenArchive
{
public:
    explicit COpenArchive(const Bytes& bytes)
        : m_bytes(bytes), m_archive(m_bytes.data(), m_bytes.size())
    {
    }
    explicit COpenArchive(const std::vector<Entry>& entries) : COpenArchive(Archive(entries)) {}

    bool IsOpen() const { return m_archive.get() != nullptr; }
    uint32_t Size(const std::string& name = "a") const
    {
        return skin::ZipMemberSize(m_archive.get(), name.c_str());
    }
    // Reads into a block of exactly `size` bytes.
    bool Read(const std::string& name, uint32_t size)
    {
        buffer = std::make_unique<uint8_t[]>(size);
        std::fill_n(buffer.get(), size, uint8_t{0xEE});
        return skin::ReadZipMember(m_archive.get(), name.c_str(), buffer.get(), size, attribute);
    }
    // The whole member, or "unreadable".
    std::string Contents(const std::string& name = "a")
    {
        const uint32_t size = Size(name);
        return Read(name, size) ? std::string(buffer.get(), buffer.get() + size) : "unreadable";
    }

    std::unique_ptr<uint8_t[]> buffer;
    uint32_t attribute = 0;

private:
    Bytes m_bytes;
    zip::CMemoryArchive m_archive;
};

// Neither its size nor its contents can be had, with however much room for it.
void ExpectUnreadable(const Entry& entry)
{
    COpenArchive archive({entry});
    ASSERT_TRUE(archive.IsOpen());
    EXPECT_EQ(0u, archive.Size());
    EXPECT_FALSE(archive.Read("a", 16));
    EXPECT_FALSE(archive.Read("a", 100000));
}

// The archive tells a size, but the member can't be read.
void ExpectBroken(const Entry& entry)
{
    COpenArchive archive({entry});
    EXPECT_EQ(entry.size, archive.Size());
    EXPECT_FALSE(archive.Read("a", static_cast<uint32_t>(entry.size)));
    EXPECT_FALSE(archive.Read("a", static_cast<uint32_t>(entry.size) + 100));
}

TEST(ZipArchive, StoredAndDeflatedMembersAreRead)
{
    const std::string text = Text(1000);
    COpenArchive archive({zip::Stored("stored", text), zip::Deflated("deflated", text)});
    for (const char* name : {"stored", "deflated"})
    {
        EXPECT_EQ(1000u, archive.Size(name));
        EXPECT_EQ(text, archive.Contents(name));
    }
}

TEST(ZipArchive, MembersOfAnyNumberOfChunksAreReadWhole)
{
    for (const size_t size : {1u, 10239u, 10240u, 10241u, 20479u, 20480u, 20481u, 300000u})
    {
        const std::string text = Text(size);
        COpenArchive archive({zip::Stored("s", text), zip::Deflated("d", text)});
        EXPECT_EQ(text, archive.Contents("s")) << size;
        EXPECT_EQ(text, archive.Contents("d")) << size;
    }
}

TEST(ZipArchive, ALargerBufferIsLeftAloneBehindTheMember)
{
    COpenArchive archive({zip::Deflated("a", "abc")});
    ASSERT_TRUE(archive.Read("a", 5));
    EXPECT_EQ("abc\xEE\xEE", std::string(archive.buffer.get(), archive.buffer.get() + 5));
}

TEST(ZipArchive, ASmallerBufferGetsNothing)
{
    for (const Entry& entry : {zip::Stored("a", "abc"), zip::Deflated("a", "abc")})
    {
        COpenArchive archive({entry});
        ASSERT_FALSE(archive.Read("a", 2));
        EXPECT_EQ("\xEE\xEE", std::string(archive.buffer.get(), archive.buffer.get() + 2));
    }
}

TEST(ZipArchive, NamesAreFoundWhateverTheirCase)
{
    COpenArchive archive({zip::Stored("Database.dat", "abc")});
    EXPECT_EQ("abc", archive.Contents("DATABASE.DAT"));
    EXPECT_EQ("abc", archive.Contents("database.dat"));
    EXPECT_EQ(0u, archive.Size("database.da"));
}

TEST(ZipArchive, OfSeveralMembersOfOneNameTheFirstCounts)
{
    COpenArchive archive({zip::Stored("a", "first"), zip::Stored("A", "second")});
    EXPECT_EQ("first", archive.Contents("A"));
}

TEST(ZipArchive, AMissingMemberIsMissing)
{
    COpenArchive archive({zip::Stored("a", "abc")});
    EXPECT_EQ(0u, archive.Size("b"));
    EXPECT_FALSE(archive.Read("b", 10));
    EXPECT_EQ(UINT32_MAX, archive.attribute);
    EXPECT_EQ(0u, archive.Size(""));
}

TEST(ZipArchive, AnArchiveWithoutMembersHasNone)
{
    COpenArchive archive(std::vector<Entry>{});
    EXPECT_EQ(0u, archive.Size());
    EXPECT_FALSE(archive.Read("a", 10));
}

TEST(ZipArchive, TheMembersAttributesAreTold)
{
    Entry entry = zip::Stored("a", "abc");
    entry.attributes = 0x81A40021;
    COpenArchive archive({entry});
    ASSERT_TRUE(archive.Read("a", 3));
    EXPECT_EQ(0x81A40021u, archive.attribute);
}

TEST(ZipArchive, AnEmptyMemberHasNoSizeAndReadsAsNothing)
{
    COpenArchive archive({zip::Stored("a", ""), zip::Deflated("b", "")});
    EXPECT_EQ(0u, archive.Size("a"));
    EXPECT_EQ(0u, archive.Size("b"));
    EXPECT_TRUE(archive.Read("a", 4));
    EXPECT_TRUE(archive.Read("b", 4));
}

TEST(ZipArchive, MembersCanBeReadInTurnAndAgain)
{
    COpenArchive archive({zip::Deflated("a", "first"), zip::Deflated("b", "second")});
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ("second", archive.Contents("b"));
        EXPECT_EQ("first", archive.Contents("a"));
    }
}

TEST(ZipArchive, ASizeBeyondThirtyTwoBitsIsUnreadable)
{
    const std::string text = Text(40000);
    for (Entry entry : {zip::Stored("a", text), zip::Deflated("a", text)})
    {
        entry.size = (uint64_t{1} << 32) + 16;
        ExpectUnreadable(entry);
        // Also with as many packed bytes.
        entry.packedSize = entry.size;
        ExpectUnreadable(entry);
    }
}

TEST(ZipArchive, OtherMethodsAreUnreadable)
{
    for (const uint16_t method :
         {uint16_t{1}, zip::kBzip2, uint16_t{9}, uint16_t{14}, uint16_t{99}, uint16_t{0xFFFF}})
    {
        Entry entry = zip::Stored("a", Text(40000));
        entry.method = method;
        ExpectUnreadable(entry);
        entry.size = 16;
        ExpectUnreadable(entry);
    }
}

TEST(ZipArchive, EncryptedMembersAreUnreadable)
{
    for (Entry entry : {zip::Stored("a", "abcdefghijklmnop"), zip::Deflated("a", "abcdefghijkl")})
    {
        entry.flags = zip::kEncrypted;
        ExpectUnreadable(entry);
    }
}

TEST(ZipArchive, OtherFlagsDontMatter)
{
    Entry entry = zip::Deflated("a", "abc");
    entry.flags = 0x0806;
    COpenArchive archive({entry});
    EXPECT_EQ("abc", archive.Contents());
}

TEST(ZipArchive, AWrongChecksumIsUnreadable)
{
    for (Entry entry : {zip::Stored("a", Text(30000)), zip::Deflated("a", Text(30000))})
    {
        entry.crc ^= 0x80;
        ExpectBroken(entry);
    }
}

TEST(ZipArchive, AMemberThatHoldsLessThanItSaysIsUnreadable)
{
    const std::string text = Text(40000);
    for (Entry entry : {zip::Stored("a", text), zip::Deflated("a", text)})
    {
        entry.size = 50000;
        ExpectBroken(entry);
        entry.size = 40001;
        ExpectBroken(entry);
    }
}

TEST(ZipArchive, AMemberThatHoldsMoreThanItSaysIsUnreadable)
{
    const std::string text = Text(40000);
    for (Entry entry : {zip::Stored("a", text), zip::Deflated("a", text)})
    {
        entry.size = 16;
        ExpectBroken(entry);
        entry.size = 39999;
        ExpectBroken(entry);
    }
}

TEST(ZipArchive, MoreThanDeflateCanMakeIsUnreadable)
{
    Entry entry = zip::Deflated("a", Text(1000));
    const uint64_t most = entry.packedSize * 1032 + 64;
    entry.size = most;
    EXPECT_EQ(most, COpenArchive({entry}).Size());
    entry.size = most + 1;
    ExpectUnreadable(entry);
    entry.size = UINT32_MAX;
    ExpectUnreadable(entry);
    entry = zip::Stored("a", "abc");
    entry.size = UINT32_MAX;
    ExpectUnreadable(entry);
}

TEST(ZipArchive, TheDensestMemberIsRead)
{
    const std::string zeros(4000000, '\0');
    Entry entry = zip::Deflated("a", zeros);
    entry.packed = zip::Deflate(zeros, 9);
    entry.packedSize = entry.packed.size();
    ASSERT_LT(entry.packedSize, 4000u);
    EXPECT_EQ(zeros, COpenArchive({entry}).Contents());
}

TEST(ZipArchive, BrokenDeflatedBytesAreUnreadable)
{
    Entry entry = zip::Deflated("a", Text(3000));
    std::fill(entry.packed.begin() + 20, entry.packed.end(), uint8_t{0xFF});
    ExpectBroken(entry);
}

TEST(ZipArchive, LongNamesDontGetInTheWay)
{
    COpenArchive archive({zip::Stored(std::string(300, 'x'), "long"),
                          zip::Stored(std::string(255, 'y'), "fits"), zip::Stored("a", "abc")});
    EXPECT_EQ("abc", archive.Contents());
    EXPECT_EQ("fits", archive.Contents(std::string(255, 'y')));
    EXPECT_EQ(0u, archive.Size(std::string(300, 'x')));
    EXPECT_EQ(0u, archive.Size(std::string(260, 'x')));
}

TEST(ZipArchive, ManyMembersAreSearched)
{
    std::vector<Entry> entries;
    for (int i = 0; i < 60000; ++i)
        entries.push_back(zip::Stored("member" + std::to_string(i), "x"));
    entries.push_back(zip::Stored("a", "abc"));
    COpenArchive archive(entries);
    EXPECT_EQ("abc", archive.Contents());
    EXPECT_EQ(0u, archive.Size("b"));
}

TEST(ZipArchive, NoArchiveHasNoMembers)
{
    uint32_t attribute = 0;
    EXPECT_EQ(0u, skin::ZipMemberSize(nullptr, "a"));
    EXPECT_FALSE(skin::ReadZipMember(nullptr, "a", nullptr, 0, attribute));
}

TEST(ZipArchive, WhatIsNoArchiveDoesNotOpen)
{
    EXPECT_FALSE(COpenArchive(Bytes{}).IsOpen());
    EXPECT_FALSE(COpenArchive(Bytes(1000, 0)).IsOpen());
    const std::string text = Text(1000);
    EXPECT_FALSE(COpenArchive(Bytes(text.begin(), text.end())).IsOpen());
}

class ZipArchiveMutation : public testing::Test
{
protected:
    // Whatever is read is what was put in; whatever lies behind the buffer is the sanitizer's.
    void Check(const Bytes& bytes) const
    {
        COpenArchive archive(bytes);
        for (const char* name : {"a", "b"})
        {
            const uint32_t size = archive.Size(name);
            ASSERT_LE(size, bytes.size() * 1032 + 64);
            for (const uint32_t room : {size, size / 2, uint32_t{16}})
                if (archive.Read(name, room) && size <= room)
                    ASSERT_EQ(text.substr(0, size),
                              std::string(archive.buffer.get(), archive.buffer.get() + size));
        }
    }

    const std::string text = Text(300);
    const Bytes sample = Archive({zip::Stored("a", text), zip::Deflated("b", text)});
};

TEST_F(ZipArchiveMutation, EveryTruncationIsHarmless)
{
    Bytes bytes = sample;
    while (!bytes.empty())
    {
        bytes.pop_back();
        Check(bytes);
    }
}

TEST_F(ZipArchiveMutation, EveryChangedByteIsHarmless)
{
    for (size_t i = 0; i < sample.size(); ++i)
        for (const uint8_t value : kBytes)
        {
            Bytes changed = sample;
            changed[i] = value;
            Check(changed);
        }
}

} // namespace

namespace
{

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File FileOf(const Bytes& bytes)
{
    File file(std::tmpfile(), std::fclose);
    EXPECT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), file.get()));
    return file;
}

// A file that was closed behind its owner's back would be noticed as freed memory.
void ExpectStillOpen(const File& file)
{
    std::rewind(file.get());
    EXPECT_NE(EOF, std::fgetc(file.get()));
}

} // namespace

TEST(ZipFile, StaysItsOwnersWhenItIsNoArchive)
{
    const File file = FileOf(Bytes(100, 'x'));
    EXPECT_EQ(nullptr, skin::OpenZip(file.get()));
    ExpectStillOpen(file);
}

TEST(ZipFile, StaysItsOwnersWhenItsArchiveIsClosed)
{
    const File file = FileOf(Archive({zip::Stored("a", "text")}));
    const unzFile archive = skin::OpenZip(file.get());
    EXPECT_EQ(4u, skin::ZipMemberSize(archive, "a"));
    unzClose(archive);
    ExpectStillOpen(file);
}
