#include "device/HostWindow.h"

#include "device/Failure.h"

namespace
{

void RegisterOnce(const wchar_t* className, WNDPROC procedure)
{
    WNDCLASSEXW info = {};
    info.cbSize = sizeof(info);
    if (GetClassInfoExW(GetModuleHandleW(nullptr), className, &info))
        return;
    info = {};
    info.cbSize = sizeof(info);
    info.style = CS_DBLCLKS;
    info.lpfnWndProc = procedure;
    info.hInstance = GetModuleHandleW(nullptr);
    info.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    info.lpszClassName = className;
    RegisterClassExW(&info);
}

} // namespace

CHostWindow::~CHostWindow()
{
    if (!m_window)
        return;
    // The object is half gone: the window must not call it any more.
    SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
    DestroyWindow(m_window);
}

bool CHostWindow::Create(const wchar_t* className, const wchar_t* title, DWORD exStyle, DWORD style,
                         const RECT& area, HWND owner)
{
    RegisterOnce(className, Procedure);
    return CreateWindowExW(exStyle, className, title, style, area.left, area.top,
                           area.right - area.left, area.bottom - area.top, owner, nullptr,
                           GetModuleHandleW(nullptr), this) != nullptr;
}

LRESULT CHostWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam)
{
    return DefWindowProcW(m_window, message, wparam, lparam);
}

LRESULT CHostWindow::Guarded(UINT message, WPARAM wparam, LPARAM lparam)
{
    // The system's window manager stands below: nothing may be thrown through it.
    try
    {
        return OnMessage(message, wparam, lparam);
    }
    catch (...)
    {
        failure::Show(m_window, failure::DescribeCurrent());
        return 0;
    }
}

LRESULT CALLBACK CHostWindow::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam)
{
    if (message == WM_NCCREATE)
    {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lparam);
        auto* self = static_cast<CHostWindow*>(creation->lpCreateParams);
        self->m_window = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<CHostWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self)
        return DefWindowProcW(window, message, wparam, lparam);
    const LRESULT result = self->Guarded(message, wparam, lparam);
    if (message == WM_NCDESTROY)
        self->m_window = nullptr;
    return result;
}
