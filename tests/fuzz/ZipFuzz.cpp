// Fuzzes reading members of archives: what is read must have been said to be of that size and have
// the checksum that the directory tells, and nothing is written behind the buffer.
#include "skin/ZipArchive.h"
#include "tests/support/ZipMemory.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace
{

// Larger claims are left out: their memory is what takes the time.
constexpr uint32_t kMost = 1 << 22;

void Require(bool condition, const char* what)
{
    if (condition)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

void CheckContents(unzFile archive, const std::string& name, const uint8_t* data, uint32_t size)
{
    Require(unzLocateFile(archive, name.c_str(), 0) == UNZ_OK, "a member that was read is there");
    unz_file_info64 info = {};
    unzGetCurrentFileInfo64(archive, &info, nullptr, 0, nullptr, 0, nullptr, 0);
    Require(info.uncompressed_size == size, "size");
    Require(info.crc == crc32(0, data, size), "checksum");
    Require((info.flag & 1) == 0, "encryption");
    Require(info.compression_method == 0 || info.compression_method == 8, "method");
}

void CheckMember(unzFile archive, const std::string& name)
{
    const uint32_t size = skin::ZipMemberSize(archive, name.c_str());
    uint32_t attribute = 0;
    uint8_t little[16];
    if (skin::ReadZipMember(archive, name.c_str(), little, sizeof(little), attribute))
        Require(size <= sizeof(little), "a larger member is not read");
    if (size == 0 || size > kMost)
        return;
    const auto data = std::make_unique<uint8_t[]>(size);
    if (skin::ReadZipMember(archive, name.c_str(), data.get(), size, attribute))
        CheckContents(archive, name, data.get(), size);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const zip::CMemoryArchive archive(data, size);
    if (!archive.get())
        return 0;
    CheckMember(archive.get(), "a");
    char name[257] = {};
    // Every member by its own name, too, but not without end.
    int count = 0;
    for (int found = unzGoToFirstFile(archive.get()); found == UNZ_OK && count < 8; ++count)
    {
        unz_file_pos position = {};
        unzGetCurrentFileInfo64(archive.get(), nullptr, name, sizeof(name) - 1, nullptr, 0, nullptr,
                                0);
        unzGetFilePos(archive.get(), &position);
        CheckMember(archive.get(), name);
        unzGoToFilePos(archive.get(), &position);
        found = unzGoToNextFile(archive.get());
    }
    return 0;
}
