#include "frame/LocalizerMap.h"

namespace
{

// 1,024 slots before the first growth.
constexpr uint32_t kInitialBits = 10;

} // namespace

CLocalizerMap::CLocalizerMap() : CGenericMap(kInitialBits) {}

CLocalizerMap::~CLocalizerMap() = default;

void CLocalizerMap::StoreAll(const std::vector<TranslationEntry>& entries)
{
    Reserve(entries.size());
    for (const TranslationEntry& entry : entries)
        Store({entry.English}, entry.Translation);
    Fit();
}
