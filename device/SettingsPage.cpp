#include "device/SettingsPage.h"

#include <algorithm>

#include "device/Texts.h"
#include "ui/Help.h"
#include "ui/Scale.h"

namespace
{

// Logical pixels.
constexpr int kTitleHeight = 24;
constexpr int kRowHeight = 34;

constexpr int kHelpIcon = 137;
constexpr int kExitIcon = 135;

} // namespace

CSettingsPage::CSettingsPage(CPageHost& host, const CItemPainter& painter,
                             const CLauncherMenu& menu)
    : CPage(host, painter), m_menu(menu)
{
}

const wchar_t* CSettingsPage::LeftKeyText() const
{
    return texts::kOpen;
}

const wchar_t* CSettingsPage::RightKeyText() const
{
    return texts::kBack;
}

void CSettingsPage::OnLeftKey()
{
    Activate(Selected());
}

void CSettingsPage::OnRightKey()
{
    m_host.GoTo(PageId::Home);
}

void CSettingsPage::Reload()
{
    m_notes.clear();
    for (const DialogEntry& dialog : kDialogs)
        m_notes.push_back(NoteOf(dialog));
    Redraw();
}

// The menu has no choice of its own to tell.
std::wstring CSettingsPage::NoteOf(const DialogEntry& dialog) const
{
    if (dialog.Choice)
        return dialog.Choice();
    const int hidden = m_menu.HiddenCount();
    return hidden > 0 ? texts::Translate(texts::kHidden, std::to_wstring(hidden)) : std::wstring();
}

RECT CSettingsPage::TitleArea() const
{
    RECT area = Client();
    area.bottom = area.top + ScaleY(kTitleHeight);
    return area;
}

std::vector<RECT> CSettingsPage::Areas() const
{
    const RECT client = Client();
    const int width = client.right - client.left;
    const LONG top = TitleArea().bottom;
    // A wide screen is too low for one column.
    const int columns = width > client.bottom - client.top ? 2 : 1;
    const int rows = (kTargetCount + columns - 1) / columns;
    const int height = std::min(ScaleY(kRowHeight), static_cast<int>(client.bottom - top) / rows);
    std::vector<RECT> areas;
    for (int i = 0; i < kTargetCount; ++i)
    {
        const int column = i % columns;
        const LONG y = top + i / columns * height;
        areas.push_back({client.left + width * column / columns, y,
                         client.left + width * (column + 1) / columns, y + height});
    }
    return areas;
}

void CSettingsPage::Activate(int target)
{
    if (target == kHelpTarget)
        LaunchHelp({});
    else if (target == kExitTarget)
        m_host.Leave();
    else if (target >= 0 && target < kDialogCount)
        m_host.OpenDialog(kDialogs[target]);
}

void CSettingsPage::Paint(HDC dc)
{
    CItemPainter::PaintWallpaper(dc, Client());
    m_painter.PaintTitle(dc, TitleArea(), texts::Translate(texts::kCustomize), {});
    const std::vector<RECT> areas = Areas();
    for (int i = 0; i < kDialogCount; ++i)
    {
        const size_t at = static_cast<size_t>(i);
        m_painter.PaintRow(dc, kDialogs[i].Icon, texts::Translate(kDialogs[i].Title),
                           at < m_notes.size() ? m_notes[at] : std::wstring(), areas[at],
                           i == Selected());
    }
    m_painter.PaintRow(dc, kHelpIcon, texts::Translate(texts::kHelp), {}, areas[kHelpTarget],
                       Selected() == kHelpTarget);
    m_painter.PaintRow(dc, kExitIcon, texts::Translate(texts::kExit), {}, areas[kExitTarget],
                       Selected() == kExitTarget);
}
