// How the home screen and the launcher's pages look; the rest of the class is in HomeScreen.cpp.
#include "device/HomeScreen.h"

#include <algorithm>

#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/Dialogs.h"
#include "device/HomeLayout.h"
#include "device/LauncherIcons.h"
#include "device/Painting.h"
#include "device/Texts.h"
#include "frame/Resolution.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kIconSize = 32;
constexpr int kSmallIconSize = 16;
constexpr int kMargin = 8;

void PaintWallpaper(HDC dc, const RECT& client)
{
    painting::FillGradient(dc, client, colours::kPaper,
                           painting::Mix(colours::kMist, colours::kTeal, 40));
}

// The bar behind what is selected.
void PaintSelection(HDC dc, RECT area)
{
    InflateRect(&area, -ScaleX(3), -ScaleY(1));
    painting::FillGradient(dc, area, painting::Mix(colours::kTeal, colours::kWhite, 40),
                           colours::kTeal);
}

RECT LeftPart(const RECT& area, int width)
{
    return {area.left, area.top, area.left + width, area.bottom};
}

} // namespace

void CHomeScreen::Paint()
{
    const painting::CPaint paint(Window());
    PaintWallpaper(paint.Dc(), paint.Area());
    if (m_page == Page::Home)
        PaintHome(paint.Dc());
    else if (m_page == Page::Menu)
        PaintMenu(paint.Dc());
}

void CHomeScreen::PaintHome(HDC dc)
{
    const HomeLayout layout = LayOutHome(Client(), GetScreenResolution().dpiY, kDialogCount);
    RECT date = layout.Date;
    InflateRect(&date, -ScaleX(kMargin), 0);
    date.right = layout.NowLink.left;
    painting::Text(dc, m_bold.get(), clockwork::DateText(), date, colours::kTeal,
                   DT_LEFT | DT_VCENTER);
    PaintNowLink(dc, layout.NowLink);
    const size_t strip = std::min(layout.Strip.size(), m_items.size());
    for (size_t i = 0; i < strip; ++i)
        PaintGridItem(dc, *m_items[i], layout.Strip[i], false);
    painting::Fill(dc, layout.StripLine, painting::Mix(colours::kMist, colours::kTeal, 90));
    for (int i = 0; i < kDialogCount; ++i)
        PaintEntry(dc, i, layout.Entries[static_cast<size_t>(i)]);
}

void CHomeScreen::PaintNowLink(HDC dc, RECT area)
{
    const bool selected = m_selected == kNowTarget;
    if (selected)
        PaintSelection(dc, area);
    const COLORREF colour = selected ? colours::kWhite : colours::kTeal;
    area.right -= ScaleX(kMargin);
    const int middle = (area.top + area.bottom) / 2;
    const POINT arrow[] = {{area.right - ScaleX(5), middle - ScaleY(4)},
                           {area.right - ScaleX(1), middle},
                           {area.right - ScaleX(5), middle + ScaleY(4)}};
    const UniqueBrush brush(CreateSolidBrush(colour));
    const CSelectObject filled(dc, brush.get());
    const CSelectObject unframed(dc, GetStockObject(NULL_PEN));
    Polygon(dc, arrow, 3);
    area.right -= ScaleX(kMargin);
    painting::Text(dc, m_bold.get(), texts::Translate(texts::kNow), area, colour,
                   DT_RIGHT | DT_VCENTER);
}

// The small line below a dialog's title. The menu has no choice of its own to tell.
std::wstring CHomeScreen::NoteOf(const DialogEntry& dialog) const
{
    if (dialog.Choice)
        return dialog.Choice();
    const int hidden = m_menu.HiddenCount();
    return hidden > 0 ? texts::Translate(texts::kHidden, std::to_wstring(hidden)) : std::wstring();
}

void CHomeScreen::PaintEntry(HDC dc, int entry, const RECT& area)
{
    const DialogEntry& dialog = kDialogs[entry];
    const bool selected = entry == m_selected;
    if (selected)
        PaintSelection(dc, area);
    const int iconWidth = ScaleX(44);
    icons::Draw(dc, dialog.Icon, LeftPart(area, iconWidth), ScaleY(kIconSize));
    RECT text = area;
    text.left += iconWidth;
    text.right -= ScaleX(kMargin);
    const std::wstring title = texts::Translate(dialog.Title);
    const std::wstring note = NoteOf(dialog);
    const COLORREF faded = selected ? colours::kMist : colours::kFaded;
    const COLORREF strong = selected ? colours::kWhite : colours::kInk;
    if (note.empty())
    {
        painting::Text(dc, m_bold.get(), title, text, strong, DT_LEFT | DT_VCENTER);
        return;
    }
    InflateRect(&text, 0, -ScaleY(3));
    painting::Text(dc, m_bold.get(), title, text, strong, DT_LEFT | DT_TOP);
    painting::Text(dc, m_small.get(), note, text, faded, DT_LEFT | DT_BOTTOM);
}

void CHomeScreen::PaintMenu(HDC dc)
{
    const bool grid = m_menu.IsGrid();
    const int dpi = GetScreenResolution().dpiY;
    const MenuLayout layout = LayOutMenu(Client(), dpi, grid, TargetCount(), m_first);
    RECT title = layout.Title;
    const RECT line = {title.left, title.bottom - ScaleY(2), title.right, title.bottom - ScaleY(1)};
    painting::Fill(dc, line, painting::Mix(colours::kMist, colours::kTeal, 90));
    InflateRect(&title, -ScaleX(kMargin), 0);
    const std::wstring name = m_menu.Title();
    painting::Text(dc, m_bold.get(), name.empty() ? texts::Translate(texts::kMenu) : name, title,
                   colours::kTeal, DT_LEFT | DT_VCENTER);
    for (size_t i = 0; i < layout.Cells.size(); ++i)
    {
        const int index = m_first + static_cast<int>(i);
        const CMenuItem& item = *m_items[static_cast<size_t>(index)];
        if (grid)
            PaintGridItem(dc, item, layout.Cells[i], index == m_selected);
        else
            PaintListItem(dc, item, layout.Cells[i], index == m_selected);
    }
}

void CHomeScreen::PaintGridItem(HDC dc, const CMenuItem& item, const RECT& area, bool selected)
{
    if (selected)
        PaintSelection(dc, area);
    RECT icon = area;
    icon.top += ScaleY(4);
    icon.bottom = icon.top + ScaleY(kIconSize);
    PaintIcon(dc, item, icon, ScaleY(kIconSize));
    RECT text = area;
    text.top = icon.bottom + ScaleY(1);
    text.bottom = text.top + ScaleY(16);
    InflateRect(&text, -ScaleX(1), 0);
    painting::Text(dc, m_small.get(), item.Text, text, selected ? colours::kWhite : colours::kInk,
                   DT_CENTER | DT_VCENTER);
}

void CHomeScreen::PaintListItem(HDC dc, const CMenuItem& item, const RECT& area, bool selected)
{
    if (selected)
        PaintSelection(dc, area);
    const int iconWidth = ScaleX(34);
    PaintIcon(dc, item, LeftPart(area, iconWidth), ScaleY(kSmallIconSize));
    RECT text = area;
    text.left += iconWidth;
    text.right -= ScaleX(kMargin);
    painting::Text(dc, m_normal.get(), item.Text, text, selected ? colours::kWhite : colours::kInk,
                   DT_LEFT | DT_VCENTER);
}

void CHomeScreen::PaintIcon(HDC dc, const CMenuItem& item, const RECT& area, int size)
{
    const int number = CLauncherMenu::IconOf(item);
    const bool drawn = number != 0 ? icons::Draw(dc, number, area, size)
                                   : icons::DrawOfFile(dc, item.GetImagePath().c_str(), area, size);
    if (!drawn)
        icons::Draw(dc, CLauncherMenu::IsMenu(item) ? icons::kFolder : icons::kDocument, area,
                    size);
}
