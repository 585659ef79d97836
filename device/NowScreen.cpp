#include "device/NowScreen.h"

#include "device/NowContents.h"
#include "device/NowPainting.h"
#include "device/Painting.h"
#include "frame/Resolution.h"
#include "include/TavLumenarDialogs.h"

namespace
{

constexpr UINT kRefresh = WM_APP;

class CNowWindow : public CHostWindow
{
public:
    explicit CNowWindow(std::atomic<LayoutType>& shown) : m_shown(shown)
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
        m_shown = m_contents.Type;
        InvalidateRect(Window(), nullptr, FALSE);
    }

    void Paint()
    {
        const painting::CPaint paint(Window());
        PaintNow(paint.Dc(), paint.Area(), GetScreenResolution().dpiY, m_contents);
    }

    NowContents m_contents;
    std::atomic<LayoutType>& m_shown;
};

} // namespace

CNowScreen::CNowScreen() : m_thread([this] { return std::make_unique<CNowWindow>(m_layout); }) {}

void CNowScreen::Show(const RECT& area) const
{
    SetWindowPos(Window(), HWND_TOPMOST, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void CNowScreen::Hide() const
{
    ShowWindow(Window(), SW_HIDE);
}

void CNowScreen::Refresh() const
{
    PostMessageW(Window(), kRefresh, 0, 0);
}
