#include "device/HomeScreen.h"

#include <windowsx.h>

#include <algorithm>

#include "device/Clock.h"
#include "device/Failure.h"
#include "device/Launching.h"
#include "device/Painting.h"
#include "device/Texts.h"
#include "device/TopBar.h"
#include "device/Usage.h"
#include "device/resource.h"

namespace
{

constexpr const wchar_t* kTitle = L"Tav Lumenar";

constexpr UINT_PTR kClockTimer = 1;
constexpr UINT kClockPeriod = 1000;

POINT PointOf(LPARAM lparam)
{
    return {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
}

// Set for the length of a scope.
class CBusy
{
public:
    explicit CBusy(bool& flag) : m_flag(flag), m_before(flag) { m_flag = true; }
    ~CBusy() { m_flag = m_before; }
    CBusy(const CBusy&) = delete;
    CBusy& operator=(const CBusy&) = delete;

private:
    bool& m_flag;
    bool m_before;
};

} // namespace

CHomeScreen::CHomeScreen(const CNowScreen& now)
    : m_now(now), m_home(*this, m_painter, m_menu), m_launcher(*this, m_painter, m_menu),
      m_settings(*this, m_painter, m_menu), m_nowPage(*this, m_painter, now)
{
    const RECT screen = {0, CTopBar::Height(), GetSystemMetrics(SM_CXSCREEN),
                         GetSystemMetrics(SM_CYSCREEN)};
    if (!Create(L"TavLumenarHome", kTitle, 0, WS_POPUP | WS_CLIPCHILDREN, screen))
        return;
    // From here on they keep the window in its place.
    m_keys.Create(Window());
    m_isReady = true;
    SetTimer(Window(), kClockTimer, kClockPeriod, nullptr);
    CHomeScreen::GoTo(PageId::Home);
}

CHomeScreen::~CHomeScreen()
{
    m_now.Hide();
}

void CHomeScreen::Show()
{
    ShowWindow(Window(), SW_SHOW);
    SetForegroundWindow(Window());
    UpdateWindow(Window());
}

void CHomeScreen::Reload()
{
    const CBusy busy(m_isBusy);
    try
    {
        m_menu.Reload();
        Shown().Reload();
    }
    catch (...)
    {
        failure::Show(Window(), failure::DescribeCurrent());
    }
    m_now.Refresh();
    InvalidateRect(Window(), nullptr, FALSE);
}

CPage& CHomeScreen::Page(PageId page)
{
    switch (page)
    {
    case PageId::Launcher:
        return m_launcher;
    case PageId::Settings:
        return m_settings;
    case PageId::Now:
        return m_nowPage;
    default:
        return m_home;
    }
}

void CHomeScreen::GoTo(PageId page)
{
    if (page != m_page)
        Shown().OnHide();
    m_page = page;
    m_keys.SetTexts(texts::Translate(Shown().LeftKeyText()),
                    texts::Translate(Shown().RightKeyText()));
    Reload();
    if (page == PageId::Launcher)
    {
        m_menu.GoToTop();
        m_launcher.ShowFromBeginning();
    }
    Shown().OnShow();
}

bool CHomeScreen::ShowMenu(const std::wstring& keyPath)
{
    GoTo(PageId::Launcher);
    const CMenuItemPtr item = m_menu.FindByPath(keyPath);
    const bool isOpen = item && m_menu.Open(EntryOf(item));
    m_launcher.ShowFromBeginning();
    return isOpen;
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
        Shown().OnStylusDown(PointOf(lparam));
        return 0;
    case WM_LBUTTONUP:
        Shown().OnStylusUp(PointOf(lparam));
        return 0;
    case WM_KEYDOWN:
        Shown().OnKey(wparam);
        return 0;
    case WM_COMMAND:
        OnCommand(LOWORD(wparam));
        return 0;
    case WM_SIZE:
        if (m_isReady)
            Shown().OnResize();
        InvalidateRect(Window(), nullptr, FALSE);
        return 0;
    case WM_ACTIVATE:
        // Another program may have used the lists meanwhile.
        if (LOWORD(wparam) != WA_INACTIVE && !m_isBusy && IsWindowVisible(Window()))
            Reload();
        return CHostWindow::OnMessage(message, wparam, lparam);
    case WM_TIMER:
        OnTimer();
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

void CHomeScreen::OnCommand(UINT command)
{
    if (command == ID_LEFT_KEY)
        Shown().OnLeftKey();
    if (command == ID_RIGHT_KEY)
        Shown().OnRightKey();
}

// Only the home page tells the time and the date.
void CHomeScreen::OnTimer()
{
    const std::wstring time = clockwork::DateText() + clockwork::TimeText();
    if (time == m_time)
        return;
    m_time = time;
    InvalidateRect(Window(), nullptr, FALSE);
}

void CHomeScreen::OpenDialog(const DialogEntry& dialog)
{
    {
        const CBusy busy(m_isBusy);
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
    }
    Reload();
}

void CHomeScreen::OpenEntry(const ShellEntry& entry)
{
    if (entry.IsGone)
        Say(texts::kGone, entry.Text);
    else if (entry.IsMenu)
        OpenMenu(entry);
    else
        StartEntry(entry);
}

// From the home screen a menu is a target like any other. On the way through the launcher it isn't:
// otherwise the home screen would fill with menus that were only passed through.
void CHomeScreen::OpenMenu(const ShellEntry& entry)
{
    if (m_page != PageId::Launcher)
    {
        Count(entry, false);
        ShowMenu(entry.Item->KeyPath);
        return;
    }
    m_menu.CountUse(entry);
    m_menu.Open(entry);
    m_launcher.ShowFromBeginning();
}

// Started first: counting may have to wait for another process. What the sample device has no
// program for counts like a program that ran.
void CHomeScreen::StartEntry(const ShellEntry& entry)
{
    const launching::Result result =
        entry.Path.empty() ? launching::Result::NoProgram : launching::Start(entry.Path);
    Count(entry, m_page == PageId::Launcher);
    if (result == launching::Result::NoProgram)
        Say(texts::kNoProgram, entry.Text);
    if (result == launching::Result::Failed)
        Say(texts::kNotStarted, entry.Text);
    Reload();
}

void CHomeScreen::Count(const ShellEntry& entry, bool isInLauncher)
{
    if (!entry.Name.empty())
        usage::CountLaunch(entry.Name);
    if (isInLauncher)
        m_menu.CountUse(entry);
}

void CHomeScreen::Say(const wchar_t* text, const std::wstring& value)
{
    const CBusy busy(m_isBusy);
    MessageBoxW(Window(), texts::Translate(text, value).c_str(), kTitle,
                MB_OK | MB_ICONINFORMATION);
}

void CHomeScreen::Leave()
{
    PostMessageW(Window(), WM_CLOSE, 0, 0);
}

void CHomeScreen::Paint()
{
    const painting::CPaint paint(Window());
    Shown().Paint(paint.Dc());
}
