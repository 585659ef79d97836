// CGenericMap: a hash map with open addressing over groups of 32 slots, never more than half full.
// The translator keeps its texts in one. Pure: no windows.h.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Maps keys, compared with ==, to values; both are small things like pointers, copied as they are,
// and what they point to is not owned. A table that can't grow, because of MaxBits or for want of
// memory, drops what is stored beyond its capacity without a report: the owner's texts then lack
// some translations.
template <class Key, class Value, uint32_t MaxBits = 24>
class CGenericMap
{
public:
    static constexpr uint32_t kGroupBits = 5;
    static constexpr uint32_t kGroupSlots = 1u << kGroupBits;

    struct SlotPair
    {
        Key PairKey;
        Value PairValue;
    };

    // Bit i of Used tells whether slot i holds a pair.
    struct Group
    {
        uint32_t Used;
        SlotPair Pairs[kGroupSlots];
    };

    explicit CGenericMap(uint32_t initialBits)
        : InitialBits(initialBits), Bits(0), Count(0), Table(nullptr)
    {
    }
    virtual ~CGenericMap() { std::free(Table); }
    CGenericMap(const CGenericMap&) = delete;
    CGenericMap& operator=(const CGenericMap&) = delete;

    virtual uint32_t Hash(const Key& key) const = 0;

    // Frees the table; the map is as new.
    void Clear()
    {
        std::free(Table);
        Table = nullptr;
        Bits = 0;
        Count = 0;
    }

    // True and the value when the map holds the key.
    bool Find(const Key& key, Value& value) const
    {
        if (!Table)
            return false;
        const Place place = Probe(key);
        if (!place.used)
            return false;
        value = PairAt(place.slot).PairValue;
        return true;
    }

    // Adds the pair, or replaces the value of a key that is there. False when it had to be dropped.
    bool Store(const Key& key, const Value& value)
    {
        if (!Table && !Rebuild(BitsFor(0)))
            return false;
        for (;;)
        {
            const Place place = Probe(key);
            if (place.used)
            {
                PairAt(place.slot).PairValue = value;
                return true;
            }
            if (Count + 1 <= Room(Bits))
            {
                Put(place.slot, key, value);
                return true;
            }
            if (!Grow(Bits + 1))
                return false;
        }
    }

    // Changes the capacity to 2^newBits slots. False, with the table as it was, when that is too
    // many or there is no memory.
    bool Grow(uint32_t newBits) { return newBits == Bits || Rebuild(newBits); }

    // Takes the table that storing this many different keys one by one would lead to, so that none
    // is hashed twice. Without the memory for it, the table grows as pairs come.
    void Reserve(size_t entries)
    {
        if (!Table && entries != 0)
            Rebuild(BitsFor(entries));
    }

    // Gives back what Reserve took too much, when some of the keys were the same.
    void Fit()
    {
        if (Table && BitsFor(Count) < Bits)
            Rebuild(BitsFor(Count));
    }

    // log2 of the capacity that the first pair gets.
    uint32_t InitialBits;
    // log2 of the capacity; 0 without a table.
    uint32_t Bits;
    // How many pairs are stored.
    uint32_t Count;
    // 2^Bits / 32 groups.
    Group* Table;

private:
    struct Place
    {
        uint32_t slot;
        bool used;
    };

    // How many pairs a table of 2^bits slots may hold: half.
    static constexpr uint32_t Room(uint32_t bits) { return 1u << (bits - 1); }

    // The golden ratio's fraction, 2^31 x (sqrt(5) - 1): spreads neighbouring hashes.
    static constexpr uint32_t kGolden = 0x9E3779B9u;

    uint32_t BitsFor(size_t entries) const
    {
        // A group is the smallest table there is.
        uint32_t bits = std::max(InitialBits, kGroupBits);
        while (bits < MaxBits && entries > Room(bits))
            ++bits;
        return bits;
    }

    bool IsUsed(uint32_t slot) const
    {
        return (Table[slot >> kGroupBits].Used >> (slot % kGroupSlots)) & 1u;
    }
    SlotPair& PairAt(uint32_t slot) const
    {
        return Table[slot >> kGroupBits].Pairs[slot % kGroupSlots];
    }
    uint32_t HomeSlot(const Key& key) const { return (Hash(key) * kGolden) >> (32 - Bits); }

    // The slot that holds the key, or the free one where it belongs. There always is a free one,
    // since half of the slots are.
    Place Probe(const Key& key) const
    {
        const uint32_t mask = (1u << Bits) - 1;
        uint32_t slot = HomeSlot(key);
        while (IsUsed(slot))
        {
            if (PairAt(slot).PairKey == key)
                return {slot, true};
            slot = (slot + 1) & mask;
        }
        return {slot, false};
    }

    void Put(uint32_t slot, const Key& key, const Value& value)
    {
        PairAt(slot) = {key, value};
        Table[slot >> kGroupBits].Used |= 1u << (slot % kGroupSlots);
        ++Count;
    }

    // Moves every pair, in slot order, into a new table of 2^newBits slots.
    bool Rebuild(uint32_t newBits)
    {
        if (newBits > MaxBits)
            return false;
        const size_t groups = size_t{1} << (newBits - kGroupBits);
        auto* const table = static_cast<Group*>(std::calloc(groups, sizeof(Group)));
        if (!table)
            return false;
        Group* const old = Table;
        const uint32_t oldGroups = old ? (1u << Bits) / kGroupSlots : 0;
        Table = table;
        Bits = newBits;
        Count = 0;
        for (uint32_t i = 0; i < oldGroups; ++i)
            PutGroup(old[i]);
        std::free(old);
        return true;
    }

    void PutGroup(const Group& group)
    {
        for (uint32_t i = 0; i < kGroupSlots; ++i)
            if ((group.Used >> i) & 1u)
                Put(Probe(group.Pairs[i].PairKey).slot, group.Pairs[i].PairKey,
                    group.Pairs[i].PairValue);
    }
};
