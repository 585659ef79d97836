#include "device/HomeScreen.h"

#include <windowsx.h>

#include <algorithm>

#include "device/Failure.h"
#include "device/HomeLayout.h"
#include "device/Painting.h"
#include "device/Texts.h"
#include "device/TopBar.h"
#include "device/resource.h"
#include "frame/Resolution.h"
#include "ui/Scale.h"

namespace
{

// Where the next entry in reading order is, in steps of the selection.
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

// How many areas stand beside each other in the first row.
int ColumnsOf(const std::vector<RECT>& areas)
{
    int columns = 0;
    while (columns < static_cast<int>(areas.size()) &&
           areas[static_cast<size_t>(columns)].top == areas[0].top)
        ++columns;
    return std::max(1, columns);
}

} // namespace

CHomeScreen::CHomeScreen(const CNowScreen& now)
    : m_now(now), m_bold(painting::MakeFont(ScaleY(13), true)),
      m_normal(painting::MakeFont(ScaleY(13), false)),
      m_small(painting::MakeFont(ScaleY(11), false))
{
    const RECT screen = {0, CTopBar::Height(), GetSystemMetrics(SM_CXSCREEN),
                         GetSystemMetrics(SM_CYSCREEN)};
    if (!Create(L"TavLumenarHome", L"Tav Lumenar", 0, WS_POPUP | WS_CLIPCHILDREN, screen))
        return;
    m_keys.Create(Window());
    SetWindowPos(Window(), nullptr, 0, screen.top, screen.right, m_keys.Top() - screen.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    ShowPage(Page::Home);
}

void CHomeScreen::Show()
{
    ShowWindow(Window(), SW_SHOW);
    SetForegroundWindow(Window());
    UpdateWindow(Window());
}

void CHomeScreen::Reload()
{
    try
    {
        m_menu.Reload();
    }
    catch (...)
    {
        failure::Show(Window(), failure::DescribeCurrent());
    }
    m_now.Refresh();
    LoadItems();
}

void CHomeScreen::LoadItems()
{
    m_items = m_menu.Items();
    m_first = 0;
    m_selected = std::max(0, std::min(m_selected, TargetCount() - 1));
    InvalidateRect(Window(), nullptr, FALSE);
}

void CHomeScreen::ShowPage(Page page)
{
    m_page = page;
    m_selected = 0;
    const wchar_t* const left = page == Page::Home   ? texts::kMenu
                                : page == Page::Menu ? texts::kOpen
                                                     : texts::kCustomizeNow;
    m_keys.SetTexts(texts::Translate(left),
                    texts::Translate(page == Page::Home ? texts::kExit : texts::kBack));
    Reload();
    if (page != Page::Now)
    {
        m_now.Hide();
        return;
    }
    RECT area = {};
    GetWindowRect(Window(), &area);
    m_now.Show(area);
}

void CHomeScreen::ShowLauncher()
{
    ShowPage(Page::Menu);
}

void CHomeScreen::ShowNow()
{
    ShowPage(Page::Now);
}

RECT CHomeScreen::Client() const
{
    RECT area = {};
    GetClientRect(Window(), &area);
    return area;
}

int CHomeScreen::TargetCount() const
{
    switch (m_page)
    {
    case Page::Home:
        return kDialogCount + 1;
    case Page::Menu:
        return static_cast<int>(m_items.size());
    default:
        return 0;
    }
}

std::vector<RECT> CHomeScreen::TargetAreas() const
{
    const int dpi = GetScreenResolution().dpiY;
    if (m_page == Page::Home)
    {
        HomeLayout layout = LayOutHome(Client(), dpi, kDialogCount);
        layout.Entries.push_back(layout.NowLink);
        return layout.Entries;
    }
    return LayOutMenu(Client(), dpi, m_menu.IsGrid(), TargetCount(), m_first).Cells;
}

LRESULT CHomeScreen::OnMessage(UINT message, WPARAM wparam, LPARAM lparam)
{
    switch (message)
    {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnTap({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, false);
        return 0;
    case WM_LBUTTONUP:
        OnTap({GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}, true);
        return 0;
    case WM_KEYDOWN:
        OnKey(wparam);
        return 0;
    case WM_COMMAND:
        if (LOWORD(wparam) == ID_LEFT_KEY)
            OnLeftKey();
        if (LOWORD(wparam) == ID_RIGHT_KEY)
            OnRightKey();
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

// The stylus selects when it comes down and opens when it leaves the same target.
void CHomeScreen::OnTap(POINT point, bool released)
{
    const std::vector<RECT> areas = TargetAreas();
    const int first = m_page == Page::Menu ? m_first : 0;
    const bool wasPressed = m_pressed;
    m_pressed = false;
    for (size_t i = 0; i < areas.size(); ++i)
    {
        if (!PtInRect(&areas[i], point))
            continue;
        const int target = first + static_cast<int>(i);
        if (released && wasPressed && target == m_selected)
            Activate();
        else if (!released)
        {
            m_selected = target;
            m_pressed = true;
        }
        InvalidateRect(Window(), nullptr, FALSE);
        return;
    }
}

void CHomeScreen::OnKey(WPARAM key)
{
    switch (key)
    {
    case VK_RETURN:
        Activate();
        break;
    case VK_ESCAPE:
    case VK_BACK:
        if (m_page != Page::Home)
            OnRightKey();
        break;
    default:
        MoveSelection(StepOf(key, ColumnsOf(TargetAreas())));
        break;
    }
}

void CHomeScreen::MoveSelection(int step)
{
    const int target = m_selected + step;
    if (step == 0 || target < 0 || target >= TargetCount())
        return;
    m_selected = target;
    if (m_page == Page::Menu)
    {
        const int dpi = GetScreenResolution().dpiY;
        const bool grid = m_menu.IsGrid();
        const int columns = LayOutMenu(Client(), dpi, grid, TargetCount(), m_first).Columns;
        m_first = ScrollToShow(m_selected, m_first, columns, CellsPerPage(Client(), dpi, grid));
    }
    InvalidateRect(Window(), nullptr, FALSE);
}

void CHomeScreen::Activate()
{
    if (m_page == Page::Menu)
        OpenItem(m_selected);
    else if (m_page == Page::Home && m_selected == kNowTarget)
        ShowNow();
    else if (m_page == Page::Home)
        OpenDialog(m_selected);
}

void CHomeScreen::OnLeftKey()
{
    if (m_page == Page::Home)
        ShowPage(Page::Menu);
    else if (m_page == Page::Now)
        CustomizeNowScreen();
    else
        Activate();
}

// The dialog comes up below the Now screen, which therefore makes room for it.
void CHomeScreen::CustomizeNowScreen()
{
    m_now.Hide();
    OpenDialog(static_cast<int>(FindDialogEntry(L"customize-now") - kDialogs));
    ShowNow();
}

void CHomeScreen::OnRightKey()
{
    if (m_page == Page::Home)
    {
        PostMessageW(Window(), WM_CLOSE, 0, 0);
        return;
    }
    m_selected = 0;
    if (m_page == Page::Menu && m_menu.Back())
        LoadItems();
    else
        ShowPage(Page::Home);
}

void CHomeScreen::OpenDialog(int entry)
{
    const DialogEntry& dialog = kDialogs[entry];
    try
    {
        dialog.Run(Window());
    }
    catch (...)
    {
        // The failed dialog may have left its owner disabled.
        EnableWindow(Window(), TRUE);
        failure::Show(Window(), failure::DescribeCurrent());
    }
    Reload();
}

void CHomeScreen::OpenItem(int item)
{
    if (item < 0 || item >= static_cast<int>(m_items.size()))
        return;
    const CMenuItemPtr chosen = m_items[static_cast<size_t>(item)];
    if (m_menu.Open(chosen))
    {
        m_selected = 0;
        LoadItems();
        return;
    }
    MessageBoxW(Window(), texts::Translate(texts::kNoProgram, chosen->Text).c_str(), L"Tav Lumenar",
                MB_OK | MB_ICONINFORMATION);
}
