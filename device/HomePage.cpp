#include "device/HomePage.h"

#include <algorithm>

#include "device/ChosenCity.h"
#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/LauncherIcons.h"
#include "device/Painting.h"
#include "device/Texts.h"
#include "platform/os/Text.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kCityIconWidth = 34;
constexpr int kCityIconSize = 24;
constexpr int kTimeWidth = 84;
constexpr int kLineHeight = 16;

// The most used entry is the first thing that the action key should open.
constexpr int kFirstSelected = CHomePage::kFirstSlot;

struct CityColours
{
    COLORREF Strong;
    COLORREF Faded;
};

CityColours ColoursOf(bool isSelected)
{
    return isSelected ? CityColours{colours::kWhite, colours::kMist}
                      : CityColours{colours::kInk, colours::kFaded};
}

} // namespace

CHomePage::CHomePage(CPageHost& host, const CItemPainter& painter, const CLauncherMenu& menu)
    : CPage(host, painter), m_menu(menu)
{
}

const wchar_t* CHomePage::LeftKeyText() const
{
    return texts::kMenu;
}

const wchar_t* CHomePage::RightKeyText() const
{
    return texts::kCustomize;
}

void CHomePage::OnLeftKey()
{
    m_host.GoTo(PageId::Launcher);
}

void CHomePage::OnRightKey()
{
    m_host.GoTo(PageId::Settings);
}

void CHomePage::Reload()
{
    m_city = LoadChosenCity();
    LoadSlots();
}

// As many slots as fit may be others now.
void CHomePage::OnResize()
{
    LoadSlots();
}

// The selection stays with its entry, wherever that stands now.
void CHomePage::LoadSlots()
{
    const bool isFirst = m_entries.Slots.empty();
    const size_t slot = static_cast<size_t>(std::max(0, Selected() - kFirstSlot));
    const std::wstring selected = Selected() >= kFirstSlot && slot < m_entries.Slots.size()
                                      ? m_entries.Slots[slot].Name
                                      : L"";
    const ListLength length = ReadListLength();
    ReadHomeEntries(m_menu, SlotsThatFit(Client(), Dpi(), length.Pinned, length.Entries),
                    m_entries);
    int target = isFirst ? kFirstSelected : Selected();
    for (size_t i = 0; i < m_entries.Slots.size() && !selected.empty(); ++i)
        if (os::EqualNoCase(m_entries.Slots[i].Name, selected))
            target = kFirstSlot + static_cast<int>(i);
    Select(target);
}

HomeLayout CHomePage::Layout() const
{
    return LayOutHome(Client(), Dpi(), m_entries.Pinned, static_cast<int>(m_entries.Slots.size()));
}

std::vector<RECT> CHomePage::Areas() const
{
    const HomeLayout layout = Layout();
    std::vector<RECT> areas = {layout.NowLink, layout.City};
    areas.insert(areas.end(), layout.Slots.begin(), layout.Slots.end());
    return areas;
}

void CHomePage::Activate(int target)
{
    const size_t slot = static_cast<size_t>(std::max(0, target - kFirstSlot));
    if (target == kNowTarget)
        m_host.GoTo(PageId::Now);
    else if (target == kCityTarget)
        m_host.OpenDialog(*FindDialogEntry(L"select-city"));
    else if (slot < m_entries.Slots.size())
        // By value: opening it reads the entries anew.
        m_host.OpenEntry(ShellEntry(m_entries.Slots[slot]));
}

CityFacts CHomePage::City() const
{
    return FactsOf(m_city, clockwork::UtcSeconds());
}

std::wstring CHomePage::CityTime() const
{
    const std::optional<int> east = City().SecondsEast;
    return east ? clockwork::TimeTextAt(*east) : std::wstring();
}

void CHomePage::Paint(HDC dc)
{
    CItemPainter::PaintWallpaper(dc, Client());
    const HomeLayout layout = Layout();
    PaintDate(dc, layout);
    PaintCity(dc, layout.City);
    PaintSlots(dc, layout);
}

void CHomePage::PaintDate(HDC dc, const HomeLayout& layout) const
{
    RECT date = layout.Date;
    InflateRect(&date, -ScaleX(kPageMargin), 0);
    date.right = layout.NowLink.left;
    painting::Text(dc, m_painter.Bold(), clockwork::DateText(), date, colours::kTeal,
                   DT_LEFT | DT_VCENTER);
    const bool isSelected = Selected() == kNowTarget;
    if (isSelected)
        CItemPainter::PaintSelection(dc, layout.NowLink);
    const COLORREF colour = isSelected ? colours::kWhite : colours::kTeal;
    RECT link = layout.NowLink;
    link.right -= ScaleX(kPageMargin);
    CItemPainter::PaintArrow(dc, link, colour);
    painting::Text(dc, m_painter.Bold(), texts::Translate(texts::kNow), link, colour,
                   DT_RIGHT | DT_VCENTER);
}

void CHomePage::PaintCity(HDC dc, RECT area) const
{
    const bool isSelected = Selected() == kCityTarget;
    if (isSelected)
        CItemPainter::PaintSelection(dc, area);
    const CityFacts facts = City();
    const RECT icon = {area.left, area.top, area.left + ScaleX(kCityIconWidth), area.bottom};
    icons::Draw(dc, FindDialogEntry(L"select-city")->Icon, icon,
                std::min(ScaleY(kCityIconSize), static_cast<int>(area.bottom - area.top)));
    area.left = icon.right;
    area.right -= ScaleX(kPageMargin);
    if (facts.Place.empty())
        painting::Text(dc, m_painter.Normal(), texts::Translate(texts::kNoCity), area,
                       ColoursOf(isSelected).Faded, DT_LEFT | DT_VCENTER);
    else if (area.bottom - area.top >= ScaleY(2 * kLineHeight))
        PaintCityInTwoLines(dc, area, facts);
    else
        PaintCityInOneLine(dc, area, facts);
}

void CHomePage::PaintCityInTwoLines(HDC dc, RECT area, const CityFacts& facts) const
{
    const CityColours colour = ColoursOf(Selected() == kCityTarget);
    const std::wstring time = CityTime();
    if (!time.empty())
    {
        RECT place = area;
        place.left = place.right - ScaleX(kTimeWidth);
        painting::Text(dc, m_painter.Bold(), time, place, colour.Strong, DT_RIGHT | DT_VCENTER);
        area.right = place.left;
    }
    if (facts.Position.empty())
    {
        painting::Text(dc, m_painter.Bold(), facts.Place, area, colour.Strong,
                       DT_LEFT | DT_VCENTER);
        return;
    }
    InflateRect(&area, 0, -ScaleY(2));
    painting::Text(dc, m_painter.Bold(), facts.Place, area, colour.Strong, DT_LEFT | DT_TOP);
    painting::Text(dc, m_painter.Small(), facts.Position, area, colour.Faded, DT_LEFT | DT_BOTTOM);
}

void CHomePage::PaintCityInOneLine(HDC dc, RECT area, const CityFacts& facts) const
{
    const CityColours colour = ColoursOf(Selected() == kCityTarget);
    const int width = area.right - area.left;
    const RECT place = {area.left, area.top, area.left + width * 2 / 5, area.bottom};
    const RECT position = {place.right, area.top, area.right - ScaleX(kTimeWidth), area.bottom};
    const RECT time = {position.right, area.top, area.right, area.bottom};
    painting::Text(dc, m_painter.Bold(), facts.Place, place, colour.Strong, DT_LEFT | DT_VCENTER);
    painting::Text(dc, m_painter.Small(), facts.Position, position, colour.Faded,
                   DT_LEFT | DT_VCENTER);
    painting::Text(dc, m_painter.Bold(), CityTime(), time, colour.Strong, DT_RIGHT | DT_VCENTER);
}

void CHomePage::PaintSlots(HDC dc, const HomeLayout& layout) const
{
    if (!IsRectEmpty(&layout.PinnedHeading))
        m_painter.PaintHeading(dc, layout.PinnedHeading, texts::Translate(texts::kPinnedBand));
    if (!IsRectEmpty(&layout.MostUsedHeading))
        m_painter.PaintHeading(dc, layout.MostUsedHeading, texts::Translate(texts::kMostUsedBand));
    for (size_t i = 0; i < layout.Slots.size(); ++i)
    {
        const int slot = static_cast<int>(i);
        ItemMarks marks;
        marks.IsSelected = Selected() == kFirstSlot + slot;
        marks.IsPinned = slot < m_entries.Pinned;
        m_painter.PaintCell(dc, m_entries.Slots[i], layout.Slots[i], marks);
    }
    if (!layout.Slots.empty())
        return;
    RECT note = Client();
    note.top = layout.City.bottom;
    painting::Text(dc, m_painter.Normal(), texts::Translate(texts::kNothingUsed), note,
                   colours::kFaded, DT_CENTER | DT_VCENTER);
}
