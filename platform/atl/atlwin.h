// Windows and dialogs as objects: CWindow wraps a handle, CWindowImpl subclasses a window,
// CDialogImpl is a dialog over a template resource, message maps route messages to handlers.
// This is the part of the vendor's window template library that the dialogs use, under its names.
#pragma once

#include "atlbase.h"
#include "atlmodal.h"
#include "atlthunk.h"

#include <olectl.h>

#include <utility>

namespace ATL
{

// A window handle with the calls that take it; copies share the window, nobody owns it.
class CWindow
{
public:
    explicit CWindow(HWND window = nullptr) : m_hWnd(window) {}
    CWindow& operator=(HWND window)
    {
        m_hWnd = window;
        return *this;
    }
    operator HWND() const { return m_hWnd; }

    void Attach(HWND window) { m_hWnd = window; }
    HWND Detach() { return std::exchange(m_hWnd, nullptr); }
    BOOL IsWindow() const { return ::IsWindow(m_hWnd); }
    CWindow GetDlgItem(int id) const { return CWindow(::GetDlgItem(m_hWnd, id)); }
    LONG GetWindowLong(int index) const { return ::GetWindowLongW(m_hWnd, index); }
    LONG SetWindowLong(int index, LONG value) { return ::SetWindowLongW(m_hWnd, index, value); }
    DWORD GetStyle() const { return static_cast<DWORD>(GetWindowLong(GWL_STYLE)); }
    void ModifyStyle(DWORD remove, DWORD add)
    {
        SetWindowLong(GWL_STYLE, static_cast<LONG>((GetStyle() & ~remove) | add));
    }
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL SetWindowText(const wchar_t* text) { return ::SetWindowTextW(m_hWnd, text); }
    int GetWindowText(wchar_t* text, int size) const
    {
        return ::GetWindowTextW(m_hWnd, text, size);
    }
    BOOL GetWindowRect(RECT* rect) const { return ::GetWindowRect(m_hWnd, rect); }
    BOOL GetClientRect(RECT* rect) const { return ::GetClientRect(m_hWnd, rect); }
    BOOL ClientToScreen(POINT* point) const { return ::ClientToScreen(m_hWnd, point); }
    BOOL ScreenToClient(POINT* point) const { return ::ScreenToClient(m_hWnd, point); }
    BOOL InvalidateRect(const RECT* rect, BOOL erase = TRUE)
    {
        return ::InvalidateRect(m_hWnd, rect, erase);
    }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    HWND SetFocus() { return ::SetFocus(m_hWnd); }
    void SetFont(HFONT font, BOOL redraw = TRUE)
    {
        SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font), MAKELPARAM(redraw, 0));
    }

    HWND m_hWnd;
};

// What message maps implement.
class CMessageMap
{
public:
    // Offers a message to the map's handlers. Returns TRUE and sets `result` when one took it.
    virtual BOOL ProcessWindowMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                      LRESULT& result, DWORD mapId = 0) = 0;
};

// An object that waits for its window to be created on the current thread. Lives in the object;
// the waiting ones are chained.
struct _AtlCreateWndData
{
    void* m_pThis = nullptr;
    _AtlCreateWndData* m_pNext = nullptr;
};

// Registers `object` as the one whose window is being created now.
void AddCreateWndData(_AtlCreateWndData& data, void* object);
// Takes the object that registered last on the current thread; null when there is none.
void* ExtractCreateWndData();

// Common part of everything that receives messages.
template <class TBase = CWindow>
class CWindowImplRoot : public TBase, public CMessageMap
{
public:
    CWindowImplRoot() = default;
    virtual ~CWindowImplRoot() = default;
    CWindowImplRoot(const CWindowImplRoot&) = delete;
    CWindowImplRoot& operator=(const CWindowImplRoot&) = delete;

    // Sends a child's notification back to the child. Returns its answer; clears `handled` for any
    // other message.
    LRESULT ReflectNotifications(UINT message, WPARAM wParam, LPARAM lParam, BOOL& handled)
    {
        if (message != WM_NOTIFY)
        {
            handled = FALSE;
            return 0;
        }
        const HWND child = reinterpret_cast<const NMHDR*>(lParam)->hwndFrom;
        return ::SendMessageW(child, OCM__BASE + message, wParam, lParam);
    }

    CWndProcThunk m_thunk;
    _AtlCreateWndData m_createData;
};

// Dialogs: routes the messages of the dialog window to the object's message map.
template <class TBase = CWindow>
class CDialogImplBaseT : public CWindowImplRoot<TBase>
{
public:
    virtual DLGPROC GetDialogProc() { return DialogProc; }
    // Called once, after the window's last message.
    virtual void OnFinalMessage(HWND /*window*/) {}

    // Ends the modal run with the given code.
    BOOL EndDialog(int code) { return ::EndDialog(this->m_hWnd, code); }

    // Binds the new window to the object that waits for it, then works as its dialog procedure.
    static INT_PTR CALLBACK StartDialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const self = static_cast<CDialogImplBaseT*>(ExtractCreateWndData());
        if (!self)
            return FALSE;
        self->m_hWnd = window;
        CModalScope::BindWindow(window);
        self->m_thunk.Init(reinterpret_cast<WNDPROC>(self->GetDialogProc()), self);
        const auto procedure = reinterpret_cast<DLGPROC>(self->m_thunk.GetWNDPROC());
        ::SetWindowLongPtrW(window, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(procedure));
        return procedure(window, message, wParam, lParam);
    }

    // `object` is the dialog object: the thunk has put it in the window's place.
    static INT_PTR CALLBACK DialogProc(HWND object, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const self = reinterpret_cast<CDialogImplBaseT*>(object);
        const HWND window = self->m_hWnd;
        LRESULT result = 0;
        BOOL handled = FALSE;
        if (!CModalScope::HasFailed(window))
        {
            try
            {
                handled = self->ProcessWindowMessage(window, message, wParam, lParam, result, 0);
            }
            catch (...)
            {
                CModalScope::KeepCurrentException();
                return FALSE;
            }
        }
        if (message == WM_NCDESTROY)
        {
            self->m_hWnd = nullptr;
            self->OnFinalMessage(window);
            return handled;
        }
        if (!handled)
            return FALSE;
        if (ReturnsResultDirectly(message))
            return result;
        ::SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
        return TRUE;
    }

private:
    // The messages whose dialog procedure returns the result itself.
    static bool ReturnsResultDirectly(UINT message)
    {
        return message == WM_INITDIALOG || message == WM_COMPAREITEM || message == WM_VKEYTOITEM ||
               message == WM_CHARTOITEM || message == WM_QUERYDRAGICON ||
               (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC);
    }
};

// Runs the dialog template `id` of the resource instance modally with the given procedure. Returns
// the dialog's end code; -1 when the template is missing or the dialog can't be created. An
// exception that a window procedure handed over leaves this call.
// The caller has registered its object with `data`.
INT_PTR RunModalDialog(HWND owner, UINT id, DLGPROC procedure, LPARAM parameter,
                       const _AtlCreateWndData& data);

// A modal dialog over the template resource T::IDD.
template <class T, class TBase = CWindow>
class CDialogImpl : public CDialogImplBaseT<TBase>
{
public:
    // Runs the dialog until EndDialog and returns its code; -1 when it could not be shown, with
    // last error 14 when there is no memory for its thunk.
    INT_PTR DoModal(HWND owner = ::GetActiveWindow(), LPARAM parameter = 0)
    {
        ATLASSERT(!this->m_hWnd);
        if (!this->m_thunk.Init(nullptr, nullptr))
        {
            ::SetLastError(ERROR_OUTOFMEMORY);
            return -1;
        }
        AddCreateWndData(this->m_createData, static_cast<CDialogImplBaseT<TBase>*>(this));
        return RunModalDialog(owner, static_cast<UINT>(T::IDD), T::StartDialogProc, parameter,
                              this->m_createData);
    }
};

// Windows that exist already: puts an object's message map in front of a window's own procedure.
template <class TBase = CWindow>
class CWindowImplBaseT : public CWindowImplRoot<TBase>
{
public:
    // A window that outlives its object gets its own procedure back.
    ~CWindowImplBaseT() override
    {
        if (this->m_hWnd)
            UnsubclassWindow(TRUE);
    }

    virtual WNDPROC GetWindowProc() { return WindowProc; }
    // Called once, after the window's last message.
    virtual void OnFinalMessage(HWND /*window*/) {}

    // Takes the window's messages. FALSE when it is no window or there is no memory for a thunk.
    BOOL SubclassWindow(HWND window)
    {
        ATLASSERT(!this->m_hWnd);
        if (!this->m_thunk.Init(GetWindowProc(), this))
        {
            ::SetLastError(ERROR_OUTOFMEMORY);
            return FALSE;
        }
        const LONG_PTR own = ::SetWindowLongPtrW(window, GWLP_WNDPROC, ThunkAddress());
        if (!own)
            return FALSE;
        m_pfnSuperWindowProc = reinterpret_cast<WNDPROC>(own);
        this->m_hWnd = window;
        return TRUE;
    }

    // Gives the window back its own procedure and returns it. Null, with nothing changed, when
    // somebody else has subclassed it since, unless `force` is set.
    HWND UnsubclassWindow(BOOL force = FALSE)
    {
        if (!this->m_hWnd ||
            (!force && ::GetWindowLongPtrW(this->m_hWnd, GWLP_WNDPROC) != ThunkAddress()))
            return nullptr;
        ::SetWindowLongPtrW(this->m_hWnd, GWLP_WNDPROC,
                            reinterpret_cast<LONG_PTR>(m_pfnSuperWindowProc));
        m_pfnSuperWindowProc = ::DefWindowProcW;
        return this->Detach();
    }

    // What the window does with a message by itself.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::CallWindowProcW(m_pfnSuperWindowProc, this->m_hWnd, message, wParam, lParam);
    }

    // `object` is the window object: the thunk has put it in the window's place.
    static LRESULT CALLBACK WindowProc(HWND object, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* const self = reinterpret_cast<CWindowImplBaseT*>(object);
        const HWND window = self->m_hWnd;
        LRESULT result = 0;
        BOOL handled = FALSE;
        try
        {
            handled = self->ProcessWindowMessage(window, message, wParam, lParam, result, 0);
        }
        catch (...)
        {
            CModalScope::KeepCurrentException();
            handled = TRUE;
        }
        const WNDPROC own = self->m_pfnSuperWindowProc;
        const bool isLast = message == WM_NCDESTROY && self->m_hWnd == window;
        if (isLast)
            self->UnsubclassWindow();
        if (!handled)
            result = ::CallWindowProcW(own, window, message, wParam, lParam);
        if (isLast)
        {
            self->m_hWnd = nullptr;
            self->OnFinalMessage(window);
        }
        return result;
    }

    // The window's own procedure.
    WNDPROC m_pfnSuperWindowProc = ::DefWindowProcW;

private:
    LONG_PTR ThunkAddress() const { return reinterpret_cast<LONG_PTR>(this->m_thunk.GetWNDPROC()); }
};

// A control or other window with a message map of class T in front.
template <class T, class TBase = CWindow>
class CWindowImpl : public CWindowImplBaseT<TBase>
{
};

} // namespace ATL

using ATL::CDialogImpl;
using ATL::CWindow;
using ATL::CWindowImpl;

#define BEGIN_MSG_MAP(Class)                                                                       \
    BOOL ProcessWindowMessage([[maybe_unused]] HWND hWnd, [[maybe_unused]] UINT uMsg,              \
                              [[maybe_unused]] WPARAM wParam, [[maybe_unused]] LPARAM lParam,      \
                              [[maybe_unused]] LRESULT& lResult,                                   \
                              [[maybe_unused]] DWORD dwMsgMapID = 0) override                      \
    {                                                                                              \
        [[maybe_unused]] BOOL bHandled = TRUE;

#define END_MSG_MAP()                                                                              \
    return FALSE;                                                                                  \
    }

// Runs one handler; a handler that clears bHandled lets the map go on.
#define ATL_RUN_HANDLER(call)                                                                      \
    {                                                                                              \
        bHandled = TRUE;                                                                           \
        lResult = call;                                                                            \
        if (bHandled)                                                                              \
            return TRUE;                                                                           \
    }

#define MESSAGE_HANDLER(msg, func)                                                                 \
    if (uMsg == (msg))                                                                             \
    ATL_RUN_HANDLER(func(uMsg, wParam, lParam, bHandled))

#define COMMAND_HANDLER(id, code, func)                                                            \
    if (uMsg == WM_COMMAND && LOWORD(wParam) == (id) && HIWORD(wParam) == (code))                  \
    ATL_RUN_HANDLER(func(HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam), bHandled))

#define COMMAND_ID_HANDLER(id, func)                                                               \
    if (uMsg == WM_COMMAND && LOWORD(wParam) == (id))                                              \
    ATL_RUN_HANDLER(func(HIWORD(wParam), LOWORD(wParam), reinterpret_cast<HWND>(lParam), bHandled))

#define NOTIFY_HANDLER(id, notifyCode, func)                                                       \
    if (uMsg == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->idFrom == (id) &&                   \
        reinterpret_cast<NMHDR*>(lParam)->code == (notifyCode))                                    \
    ATL_RUN_HANDLER(func(static_cast<int>(wParam), reinterpret_cast<NMHDR*>(lParam), bHandled))

#define NOTIFY_CODE_HANDLER(notifyCode, func)                                                      \
    if (uMsg == WM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == (notifyCode))               \
    ATL_RUN_HANDLER(func(static_cast<int>(wParam), reinterpret_cast<NMHDR*>(lParam), bHandled))

// In a control: a notification of its own that the parent has sent back.
#define REFLECTED_NOTIFY_CODE_HANDLER(notifyCode, func)                                            \
    if (uMsg == OCM_NOTIFY && reinterpret_cast<NMHDR*>(lParam)->code == (notifyCode))              \
    ATL_RUN_HANDLER(func(static_cast<int>(wParam), reinterpret_cast<NMHDR*>(lParam), bHandled))

// In a parent: sends notifications back to the controls that they come from.
#define REFLECT_NOTIFICATIONS()                                                                    \
    ATL_RUN_HANDLER(ReflectNotifications(uMsg, wParam, lParam, bHandled))

#define CHAIN_MSG_MAP(Base)                                                                        \
    {                                                                                              \
        if (Base::ProcessWindowMessage(hWnd, uMsg, wParam, lParam, lResult))                       \
            return TRUE;                                                                           \
    }
