#include "platform/aygshell/MenuBar.h"

#include <new>
#include <utility>

#include "platform/aygshell/BarKeys.h"
#include "platform/aygshell/BarOwner.h"
#include "platform/aygshell/Metrics.h"
#include "platform/aygshell/Module.h"
#include "platform/aygshell/SipButton.h"
#include "platform/aygshell/SoftKeys.h"

namespace shell
{

namespace
{

// The input-panel button, in logical pixels.
constexpr int kSipButtonWidth = 34;

// Takes a waiting press on the soft key with this index out of the queue.
void SwallowPress(HWND toolbar, int index, UINT message)
{
    MSG press;
    if (!PeekMessageW(&press, toolbar, message, message, PM_NOREMOVE))
        return;
    POINT point = PointOf(press.lParam);
    if (SendMessageW(toolbar, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)) == index)
        PeekMessageW(&press, toolbar, message, message, PM_REMOVE);
}

// Ends the pop-up of a bar that goes away. Not every system wakes the menu's loop when its owner
// is gone before it; a message for the thread does.
void EndPopup()
{
    EndMenu();
    PostThreadMessageW(GetCurrentThreadId(), WM_CANCELMODE, 0, 0);
}

} // namespace

bool RegisterMenuBarClass()
{
    return RegisterShellClass(kMenuBarClass, CMenuBar::WindowProc);
}

HWND CMenuBar::Create(const SHMENUBARINFO& info, UniqueMenu menu)
{
    const RECT place = BarRect();
    const HWND window =
        CreateWindowExW(WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW, kMenuBarClass, nullptr,
                        WS_POPUP | WS_CLIPCHILDREN, place.left, place.top, Width(place),
                        Height(place), info.hwndParent, nullptr, Instance(), nullptr);
    if (window == nullptr)
        return nullptr;
    CMenuBar* bar = new (std::nothrow) CMenuBar(window, info, std::move(menu));
    if (bar == nullptr || !bar->CreateParts(info))
    {
        // The window takes the object with it.
        DestroyWindow(window); // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    return window;
}

CMenuBar::CMenuBar(HWND window, const SHMENUBARINFO& info, UniqueMenu menu)
    : m_window(window), m_owner(info.hwndParent),
      m_isColoured((info.dwFlags & SHCMBF_COLORBK) != 0), m_menu(std::move(menu)),
      m_font(CreateShellFont(FW_BOLD))
{
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

CMenuBar::~CMenuBar()
{
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    if (m_isPopupOpen)
        EndPopup();
    if (m_hook != nullptr)
        UnhookWindowsHookEx(m_hook);
    if (m_toolbar != nullptr)
        DetachOwner(m_owner, m_toolbar);
}

bool CMenuBar::CreateParts(const SHMENUBARINFO& info)
{
    const COLORREF background = (info.dwFlags & SHCMBF_COLORBK) != 0 ? info.clrBk : CLR_DEFAULT;
    m_toolbar = CreateSoftKeys(m_window, background, m_font.get());
    if (m_toolbar == nullptr || (m_menu && !AddSoftKeys(m_toolbar, m_menu.get())))
        return false;
    if ((info.dwFlags & SHCMBF_HIDESIPBUTTON) == 0)
    {
        m_sipButton = CreateSipButton(m_window, kSipButtonId, background);
        if (m_sipButton == nullptr)
            return false;
    }
    m_hook = HookBarKeys();
    Fit();
    return m_hook != nullptr;
}

bool CMenuBar::FillEmpty(const SHMENUBARINFO& info, UniqueMenu& menu)
{
    const HWND toolbar = SHFindMenuBar(info.hwndParent);
    if (toolbar == nullptr || !menu)
        return false;
    auto* const bar =
        reinterpret_cast<CMenuBar*>(GetWindowLongPtrW(GetParent(toolbar), GWLP_USERDATA));
    return bar != nullptr && bar->TakeKeys(info, menu);
}

bool CMenuBar::TakeKeys(const SHMENUBARINFO& info, UniqueMenu& menu)
{
    const bool wantsSipButton = (info.dwFlags & SHCMBF_HIDESIPBUTTON) == 0;
    const bool hasSipButton = m_sipButton != nullptr;
    const bool isColoured = m_isColoured || (info.dwFlags & SHCMBF_COLORBK) != 0;
    if (m_menu || isColoured || (wantsSipButton && !hasSipButton))
        return false;
    if (!AddSoftKeys(m_toolbar, menu.get()))
    {
        RemoveSoftKeys(m_toolbar);
        return false;
    }
    m_menu = std::move(menu);
    if (!wantsSipButton && hasSipButton)
        DestroyWindow(std::exchange(m_sipButton, nullptr));
    LayoutSoftKeys(m_toolbar);
    Redraw();
    return true;
}

void CMenuBar::Fit()
{
    const RECT place = BarRect();
    const int width = Width(place);
    const int height = Height(place);
    SetWindowPos(m_window, nullptr, place.left, place.top, width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    SetWindowPos(m_toolbar, HWND_BOTTOM, 0, 0, width, height, SWP_NOACTIVATE);
    LayoutSoftKeys(m_toolbar);
    if (m_sipButton != nullptr)
    {
        const int button = Scaled(kSipButtonWidth);
        SetWindowPos(m_sipButton, HWND_TOP, (width - button) / 2, 0, button, height,
                     SWP_NOACTIVATE);
    }
    Redraw();
}

void CMenuBar::Redraw()
{
    RedrawWindow(m_window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

LRESULT CALLBACK CMenuBar::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    CMenuBar* bar = reinterpret_cast<CMenuBar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (bar == nullptr)
        return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY)
    {
        delete bar;
        return DefWindowProcW(window, message, wParam, lParam);
    }
    return bar->OnMessage(message, wParam, lParam);
}

LRESULT CMenuBar::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (m_toolbar != nullptr && IsScreenChange(message, wParam))
        Fit();
    if (m_isPopupOpen && message == WM_DISPLAYCHANGE)
        CloseOpenMenu();
    switch (message)
    {
    case WM_MOUSEACTIVATE:
        return MA_NOACTIVATE;
    case WM_ERASEBKGND:
        // The children cover the bar.
        return TRUE;
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
        Redraw();
        break;
    case WM_COMMAND:
        Press(static_cast<int>(SendMessageW(m_toolbar, TB_COMMANDTOINDEX, LOWORD(wParam), 0)));
        return 0;
    case kPressSoftKey:
        Press(static_cast<int>(wParam));
        return 0;
    case WM_NOTIFY:
        return OnNotify(*reinterpret_cast<const NMHDR*>(lParam), lParam);
    }
    return DefWindowProcW(m_window, message, wParam, lParam);
}

// The pop-up opens from a posted message: while it is open the dialog may go away, and the
// toolbar, which is still inside its own press, with it.
LRESULT CMenuBar::OnNotify(const NMHDR& header, LPARAM lParam)
{
    if (header.code != TBN_DROPDOWN)
        return 0;
    const int id = reinterpret_cast<const NMTOOLBARW*>(lParam)->iItem;
    const LRESULT index = SendMessageW(m_toolbar, TB_COMMANDTOINDEX, static_cast<WPARAM>(id), 0);
    PostMessageW(m_window, kPressSoftKey, static_cast<WPARAM>(index), 0);
    return TBDDRET_DEFAULT;
}

void CMenuBar::Press(int index)
{
    TBBUTTON key{};
    if (index < 0 || !SendMessageW(m_toolbar, TB_GETBUTTON, static_cast<WPARAM>(index),
                                   reinterpret_cast<LPARAM>(&key)))
        return;
    const bool usable = (key.fsState & (TBSTATE_ENABLED | TBSTATE_HIDDEN)) == TBSTATE_ENABLED;
    // A message box disables its owner; the owner's keys must rest as long.
    if (!usable || !IsWindowEnabled(m_owner))
        return;
    const HMENU popup = reinterpret_cast<HMENU>(key.dwData);
    if (popup == nullptr)
        SendMessageW(m_owner, WM_COMMAND, LOWORD(key.idCommand), 0);
    else if (IsMenu(popup))
        ShowPopup(index, key, popup);
}

void CMenuBar::ShowPopup(int index, const TBBUTTON& key, HMENU popup)
{
    // Copies: the object may be gone when the menu closes.
    const HWND toolbar = m_toolbar;
    const auto id = static_cast<WPARAM>(key.idCommand);

    TPMPARAMS around{};
    around.cbSize = sizeof around;
    GetWindowRect(m_window, &around.rcExclude);
    const RECT place = SoftKeyRect(toolbar, index);
    const bool onLeft = place.left + place.right < Width(around.rcExclude);
    const int x = around.rcExclude.left + (onLeft ? place.left : place.right);
    const UINT align = (onLeft ? TPM_LEFTALIGN : TPM_RIGHTALIGN) | TPM_BOTTOMALIGN | TPM_VERTICAL;

    SendMessageW(toolbar, TB_PRESSBUTTON, id, MAKELPARAM(TRUE, 0));
    m_isPopupOpen = true;
    TrackPopupMenuEx(popup, align, x, around.rcExclude.top, m_owner, &around);
    if (!IsWindow(toolbar))
        return;
    m_isPopupOpen = false;
    SendMessageW(toolbar, TB_PRESSBUTTON, id, MAKELPARAM(FALSE, 0));
    // The press that closes a pop-up by hitting its own key again must not open it anew.
    SwallowPress(toolbar, index, WM_LBUTTONDOWN);
    SwallowPress(toolbar, index, WM_LBUTTONDBLCLK);
}

} // namespace shell
