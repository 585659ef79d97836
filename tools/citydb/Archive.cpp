#include "tools/citydb/Archive.h"

#include "dialogs/city/CityImage.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"

#include <cstring>
#include <memory>

#include <zip.h>

namespace citydb
{

namespace
{

constexpr const char* kMember = "Database.dat";
constexpr const char* kArchive = "CitiesDb.dat";
constexpr uint64_t kImageLimit = 256 << 20;
// Deflate can't shrink data further than this.
constexpr uint64_t kDeflateLimit = 1032;
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

void WriteZip(const std::filesystem::path& path, const std::vector<uint8_t>& image)
{
    UniqueZip archive = OpenZip(path, ZIP_CREATE | ZIP_TRUNCATE);
    zip_source_t* source = zip_source_buffer(archive.get(), image.data(), image.size(), 0);
    if (source == nullptr)
        FailZip(path, archive.get());
    const zip_int64_t added = zip_file_add(archive.get(), kMember, source, ZIP_FL_ENC_UTF_8);
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
    archive.release();
}

std::vector<uint8_t> ReadZip(const std::filesystem::path& path)
{
    const UniqueZip archive = OpenZip(path, ZIP_RDONLY);
    zip_stat_t info;
    zip_stat_init(&info);
    if (zip_stat(archive.get(), kMember, ZIP_FL_NOCASE, &info) != 0)
        throw CInputError(path.string() + ": holds no member " + kMember);
    if (info.size > kImageLimit || info.size > kDeflateLimit * info.comp_size + 64)
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

std::vector<uint8_t> Bytes(const std::string& text)
{
    return std::vector<uint8_t>(text.begin(), text.end());
}

// The file that holds the image when `path` is a folder of one of the usual kinds.
std::filesystem::path Inside(const std::filesystem::path& path)
{
    std::error_code ignored;
    for (const auto& candidate : {path / kMember, path / kArchive})
    {
        if (std::filesystem::exists(candidate, ignored))
            return candidate;
    }
    throw CInputError(path.string() + ": the folder holds neither " + kMember + " nor " + kArchive);
}

} // namespace

std::filesystem::path ArchivePath(const std::filesystem::path& out, ArchiveForm form)
{
    std::error_code ignored;
    if (form == ArchiveForm::Folder)
        return out / kArchive;
    if (std::filesystem::is_directory(out, ignored))
        return out / (form == ArchiveForm::Zip ? kArchive : kMember);
    return out;
}

void WriteArchive(const std::filesystem::path& path, ArchiveForm form,
                  const std::vector<uint8_t>& image)
{
    const std::filesystem::path folder =
        form == ArchiveForm::Folder ? path : std::filesystem::absolute(path).parent_path();
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw CInputError(folder.string() + ": the folder can't be made: " + error.message());
    if (form == ArchiveForm::Zip)
        ReplaceFile(path,
                    [&](const std::filesystem::path& temporary) { WriteZip(temporary, image); });
    else
        WriteFile(form == ArchiveForm::Folder ? path / kMember : path, image);
}

CLoadedImage::CLoadedImage(std::vector<uint8_t> image) : m_bytes(std::move(image))
{
    m_bytes.resize(m_bytes.size() + kCityImagePadding);
}

size_t CLoadedImage::Size() const
{
    return m_bytes.size() - kCityImagePadding;
}

CLoadedImage ReadArchive(const std::filesystem::path& path)
{
    std::filesystem::path file = path;
    std::error_code ignored;
    // The usual folder may lie in the given one.
    for (int depth = 0; depth < 2 && std::filesystem::is_directory(file, ignored); ++depth)
        file = Inside(file);
    std::string text = ReadFile(file, kImageLimit);
    if (text.compare(0, 2, "PK") == 0)
        return CLoadedImage(ReadZip(file));
    return CLoadedImage(Bytes(text));
}

} // namespace citydb
