#include "tools/citydb/ImageWriter.h"

#include "dialogs/city/CityImage.h"
#include "platform/Bytes.h"
#include "tools/citydb/Errors.h"
#include "tools/citydb/ImageLayout.h"

#include <algorithm>
#include <unordered_map>

namespace citydb
{

namespace
{

// Grows the block of texts behind the records.
class CTexts
{
public:
    explicit CTexts(uint64_t begin) : m_begin(begin) {}

    // The offset of a text that is stored once, wherever it occurs.
    uint32_t Shared(const String16& text)
    {
        const auto known = m_known.find(text);
        return known != m_known.end() ? known->second
                                      : m_known.emplace(text, Add(text)).first->second;
    }

    // The offset of a text that only its neighbour can share.
    uint32_t BesidePrevious(const String16& text)
    {
        if (!m_hasPrevious || text != m_previous)
        {
            m_previousOffset = Add(text);
            m_previous = text;
            m_hasPrevious = true;
        }
        return m_previousOffset;
    }

    // Texts stored from now on are not shared with earlier ones.
    void BeginPart() { m_known.clear(); }

    const std::vector<uint8_t>& Bytes() const { return m_bytes; }

private:
    uint32_t Add(const String16& text)
    {
        const uint64_t offset = m_begin + m_bytes.size();
        if (offset + 2 * (text.size() + 1) > 0xFFFFFFFF)
            throw CInputError("the image would be larger than 4 GB");
        size_t end = m_bytes.size();
        m_bytes.resize(end + 2 * (text.size() + 1));
        for (const Char16 unit : text)
        {
            bytes::PutU16LE(&m_bytes[end], unit);
            end += 2;
        }
        return static_cast<uint32_t>(offset);
    }

    uint64_t m_begin;
    std::vector<uint8_t> m_bytes;
    std::unordered_map<String16, uint32_t> m_known;
    String16 m_previous;
    uint32_t m_previousOffset = 0;
    bool m_hasPrevious = false;
};

// Lays the tables out one behind the other and fills them.
class CImageBuilder
{
public:
    explicit CImageBuilder(const ImageTables& tables) : m_tables(tables)
    {
        uint64_t end = kImageDirectoryEnd;
        for (uint32_t table = 0; table < kImageTableCount; ++table)
        {
            m_first[table] = end;
            end += uint64_t{CountOf(table)} * kImageRecordSizes[table];
        }
        if (end > 0xFFFFFFFF)
            throw CInputError("the image would be larger than 4 GB");
        m_image.resize(static_cast<size_t>(end));
    }

    std::vector<uint8_t> Build()
    {
        WriteDirectory();
        CTexts texts(m_image.size());
        WriteRegions(CCityImage::Areas, m_tables.Areas, texts);
        WriteRegions(CCityImage::Subareas, m_tables.Subareas, texts);
        WriteDetails();
        texts.BeginPart();
        WriteCities(texts);
        m_image.insert(m_image.end(), texts.Bytes().begin(), texts.Bytes().end());
        return std::move(m_image);
    }

private:
    size_t CountOf(uint32_t table) const
    {
        const size_t counts[kImageTableCount] = {m_tables.Areas.size(), m_tables.Subareas.size(),
                                                 m_tables.Details.size(), m_tables.Cities.size()};
        return counts[table];
    }

    uint8_t* Record(uint32_t table, size_t record)
    {
        return m_image.data() + m_first[table] + record * kImageRecordSizes[table];
    }

    void WriteDirectory()
    {
        bytes::PutU32LE(m_image.data(), kImageVersion);
        bytes::PutU32LE(m_image.data() + 4, kImageTableCount);
        for (uint32_t table = 0; table < kImageTableCount; ++table)
        {
            uint8_t* entry = m_image.data() + kImageHeaderSize + table * kImageEntrySize;
            bytes::PutU32LE(entry, static_cast<uint32_t>(m_first[table]));
            bytes::PutU32LE(entry + 4, static_cast<uint32_t>(CountOf(table)));
            bytes::PutU32LE(entry + 8, kImageRecordSizes[table]);
        }
    }

    void WriteRegions(uint32_t table, const std::vector<ImageRegion>& regions, CTexts& texts)
    {
        for (size_t i = 0; i < regions.size(); ++i)
        {
            bytes::PutU32LE(Record(table, i), regions[i].Identifier);
            bytes::PutU32LE(Record(table, i) + 4, texts.Shared(regions[i].Name));
        }
    }

    void WriteDetails()
    {
        for (size_t i = 0; i < m_tables.Details.size(); ++i)
        {
            uint8_t* record = Record(CCityImage::Details, i);
            bytes::PutU32LE(record, m_tables.Details[i].Identifier);
            std::copy(m_tables.Details[i].Bytes.begin(), m_tables.Details[i].Bytes.end(),
                      record + 4);
        }
    }

    void WriteCities(CTexts& texts)
    {
        for (size_t i = 0; i < m_tables.Cities.size(); ++i)
        {
            const ImageCity& city = m_tables.Cities[i];
            uint8_t* record = Record(CCityImage::Cities, i);
            bytes::PutU32LE(record, city.Identifier);
            bytes::PutU32LE(record + 4, m_tables.NamesInOrder ? texts.BesidePrevious(city.Name)
                                                              : texts.Shared(city.Name));
            bytes::PutU32LE(record + 8, city.Area);
            bytes::PutU32LE(record + 12, city.Subarea);
            bytes::PutU32LE(record + 16, city.Details);
        }
    }

    const ImageTables& m_tables;
    std::vector<uint8_t> m_image;
    uint64_t m_first[kImageTableCount] = {};
};

} // namespace

std::vector<uint8_t> WriteImage(const ImageTables& tables)
{
    return CImageBuilder(tables).Build();
}

} // namespace citydb
