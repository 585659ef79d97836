// The city database as it lies in memory: four tables and the texts that they point to, read in
// place. Whatever the image holds, nothing is read outside of it.
#pragma once

#include "platform/Char16.h"

#include <cstddef>
#include <cstdint>

// One entry of the table directory.
struct CityTable
{
    uint32_t FirstRecord; // bytes from the image's start
    uint32_t RecordCount;
    uint32_t RecordSize; // bytes from one record to the next
};

// The fields of one city's record.
struct CityRecord
{
    uint32_t Identifier;
    uint32_t Name;    // offset of the text
    uint32_t Area;    // record number in the area table
    uint32_t Subarea; // record number in the subarea table, or kNoCityRecord
    uint32_t Details; // record number in the details table, or kNoCityRecord
};

constexpr uint32_t kNoCityRecord = 0xFFFFFFFF;
constexpr size_t kCityDetailsSize = 172;
// Zero bytes that stand behind every image in memory, so that each text in it ends.
constexpr size_t kCityImagePadding = 4;

// A view of an image; the memory belongs to somebody else and must outlive it. What asks for
// something outside the image throws CTavException with 0x84000001.
class CCityImage
{
public:
    enum Table : uint32_t
    {
        Areas = 0,
        Subareas = 1,
        Details = 2,
        Cities = 3
    };

    // No image: every look-up throws.
    CCityImage() = default;
    // `data` holds `size` bytes of image and kCityImagePadding zero bytes behind them.
    CCityImage(const uint8_t* data, size_t size) : m_data(data), m_size(size) {}

    // True when the block is an image of the version that is understood here.
    static bool IsUsable(const uint8_t* data, size_t size);

    bool IsPresent() const { return m_data != nullptr; }
    const uint8_t* Data() const { return m_data; }
    size_t Size() const { return m_size; }

    CityTable Descriptor(uint32_t table) const;
    // The address of a record of which at least `needed` bytes lie in the image.
    const uint8_t* Record(uint32_t table, uint32_t record, size_t needed) const;
    // The zero-terminated text at an offset. The address may be odd: read it unit by unit with
    // CityUnit, or hand it to the system.
    const Char16* StringAt(uint32_t offset) const;

    // Whether StringAt has a text there.
    bool HasTextAt(uint32_t offset) const
    {
        return IsPresent() && uint64_t{offset} + sizeof(Char16) <= m_size;
    }

    // The number of cities; throws too when the table could not hold as many, so that a count
    // is never larger than the image.
    uint32_t CityCount() const;
    CityRecord City(uint32_t record) const;
    // The kCityDetailsSize bytes of a details record.
    const uint8_t* DetailsOf(uint32_t record) const;

private:
    const uint8_t* m_data = nullptr;
    size_t m_size = 0;
};

// Reads one unit of a text that may lie at an odd address.
Char16 CityUnit(const Char16* text);

// Writes the text of the list's second column, "Area (Subarea)" or the area alone, cut to `size`
// characters with the terminating zero included; a size of 0 writes nothing. Throws as the look-ups
// do.
void FormatCityArea(const CCityImage& image, const CityRecord& city, Char16* buffer, size_t size);
