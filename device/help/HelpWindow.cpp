#include "device/help/HelpWindow.h"

#include <algorithm>

#include "device/Failure.h"
#include "device/Painting.h"
#include "device/Texts.h"
#include "device/help/Browser.h"
#include "device/help/HelpArguments.h"
#include "device/help/PageFile.h"
#include "device/help/PageName.h"
#include "device/resource.h"
#include "ui/Scale.h"

namespace help
{
namespace
{

constexpr const wchar_t* kContentsKey = L"Contents";
constexpr const wchar_t* kDoneKey = L"Done";
constexpr const wchar_t* kContentsTopic = L"Main_Contents";
// The shell's bar: the system's work area doesn't tell other programs of it everywhere.
constexpr const wchar_t* kTopBarClass = L"TavLumenarTopBar";

// The platform's word for a screen that was rotated or has another size.
constexpr WPARAM kSettingChangeReset = 0x3002;
// Posted to itself: the soft-key bar may hear of a new screen later than the window.
constexpr UINT kFillScreen = WM_APP + 1;

// No more places to go back to are kept.
constexpr size_t kMostPlaces = 100;
constexpr DWORD kLongestTarget = 1024;

// As high as the title bands of the module's dialogs.
int BandHeight()
{
    return ScaleY(23);
}

int LineThickness()
{
    return ScaleY(1);
}

} // namespace

RECT FreeScreen()
{
    RECT area = {};
    if (!SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0))
        area = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    const HWND topBar = FindWindowW(kTopBarClass, nullptr);
    RECT bar = {};
    if (topBar && IsWindowVisible(topBar) && GetWindowRect(topBar, &bar))
        area.top = std::max(area.top, bar.bottom);
    return area;
}

CHelpWindow::CHelpWindow() : m_titleFont(painting::MakeFont(ScaleY(13), true)), m_view(*this)
{
    if (!Create(kViewerClass, texts::kHelp, 0, WS_POPUP | WS_CLIPCHILDREN, FreeScreen()))
        return;
    m_view.CreateIn(Window());
    m_keys.Create(Window());
    FillScreen();
    ArrangeView();
    UpdateKeys();
}

void CHelpWindow::Show()
{
    ShowWindow(Window(), SW_SHOW);
    SetForegroundWindow(Window());
    SetFocus(m_view.Window());
    UpdateWindow(Window());
}

void CHelpWindow::FillScreen()
{
    const RECT area = FreeScreen();
    const int bottom = std::min<int>(area.bottom, m_keys.Top());
    SetWindowPos(Window(), nullptr, area.left, area.top, area.right - area.left,
                 std::max(0, bottom - static_cast<int>(area.top)), SWP_NOZORDER | SWP_NOACTIVATE);
}

void CHelpWindow::ArrangeView()
{
    RECT client = {};
    GetClientRect(Window(), &client);
    const int top = BandHeight() + LineThickness();
    MoveWindow(m_view.Window(), 0, top, client.right, std::max<int>(0, client.bottom - top), TRUE);
}

void CHelpWindow::UpdateKeys()
{
    m_keys.SetTexts(texts::Translate(kContentsKey),
                    texts::Translate(m_places.empty() ? kDoneKey : texts::kBack));
}

void CHelpWindow::Complain(const std::wstring& problem)
{
    failure::Show(Window(), problem);
}

std::wstring CHelpWindow::Load(const std::wstring& path)
{
    if (path == m_path)
        return {};
    ReadPage page = ReadPageFile(path);
    if (!page.Problem.empty())
        return page.Problem;
    m_path = path;
    const std::wstring title =
        page.Contents.Title.empty() ? texts::Translate(texts::kHelp) : page.Contents.Title;
    m_view.Show(std::move(page.Contents));
    SetWindowTextW(Window(), title.c_str());
    InvalidateRect(Window(), nullptr, FALSE);
    return {};
}

std::wstring CHelpWindow::Open(const std::wstring& path, const std::wstring& topic)
{
    std::wstring problem = Load(path);
    if (!problem.empty())
        return problem;
    m_places.clear();
    UpdateKeys();
    m_view.GoTo(topic);
    return {};
}

void CHelpWindow::GoToTopic(const std::wstring& path, const std::wstring& topic)
{
    const Place place = {m_path, m_view.Position(), m_view.FocusedLink()};
    const std::wstring problem = Load(path);
    if (!problem.empty())
        return Complain(problem);
    if (m_places.size() == kMostPlaces)
        m_places.erase(m_places.begin());
    m_places.push_back(place);
    UpdateKeys();
    m_view.GoTo(topic);
}

void CHelpWindow::FollowLink(const std::wstring& target)
{
    if (!IsOwnTarget(target))
        return FollowAddress(target);
    const size_t mark = std::min(target.find(L'#'), target.size());
    const std::wstring file = target.substr(0, mark);
    const std::wstring topic = target.substr(std::min(mark + 1, target.size()));
    if (file.empty())
        return GoToTopic(m_path, topic);
    const FoundPage page = FindLinkedPage(m_path, file);
    if (!page.Problem.empty())
        return Complain(page.Problem);
    GoToTopic(page.Path, topic);
}

// A page may be from anybody: only addresses of the network leave the device.
void CHelpWindow::FollowAddress(const std::wstring& address)
{
    const bool isWeb = address.rfind(L"http://", 0) == 0 || address.rfind(L"https://", 0) == 0;
    const bool isPlain = address.find_first_of(L"\"\\ <>^`|\t\r\n") == std::wstring::npos;
    if (!isWeb || !isPlain || !OpenInBrowser(FindBrowser(), address))
        Complain(L"'" + address.substr(0, 200) + L"' can't be opened on this device.");
}

void CHelpWindow::GoBack()
{
    if (m_places.empty())
        return;
    const Place place = m_places.back();
    m_places.pop_back();
    UpdateKeys();
    const std::wstring problem = Load(place.Path);
    if (!problem.empty())
        return Complain(problem);
    m_view.SetPosition(place.Position);
    m_view.SetFocusedLink(place.Link);
}

void CHelpWindow::Leave()
{
    PostMessageW(Window(), WM_CLOSE, 0, 0);
}

void CHelpWindow::OnCommand(int id)
{
    if (id == ID_LEFT_KEY)
        GoToTopic(m_path, kContentsTopic);
    else if (id == ID_RIGHT_KEY && !m_places.empty())
        GoBack();
    else if (id == ID_RIGHT_KEY || id == IDCANCEL || id == IDOK)
        Leave();
}

// The message may come from anybody: the target is judged like one from the command line.
LRESULT CHelpWindow::OnCopyData(const COPYDATASTRUCT& data)
{
    if (data.dwData != kShowTarget || !data.lpData || data.cbData % sizeof(wchar_t) != 0 ||
        data.cbData > kLongestTarget * sizeof(wchar_t))
        return FALSE;
    std::wstring target(data.cbData / sizeof(wchar_t), L'\0');
    memcpy(target.data(), data.lpData, data.cbData);
    const HelpRequest request = ReadTarget(target);
    const FoundPage page = FindPage(request.File);
    if (!page.Problem.empty() || !Open(page.Path, request.Topic).empty())
        return FALSE;
    Show();
    return TRUE;
}

void CHelpWindow::OnScreenChanged()
{
    FillScreen();
    PostMessageW(Window(), kFillScreen, 0, 0);
}

LRESULT CHelpWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam)
{
    switch (message)
    {
    case WM_PAINT:
        Paint();
        return 0;
    case WM_ERASEBKGND:
        return TRUE;
    case WM_SIZE:
        if (m_view.Window())
            ArrangeView();
        return 0;
    case WM_SETFOCUS:
        SetFocus(m_view.Window());
        return 0;
    case WM_COMMAND:
        OnCommand(LOWORD(wparam));
        return 0;
    case WM_COPYDATA:
        return OnCopyData(*reinterpret_cast<const COPYDATASTRUCT*>(lparam));
    case WM_DISPLAYCHANGE:
        OnScreenChanged();
        return 0;
    case WM_SETTINGCHANGE:
        if (wparam == kSettingChangeReset)
            OnScreenChanged();
        return 0;
    case kFillScreen:
        FillScreen();
        return 0;
    case WM_CLOSE:
        ShowWindow(Window(), SW_HIDE);
        PostQuitMessage(0);
        return 0;
    default:
        return CHostWindow::OnMessage(message, wparam, lparam);
    }
}

void CHelpWindow::Paint()
{
    const painting::CPaint paint(Window());
    RECT area = paint.Area();
    painting::Fill(paint.Dc(), area, GetSysColor(COLOR_WINDOW));
    area.bottom = BandHeight();
    painting::Fill(paint.Dc(), {0, area.bottom, area.right, area.bottom + LineThickness()},
                   GetSysColor(COLOR_WINDOWTEXT));
    InflateRect(&area, -ScaleX(8), 0);
    wchar_t title[256] = {};
    GetWindowTextW(Window(), title, 256);
    painting::Text(paint.Dc(), m_titleFont.get(), title, area, GetSysColor(COLOR_HIGHLIGHT),
                   DT_LEFT | DT_VCENTER);
}

} // namespace help
