#include "device/Neighbour.h"

#include <algorithm>

namespace
{

// How far an area lies beyond another in a direction, and how far aside of it; 0 aside when they
// share a row or column.
struct Distance
{
    int Ahead;
    int Aside;
};

int Gap(LONG begin, LONG end, LONG otherBegin, LONG otherEnd)
{
    return static_cast<int>(std::max({LONG{0}, otherBegin - end + 1, begin - otherEnd + 1}));
}

Distance DistanceOf(const RECT& from, const RECT& to, WPARAM key)
{
    const int across = Gap(from.left, from.right, to.left, to.right);
    const int down = Gap(from.top, from.bottom, to.top, to.bottom);
    switch (key)
    {
    case VK_LEFT:
        return {static_cast<int>(from.left - to.right), down};
    case VK_RIGHT:
        return {static_cast<int>(to.left - from.right), down};
    case VK_UP:
        return {static_cast<int>(from.top - to.bottom), across};
    default:
        return {static_cast<int>(to.top - from.bottom), across};
    }
}

} // namespace

int NeighbourOf(const std::vector<RECT>& areas, int from, WPARAM key)
{
    const int count = static_cast<int>(areas.size());
    const bool isSideways = key == VK_LEFT || key == VK_RIGHT;
    if (from < 0 || from >= count || (!isSideways && key != VK_UP && key != VK_DOWN))
        return from;
    int best = from;
    Distance shortest = {};
    for (int i = 0; i < count; ++i)
    {
        const Distance distance =
            DistanceOf(areas[static_cast<size_t>(from)], areas[static_cast<size_t>(i)], key);
        if (i == from || distance.Ahead < 0 || (isSideways && distance.Aside > 0))
            continue;
        if (best == from || distance.Ahead < shortest.Ahead ||
            (distance.Ahead == shortest.Ahead && distance.Aside < shortest.Aside))
        {
            best = i;
            shortest = distance;
        }
    }
    if (best == from && isSideways)
        best = std::max(0, std::min(count - 1, key == VK_LEFT ? from - 1 : from + 1));
    return best;
}
