// CLocalizerMap: the translator's map from English texts to translations. Pure: no windows.h.
#pragma once

#include "frame/GenericMap.h"
#include "frame/TranslationParser.h"
#include "platform/Char16.h"

// A zero-terminated text as a key: two are equal when all their code units are. Null is the empty
// text.
struct STRING_WRAPPER
{
    const Char16* TextOrEmpty() const { return Text ? Text : TEXT16(""); }

    const Char16* Text;
};

inline bool operator==(const STRING_WRAPPER& left, const STRING_WRAPPER& right)
{
    const Char16* a = left.TextOrEmpty();
    const Char16* b = right.TextOrEmpty();
    // Two units in one round: the comparison is a good part of what a look-up costs.
    while (a[0] == b[0] && a[0] != 0 && a[1] == b[1] && a[1] != 0)
    {
        a += 2;
        b += 2;
    }
    return a[0] == b[0] && (a[0] == 0 || a[1] == b[1]);
}

// Neither keys nor values are owned: they point into the translator's file buffer.
class CLocalizerMap final : public CGenericMap<STRING_WRAPPER, Char16*>
{
public:
    CLocalizerMap();
    ~CLocalizerMap() override;

    // h = 5h + 37c over the code units; 0 for an empty text. Texts with the same hash are easily
    // made ("af" and "ba"), which only costs time: the file belongs to the installation.
    uint32_t Hash(const STRING_WRAPPER& key) const override
    {
        const Char16* unit = key.TextOrEmpty();
        uint32_t hash = 0;
        // Four units in one step: one alone would have to wait for the one before.
        for (; unit[0] != 0 && unit[1] != 0 && unit[2] != 0 && unit[3] != 0; unit += 4)
            hash = 625 * hash + (125u * unit[0] + 25u * unit[1] + 5u * unit[2] + unit[3]);
        for (; *unit != 0; ++unit)
            hash = 5 * hash + *unit;
        return 37 * hash;
    }

    // Stores all entries; a later one replaces an earlier one with the same English text.
    void StoreAll(const std::vector<TranslationEntry>& entries);
};

// On the handheld a group is 65 words.
static_assert(sizeof(void*) != 4 || sizeof(CLocalizerMap::Group) == 260, "groups of 260 bytes");
