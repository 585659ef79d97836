#include "dialogs/city/CityNames.h"

#include "platform/Bytes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{

// Where a city's record keeps the offset of its name.
constexpr size_t kNameField = 4;

// A key sorts even offsets before odd ones, each by the unit.
constexpr uint32_t kOddKey = 0x80000000;

uint32_t KeyOf(uint32_t offset)
{
    return offset / 2 | (offset % 2 != 0 ? kOddKey : 0);
}

// A key and the city that it belongs to; the key stands higher.
using KeyedCity = uint64_t;

// Sorts by the keys, eleven bits at a time from the lowest, and leaves equal ones as they stood.
class CKeySort
{
public:
    explicit CKeySort(std::vector<KeyedCity>& all) : m_all(all), m_sorted(all.size())
    {
        for (unsigned shift = 32; shift < 64; shift += kBits)
            SortBy(shift);
    }

private:
    static constexpr unsigned kBits = 11;
    static constexpr uint32_t kDigits = 1u << kBits;

    void SortBy(unsigned shift)
    {
        std::array<size_t, kDigits> places = {};
        for (const KeyedCity one : m_all)
            ++places[(one >> shift) % kDigits];
        // Often the high bits are the same everywhere.
        if (places[(m_all.front() >> shift) % kDigits] == m_all.size())
            return;
        size_t place = 0;
        for (size_t& count : places)
            place += std::exchange(count, place);
        for (const KeyedCity one : m_all)
            m_sorted[places[(one >> shift) % kDigits]++] = one;
        m_all.swap(m_sorted);
    }

    std::vector<KeyedCity>& m_all;
    std::vector<KeyedCity> m_sorted;
};

// Whether each name ends right before the next one starts, without other zeros among them.
class CGapSearch
{
public:
    explicit CGapSearch(const NameRow& row) : m_row(row), m_name(row.Starts) {}

    bool FindsNone()
    {
        UnitPattern zero;
        zero.First.Add(0);
        zero.Last = zero.First;
        std::array<uint64_t, 64> marks;
        for (size_t at = *m_row.Starts; at <= m_row.End;)
        {
            const size_t rest = m_row.End + 1 - at;
            const size_t blocks = std::min(rest / kUnitsPerBlock, marks.size());
            const uint8_t* const units = m_row.Units + 2 * at;
            ScanUnits(units, blocks, zero, marks.data());
            if (blocks == 0)
                marks[0] = ScanFewUnits(units, rest, zero);
            for (size_t block = 0; block < std::max<size_t>(blocks, 1); ++block)
                if (!FitZeros(at + block * kUnitsPerBlock, marks[block]))
                    return false;
            at += blocks == 0 ? rest : blocks * kUnitsPerBlock;
        }
        return true;
    }

private:
    // The zeros of one block; false when one of them is not where it should be.
    bool FitZeros(size_t base, uint64_t zeros)
    {
        const uint32_t* const end = m_row.Starts + m_row.Count;
        for (; zeros != 0; zeros &= zeros - 1)
        {
            const size_t zero = base + LowestBit(zeros);
            const uint32_t start = *m_name;
            while (m_name != end && *m_name == start)
                ++m_name;
            if (m_name == end)
                return zero == m_row.End;
            if (*m_name != zero + 1)
                return false;
        }
        return true;
    }

    const NameRow& m_row;
    const uint32_t* m_name; // the first one that starts at the last zero
};

// For each block up to the row's end, how many of its names start before it.
void CountBefore(const NameRow& row, std::vector<uint32_t>& counts)
{
    counts.reserve(row.End / kUnitsPerBlock + 1);
    uint32_t name = 0;
    for (size_t unit = 0; unit <= row.End; unit += kUnitsPerBlock)
    {
        while (name != row.Count && row.Starts[name] < unit)
            ++name;
        counts.push_back(name);
    }
}

// One pass over a row. Every place where the text stands is a hit for each name that starts at or
// before it without a zero between them: texts may be shared, and may be the ends of others.
// The cost is linear in the row and in the names, however the names overlap.
template <class Sink>
class CRowSearch
{
public:
    // `sink` takes the positions of names in the row, rising and each at most once.
    CRowSearch(const NameRow& row, const FoldedText& text, const UnitPattern& pattern, Sink& sink)
        : m_row(row), m_text(text), m_pattern(pattern), m_sink(sink), m_next(row.Starts),
          m_end(row.Starts + row.Count), m_skipTo(*row.Starts)
    {
        const bool exact = pattern.First.IsExact() && pattern.Last.IsExact();
        // The scan has already looked at the text's both ends.
        m_checkFrom = exact ? 1 : 0;
        m_checkTo = exact ? text.Text.size() - 1 : text.Text.size();
    }

    void Run()
    {
        const size_t length = m_text.Text.size();
        const size_t end = m_row.End < length ? 0 : m_row.End - length + 1;
        std::array<uint64_t, kBlocksAtOnce> marks;
        while (m_skipTo < end)
        {
            size_t at = m_skipTo;
            const size_t blocks = std::min((end - at) / kUnitsPerBlock, kBlocksAtOnce);
            ScanUnits(UnitsAt(at), blocks, m_pattern, marks.data());
            for (size_t block = 0; block < blocks; ++block, at += kUnitsPerBlock)
                if (marks[block] != 0)
                    TakeMark(at, marks[block]);
            if (blocks == 0)
            {
                const size_t rest = end - at;
                TakeMark(at, ScanFewUnits(UnitsAt(at), rest, m_pattern));
                at = end;
            }
            m_skipTo = std::max(m_skipTo, at);
        }
    }

private:
    static constexpr size_t kBlocksAtOnce = 64;

    const uint8_t* UnitsAt(size_t unit) const { return m_row.Units + 2 * unit; }
    Char16 Unit(size_t unit) const { return static_cast<Char16>(bytes::GetU16LE(UnitsAt(unit))); }

    // The places that are marked in the block of units from `base` on.
    void TakeMark(size_t base, uint64_t mark)
    {
        for (;;)
        {
            if (m_skipTo >= base + kUnitsPerBlock)
                return;
            if (m_skipTo > base)
                mark &= ~uint64_t{0} << (m_skipTo - base);
            if (mark == 0)
                return;
            const size_t place = base + LowestBit(mark);
            mark &= mark - 1;
            if (IsHit(place))
                TakeHit(place);
        }
    }

    bool IsHit(size_t place) const
    {
        for (size_t i = m_checkFrom; i < m_checkTo; ++i)
            if (m_text.Fold[Unit(place + i)] != m_text.Text[i])
                return false;
        return true;
    }

    void TakeHit(size_t place)
    {
        const uint32_t* const behind = StartsBehind(place);
        const size_t begin = m_row.IsTidy ? behind[-1] : NameBegin(place);
        const uint32_t* name = behind;
        while (name != m_next && name[-1] >= begin)
            --name;
        for (; name != behind; ++name)
            m_sink(static_cast<size_t>(name - m_row.Starts));
        // Names that started before are either hits or end before this place.
        m_next = behind;
        m_skipTo = behind == m_end ? m_row.End : *behind;
    }

    // Where names may start that reach to a place: behind the last zero before it.
    size_t NameBegin(size_t place) const
    {
        while (place > *m_next && Unit(place - 1) != 0)
            --place;
        return place;
    }

    // The first name that starts behind a place.
    const uint32_t* StartsBehind(size_t place) const
    {
        const uint32_t* name = m_row.Starts + m_row.Blocks[place / kUnitsPerBlock];
        name = std::max(name, m_next);
        while (name != m_end && *name <= place)
            ++name;
        return name;
    }

    const NameRow& m_row;
    const FoldedText& m_text;
    const UnitPattern& m_pattern;
    Sink& m_sink;
    const uint32_t* m_next; // the first name that a hit may still belong to
    const uint32_t* const m_end;
    size_t m_skipTo; // no hit before this unit belongs to another name
    size_t m_checkFrom;
    size_t m_checkTo;
};

} // namespace

CCityNames::CCityNames(const CCityImage& image, uint32_t count)
    : m_image(image), m_count(count), m_firstBroken(count)
{
    if (count == 0)
        return;
    m_records = image.Record(CCityImage::Cities, 0, 0);
    m_recordSize = image.Descriptor(CCityImage::Cities).RecordSize;
    ReadStarts();
    Sort();
    FindRows();
}

uint32_t CCityNames::OffsetOf(uint32_t city) const
{
    return bytes::GetU32LE(m_records + m_recordSize * city + kNameField);
}

const uint8_t* CCityNames::NameOf(uint32_t city) const
{
    // The starts lie closer together than the records.
    if (IsInTableOrder())
        return m_rows[0].Units + sizeof(Char16) * m_starts[city];
    return reinterpret_cast<const uint8_t*>(m_image.StringAt(OffsetOf(city)));
}

void CCityNames::ReadStarts()
{
    m_starts.reserve(m_count);
    for (uint32_t city = 0; city < m_count; ++city)
    {
        const uint32_t offset = OffsetOf(city);
        if (!m_image.HasTextAt(offset))
        {
            // From here on the positions of names aren't the numbers of their cities any more.
            if (m_firstBroken == m_count)
            {
                m_firstBroken = city;
                m_order.reserve(m_count);
                for (uint32_t before = 0; before < city; ++before)
                    m_order.push_back(before);
            }
            continue;
        }
        m_starts.push_back(KeyOf(offset));
        if (m_firstBroken != m_count)
            m_order.push_back(city);
    }
}

void CCityNames::Sort()
{
    if (std::is_sorted(m_starts.begin(), m_starts.end()))
        return;
    std::vector<KeyedCity> all(m_starts.size());
    for (size_t i = 0; i < all.size(); ++i)
        all[i] = KeyedCity{m_starts[i]} << 32 | (m_order.empty() ? i : m_order[i]);
    CKeySort sort(all);
    m_order.resize(all.size());
    for (size_t i = 0; i < all.size(); ++i)
    {
        m_starts[i] = static_cast<uint32_t>(all[i] >> 32);
        m_order[i] = static_cast<uint32_t>(all[i]);
    }
}

void CCityNames::FindRows()
{
    const auto split = std::lower_bound(m_starts.begin(), m_starts.end(), kOddKey);
    m_rows[0].Count = static_cast<size_t>(split - m_starts.begin());
    m_rows[1].Count = m_starts.size() - m_rows[0].Count;
    std::for_each(split, m_starts.end(), [](uint32_t& key) { key &= ~kOddKey; });
    for (size_t odd = 0; odd < 2; ++odd)
    {
        NameRow& row = m_rows[odd];
        if (row.Count == 0)
            continue;
        row.Units = m_image.Data() + odd;
        row.Starts = m_starts.data() + (odd ? m_rows[0].Count : 0);
        row.End = row.Starts[row.Count - 1];
        while (bytes::GetU16LE(row.Units + 2 * row.End) != 0)
            ++row.End;
        CountBefore(row, m_blocks[odd]);
        row.Blocks = m_blocks[odd].data();
        row.IsTidy = CGapSearch(row).FindsNone();
    }
}

template <class Sink>
void CCityNames::Find(const FoldedText& text, Sink sink) const
{
    const UnitPattern pattern = {text.Units.UnitsFoldedTo(text.Text.front()),
                                 text.Units.UnitsFoldedTo(text.Text.back()), text.Text.size() - 1};
    // No name holds a zero, nor a unit that no unit is folded to.
    if (pattern.First.IsEmpty() || pattern.Last.IsEmpty() ||
        text.Text.find(Char16{0}) != StringView16::npos)
        return;
    size_t before = 0;
    for (const NameRow& row : m_rows)
    {
        auto inRow = [&](size_t name) { sink(static_cast<uint32_t>(before + name)); };
        if (row.Count != 0)
            CRowSearch<decltype(inRow)>(row, text, pattern, inRow).Run();
        before += row.Count;
    }
}

CityMarks CCityNames::Mark(const FoldedText& text) const
{
    CityMarks marks(m_count / 64 + 1);
    Find(text,
         [&](uint32_t name)
         {
             const uint32_t city = m_order.empty() ? name : m_order[name];
             marks[city / 64] |= uint64_t{1} << (city % 64);
         });
    return marks;
}

uint32_t CCityNames::List(const FoldedText& text, uint32_t* cities) const
{
    uint32_t* at = cities;
    if (IsInTableOrder())
    {
        Find(text, [&](uint32_t name) { *at++ = name; });
        return static_cast<uint32_t>(at - cities);
    }
    const CityMarks marks = Mark(text);
    for (size_t word = 0; word < marks.size(); ++word)
        for (uint64_t rest = marks[word]; rest != 0; rest &= rest - 1)
            *at++ = static_cast<uint32_t>(64 * word + LowestBit(rest));
    return static_cast<uint32_t>(at - cities);
}
