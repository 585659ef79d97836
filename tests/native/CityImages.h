// Small city images for tests and fuzzing, a table of lower-case forms, and the search as a plain
// reading of its rules, which the real one must agree with.
#pragma once

#include "dialogs/city/CityImage.h"
#include "frame/TavException.h"
#include "platform/Bytes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

using Bytes = std::vector<uint8_t>;

// An image in a block of exactly its size and padding, so that the address sanitizer sees every
// step beyond it.
class CHeldImage
{
public:
    explicit CHeldImage(const Bytes& bytes)
        : m_block(new uint8_t[bytes.size() + kCityImagePadding]()), m_size(bytes.size())
    {
        std::copy(bytes.begin(), bytes.end(), m_block.get());
    }
    CCityImage View() const { return CCityImage(m_block.get(), m_size); }

private:
    std::unique_ptr<uint8_t[]> m_block;
    size_t m_size;
};

// Puts an image together: the head, then the texts in the order of their calls, then the tables.
class CCityImageBuilder
{
public:
    // Bytes from one record to the next.
    uint32_t PlaceSize = 8;
    uint32_t DetailsSize = 4 + kCityDetailsSize;
    uint32_t CitySize = 20;

    // Return a text's offset in the image. The second one adds no zero.
    uint32_t Text(StringView16 text)
    {
        const uint32_t offset = Units(text);
        m_texts.insert(m_texts.end(), 2, 0);
        return offset;
    }
    uint32_t Units(StringView16 units)
    {
        const uint32_t offset = kHead + static_cast<uint32_t>(m_texts.size());
        for (const Char16 unit : units)
        {
            m_texts.push_back(static_cast<uint8_t>(unit & 0xFF));
            m_texts.push_back(static_cast<uint8_t>(unit >> 8));
        }
        return offset;
    }
    void Raw(const Bytes& raw) { m_texts.insert(m_texts.end(), raw.begin(), raw.end()); }

    void Area(StringView16 name) { Put(0, PlaceSize, {0xAAAAAAAA, Text(name)}); }
    void Subarea(StringView16 name) { Put(1, PlaceSize, {0xBBBBBBBB, Text(name)}); }
    // 172 bytes that count up from `first`.
    void Details(uint8_t first)
    {
        Put(2, DetailsSize, {0xCCCCCCCC});
        uint8_t* const record = m_tables[2].data() + m_tables[2].size() - DetailsSize;
        for (size_t i = 0; i < kCityDetailsSize; ++i)
            record[4 + i] = static_cast<uint8_t>(first + i);
    }
    void City(const CityRecord& city)
    {
        Put(3, CitySize, {city.Identifier, city.Name, city.Area, city.Subarea, city.Details});
    }
    // A city of the first area, numbered from 1.
    void City(StringView16 name) { CityAt(Text(name)); }
    void CityAt(uint32_t nameOffset)
    {
        City({++m_lastIdentifier, nameOffset, 0, kNoCityRecord, kNoCityRecord});
    }

    Bytes Build() const
    {
        Bytes image = {2, 0, 0, 0, 4, 0, 0, 0};
        const uint32_t sizes[] = {PlaceSize, PlaceSize, DetailsSize, CitySize};
        auto at = kHead + static_cast<uint32_t>(m_texts.size());
        for (size_t table = 0; table < 4; ++table)
        {
            const auto size = static_cast<uint32_t>(m_tables[table].size());
            for (const uint32_t field : {at, size / sizes[table], sizes[table]})
                Append(image, field);
            at += size;
        }
        image.insert(image.end(), m_texts.begin(), m_texts.end());
        for (const Bytes& table : m_tables)
            image.insert(image.end(), table.begin(), table.end());
        return image;
    }

private:
    static constexpr uint32_t kHead = 8 + 4 * 12;

    static void Append(Bytes& bytes, uint32_t field)
    {
        bytes.resize(bytes.size() + 4);
        bytes::PutU32LE(bytes.data() + bytes.size() - 4, field);
    }
    // A record with these fields; what follows them is not zero, so that reading it shows.
    void Put(size_t table, uint32_t size, std::initializer_list<uint32_t> fields)
    {
        Bytes& records = m_tables[table];
        const size_t end = records.size() + size;
        for (const uint32_t field : fields)
            Append(records, field);
        records.resize(end, 0xEE);
    }

    Bytes m_texts;
    Bytes m_tables[4];
    uint32_t m_lastIdentifier = 0;
};

// Overwrites the field at a byte of an image.
inline void SetField(Bytes& image, size_t position, uint32_t value)
{
    bytes::PutU32LE(image.data() + position, value);
}

// Where a table's directory entry keeps its three fields.
constexpr size_t FirstRecordField(size_t table)
{
    return 8 + 12 * table;
}
constexpr size_t RecordCountField(size_t table)
{
    return 8 + 12 * table + 4;
}
constexpr size_t RecordSizeField(size_t table)
{
    return 8 + 12 * table + 8;
}

// Lower-case forms of the letters that the tests use; the signs for kelvin and angstrom and the
// capital I with a dot have forms that other letters have, too.
inline const Char16* TestFold()
{
    static const auto table = []
    {
        std::array<Char16, 0x10000> fold;
        for (size_t i = 0; i < fold.size(); ++i)
            fold[i] = static_cast<Char16>(i);
        const auto range = [&fold](size_t first, size_t last, int distance)
        {
            for (size_t i = first; i <= last; ++i)
                fold[i] = static_cast<Char16>(static_cast<int>(i) + distance);
        };
        range('A', 'Z', 0x20);
        range(0xC0, 0xD6, 0x20);
        range(0xD8, 0xDE, 0x20);
        range(0x391, 0x3A9, 0x20);
        range(0x410, 0x42F, 0x20);
        range(0x400, 0x40F, 0x50);
        for (size_t i = 0x100; i < 0x130; i += 2)
            fold[i] = static_cast<Char16>(i + 1);
        fold[0x130] = 'i';
        fold[0x178] = 0xFF;
        fold[0x212A] = 'k';
        fold[0x212B] = 0xE5;
        return fold;
    }();
    return table.data();
}

// The search, rule by rule, with a copy of each name.
class CPlainSearch
{
public:
    explicit CPlainSearch(const Char16* fold) : m_fold(fold) {}

    void Attach(const CCityImage& image)
    {
        m_image = image;
        m_previous.clear();
        Index.assign(image.CityCount(), 0);
    }

    uint32_t Search(const String16& text, bool restart, uint32_t currentCount)
    {
        uint32_t candidates = currentCount;
        if (restart || Folded(text.substr(0, m_previous.size())) != Folded(m_previous))
        {
            candidates = static_cast<uint32_t>(Index.size());
            for (uint32_t i = candidates; i-- > 0;)
                Index[i] = i;
        }
        uint32_t found = candidates;
        if (!text.empty())
        {
            found = 0;
            for (uint32_t i = 0; i < candidates; ++i)
                if (At(i); Folded(NameOf(Index[i])).find(text) != String16::npos)
                    Index[found++] = Index[i];
        }
        m_previous = text;
        return found;
    }

    uint32_t At(size_t position) const
    {
        if (position >= Index.size())
            ThrowBroken();
        return Index[position];
    }

    std::vector<uint32_t> Index;

private:
    String16 NameOf(uint32_t city) const
    {
        const Char16* name = m_image.StringAt(m_image.City(city).Name);
        String16 copy;
        for (; CityUnit(name) != 0; ++name)
            copy += CityUnit(name);
        return copy;
    }
    String16 Folded(String16 text) const
    {
        for (Char16& unit : text)
            unit = m_fold[unit];
        return text;
    }

    const Char16* m_fold;
    CCityImage m_image;
    String16 m_previous;
};
