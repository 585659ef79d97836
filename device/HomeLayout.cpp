#include "device/HomeLayout.h"

#include <algorithm>

#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kDateHeight = 26;
constexpr int kNowLinkWidth = 64;
constexpr int kCityHeight = 34;
// In one line, on a screen that is wider than high.
constexpr int kLowCityHeight = 20;
constexpr int kHeadingHeight = 14;
constexpr int kSlotWidth = 58;
constexpr int kSlotHeight = 54;
// Rows share what is left up to this height.
constexpr int kHighestSlot = 64;

struct Shape
{
    int Columns;
    int Rows;
    int SlotHeight;
};

int CityHeightOf(const RECT& client)
{
    const bool isWide = client.right - client.left > client.bottom - client.top;
    return isWide ? kLowCityHeight : kCityHeight;
}

Shape ShapeOf(const RECT& client, int dpi)
{
    const int width = client.right - client.left;
    const int room = client.bottom - client.top -
                     ScaleToDpi(kDateHeight + CityHeightOf(client) + 2 * kHeadingHeight, dpi);
    Shape shape;
    shape.Columns = std::max(1, width / ScaleToDpi(kSlotWidth, dpi));
    shape.Rows = std::max(1, room / ScaleToDpi(kSlotHeight, dpi));
    shape.SlotHeight = std::max(ScaleToDpi(kSlotHeight, dpi),
                                std::min(ScaleToDpi(kHighestSlot, dpi), room / shape.Rows));
    return shape;
}

int RowsOf(int slots, int columns)
{
    return (slots + columns - 1) / columns;
}

// Puts a heading and its slots at `top`, which it moves on.
void AddBand(const RECT& client, int dpi, int slots, RECT& heading, std::vector<RECT>& places,
             LONG& top)
{
    heading = {};
    if (slots == 0)
        return;
    const Shape shape = ShapeOf(client, dpi);
    const int width = client.right - client.left;
    heading = {client.left, top, client.right, top + ScaleToDpi(kHeadingHeight, dpi)};
    for (int i = 0; i < slots; ++i)
    {
        const int column = i % shape.Columns;
        const LONG y = heading.bottom + i / shape.Columns * shape.SlotHeight;
        places.push_back({client.left + width * column / shape.Columns, y,
                          client.left + width * (column + 1) / shape.Columns,
                          y + shape.SlotHeight});
    }
    top = heading.bottom + RowsOf(slots, shape.Columns) * shape.SlotHeight;
}

} // namespace

HomeLayout LayOutHome(const RECT& client, int dpi, int pinned, int slots)
{
    HomeLayout layout;
    layout.Date = {client.left, client.top, client.right,
                   client.top + ScaleToDpi(kDateHeight, dpi)};
    layout.NowLink = layout.Date;
    layout.NowLink.left = layout.Date.right - ScaleToDpi(kNowLinkWidth, dpi);
    layout.City = {client.left, layout.Date.bottom, client.right,
                   layout.Date.bottom + ScaleToDpi(CityHeightOf(client), dpi)};
    LONG top = layout.City.bottom;
    AddBand(client, dpi, pinned, layout.PinnedHeading, layout.Slots, top);
    AddBand(client, dpi, slots - pinned, layout.MostUsedHeading, layout.Slots, top);
    return layout;
}

int SlotsThatFit(const RECT& client, int dpi, int pinned, int entries)
{
    const Shape shape = ShapeOf(client, dpi);
    const int pinnedRows = std::min(shape.Rows, RowsOf(pinned, shape.Columns));
    const int pinnedSlots = std::min(pinned, pinnedRows * shape.Columns);
    const int rest = pinnedSlots < pinned ? 0 : (shape.Rows - pinnedRows) * shape.Columns;
    return std::min(entries, pinnedSlots + rest);
}
