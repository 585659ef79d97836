#include "frame/LocalizerMap.h"

namespace
{

// 1,024 slots before the first growth.
constexpr uint32_t kInitialBits = 10;

} // namespace

CLocalizerMap::CLocalizerMap() : CGenericMap(kInitialBits) {}

CLocalizerMap::~CLocalizerMap() = default;

uint32_t CLocalizerMap::Hash(const STRING_WRAPPER& key) const
{
    const Char16* unit = key.TextOrEmpty();
    uint32_t hash = 0;
    // Four units in one step: each single one would have to wait for the one before.
    for (; unit[0] != 0 && unit[1] != 0 && unit[2] != 0 && unit[3] != 0; unit += 4)
        hash = 625 * hash + (125u * unit[0] + 25u * unit[1] + 5u * unit[2] + unit[3]);
    for (; *unit != 0; ++unit)
        hash = 5 * hash + *unit;
    return 37 * hash;
}

void CLocalizerMap::StoreAll(const std::vector<TranslationEntry>& entries)
{
    Reserve(entries.size());
    for (const TranslationEntry& entry : entries)
        Store({entry.English}, entry.Translation);
    Fit();
}
