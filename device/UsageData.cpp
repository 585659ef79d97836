#include "device/UsageData.h"

#include <algorithm>

namespace usage
{

void Raise(Ratings::EntryList& entries, StringView16 name, Ratings::FoldFunction fold)
{
    const size_t position = Ratings::FindByName(entries, name, fold);
    if (position == entries.size())
        entries.push_back({String16(name), Ratings::kNoNumber, 0});
    uint16_t& weight = entries[position].Weight;
    if (UsesOf(weight) < kMostUses)
        ++weight;
    size_t target = position;
    while (target > 0 && entries[target - 1].Weight < entries[position].Weight)
        --target;
    const auto place = [&](size_t at) { return entries.begin() + static_cast<std::ptrdiff_t>(at); };
    std::rotate(place(target), place(position), place(position + 1));
}

uint16_t UsesOf(const Ratings::EntryList& entries, StringView16 name, Ratings::FoldFunction fold)
{
    const size_t position = Ratings::FindByName(entries, name, fold);
    return position == entries.size() ? uint16_t{0} : UsesOf(entries[position].Weight);
}

} // namespace usage
