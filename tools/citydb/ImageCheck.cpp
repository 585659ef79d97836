#include "tools/citydb/ImageCheck.h"

#include "dialogs/city/CityImage.h"
#include "platform/Bytes.h"
#include "tools/citydb/CityRow.h"
#include "tools/citydb/DetailsCheck.h"
#include "tools/citydb/ImageLayout.h"
#include "tools/citydb/TextCheck.h"

#include <algorithm>
#include <cstdio>
#include <unordered_map>

namespace citydb
{

namespace
{

constexpr size_t kRecordNameUnits = 31;
const char* const kTableNames[kImageTableCount] = {"areas", "subareas", "details", "cities"};

std::string Hex(uint64_t number)
{
    char text[24];
    std::snprintf(text, sizeof(text), "0x%llX", static_cast<unsigned long long>(number));
    return text;
}

std::string TableName(uint32_t table)
{
    return "table " + std::to_string(table) + " (" + kTableNames[table] + ")";
}

// One check of one image; the steps build on each other.
class CChecker
{
public:
    CChecker(const uint8_t* image, size_t size) : m_image(image), m_size(size), m_texts(image, size)
    {
    }

    CheckResult Check()
    {
        if (CheckHead() && CheckDirectory())
        {
            CheckOverlaps();
            CheckRegions(CCityImage::Areas);
            CheckRegions(CCityImage::Subareas);
            CheckDetails();
            CheckCities();
        }
        return std::move(m_result);
    }

private:
    struct Extent
    {
        uint64_t Begin;
        uint64_t End;
    };

    void Fault(const std::string& text)
    {
        if (m_result.FaultCount++ < kFaultsKept)
            m_result.Faults.push_back(text);
    }

    void Fault(uint32_t table, uint32_t record, const std::string& text)
    {
        Fault(TableName(table) + ", record " + std::to_string(record) + " at " +
              Hex(PositionOf(table, record)) + ": " + text);
    }

    bool CheckHead()
    {
        if (m_size < kImageHeaderSize)
        {
            Fault("the image ends (" + Hex(m_size) + ") before its head does (" +
                  Hex(kImageHeaderSize) + ")");
            return false;
        }
        const uint32_t version = bytes::GetU32LE(m_image);
        if (version != kImageVersion)
            Fault("version at 0x0 is " + std::to_string(version) + " instead of 2");
        const uint32_t count = bytes::GetU32LE(m_image + 4);
        if (count < kImageTableCount)
            Fault("table count at 0x4 is " + std::to_string(count) + ": four tables are needed");
        m_directoryEnd = kImageHeaderSize + uint64_t{count} * kImageEntrySize;
        if (m_directoryEnd > m_size)
            Fault("the directory of " + std::to_string(count) + " tables ends (" +
                  Hex(m_directoryEnd) + ") behind the end of the image (" + Hex(m_size) + ")");
        return m_result.FaultCount == 0;
    }

    bool CheckDirectory()
    {
        for (uint32_t table = 0; table < kImageTableCount; ++table)
        {
            const uint32_t position = kImageHeaderSize + table * kImageEntrySize;
            const uint8_t* entry = m_image + position;
            m_tables[table] = {bytes::GetU32LE(entry), bytes::GetU32LE(entry + 4),
                               bytes::GetU32LE(entry + 8)};
            CheckEntry(table, position);
            m_result.Counts[table] = m_tables[table].RecordCount;
        }
        return m_result.FaultCount == 0;
    }

    void CheckEntry(uint32_t table, uint32_t position)
    {
        const CityTable& entry = m_tables[table];
        const std::string where = TableName(table) + ", directory entry at " + Hex(position) + ": ";
        if (entry.FirstRecord < m_directoryEnd)
            Fault(where + "first record " + Hex(entry.FirstRecord) +
                  " lies in the directory, which ends at " + Hex(m_directoryEnd));
        if (entry.FirstRecord > m_size)
            Fault(where + "first record " + Hex(entry.FirstRecord) + " lies behind the end (" +
                  Hex(m_size) + ")");
        if (entry.RecordSize < kImageRecordSizes[table])
            Fault(where + "record size " + std::to_string(entry.RecordSize) + " is below " +
                  std::to_string(kImageRecordSizes[table]));
        const Extent extent = ExtentOf(table);
        if (extent.End > m_size && entry.FirstRecord <= m_size)
            Fault(where + std::to_string(entry.RecordCount) + " records of " +
                  std::to_string(entry.RecordSize) + " bytes end (" + Hex(extent.End) +
                  ") behind the end (" + Hex(m_size) + ")");
    }

    void CheckOverlaps()
    {
        for (uint32_t a = 0; a < kImageTableCount; ++a)
        {
            for (uint32_t b = a + 1; b < kImageTableCount; ++b)
            {
                const Extent left = ExtentOf(a);
                const Extent right = ExtentOf(b);
                if (std::max(left.Begin, right.Begin) < std::min(left.End, right.End))
                    Fault(TableName(b) + " from " + Hex(right.Begin) + " to " + Hex(right.End) +
                          " overlaps " + TableName(a) + " from " + Hex(left.Begin) + " to " +
                          Hex(left.End));
            }
        }
    }

    void CheckRegions(uint32_t table)
    {
        for (uint32_t i = 0; i < m_tables[table].RecordCount; ++i)
            CheckText(table, i, bytes::GetU32LE(RecordAt(table, i) + 4));
    }

    void CheckDetails()
    {
        for (uint32_t i = 0; i < m_tables[CCityImage::Details].RecordCount; ++i)
        {
            const uint8_t* record = RecordAt(CCityImage::Details, i);
            for (const std::string& fault : FindDetailFaults(record + 4))
                Fault(CCityImage::Details, i, fault);
        }
    }

    void CheckCities()
    {
        uint32_t lastName = 0;
        for (uint32_t i = 0; i < m_tables[CCityImage::Cities].RecordCount; ++i)
        {
            const uint8_t* record = RecordAt(CCityImage::Cities, i);
            const CityRecord city = {bytes::GetU32LE(record), bytes::GetU32LE(record + 4),
                                     bytes::GetU32LE(record + 8), bytes::GetU32LE(record + 12),
                                     bytes::GetU32LE(record + 16)};
            if (CheckText(CCityImage::Cities, i, city.Name) &&
                m_texts.LengthAt(city.Name, kRecordNameUnits + 1) > kRecordNameUnits)
                ++m_result.LongNames;
            m_result.NamesInOrder = m_result.NamesInOrder && city.Name >= lastName;
            lastName = city.Name;
            CheckIndex(i, "area index", city.Area, CCityImage::Areas);
            if (city.Subarea != kNoCityRecord)
                CheckIndex(i, "subarea index", city.Subarea, CCityImage::Subareas);
            if (city.Details != kNoCityRecord)
                CheckDetailsOwner(i, city);
            CheckIdentifier(i, city);
        }
    }

    bool CheckIndex(uint32_t record, const char* what, uint32_t index, uint32_t table)
    {
        const uint32_t count = m_tables[table].RecordCount;
        if (index < count)
            return true;
        Fault(CCityImage::Cities, record,
              std::string(what) + " " + std::to_string(index) + " is not below the " +
                  std::to_string(count) + " records of " + TableName(table));
        return false;
    }

    void CheckDetailsOwner(uint32_t record, const CityRecord& city)
    {
        if (!CheckIndex(record, "details index", city.Details, CCityImage::Details))
            return;
        const uint32_t owner = bytes::GetU32LE(RecordAt(CCityImage::Details, city.Details));
        if (owner != city.Identifier)
            Fault(CCityImage::Cities, record,
                  "identifier " + std::to_string(city.Identifier) + " has the details of " +
                      std::to_string(owner));
    }

    // A spelling without accents repeats the identifier of its place.
    void CheckIdentifier(uint32_t record, const CityRecord& city)
    {
        if (IsReservedIdentifier(city.Identifier))
            Fault(CCityImage::Cities, record,
                  "identifier " + std::to_string(city.Identifier) + " stands for no city");
        const auto [first, isNew] = m_identifiers.emplace(city.Identifier, record);
        if (isNew)
            return;
        const uint8_t* other = RecordAt(CCityImage::Cities, first->second);
        if (bytes::GetU32LE(other + 8) != city.Area || bytes::GetU32LE(other + 16) != city.Details)
            Fault(CCityImage::Cities, record,
                  "identifier " + std::to_string(city.Identifier) + " is that of record " +
                      std::to_string(first->second) + ", which is another place");
    }

    bool CheckText(uint32_t table, uint32_t record, uint32_t offset)
    {
        const std::string fault = TextFault(offset);
        if (!fault.empty())
            Fault(table, record, "name offset " + Hex(offset) + " " + fault);
        return fault.empty();
    }

    std::string TextFault(uint32_t offset)
    {
        if (uint64_t{offset} + 2 > m_size)
            return "lies behind the end (" + Hex(m_size) + ")";
        if (offset < m_directoryEnd)
            return "lies in the directory, which ends at " + Hex(m_directoryEnd);
        for (uint32_t table = 0; table < kImageTableCount; ++table)
        {
            const Extent extent = ExtentOf(table);
            if (offset >= extent.Begin && offset < extent.End)
                return "lies in " + TableName(table) + " from " + Hex(extent.Begin) + " to " +
                       Hex(extent.End);
        }
        if (offset % 2 != 0)
            return "is odd";
        const TextState state = m_texts.StateAt(offset);
        if (state == TextState::NoEnd)
            return "begins a text without an end: no zero before the end (" + Hex(m_size) + ")";
        if (state == TextState::BrokenPair)
            return "begins a text with half a surrogate pair";
        return m_texts.LengthAt(offset, 1) == 0 ? "begins an empty text" : "";
    }

    Extent ExtentOf(uint32_t table) const
    {
        const CityTable& entry = m_tables[table];
        return {entry.FirstRecord,
                entry.FirstRecord + uint64_t{entry.RecordCount} * entry.RecordSize};
    }

    uint64_t PositionOf(uint32_t table, uint32_t record) const
    {
        return m_tables[table].FirstRecord + uint64_t{record} * m_tables[table].RecordSize;
    }

    // The directory was checked, so that every record lies inside.
    const uint8_t* RecordAt(uint32_t table, uint32_t record) const
    {
        return m_image + PositionOf(table, record);
    }

    const uint8_t* m_image;
    size_t m_size;
    CTextCheck m_texts;
    uint64_t m_directoryEnd = 0;
    CityTable m_tables[kImageTableCount] = {};
    std::unordered_map<uint32_t, uint32_t> m_identifiers; // the first record of each
    CheckResult m_result;
};

} // namespace

CheckResult CheckImage(const uint8_t* image, size_t size)
{
    return CChecker(image, size).Check();
}

} // namespace citydb
