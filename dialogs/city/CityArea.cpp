// The text of the list's second column.
#include "dialogs/city/CityImage.h"

#include "platform/Bytes.h"

namespace
{

// Places and their parts are kept alike: the name's offset follows the first field.
constexpr size_t kPlaceSize = 8;
constexpr size_t kPlaceName = 4;

const Char16* PlaceName(const CCityImage& image, uint32_t table, uint32_t record)
{
    return image.StringAt(bytes::GetU32LE(image.Record(table, record, kPlaceSize) + kPlaceName));
}

// Fills a buffer from its front and drops what it has no room for.
class CCutText
{
public:
    CCutText(Char16* buffer, size_t size) : m_at(buffer), m_end(buffer + size) {}

    void Append(const Char16* text)
    {
        for (; m_at != m_end && CityUnit(text) != 0; ++text)
            *m_at++ = CityUnit(text);
    }
    // Puts a zero behind the text, if there is room.
    void Terminate()
    {
        if (m_at != m_end)
            *m_at = 0;
    }
    // Clears the whole rest of the buffer.
    void Pad()
    {
        while (m_at != m_end)
            *m_at++ = 0;
    }

private:
    Char16* m_at;
    Char16* const m_end;
};

} // namespace

void FormatCityArea(const CCityImage& image, const CityRecord& city, Char16* buffer, size_t size)
{
    const Char16* const area = PlaceName(image, CCityImage::Areas, city.Area);
    const Char16* const subarea = city.Subarea == kNoCityRecord
                                      ? nullptr
                                      : PlaceName(image, CCityImage::Subareas, city.Subarea);
    if (size == 0)
        return;
    CCutText text(buffer, size);
    text.Append(area);
    if (subarea)
    {
        text.Append(TEXT16(" ("));
        text.Append(subarea);
        text.Append(TEXT16(")"));
        text.Terminate();
    }
    else
    {
        text.Pad();
    }
    // Where the text was cut, and also where it ended before.
    buffer[size - 1] = 0;
}
