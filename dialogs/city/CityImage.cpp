#include "dialogs/city/CityImage.h"

#include "frame/TavException.h"
#include "platform/Bytes.h"

namespace
{

constexpr uint32_t kVersion = 2;
constexpr size_t kHeadSize = 8;
constexpr size_t kTableSize = 12;
// The fields of a city's record that are read.
constexpr size_t kCitySize = 20;
// The details stand behind the record's first field.
constexpr size_t kDetailsOffset = 4;

} // namespace

bool CCityImage::IsUsable(const uint8_t* data, size_t size)
{
    return data != nullptr && size >= sizeof(uint32_t) && bytes::GetU32LE(data) == kVersion;
}

CityTable CCityImage::Descriptor(uint32_t table) const
{
    if (!IsPresent() || m_size < kHeadSize || table >= bytes::GetU32LE(m_data + 4))
        ThrowBroken();
    const uint64_t position = kHeadSize + uint64_t{kTableSize} * table;
    if (position + kTableSize > m_size)
        ThrowBroken();
    const uint8_t* const entry = m_data + position;
    return {bytes::GetU32LE(entry), bytes::GetU32LE(entry + 4), bytes::GetU32LE(entry + 8)};
}

const uint8_t* CCityImage::Record(uint32_t table, uint32_t record, size_t needed) const
{
    const CityTable descriptor = Descriptor(table);
    if (record >= descriptor.RecordCount)
        ThrowBroken();
    const uint64_t position =
        descriptor.FirstRecord + uint64_t{descriptor.RecordSize} * uint64_t{record};
    if (position > m_size || m_size - position < needed)
        ThrowBroken();
    return m_data + position;
}

const Char16* CCityImage::StringAt(uint32_t offset) const
{
    if (!HasTextAt(offset))
        ThrowBroken();
    return reinterpret_cast<const Char16*>(m_data + offset);
}

uint32_t CCityImage::CityCount() const
{
    const CityTable cities = Descriptor(Cities);
    if (cities.RecordSize < kCitySize || cities.FirstRecord > m_size)
        ThrowBroken();
    if (cities.RecordCount > (m_size - cities.FirstRecord) / cities.RecordSize)
        ThrowBroken();
    return cities.RecordCount;
}

CityRecord CCityImage::City(uint32_t record) const
{
    const uint8_t* const fields = Record(Cities, record, kCitySize);
    return {bytes::GetU32LE(fields), bytes::GetU32LE(fields + 4), bytes::GetU32LE(fields + 8),
            bytes::GetU32LE(fields + 12), bytes::GetU32LE(fields + 16)};
}

const uint8_t* CCityImage::DetailsOf(uint32_t record) const
{
    return Record(Details, record, kDetailsOffset + kCityDetailsSize) + kDetailsOffset;
}

// Byte by byte: on the handheld an odd address must not be read at once.
Char16 CityUnit(const Char16* text)
{
    return static_cast<Char16>(bytes::GetU16LE(reinterpret_cast<const uint8_t*>(text)));
}
