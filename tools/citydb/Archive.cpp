#include "tools/citydb/Archive.h"

#include "dialogs/city/CityImage.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Files.h"
#include "tools/citydb/ZipFile.h"

namespace citydb
{

namespace
{

constexpr const char* kMember = "Database.dat";
constexpr const char* kArchive = "CitiesDb.dat";
constexpr uint64_t kImageLimit = 256 << 20;

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
        ReplaceFile(path, [&](const std::filesystem::path& temporary)
                    { WriteZip(temporary, kMember, image); });
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
        return CLoadedImage(ReadZip(file, kMember, kImageLimit));
    return CLoadedImage(Bytes(text));
}

} // namespace citydb
