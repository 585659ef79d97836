#include "device/NowLayout.h"

#include <algorithm>

#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kRowHeight = 54;
constexpr int kSmallestRow = 40;
constexpr int kCardHeight = 62;
constexpr int kCardGap = 3;
constexpr int kScrollWidth = 6;

// How much room a panel has with the gap to the next one, and the gap.
struct Shape
{
    int Columns;
    int Height;
    int Gap;
};

Shape ShapeOf(const RECT& area, int dpi, LayoutType type, int panels)
{
    const int height = area.bottom - area.top;
    if (type == LayoutType::Professional)
    {
        const int gap = ScaleToDpi(kCardGap, dpi);
        return {area.right - area.left > height ? 2 : 1, ScaleToDpi(kCardHeight, dpi) + gap, gap};
    }
    const int share = height / std::max(1, panels);
    return {1,
            std::max(ScaleToDpi(kSmallestRow, dpi), std::min(ScaleToDpi(kRowHeight, dpi), share)),
            0};
}

void AddScrollBar(const RECT& area, int dpi, int panels, NowLayout& layout)
{
    layout.ScrollBar = area;
    layout.ScrollBar.left = area.right - ScaleToDpi(kScrollWidth, dpi);
    const int height = area.bottom - area.top;
    layout.Thumb = layout.ScrollBar;
    layout.Thumb.top += height * layout.First / panels;
    layout.Thumb.bottom = layout.Thumb.top + height * layout.PerPage / panels;
}

} // namespace

NowLayout LayOutNow(const RECT& area, int dpi, LayoutType type, int panels, int first)
{
    NowLayout layout;
    const Shape shape = ShapeOf(area, dpi, type, panels);
    const int room = area.bottom - area.top - shape.Gap;
    layout.PerPage = std::max(1, room / shape.Height) * shape.Columns;
    layout.First = std::max(0, std::min(first, panels - layout.PerPage));
    RECT inner = area;
    if (panels > layout.PerPage)
    {
        AddScrollBar(area, dpi, panels, layout);
        inner.right = layout.ScrollBar.left;
    }
    const int width = (inner.right - inner.left - shape.Gap) / shape.Columns;
    for (int i = 0; i < std::min(layout.PerPage, panels - layout.First); ++i)
    {
        const LONG left = inner.left + shape.Gap + i % shape.Columns * width;
        const LONG top = inner.top + shape.Gap + i / shape.Columns * shape.Height;
        layout.Panels.push_back(
            {left, top, left + width - shape.Gap, top + shape.Height - shape.Gap});
    }
    return layout;
}
