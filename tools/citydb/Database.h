// A database opened for the commands that look into it.
#pragma once

#include "dialogs/city/CityImage.h"
#include "tools/citydb/Archive.h"

#include <filesystem>
#include <functional>
#include <string>

namespace citydb
{

class CDatabase
{
public:
    // Throws CInputError when the file can't be read or is no image of the known version.
    explicit CDatabase(const std::filesystem::path& path);

    const CCityImage& Image() const { return m_image; }

    // In UTF-8; these throw CTavException when the image is broken there.
    std::string NameOf(const CityRecord& city) const;
    // What the dialog's second column shows.
    std::string AreaOf(const CityRecord& city) const;

private:
    CLoadedImage m_block;
    CCityImage m_image;
};

// Runs `work` and turns the exception of a broken image into a CInputError that names the file and
// tells how to learn more.
void GuardBrokenImage(const std::string& file, const std::function<void()>& work);

} // namespace citydb
