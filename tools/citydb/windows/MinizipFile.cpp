// Zip archives through minizip, the library that the dialogs read them with.
#include "tools/citydb/ZipFile.h"

#include "platform/Win.h"

#include "tools/citydb/Errors.h"

#include <algorithm>
#include <memory>

#include <unzip.h>
#include <zip.h>
// Leans on the others.
#include <iowin32.h>

namespace citydb
{

namespace
{

// The first day that zip archives can name, so that equal databases are equal bytes.
constexpr uLong kFixedDate = ((1 << 5) | 1) << 16;
constexpr size_t kChunk = 1 << 20;
constexpr int kAnyCase = 2;

struct CloseZip
{
    void operator()(void* archive) const { unzClose(archive); }
};

[[noreturn]] void Fail(const std::filesystem::path& path, const std::string& what)
{
    throw CInputError(path.string() + ": " + what);
}

// Files by their wide names.
zlib_filefunc64_def WideFiles()
{
    zlib_filefunc64_def functions = {};
    fill_win32_filefunc64W(&functions);
    return functions;
}

bool WriteChunks(zipFile archive, const std::vector<uint8_t>& image)
{
    for (size_t done = 0; done < image.size(); done += kChunk)
    {
        const size_t length = std::min(kChunk, image.size() - done);
        if (zipWriteInFileInZip(archive, image.data() + done, static_cast<unsigned>(length)) !=
            ZIP_OK)
            return false;
    }
    return true;
}

bool WriteMember(zipFile archive, const char* member, const std::vector<uint8_t>& image)
{
    zip_fileinfo info = {};
    info.dosDate = kFixedDate;
    if (zipOpenNewFileInZip(archive, member, &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                            Z_BEST_COMPRESSION) != ZIP_OK)
        return false;
    const bool written = WriteChunks(archive, image);
    return zipCloseFileInZip(archive) == ZIP_OK && written;
}

} // namespace

void WriteZip(const std::filesystem::path& path, const char* member,
              const std::vector<uint8_t>& image)
{
    zlib_filefunc64_def files = WideFiles();
    const zipFile archive = zipOpen2_64(path.c_str(), APPEND_STATUS_CREATE, nullptr, &files);
    if (!archive)
        Fail(path, "can't be created");
    const bool written = WriteMember(archive, member, image);
    if (zipClose(archive, nullptr) != ZIP_OK || !written)
        Fail(path, "can't be written");
}

std::vector<uint8_t> ReadZip(const std::filesystem::path& path, const char* member, uint64_t limit)
{
    zlib_filefunc64_def files = WideFiles();
    const std::unique_ptr<void, CloseZip> archive(unzOpen2_64(path.c_str(), &files));
    if (!archive)
        Fail(path, "is no zip archive");
    unz_file_info64 info;
    if (unzLocateFile(archive.get(), member, kAnyCase) != UNZ_OK ||
        unzGetCurrentFileInfo64(archive.get(), &info, nullptr, 0, nullptr, 0, nullptr, 0) != UNZ_OK)
        Fail(path, std::string("holds no member ") + member);
    if (info.uncompressed_size > limit ||
        IsBeyondDeflate(info.uncompressed_size, info.compressed_size))
        Fail(path, "its member claims " + std::to_string(info.uncompressed_size) + " bytes");
    // With any other method minizip would hand out the packed bytes.
    if (info.compression_method != 0 && info.compression_method != Z_DEFLATED)
        Fail(path, "its member is packed in an unknown way");
    if (unzOpenCurrentFile(archive.get()) != UNZ_OK)
        Fail(path, "its member can't be opened");
    std::vector<uint8_t> image(static_cast<size_t>(info.uncompressed_size));
    for (size_t done = 0; done < image.size();)
    {
        const size_t wanted = std::min(kChunk, image.size() - done);
        const int got =
            unzReadCurrentFile(archive.get(), image.data() + done, static_cast<unsigned>(wanted));
        if (got <= 0)
            Fail(path, "its member breaks off or is damaged at byte " + std::to_string(done));
        done += static_cast<size_t>(got);
    }
    // The checksum is compared when the member is closed.
    if (unzCloseCurrentFile(archive.get()) != UNZ_OK)
        Fail(path, "its member is damaged");
    return image;
}

} // namespace citydb
