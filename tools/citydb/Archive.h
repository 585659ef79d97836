// The three forms of a database: the plain image, a folder and a zip archive that hold it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace citydb
{

enum class ArchiveForm
{
    Zip,
    Folder,
    Image
};

// Where a database of that form is written for --out PATH: a zip or an image is the file PATH, or
// stands under its usual name in the folder PATH; a folder always stands under its usual name in
// PATH.
std::filesystem::path ArchivePath(const std::filesystem::path& out, ArchiveForm form);

// Writes the database to the place that ArchivePath gave. The same image gives the same bytes.
// Throws CInputError and leaves an earlier database as it was.
void WriteArchive(const std::filesystem::path& path, ArchiveForm form,
                  const std::vector<uint8_t>& image);

// An image in memory, with kCityImagePadding zero bytes behind it.
class CLoadedImage
{
public:
    explicit CLoadedImage(std::vector<uint8_t> image);
    const uint8_t* Data() const { return m_bytes.data(); }
    size_t Size() const;

private:
    std::vector<uint8_t> m_bytes;
};

// Reads a database of any form. Throws CInputError, also when the image is too large to be one.
CLoadedImage ReadArchive(const std::filesystem::path& path);

} // namespace citydb
