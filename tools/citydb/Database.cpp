#include "tools/citydb/Database.h"

#include "frame/TavException.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/Text.h"

#include <algorithm>
#include <iterator>

namespace citydb
{

namespace
{

// The list asks for its cells with a buffer of this many characters.
constexpr size_t kCellSize = 260;

String16 TextFrom(const Char16* text)
{
    String16 copy;
    for (Char16 unit = CityUnit(text); unit != 0; unit = CityUnit(++text))
        copy += unit;
    return copy;
}

} // namespace

CDatabase::CDatabase(const std::filesystem::path& path)
    : m_block(ReadArchive(path)), m_image(m_block.Data(), m_block.Size())
{
    if (!CCityImage::IsUsable(m_block.Data(), m_block.Size()))
        throw CInputError(path.string() + ": is no image of version 2");
}

std::string CDatabase::NameOf(const CityRecord& city) const
{
    return ToUtf8(TextFrom(m_image.StringAt(city.Name)));
}

std::string CDatabase::AreaOf(const CityRecord& city) const
{
    Char16 cell[kCellSize];
    FormatCityArea(m_image, city, cell, kCellSize);
    return ToUtf8(
        StringView16(cell, static_cast<size_t>(std::find(cell, std::end(cell), u'\0') - cell)));
}

void GuardBrokenImage(const std::string& file, const std::function<void()>& work)
{
    try
    {
        work();
    }
    catch (const CTavException&)
    {
        throw CInputError(file + ": the image is broken; \"citydb check\" says where");
    }
}

} // namespace citydb
