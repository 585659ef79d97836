#include "device/NowScreen.h"

#include <algorithm>

#include "device/NowContents.h"
#include "device/NowLayout.h"
#include "device/NowPainting.h"
#include "device/Painting.h"
#include "frame/Resolution.h"
#include "include/TavLumenarDialogs.h"

namespace
{

constexpr UINT kRefresh = WM_APP;
// wParam is the number of panels.
constexpr UINT kScroll = WM_APP + 1;

class CNowWindow : public CHostWindow
{
public:
    explicit CNowWindow(CNowScreen::State& state) : m_state(state)
    {
        Create(TAVLUMENAR_NOW_WINDOW_CLASS, L"", WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, WS_POPUP, {});
    }

protected:
    LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override
    {
        switch (message)
        {
        case WM_CREATE:
        case kRefresh:
            Take(ReadNowContents());
            return 0;
        case TAVLUMENAR_NOW_LAYOUT_CHANGED:
            Take({LoadLayoutType(), std::move(m_contents.Panels)});
            return 0;
        case kScroll:
            ScrollTo(m_state.First + static_cast<int>(static_cast<INT_PTR>(wparam)));
            return 0;
        case WM_SIZE:
            ScrollTo(m_state.First);
            return 0;
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return TRUE;
        case WM_MOUSEACTIVATE:
            // The home screen below keeps the keys.
            return MA_NOACTIVATE;
        case WM_DESTROY:
            PostQuitMessage(0);
            return 0;
        default:
            return CHostWindow::OnMessage(message, wparam, lparam);
        }
    }

private:
    void Take(NowContents contents)
    {
        m_contents = std::move(contents);
        m_state.Layout = m_contents.Type;
        m_state.Panels = static_cast<int>(m_contents.Panels.size());
        ScrollTo(m_state.First);
    }

    RECT Client() const
    {
        RECT area = {};
        GetClientRect(Window(), &area);
        return area;
    }

    void ScrollTo(int first)
    {
        const int fitting =
            LayOutNow(Client(), GetScreenResolution().dpiY, m_contents.Type, m_state.Panels)
                .PerPage;
        m_state.First = std::max(0, std::min(first, m_state.Panels - fitting));
        InvalidateRect(Window(), nullptr, FALSE);
    }

    void Paint()
    {
        const painting::CPaint paint(Window());
        PaintNow(paint.Dc(), paint.Area(), GetScreenResolution().dpiY, m_contents, m_state.First);
    }

    NowContents m_contents;
    CNowScreen::State& m_state;
};

} // namespace

CNowScreen::CNowScreen() : m_thread([this] { return std::make_unique<CNowWindow>(m_state); }) {}

void CNowScreen::Show(const RECT& area) const
{
    SetWindowPos(Window(), HWND_TOPMOST, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void CNowScreen::Hide() const
{
    ShowWindow(Window(), SW_HIDE);
}

void CNowScreen::Scroll(int panels) const
{
    PostMessageW(Window(), kScroll, static_cast<WPARAM>(static_cast<INT_PTR>(panels)), 0);
}

void CNowScreen::Refresh() const
{
    PostMessageW(Window(), kRefresh, 0, 0);
}
