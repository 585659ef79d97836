// Measures reading a member of an archive file beside the least work that it takes, libarchive and
// the program unzip, in turn in one run, and says which goals are missed.
#include "bench/Goals.h"
#include "bench/Timing.h"
#include "bench/ZipSample.h"
#include "skin/ZipArchive.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace
{

constexpr int kRounds = 31;
constexpr char kFile[] = "bench.zip";

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::printf("failed: %s\n", what);
    std::exit(1);
}

struct ArchiveCloser
{
    void operator()(archive* reader) const { archive_read_free(reader); }
};

// Opens the file and reads its only member.
size_t ReadWithLibarchive(void* out, size_t size)
{
    const std::unique_ptr<archive, ArchiveCloser> reader(archive_read_new());
    archive_read_support_format_zip(reader.get());
    archive_entry* entry = nullptr;
    if (archive_read_open_filename(reader.get(), kFile, 65536) != ARCHIVE_OK ||
        archive_read_next_header(reader.get(), &entry) != ARCHIVE_OK)
        return 0;
    size_t done = 0;
    while (done < size)
    {
        const auto count =
            archive_read_data(reader.get(), static_cast<char*>(out) + done, size - done);
        if (count <= 0)
            break;
        done += static_cast<size_t>(count);
    }
    return done;
}

// Opens the file and reads its only member, as a dialog does.
bool ReadWithOurs(void* out, uint32_t size)
{
    const unzFile archive = unzOpen(kFile);
    uint32_t attribute = 0;
    const bool isRead = skin::ZipMemberSize(archive, "member") == size &&
                        skin::ReadZipMember(archive, "member", out, size, attribute);
    unzClose(archive);
    return isRead;
}

void Measure(const char* what, const std::string& data, CGoals& goals)
{
    const zip::Entry entry = zip::Deflated("member", data);
    const zip::Bytes bytes = zip::Archive({entry});
    std::ofstream(kFile, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    const auto size = static_cast<uint32_t>(data.size());
    // A block that has been used: what fresh memory costs is no matter of archives.
    std::string block(size, '\1');
    const auto prepare = [] {};
    std::vector<Contestant> all = {
        {"read", prepare, [&] { Require(ReadWithOurs(block.data(), size), "read"); }, {}},
        {"inflate + crc32",
         prepare,
         [&] { Require(InflateAndCheck(entry, block.data()), "inflate"); },
         {}},
        {"libarchive",
         prepare,
         [&] { Require(ReadWithLibarchive(block.data(), size) == size, "libarchive"); },
         {}},
        {"unzip -p (a process)",
         prepare,
         [] { Require(std::system("unzip -p bench.zip member >/dev/null") == 0, "unzip"); },
         {}},
    };
    std::printf("%s, %.2f MB from %.2f MB\n", what, static_cast<double>(entry.size) / 1e6,
                static_cast<double>(entry.packedSize) / 1e6);
    RunInTurn(all, kRounds);
    for (const Contestant& one : all)
        std::printf("  %-46s %8.3f ms\n", one.name.c_str(), one.Best() * 1000);
    goals.Check("read / inflate + crc32", all[0].Best() / all[1].Best(), 1.10);
    goals.Check("read / libarchive", all[0].Best() / all[2].Best(), 1.05);
    goals.Check("read / unzip", all[0].Best() / all[3].Best(), 0.5);
    Require(ReadWithOurs(block.data(), size) && block == data, "same contents");
    std::remove(kFile);
}

} // namespace

int main()
{
    CGoals goals;
    Measure("picture", PictureFile(), goals);
    Measure("database", DatabaseFile(), goals);
    return goals.Finish();
}
