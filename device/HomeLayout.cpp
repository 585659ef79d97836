#include "device/HomeLayout.h"

#include <algorithm>

#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kDateHeight = 26;
constexpr int kNowLinkWidth = 64;
constexpr int kStripHeight = 56;
constexpr int kStripCellWidth = 58;
constexpr int kEntryHeight = 34;
constexpr int kTitleHeight = 24;
constexpr int kGridCellWidth = 60;
constexpr int kGridCellHeight = 60;
constexpr int kListCellHeight = 26;

struct PageShape
{
    int Columns;
    int Rows;
    int CellWidth;
    int CellHeight;
    int Top;
};

PageShape ShapeOf(const RECT& client, int dpi, bool grid)
{
    PageShape shape;
    const int width = client.right - client.left;
    shape.Top = client.top + ScaleToDpi(kTitleHeight, dpi);
    shape.Columns = grid ? std::max(1, width / ScaleToDpi(kGridCellWidth, dpi)) : 1;
    shape.CellWidth = width / shape.Columns;
    shape.CellHeight = ScaleToDpi(grid ? kGridCellHeight : kListCellHeight, dpi);
    const int room = static_cast<int>(client.bottom) - shape.Top;
    shape.Rows = std::max(1, room / shape.CellHeight);
    return shape;
}

} // namespace

HomeLayout LayOutHome(const RECT& client, int dpi, int entryCount)
{
    HomeLayout layout;
    const int width = client.right - client.left;
    layout.Date = {client.left, client.top, client.right,
                   client.top + ScaleToDpi(kDateHeight, dpi)};
    layout.NowLink = layout.Date;
    layout.NowLink.left = layout.Date.right - ScaleToDpi(kNowLinkWidth, dpi);
    const int stripBottom = layout.Date.bottom + ScaleToDpi(kStripHeight, dpi);
    const int cells = std::max(1, width / ScaleToDpi(kStripCellWidth, dpi));
    for (int i = 0; i < cells; ++i)
        layout.Strip.push_back({client.left + width * i / cells, layout.Date.bottom,
                                client.left + width * (i + 1) / cells, stripBottom});
    layout.StripLine = {client.left, stripBottom, client.right, stripBottom + ScaleToDpi(1, dpi)};
    // A wide screen is too low for one column of entries.
    const int columns = width > client.bottom - client.top ? 2 : 1;
    const int top = layout.StripLine.bottom + ScaleToDpi(2, dpi);
    const int height = ScaleToDpi(kEntryHeight, dpi);
    for (int i = 0; i < entryCount; ++i)
    {
        const int column = i % columns;
        const int y = top + i / columns * height;
        layout.Entries.push_back({client.left + width * column / columns, y,
                                  client.left + width * (column + 1) / columns, y + height});
    }
    return layout;
}

MenuLayout LayOutMenu(const RECT& client, int dpi, bool grid, int itemCount, int first)
{
    MenuLayout layout;
    layout.Title = {client.left, client.top, client.right,
                    client.top + ScaleToDpi(kTitleHeight, dpi)};
    const PageShape shape = ShapeOf(client, dpi, grid);
    layout.Columns = shape.Columns;
    const int cells = std::min(itemCount - first, shape.Columns * shape.Rows);
    for (int i = 0; i < cells; ++i)
    {
        const int x = client.left + i % shape.Columns * shape.CellWidth;
        const int y = shape.Top + i / shape.Columns * shape.CellHeight;
        layout.Cells.push_back({x, y, x + shape.CellWidth, y + shape.CellHeight});
    }
    return layout;
}

int ScrollToShow(int selected, int first, int columns, int cellsPerPage)
{
    if (selected < first)
        return selected / columns * columns;
    while (selected >= first + cellsPerPage)
        first += columns;
    return first;
}

int CellsPerPage(const RECT& client, int dpi, bool grid)
{
    const PageShape shape = ShapeOf(client, dpi, grid);
    return shape.Columns * shape.Rows;
}
