#include "frame/LocalizerMap.h"

namespace
{

// 1,024 slots before the first growth.
constexpr uint32_t kInitialBits = 10;

constexpr Char16 kEmpty[] = {0};

const Char16* TextOrEmpty(const Char16* text)
{
    return text ? text : kEmpty;
}

} // namespace

bool operator==(const STRING_WRAPPER& left, const STRING_WRAPPER& right)
{
    const Char16* a = TextOrEmpty(left.Text);
    const Char16* b = TextOrEmpty(right.Text);
    while (*a == *b)
    {
        if (*a == 0)
            return true;
        ++a;
        ++b;
    }
    return false;
}

CLocalizerMap::CLocalizerMap() : CGenericMap(kInitialBits) {}

CLocalizerMap::~CLocalizerMap() = default;

uint32_t CLocalizerMap::Hash(const STRING_WRAPPER& key) const
{
    uint32_t hash = 0;
    for (const Char16* unit = TextOrEmpty(key.Text); *unit != 0; ++unit)
        hash = 5 * hash + 37u * *unit;
    return hash;
}

void CLocalizerMap::StorePairs(Char16* pairs, size_t count)
{
    Reserve(count);
    for (; count != 0; --count)
    {
        Char16* const key = pairs;
        Char16* const value = key + StringView16(key).size() + 1;
        Store({key}, value);
        pairs = value + StringView16(value).size() + 1;
    }
    Fit();
}
