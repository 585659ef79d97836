#include "device/LauncherPage.h"

#include <algorithm>

#include "device/ColourScheme.h"
#include "device/Painting.h"
#include "device/Texts.h"

CLauncherPage::CLauncherPage(CPageHost& host, const CItemPainter& painter, CLauncherMenu& menu)
    : CPage(host, painter), m_menu(menu)
{
}

const wchar_t* CLauncherPage::LeftKeyText() const
{
    return texts::kOpen;
}

const wchar_t* CLauncherPage::RightKeyText() const
{
    return texts::kBack;
}

void CLauncherPage::OnLeftKey()
{
    Activate(Selected());
}

// The selection comes back to the menu that was left.
void CLauncherPage::OnRightKey()
{
    const std::wstring left = m_menu.Title();
    if (!m_menu.Back())
    {
        m_host.GoTo(PageId::Home);
        return;
    }
    ShowFromBeginning();
    const std::vector<ShellEntry>& entries = m_menu.Entries();
    for (int i = 0; i < Count(); ++i)
        if (entries[static_cast<size_t>(i)].IsMenu && entries[static_cast<size_t>(i)].Text == left)
        {
            Select(i);
            ScrollToSelected();
            return;
        }
}

// The menu itself is read by the host, which shares it with the home page. The selection stays with
// its place.
void CLauncherPage::Reload()
{
    Select(Selected());
    ScrollToSelected();
}

void CLauncherPage::OnResize()
{
    ScrollToSelected();
}

void CLauncherPage::ShowFromBeginning()
{
    m_first = 0;
    Select(0);
}

MenuStyle CLauncherPage::Style() const
{
    if (m_menu.IsForHardwareKeys())
        return MenuStyle::Numbered;
    return m_menu.IsGrid() ? MenuStyle::Grid : MenuStyle::List;
}

MenuLayout CLauncherPage::Layout() const
{
    return LayOutMenu(Client(), Dpi(), Style(), Count(), m_first);
}

std::vector<RECT> CLauncherPage::Areas() const
{
    const MenuLayout layout = Layout();
    std::vector<RECT> areas(static_cast<size_t>(Count()));
    for (size_t i = 0; i < layout.Cells.size(); ++i)
        areas[static_cast<size_t>(m_first) + i] = layout.Cells[i];
    return areas;
}

void CLauncherPage::Activate(int target)
{
    if (target >= 0 && target < Count())
        // By value: opening it reads the entries anew.
        m_host.OpenEntry(ShellEntry(m_menu.Entries()[static_cast<size_t>(target)]));
}

bool CLauncherPage::OnKey(WPARAM key)
{
    const int cell = Style() == MenuStyle::Numbered ? CellOfDigit(key) : -1;
    if (cell >= 0)
        return OpenCell(cell);
    const bool isHandled = CPage::OnKey(key);
    ScrollToSelected();
    return isHandled;
}

// What a digit on the keypad does: selects the cell and opens it at once.
bool CLauncherPage::OpenCell(int cell)
{
    const int target = m_first + cell;
    if (target >= Count())
        return false;
    Select(target);
    Activate(target);
    return true;
}

void CLauncherPage::OnStylusDown(POINT point)
{
    const MenuLayout layout = Layout();
    if (!PtInRect(&layout.ScrollBar, point))
    {
        CPage::OnStylusDown(point);
        return;
    }
    const bool isDown = point.y >= (layout.Thumb.top + layout.Thumb.bottom) / 2;
    ScrollTo(ScrollByPage(isDown, Count(), m_first, layout.Columns,
                          CellsPerPage(Client(), Dpi(), Style())));
}

// The selection comes along, so that the keys go on from where the page is.
void CLauncherPage::ScrollTo(int first)
{
    const int way = first - m_first;
    m_first = first;
    Select(Selected() + way);
}

int CLauncherPage::NextTarget(WPARAM key) const
{
    return NextInMenu(Style(), key, Selected(), Count(), Layout().Columns,
                      CellsPerPage(Client(), Dpi(), Style()));
}

void CLauncherPage::ScrollToSelected()
{
    const int columns = Layout().Columns;
    const int perPage = CellsPerPage(Client(), Dpi(), Style());
    m_first =
        ScrollToShow(Style(), Selected(), std::min(m_first, LastFirst(Count(), columns, perPage)),
                     columns, perPage);
    Redraw();
}

// "1/2" for a numbered menu, which has no scroll bar.
std::wstring CLauncherPage::PageOfPages() const
{
    const int perPage = CellsPerPage(Client(), Dpi(), Style());
    if (Style() != MenuStyle::Numbered || Count() <= perPage)
        return {};
    return std::to_wstring(m_first / perPage + 1) + L"/" +
           std::to_wstring((Count() + perPage - 1) / perPage);
}

void CLauncherPage::Paint(HDC dc)
{
    CItemPainter::PaintWallpaper(dc, Client());
    const MenuStyle style = Style();
    const MenuLayout layout = Layout();
    const std::wstring title = m_menu.Title();
    m_painter.PaintTitle(dc, layout.Title, title.empty() ? texts::Translate(texts::kMenu) : title,
                         PageOfPages());
    for (size_t i = 0; i < layout.Cells.size(); ++i)
    {
        const int index = m_first + static_cast<int>(i);
        const ShellEntry& entry = m_menu.Entries()[static_cast<size_t>(index)];
        ItemMarks marks;
        marks.IsSelected = index == Selected();
        marks.Digit = style == MenuStyle::Numbered ? static_cast<int>(i) + 1 : 0;
        if (style == MenuStyle::List)
            m_painter.PaintLine(dc, entry, layout.Cells[i], marks.IsSelected);
        else
            m_painter.PaintCell(dc, entry, layout.Cells[i], marks);
    }
    if (!IsRectEmpty(&layout.ScrollBar))
        CItemPainter::PaintScrollBar(dc, layout.ScrollBar, layout.Thumb);
    if (!layout.Cells.empty())
        return;
    RECT note = Client();
    note.top = layout.Title.bottom;
    painting::Text(dc, m_painter.Normal(), texts::Translate(texts::kNoItems), note, colours::kFaded,
                   DT_CENTER | DT_VCENTER);
}
