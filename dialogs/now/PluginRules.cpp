#include "dialogs/now/PluginRules.h"

#include "resources/resource.h"

namespace
{

constexpr uint32_t kPositionMask = 0xFFFF;
constexpr unsigned kKindShift = 16;

} // namespace

bool IsMalformedPlugin(StringView16 text, int32_t kind)
{
    return text.empty() || kind < KindCalendar || kind > KindProfile;
}

unsigned KindSuffix(int32_t kind)
{
    switch (kind)
    {
    case KindCalendar:
        return IDS_KIND_CALENDAR;
    case KindEmail:
        return IDS_KIND_EMAIL;
    case KindWeather:
        return IDS_KIND_WEATHER;
    default:
        return IDS_KIND_PROFILE;
    }
}

bool IsPluginUsed(std::optional<uint32_t> inactive)
{
    return inactive == 0u;
}

uint32_t PluginItemData(size_t keyPosition, int32_t kind)
{
    return (static_cast<uint32_t>(keyPosition) & kPositionMask) | static_cast<uint32_t>(kind)
                                                                      << kKindShift;
}

size_t KeyPositionOf(uint32_t itemData)
{
    return itemData & kPositionMask;
}
