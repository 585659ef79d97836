#include "device/MenuLayout.h"

#include <algorithm>

#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kTitleHeight = 24;
constexpr int kGridCellWidth = 56;
constexpr int kGridCellHeight = 60;
constexpr int kListCellHeight = 26;
constexpr int kScrollWidth = 10;
constexpr int kSmallestThumb = 12;

constexpr int kNumberedColumns = 3;
constexpr int kNumberedRows = 3;

struct Shape
{
    RECT Room;
    int Columns;
    int Rows;
    int CellHeight;
};

Shape ShapeOf(const RECT& client, int dpi, MenuStyle style)
{
    Shape shape = {};
    shape.Room = client;
    shape.Room.top += ScaleToDpi(kTitleHeight, dpi);
    const int height = shape.Room.bottom - shape.Room.top;
    if (style == MenuStyle::Numbered)
    {
        shape.Columns = kNumberedColumns;
        shape.Rows = kNumberedRows;
        shape.CellHeight = std::max(1, height / kNumberedRows);
        return shape;
    }
    const bool isGrid = style == MenuStyle::Grid;
    // With the scroll bar, which would otherwise change the number of columns.
    const int width = shape.Room.right - shape.Room.left - ScaleToDpi(kScrollWidth, dpi);
    shape.Columns = isGrid ? std::max(1, width / ScaleToDpi(kGridCellWidth, dpi)) : 1;
    shape.CellHeight = ScaleToDpi(isGrid ? kGridCellHeight : kListCellHeight, dpi);
    shape.Rows = std::max(1, height / shape.CellHeight);
    return shape;
}

RECT ThumbOf(const RECT& bar, int dpi, int items, int first, int perPage)
{
    const int height = bar.bottom - bar.top;
    const int thumb = std::max(ScaleToDpi(kSmallestThumb, dpi), height * perPage / items);
    const int way = std::max(1, items - perPage);
    const int top = bar.top + std::min(height - thumb, (height - thumb) * first / way);
    return {bar.left, top, bar.right, top + thumb};
}

int NextNumbered(WPARAM key, int selected, int items)
{
    const int column = selected % kNumberedColumns;
    const int lastRow = (items - 1) / kNumberedColumns * kNumberedColumns;
    switch (key)
    {
    case VK_LEFT:
        return (selected + items - 1) % items;
    case VK_RIGHT:
        return (selected + 1) % items;
    case VK_UP:
        return selected >= kNumberedColumns ? selected - kNumberedColumns
                                            : std::min(items - 1, lastRow + column);
    case VK_DOWN:
        return selected >= lastRow ? column : std::min(items - 1, selected + kNumberedColumns);
    default:
        return selected;
    }
}

int StepOf(WPARAM key, int columns)
{
    switch (key)
    {
    case VK_LEFT:
        return -1;
    case VK_RIGHT:
        return 1;
    case VK_UP:
        return -columns;
    case VK_DOWN:
        return columns;
    default:
        return 0;
    }
}

} // namespace

MenuLayout LayOutMenu(const RECT& client, int dpi, MenuStyle style, int items, int first)
{
    MenuLayout layout = {};
    layout.Title = {client.left, client.top, client.right,
                    client.top + ScaleToDpi(kTitleHeight, dpi)};
    Shape shape = ShapeOf(client, dpi, style);
    layout.Columns = shape.Columns;
    const int perPage = shape.Columns * shape.Rows;
    if (items > perPage && style != MenuStyle::Numbered)
    {
        layout.ScrollBar = shape.Room;
        layout.ScrollBar.left = shape.Room.right - ScaleToDpi(kScrollWidth, dpi);
        layout.Thumb = ThumbOf(layout.ScrollBar, dpi, items, first, perPage);
        shape.Room.right = layout.ScrollBar.left;
    }
    const int width = shape.Room.right - shape.Room.left;
    const int cells = std::min(items - first, perPage);
    for (int i = 0; i < cells; ++i)
    {
        const int column = i % shape.Columns;
        const int y = shape.Room.top + i / shape.Columns * shape.CellHeight;
        layout.Cells.push_back({shape.Room.left + width * column / shape.Columns, y,
                                shape.Room.left + width * (column + 1) / shape.Columns,
                                y + shape.CellHeight});
    }
    return layout;
}

int CellsPerPage(const RECT& client, int dpi, MenuStyle style)
{
    const Shape shape = ShapeOf(client, dpi, style);
    return shape.Columns * shape.Rows;
}

int ScrollToShow(MenuStyle style, int selected, int first, int columns, int cellsPerPage)
{
    if (style == MenuStyle::Numbered)
        return selected / cellsPerPage * cellsPerPage;
    // The number of columns changes when the screen is turned.
    first = first / columns * columns;
    if (selected < first)
        return selected / columns * columns;
    while (selected >= first + cellsPerPage)
        first += columns;
    return first;
}

int LastFirst(int items, int columns, int cellsPerPage)
{
    const int rows = (items + columns - 1) / columns;
    return std::max(0, rows * columns - cellsPerPage);
}

int ScrollByPage(bool down, int items, int first, int columns, int cellsPerPage)
{
    if (!down)
        return std::max(0, first - cellsPerPage);
    return std::min(LastFirst(items, columns, cellsPerPage), first + cellsPerPage);
}

int NextInMenu(MenuStyle style, WPARAM key, int selected, int items, int columns, int cellsPerPage)
{
    if (items <= 0)
        return selected;
    switch (key)
    {
    case VK_HOME:
        return 0;
    case VK_END:
        return items - 1;
    case VK_PRIOR:
        return std::max(0, selected - cellsPerPage);
    case VK_NEXT:
        return std::min(items - 1, selected + cellsPerPage);
    default:
        break;
    }
    if (style == MenuStyle::Numbered)
        return NextNumbered(key, selected, items);
    const int target = selected + StepOf(key, columns);
    return target < 0 || target >= items ? selected : target;
}

int CellOfDigit(WPARAM key)
{
    if (key >= '1' && key <= '9')
        return static_cast<int>(key - '1');
    if (key >= VK_NUMPAD1 && key <= VK_NUMPAD9)
        return static_cast<int>(key - VK_NUMPAD1);
    return -1;
}
