#include "device/ItemPainting.h"

#include <algorithm>

#include "device/ColourScheme.h"
#include "device/LauncherIcons.h"
#include "device/Painting.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kCellTextHeight = 16;
constexpr int kRowIconWidth = 44;
constexpr int kLineIconWidth = 34;
constexpr int kPinSize = 9;
constexpr int kDigitSize = 13;

// How much of its background shows through what leads nowhere, of 255.
constexpr BYTE kFaintness = 150;

RECT LeftPart(const RECT& area, int width)
{
    return {area.left, area.top, area.left + width, area.bottom};
}

COLORREF LineColour()
{
    return painting::Mix(colours::kMist, colours::kTeal, 90);
}

void PaintIcon(HDC dc, const EntryIcon& icon, const RECT& area, int size)
{
    const bool isDrawn = icon.Number != 0 ? icons::Draw(dc, icon.Number, area, size)
                                          : icons::DrawOfFile(dc, icon.File.c_str(), area, size);
    if (!isDrawn)
        icons::Draw(dc, icon.Fallback, area, size);
}

// Draws the icon on a copy of its background and mixes the two.
void PaintFaintIcon(HDC dc, const EntryIcon& icon, const RECT& area, int size)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const UniqueBitmap bitmap(CreateCompatibleBitmap(dc, width, height));
    const UniqueMemoryDc copy(CreateCompatibleDC(dc));
    const CSelectObject selected(copy.get(), bitmap.get());
    BitBlt(copy.get(), 0, 0, width, height, dc, area.left, area.top, SRCCOPY);
    PaintIcon(copy.get(), icon, {0, 0, width, height}, size);
    const BLENDFUNCTION blend = {AC_SRC_OVER, 0, static_cast<BYTE>(255 - kFaintness), 0};
    GdiAlphaBlend(dc, area.left, area.top, width, height, copy.get(), 0, 0, width, height, blend);
}

void PaintIconOf(HDC dc, const ShellEntry& entry, const RECT& area, int size)
{
    if (entry.IsGone)
        PaintFaintIcon(dc, entry.Icon, area, size);
    else
        PaintIcon(dc, entry.Icon, area, size);
}

COLORREF TextColour(const ShellEntry& entry, bool isSelected)
{
    if (isSelected)
        return entry.IsGone ? colours::kMist : colours::kWhite;
    return entry.IsGone ? painting::Mix(colours::kFaded, colours::kMist, 90) : colours::kInk;
}

// A pin: a round head with a needle, in the upper right corner.
void PaintPin(HDC dc, const RECT& area, bool isSelected)
{
    const int size = ScaleY(kPinSize);
    const int right = area.right - ScaleX(5);
    const int top = area.top + ScaleY(4);
    const COLORREF colour = isSelected ? colours::kWhite : colours::kTeal;
    const UniqueBrush brush(CreateSolidBrush(colour));
    const CSelectObject filled(dc, brush.get());
    const CSelectObject unframed(dc, GetStockObject(NULL_PEN));
    Ellipse(dc, right - size * 2 / 3, top, right + 1, top + size * 2 / 3 + 1);
    const POINT needle[] = {{right - size * 2 / 3, top + size / 3},
                            {right - size / 3, top + size * 2 / 3},
                            {right - size, top + size}};
    Polygon(dc, needle, 3);
}

void PaintDigit(HDC dc, HFONT font, const RECT& area, int digit, bool isSelected)
{
    const int size = ScaleY(kDigitSize);
    const RECT plate = {area.left + ScaleX(6), area.top + ScaleY(4), area.left + ScaleX(6) + size,
                        area.top + ScaleY(4) + size};
    painting::Fill(dc, plate, isSelected ? colours::kWhite : colours::kMist);
    painting::Text(dc, font, std::to_wstring(digit), plate, colours::kTeal, DT_CENTER | DT_VCENTER);
}

} // namespace

CItemPainter::CItemPainter()
    : m_bold(painting::MakeFont(ScaleY(13), true)), m_normal(painting::MakeFont(ScaleY(13), false)),
      m_small(painting::MakeFont(ScaleY(11), false))
{
}

void CItemPainter::PaintWallpaper(HDC dc, const RECT& client)
{
    painting::FillGradient(dc, client, colours::kPaper,
                           painting::Mix(colours::kMist, colours::kTeal, 40));
}

void CItemPainter::PaintSelection(HDC dc, RECT area)
{
    InflateRect(&area, -ScaleX(2), -ScaleY(1));
    painting::FillGradient(dc, area, painting::Mix(colours::kTeal, colours::kWhite, 40),
                           colours::kTeal);
}

void CItemPainter::PaintArrow(HDC dc, RECT& area, COLORREF colour)
{
    const int middle = (area.top + area.bottom) / 2;
    const POINT arrow[] = {{area.right - ScaleX(5), middle - ScaleY(4)},
                           {area.right - ScaleX(1), middle},
                           {area.right - ScaleX(5), middle + ScaleY(4)}};
    const UniqueBrush brush(CreateSolidBrush(colour));
    const CSelectObject filled(dc, brush.get());
    const CSelectObject unframed(dc, GetStockObject(NULL_PEN));
    Polygon(dc, arrow, 3);
    area.right -= ScaleX(kPageMargin);
}

void CItemPainter::PaintTitle(HDC dc, RECT area, const std::wstring& title,
                              const std::wstring& aside) const
{
    const RECT line = {area.left, area.bottom - ScaleY(2), area.right, area.bottom - ScaleY(1)};
    painting::Fill(dc, line, LineColour());
    InflateRect(&area, -ScaleX(kPageMargin), 0);
    if (!aside.empty())
    {
        RECT end = area;
        end.left = end.right - ScaleX(40);
        painting::Text(dc, m_small.get(), aside, end, colours::kFaded, DT_RIGHT | DT_VCENTER);
        area.right = end.left;
    }
    painting::Text(dc, m_bold.get(), title, area, colours::kTeal, DT_LEFT | DT_VCENTER);
}

void CItemPainter::PaintHeading(HDC dc, RECT area, const std::wstring& text) const
{
    painting::FillGradient(dc, area, colours::kMist,
                           painting::Mix(colours::kMist, colours::kPaper, 120));
    InflateRect(&area, -ScaleX(kPageMargin), 0);
    painting::Text(dc, m_small.get(), text, area, colours::kDeepTeal, DT_LEFT | DT_VCENTER);
}

void CItemPainter::PaintScrollBar(HDC dc, const RECT& bar, RECT thumb)
{
    painting::Fill(dc, bar, colours::kMist);
    InflateRect(&thumb, -ScaleX(2), -ScaleY(1));
    painting::FillGradient(dc, thumb, painting::Mix(colours::kTeal, colours::kWhite, 60),
                           colours::kTeal);
}

void CItemPainter::PaintCell(HDC dc, const ShellEntry& entry, const RECT& area,
                             const ItemMarks& marks) const
{
    if (marks.IsSelected)
        PaintSelection(dc, area);
    const int content = ScaleY(kIconSize + 1 + kCellTextHeight);
    RECT icon = area;
    icon.top += std::max(ScaleY(2), (static_cast<int>(area.bottom - area.top) - content) / 2);
    icon.bottom = icon.top + ScaleY(kIconSize);
    PaintIconOf(dc, entry, icon, ScaleY(kIconSize));
    RECT text = area;
    text.top = icon.bottom + ScaleY(1);
    text.bottom = text.top + ScaleY(kCellTextHeight);
    InflateRect(&text, -ScaleX(3), 0);
    painting::Text(dc, m_small.get(), entry.Text, text, TextColour(entry, marks.IsSelected),
                   DT_CENTER | DT_VCENTER);
    if (marks.IsPinned)
        PaintPin(dc, area, marks.IsSelected);
    if (marks.Digit)
        PaintDigit(dc, m_small.get(), area, marks.Digit, marks.IsSelected);
}

void CItemPainter::PaintLine(HDC dc, const ShellEntry& entry, const RECT& area,
                             bool isSelected) const
{
    if (isSelected)
        PaintSelection(dc, area);
    const int iconWidth = ScaleX(kLineIconWidth);
    PaintIconOf(dc, entry, LeftPart(area, iconWidth), ScaleY(kSmallIconSize));
    RECT text = area;
    text.left += iconWidth;
    text.right -= ScaleX(kPageMargin);
    if (entry.IsMenu)
        PaintArrow(dc, text, isSelected ? colours::kWhite : colours::kTeal);
    painting::Text(dc, m_normal.get(), entry.Text, text, TextColour(entry, isSelected),
                   DT_LEFT | DT_VCENTER);
}

void CItemPainter::PaintRow(HDC dc, int icon, const std::wstring& title, const std::wstring& note,
                            const RECT& area, bool isSelected) const
{
    if (isSelected)
        PaintSelection(dc, area);
    const int iconWidth = ScaleX(kRowIconWidth);
    icons::Draw(dc, icon, LeftPart(area, iconWidth), ScaleY(kIconSize));
    RECT text = area;
    text.left += iconWidth;
    text.right -= ScaleX(kPageMargin);
    const COLORREF faded = isSelected ? colours::kMist : colours::kFaded;
    const COLORREF strong = isSelected ? colours::kWhite : colours::kInk;
    if (note.empty())
    {
        painting::Text(dc, m_bold.get(), title, text, strong, DT_LEFT | DT_VCENTER);
        return;
    }
    InflateRect(&text, 0, -ScaleY(3));
    painting::Text(dc, m_bold.get(), title, text, strong, DT_LEFT | DT_TOP);
    painting::Text(dc, m_small.get(), note, text, faded, DT_LEFT | DT_BOTTOM);
}
