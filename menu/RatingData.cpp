#include "menu/RatingData.h"

#include <algorithm>
#include <unordered_map>

#include "frame/TextFormat.h"
#include "platform/Bytes.h"

namespace Ratings
{
namespace
{

constexpr size_t kWordBytes = 2;
constexpr size_t kPairBytes = 2 * kWordBytes;

bool EqualFolded(StringView16 left, StringView16 right, FoldFunction fold)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [fold](Char16 a, Char16 b) { return fold(a) == fold(b); });
}

// Moves the entry at `from` so that it stands at `to`; those between move up by one.
void MoveEntry(EntryList& entries, size_t from, size_t to)
{
    const auto place = [&](size_t position)
    { return entries.begin() + static_cast<std::ptrdiff_t>(position); };
    if (to < from)
        std::rotate(place(to), place(from), place(from + 1));
    else
        std::rotate(place(from), place(from + 1), place(to + 1));
}

// One placing of entries into slots, band by band.
class CPlacer
{
public:
    CPlacer(const EntryList& entries, std::vector<uint16_t>& hints, CPlacement& placement)
        : m_entries(entries), m_hints(hints), m_placement(placement),
          m_taken(placement.Slots.size(), false), m_placed(placement.Slots.size(), false)
    {
    }

    // The entries [first, last) go into the slots [first, last).
    void PlaceBand(size_t first, size_t last)
    {
        RememberSlots();
        for (size_t entry = first; entry < last; ++entry)
        {
            const auto slot = m_lastSlots.find(m_entries[entry].Number);
            if (slot != m_lastSlots.end() && slot->second >= first && slot->second < last &&
                !m_taken[slot->second])
                Put(entry, slot->second);
        }
        size_t slot = last;
        for (size_t entry = first; entry < last; ++entry)
        {
            if (m_placed[entry])
                continue;
            do
                --slot;
            while (m_taken[slot]);
            Put(entry, slot);
            SetHint(slot, m_entries[entry].Number);
        }
    }

private:
    // A number's last occurrence in the hints counts.
    void RememberSlots()
    {
        m_lastSlots.clear();
        for (size_t slot = 0; slot < m_hints.size(); ++slot)
            m_lastSlots[m_hints[slot]] = slot;
    }

    void Put(size_t entry, size_t slot)
    {
        m_placement.Slots[slot] = entry;
        m_taken[slot] = true;
        m_placed[entry] = true;
    }

    void SetHint(size_t slot, uint16_t number)
    {
        if (slot >= m_hints.size())
            m_hints.resize(slot + 1, kNoNumber);
        m_hints[slot] = number;
        m_placement.HintsChanged = true;
    }

    const EntryList& m_entries;
    std::vector<uint16_t>& m_hints;
    CPlacement& m_placement;
    std::vector<bool> m_taken;
    std::vector<bool> m_placed;
    std::unordered_map<uint16_t, size_t> m_lastSlots;
};

} // namespace

EntryList DecodeIndex(const uint8_t* data, size_t size)
{
    EntryList entries(size / kPairBytes);
    for (CEntry& entry : entries)
    {
        entry.Number = bytes::GetU16LE(data);
        entry.Weight = bytes::GetU16LE(data + kWordBytes);
        data += kPairBytes;
    }
    return entries;
}

std::vector<uint8_t> EncodeIndex(const EntryList& entries)
{
    std::vector<uint8_t> data;
    data.reserve(entries.size() * kPairBytes);
    for (const CEntry& entry : entries)
    {
        if (entry.Number == kNoNumber)
            continue;
        data.resize(data.size() + kPairBytes);
        uint8_t* const pair = data.data() + data.size() - kPairBytes;
        bytes::PutU16LE(pair, entry.Number);
        bytes::PutU16LE(pair + kWordBytes, entry.Weight);
    }
    return data;
}

std::vector<uint16_t> DecodeLayout(const uint8_t* data, size_t size)
{
    if (size % kWordBytes != 0)
        return {};
    std::vector<uint16_t> hints(size / kWordBytes);
    for (size_t slot = 0; slot < hints.size(); ++slot)
        hints[slot] = bytes::GetU16LE(data + slot * kWordBytes);
    return hints;
}

std::vector<uint8_t> EncodeLayout(const std::vector<uint16_t>& hints)
{
    std::vector<uint8_t> data(hints.size() * kWordBytes);
    for (size_t slot = 0; slot < hints.size(); ++slot)
        bytes::PutU16LE(data.data() + slot * kWordBytes, hints[slot]);
    return data;
}

size_t FindByName(const EntryList& entries, StringView16 name, FoldFunction fold)
{
    const auto found =
        std::find_if(entries.begin(), entries.end(),
                     [&](const CEntry& entry) { return EqualFolded(entry.Name, name, fold); });
    return static_cast<size_t>(found - entries.begin());
}

void Pin(EntryList& entries, StringView16 name, FoldFunction fold)
{
    const size_t position = FindByName(entries, name, fold);
    if (position == entries.size())
        entries.push_back({String16(name), kNoNumber, 0});
    else if (entries[position].IsPinned())
        return;
    CEntry& entry = entries[position];
    entry.Weight |= kPinnedBit;
    size_t target = position;
    while (target > 0 && entries[target - 1].Weight < entry.Weight)
        --target;
    MoveEntry(entries, position, target);
}

void Unpin(EntryList& entries, StringView16 name, FoldFunction fold)
{
    const size_t position = FindByName(entries, name, fold);
    if (position == entries.size() || !entries[position].IsPinned())
        return;
    CEntry& entry = entries[position];
    entry.Weight &= static_cast<uint16_t>(~kPinnedBit);
    size_t target = position;
    while (target + 1 < entries.size() && entries[target + 1].Weight > entry.Weight)
        ++target;
    MoveEntry(entries, position, target);
}

void Trim(EntryList& entries)
{
    while (entries.size() > kUsualLength && entries.back().Weight == 0)
        entries.pop_back();
}

CFreeNumbers::CFreeNumbers(const EntryList& entries) : m_used(kNoNumber, false)
{
    for (const CEntry& entry : entries)
        if (entry.Number != kNoNumber)
            m_used[entry.Number] = true;
}

uint16_t CFreeNumbers::Next()
{
    while (m_next < m_used.size() && m_used[m_next])
        ++m_next;
    return m_next == m_used.size() ? kNoNumber : static_cast<uint16_t>(m_next++);
}

String16 ValueName(uint16_t number)
{
    return DecimalText(number);
}

CPlacement Place(const EntryList& entries, size_t count, std::vector<uint16_t>& hints)
{
    CPlacement placement;
    const size_t taken = std::min(count, entries.size());
    placement.Slots.resize(taken);
    for (size_t entry = 0; entry < taken; ++entry)
        placement.Pinned += entries[entry].IsPinned() ? 1 : 0;

    CPlacer placer(entries, hints, placement);
    placer.PlaceBand(0, placement.Pinned);
    placer.PlaceBand(placement.Pinned, taken);
    return placement;
}

} // namespace Ratings
