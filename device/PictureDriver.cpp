#include "device/PictureDriver.h"

#include <aygshell.h>
#include <objbase.h>

#include <cstring>

#include "device/CityViews.h"
#include "device/ScreenPicture.h"
#include "device/Stylus.h"
#include "device/Waiting.h"

namespace
{

struct View
{
    const wchar_t* Name;
    const wchar_t* Dialog;
};

constexpr const wchar_t* kCustomizeMenu = L"customize-menu";
constexpr const wchar_t* kCustomizeHome = L"customize-home";
constexpr const wchar_t* kCustomizeHomePrograms = L"customize-home-programs";
constexpr const wchar_t* kCustomizeNow = L"customize-now";
constexpr const wchar_t* kInstallWizard = L"install-wizard";
constexpr const wchar_t* kSelectCity = L"select-city";

constexpr View kViews[] = {
    {L"customize-menu", kCustomizeMenu},
    {L"customize-menu-popup", kCustomizeMenu},
    {L"customize-menu-context", kCustomizeMenu},
    {L"menu-options", kCustomizeMenu},
    {kCustomizeHome, kCustomizeHome},
    {kCustomizeHomePrograms, kCustomizeHome},
    {kCustomizeNow, kCustomizeNow},
    {kInstallWizard, kInstallWizard},
    {kSelectCity, kSelectCity},
    {L"select-city-search", kSelectCity},
    {L"select-city-panel", kSelectCity},
    {L"select-city-no-database", kSelectCity},
};

constexpr const wchar_t* kDialogClass = L"#32770";
constexpr const wchar_t* kPopupClass = L"#32768";

bool HasClass(HWND window, const wchar_t* name)
{
    wchar_t found[32];
    return GetClassNameW(window, found, 32) > 0 && lstrcmpW(found, name) == 0;
}

struct DialogSearch
{
    HWND Other;
    HWND Found;
};

BOOL CALLBACK FindReadyDialog(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<DialogSearch*>(parameter);
    if (window == search.Other || !IsWindowVisible(window) || !IsWindowEnabled(window) ||
        !HasClass(window, kDialogClass))
        return TRUE;
    search.Found = window;
    return FALSE;
}

HTREEITEM Step(HWND tree, WPARAM code, HTREEITEM from)
{
    return reinterpret_cast<HTREEITEM>(
        SendMessageW(tree, TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(from)));
}

// The label's middle on the screen.
POINT MiddleOf(HWND tree, HTREEITEM node)
{
    // The message takes the node from where it puts the rectangle.
    RECT label = {};
    memcpy(&label, &node, sizeof(node));
    SendMessageW(tree, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&label));
    POINT middle = {(label.left + label.right) / 2, (label.top + label.bottom) / 2};
    ClientToScreen(tree, &middle);
    return middle;
}

HWND TreeOf(HWND dialog)
{
    return FindWindowExW(dialog, nullptr, WC_TREEVIEWW, nullptr);
}

// The n-th node below the root node.
HTREEITEM ChildOfRoot(HWND tree, int position)
{
    HTREEITEM node = Step(tree, TVGN_CHILD, Step(tree, TVGN_ROOT, nullptr));
    for (int i = 0; i < position && node; ++i)
        node = Step(tree, TVGN_NEXT, node);
    return node;
}

// Where the sample menu has the folders that the pictures show: its games, which fit on one screen;
// the Start Menu; and the office programs, one of which is pinned.
constexpr int kFolderPosition = 7;
constexpr int kProgramsPosition = 0;
constexpr int kOfficePosition = 5;

// Milliseconds until a tap that has done nothing is made again.
constexpr DWORD kTapPatience = 2000;

// Opens one of them with the stylus and the keys.
bool OpenFolder(HWND tree, int position)
{
    const HTREEITEM folder = ChildOfRoot(tree, position);
    if (!folder)
        return false;
    // A tap is lost when the display server reports the pointer's earlier place meanwhile.
    const auto isSelected = [&] { return Step(tree, TVGN_CARET, nullptr) == folder; };
    const bool selected = waiting::Until(
        [&]
        {
            stylus::Tap(MiddleOf(tree, folder));
            return waiting::Until(isSelected, kTapPatience);
        });
    if (!selected)
        return false;
    stylus::Key(VK_RIGHT);
    return waiting::Until(
        [&]
        {
            return (SendMessageW(tree, TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(folder),
                                 TVIS_EXPANDED) &
                    TVIS_EXPANDED) != 0;
        });
}

} // namespace

const wchar_t* DialogOfView(const std::wstring& view)
{
    for (const View& known : kViews)
        if (view == known.Name)
            return known.Dialog;
    return nullptr;
}

CPictureDriver::CPictureDriver(DWORD threadId, const std::wstring& view, const std::wstring& file)
    : m_uiThread(threadId), m_view(view), m_file(file)
{
    m_thread = std::thread([this] { Run(); });
}

CPictureDriver::~CPictureDriver()
{
    Finish();
}

bool CPictureDriver::Finish()
{
    if (m_thread.joinable())
        m_thread.join();
    return m_problem.empty();
}

void CPictureDriver::Run()
{
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    m_problem = TakePicture();
    CloseAll();
    CoUninitialize();
}

std::wstring CPictureDriver::TakePicture()
{
    m_dialog = WaitForDialog(nullptr);
    if (!m_dialog)
        return L"no dialog appeared";
    const std::wstring problem = BringUpView();
    if (!problem.empty())
        return problem;
    return WritePng(CopySettledScreen(), m_file) ? L"" : L"the file can't be written";
}

std::wstring CPictureDriver::BringUpView()
{
    if (DialogOfView(m_view) == std::wstring(kSelectCity))
        return BringUpCityView(m_dialog, m_view);
    if (DialogOfView(m_view) == std::wstring(kCustomizeMenu))
        return BringUpMenuView();
    if (DialogOfView(m_view) == std::wstring(kCustomizeHome))
        return BringUpHomeView();
    return {};
}

std::wstring CPictureDriver::BringUpHomeView()
{
    const HWND tree = TreeOf(m_dialog);
    const int folder = m_view == kCustomizeHomePrograms ? kProgramsPosition : kOfficePosition;
    return tree && OpenFolder(tree, folder) ? L"" : L"the folder can't be opened";
}

std::wstring CPictureDriver::BringUpMenuView()
{
    const HWND tree = TreeOf(m_dialog);
    if (!tree || !OpenFolder(tree, kFolderPosition))
        return L"the folder can't be opened";
    if (m_view == L"customize-menu-popup")
        return OpenSoftKeyMenu();
    if (m_view == L"customize-menu-context")
        return OpenContextMenu(tree);
    if (m_view == L"menu-options")
        return OpenMenuOptions();
    return {};
}

// Holds the stylus on the selected label until the menu is there.
std::wstring CPictureDriver::OpenContextMenu(HWND tree)
{
    const POINT middle = MiddleOf(tree, ChildOfRoot(tree, kFolderPosition));
    stylus::Down(middle);
    const bool open = WaitForPopup();
    stylus::Up(middle);
    return open ? L"" : L"holding the stylus opened no menu";
}

std::wstring CPictureDriver::OpenSoftKeyMenu()
{
    const HWND bar = SHFindMenuBar(m_dialog);
    RECT area = {};
    if (!bar || !GetWindowRect(bar, &area))
        return L"there are no soft keys";
    stylus::Tap({area.left + (area.right - area.left) * 3 / 4, (area.top + area.bottom) / 2});
    return WaitForPopup() ? L"" : L"the soft key opened no menu";
}

std::wstring CPictureDriver::OpenMenuOptions()
{
    const std::wstring problem = OpenSoftKeyMenu();
    if (!problem.empty())
        return problem;
    // The last entry of the menu.
    stylus::Key(VK_UP);
    stylus::Key(VK_RETURN);
    return WaitForDialog(m_dialog) ? L"" : L"no Menu Options appeared";
}

HWND CPictureDriver::WaitForDialog(HWND other) const
{
    DialogSearch search = {other, nullptr};
    waiting::Until(
        [&]
        {
            // Only the foreground window gets the input.
            EnumThreadWindows(m_uiThread, FindReadyDialog, reinterpret_cast<LPARAM>(&search));
            return search.Found && GetForegroundWindow() == search.Found;
        });
    if (search.Found)
        waiting::ForThreadOf(search.Found);
    return search.Found;
}

bool CPictureDriver::WaitForPopup() const
{
    return waiting::Until(
        [&]
        {
            const HWND popup = FindWindowW(kPopupClass, nullptr);
            return popup && IsWindowVisible(popup);
        });
}

// Ends menus first, then dialogs from the inside out.
void CPictureDriver::CloseAll()
{
    waiting::Until(
        [&]
        {
            if (FindWindowW(kPopupClass, nullptr))
            {
                stylus::Key(VK_ESCAPE);
                return false;
            }
            DialogSearch search = {nullptr, nullptr};
            EnumThreadWindows(m_uiThread, FindReadyDialog, reinterpret_cast<LPARAM>(&search));
            if (search.Found)
                PostMessageW(search.Found, WM_COMMAND, IDCANCEL, 0);
            return search.Found == nullptr;
        });
}
