#include "tests/platform/aygshell/TestDialog.h"

#include <algorithm>
#include <ostream>

namespace
{

void Append(std::vector<WORD>& words, const wchar_t* text)
{
    for (; *text != 0; ++text)
        words.push_back(*text);
    words.push_back(0);
}

void AppendLong(std::vector<WORD>& words, DWORD value)
{
    words.push_back(LOWORD(value));
    words.push_back(HIWORD(value));
}

void AppendPlace(std::vector<WORD>& words, short x, short y, short width, short height)
{
    for (const short value : {x, y, width, height})
        words.push_back(static_cast<WORD>(value));
}

std::vector<WORD> MakeTemplate(const std::vector<TestControl>& controls)
{
    std::vector<WORD> words;
    AppendLong(words, WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME);
    AppendLong(words, 0);
    words.push_back(static_cast<WORD>(controls.size()));
    AppendPlace(words, 5, 5, 100, 100);
    Append(words, L"");
    Append(words, L"");
    Append(words, L"Test dialog");
    for (const TestControl& control : controls)
    {
        if (words.size() % 2 != 0)
            words.push_back(0);
        AppendLong(words, control.Style | WS_CHILD | WS_VISIBLE);
        AppendLong(words, 0);
        AppendPlace(words, control.X, control.Y, control.Width, control.Height);
        words.push_back(control.Id);
        Append(words, control.ClassName);
        Append(words, L"");
        words.push_back(0);
    }
    return words;
}

void InitControls()
{
    INITCOMMONCONTROLSEX classes{sizeof classes, ICC_TREEVIEW_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&classes);
}

} // namespace

CTestDialog::CTestDialog(const std::vector<TestControl>& controls, HWND owner)
{
    InitControls();
    const std::vector<WORD> words = MakeTemplate(controls);
    m_window = CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                          reinterpret_cast<LPCDLGTEMPLATEW>(words.data()), owner,
                                          Procedure, reinterpret_cast<LPARAM>(this));
}

CTestDialog::~CTestDialog()
{
    Destroy();
}

void CTestDialog::Open()
{
    InitDialog();
    ShowWindow(m_window, SW_SHOW);
    SetForegroundWindow(m_window);
    RunUntil([this] { return GetForegroundWindow() == m_window; });
    UpdateWindow(m_window);
    RunPending();
    ClearLog();
}

void CTestDialog::Destroy()
{
    if (IsWindow(m_window))
        DestroyWindow(m_window);
}

BOOL CTestDialog::InitDialog(DWORD flags)
{
    SHINITDLGINFO info{SHIDIM_FLAGS, m_window, flags};
    return SHInitDialog(&info);
}

BOOL CTestDialog::CreateBar(UINT menu, DWORD flags)
{
    SHMENUBARINFO info{};
    info.cbSize = sizeof info;
    info.hwndParent = m_window;
    info.dwFlags = flags;
    info.nToolBarId = menu;
    info.hInstRes = GetModuleHandleW(nullptr);
    return SHCreateMenuBar(&info);
}

void CTestDialog::RunPending()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        if (!IsDialogMessageW(m_window, &message))
        {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
}

bool CTestDialog::RunUntil(const std::function<bool()>& condition)
{
    const ULONGLONG end = GetTickCount64() + 5000;
    for (;;)
    {
        RunPending();
        if (condition())
            return true;
        if (GetTickCount64() > end)
            return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

void CTestDialog::ParkPointer(POINT screen)
{
    constexpr ULONGLONG kQuiet = 60;
    ULONGLONG since = 0;
    RunUntil(
        [&]
        {
            POINT now{};
            GetCursorPos(&now);
            const bool isThere = now.x == screen.x && now.y == screen.y;
            if (since == 0 || !isThere)
            {
                SetCursorPos(screen.x, screen.y);
                since = GetTickCount64();
            }
            return isThere && GetTickCount64() - since > kQuiet;
        });
}

int CTestDialog::Count(UINT message) const
{
    return static_cast<int>(std::count_if(m_log.begin(), m_log.end(),
                                          [message](const LoggedMessage& entry)
                                          { return entry.Message == message; }));
}

int CTestDialog::CountCommand(WORD id) const
{
    return static_cast<int>(std::count_if(m_log.begin(), m_log.end(),
                                          [id](const LoggedMessage& entry) {
                                              return entry.Message == WM_COMMAND &&
                                                     entry.WParam == id;
                                          }));
}

int CTestDialog::CountNotify(UINT code) const
{
    return static_cast<int>(std::count_if(m_log.begin(), m_log.end(),
                                          [code](const LoggedMessage& entry) {
                                              return entry.Message == WM_NOTIFY &&
                                                     entry.Code == code;
                                          }));
}

INT_PTR CALLBACK CTestDialog::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
    {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<CTestDialog*>(lParam)->m_window = window;
        return TRUE;
    }
    CTestDialog* dialog = reinterpret_cast<CTestDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    return dialog != nullptr ? dialog->OnMessage(message, wParam, lParam) : FALSE;
}

INT_PTR CTestDialog::OnMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    const UINT code = message == WM_NOTIFY ? reinterpret_cast<const NMHDR*>(lParam)->code : 0;
    const LoggedMessage entry{message, wParam, lParam, code};
    m_log.push_back(entry);
    LRESULT result = 0;
    if (!m_handler || !m_handler(entry, result))
        return FALSE;
    SetWindowLongPtrW(m_window, DWLP_MSGRESULT, result);
    return TRUE;
}

HWND BarOf(HWND owner)
{
    const HWND toolbar = SHFindMenuBar(owner);
    return toolbar != nullptr ? GetAncestor(toolbar, GA_ROOT) : nullptr;
}

RECT ScreenRectOf(HWND window)
{
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

int Scaled(int logical)
{
    const HDC dc = GetDC(nullptr);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
    ReleaseDC(nullptr, dc);
    return (logical * dpi + 48) / 96;
}

RECT WorkArea()
{
    RECT area{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

void PostTap(HWND window, POINT point)
{
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(point));
    PostMessageW(window, WM_LBUTTONUP, 0, PointParam(point));
}

void ClickScreen(POINT screen)
{
    SetCursorPos(screen.x, screen.y);
    INPUT input[2] = {};
    input[0].type = INPUT_MOUSE;
    input[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    input[1].type = INPUT_MOUSE;
    input[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(2, input, sizeof *input);
}

void TypeKey(WORD key, WORD modifier)
{
    std::vector<INPUT> inputs;
    const auto add = [&inputs](WORD code, DWORD flags)
    {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = code;
        input.ki.dwFlags = flags;
        inputs.push_back(input);
    };
    if (modifier != 0)
        add(modifier, 0);
    add(key, 0);
    add(key, KEYEVENTF_KEYUP);
    if (modifier != 0)
        add(modifier, KEYEVENTF_KEYUP);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

LPARAM PointParam(POINT point)
{
    return MAKELPARAM(point.x, point.y);
}

POINT CentreOf(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

bool operator==(const RECT& left, const RECT& right)
{
    return EqualRect(&left, &right) != FALSE;
}

std::ostream& operator<<(std::ostream& stream, const RECT& rect)
{
    return stream << "(" << rect.left << ", " << rect.top << ", " << rect.right << ", "
                  << rect.bottom << ")";
}
