// Zip archives through libzip.
#include "tools/citydb/ZipFile.h"

#include "tools/citydb/Errors.h"

#include <memory>

#include <zip.h>

namespace citydb
{

namespace
{

// The first day that zip archives can name, so that equal databases are equal bytes.
constexpr zip_uint16_t kFixedDate = (1 << 5) | 1;

struct DiscardZip
{
    void operator()(zip_t* archive) const { zip_discard(archive); }
};
using UniqueZip = std::unique_ptr<zip_t, DiscardZip>;

struct CloseZipFile
{
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};

UniqueZip OpenZip(const std::filesystem::path& path, int flags)
{
    int code = 0;
    UniqueZip archive(zip_open(path.c_str(), flags, &code));
    if (!archive)
    {
        zip_error_t error;
        zip_error_init_with_code(&error, code);
        const std::string why = zip_error_strerror(&error);
        zip_error_fini(&error);
        throw CInputError(path.string() + ": " + why);
    }
    return archive;
}

[[noreturn]] void FailZip(const std::filesystem::path& path, zip_t* archive)
{
    throw CInputError(path.string() + ": " + zip_strerror(archive));
}

} // namespace

void WriteZip(const std::filesystem::path& path, const char* member,
              const std::vector<uint8_t>& image)
{
    UniqueZip archive = OpenZip(path, ZIP_CREATE | ZIP_TRUNCATE);
    zip_source_t* source = zip_source_buffer(archive.get(), image.data(), image.size(), 0);
    if (source == nullptr)
        FailZip(path, archive.get());
    const zip_int64_t added = zip_file_add(archive.get(), member, source, ZIP_FL_ENC_UTF_8);
    if (added < 0)
    {
        zip_source_free(source);
        FailZip(path, archive.get());
    }
    const auto index = static_cast<zip_uint64_t>(added);
    if (zip_set_file_compression(archive.get(), index, ZIP_CM_DEFLATE, 9) != 0 ||
        zip_file_set_dostime(archive.get(), index, 0, kFixedDate, 0) != 0 ||
        zip_close(archive.get()) != 0)
        FailZip(path, archive.get());
    // Closed and freed.
    static_cast<void>(archive.release());
}

std::vector<uint8_t> ReadZip(const std::filesystem::path& path, const char* member, uint64_t limit)
{
    const UniqueZip archive = OpenZip(path, ZIP_RDONLY);
    zip_stat_t info;
    zip_stat_init(&info);
    if (zip_stat(archive.get(), member, ZIP_FL_NOCASE, &info) != 0)
        throw CInputError(path.string() + ": holds no member " + member);
    if (info.size > limit || IsBeyondDeflate(info.size, info.comp_size))
        throw CInputError(path.string() + ": its member claims " + std::to_string(info.size) +
                          " bytes");
    const std::unique_ptr<zip_file_t, CloseZipFile> file(
        zip_fopen_index(archive.get(), info.index, 0));
    if (!file)
        FailZip(path, archive.get());
    std::vector<uint8_t> image(info.size);
    size_t done = 0;
    while (done < image.size())
    {
        const zip_int64_t got = zip_fread(file.get(), image.data() + done, image.size() - done);
        if (got <= 0)
            throw CInputError(path.string() + ": its member breaks off or is damaged at byte " +
                              std::to_string(done));
        done += static_cast<size_t>(got);
    }
    // The checksum is compared when the end is read.
    char beyond;
    if (zip_fread(file.get(), &beyond, 1) != 0)
        throw CInputError(path.string() + ": its member is damaged");
    return image;
}

} // namespace citydb
