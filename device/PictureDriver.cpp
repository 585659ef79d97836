#include "device/PictureDriver.h"

#include <objbase.h>

#include "device/CityViews.h"
#include "device/MenuViews.h"
#include "device/OpenWindows.h"
#include "device/ScreenPicture.h"
#include "device/Stylus.h"
#include "device/TreeInput.h"
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
constexpr const wchar_t* kCustomizeHomeLimit = L"customize-home-limit";
constexpr const wchar_t* kCustomizeNow = L"customize-now";
constexpr const wchar_t* kInstallWizard = L"install-wizard";
constexpr const wchar_t* kSelectCity = L"select-city";

constexpr View kViews[] = {
    {L"customize-menu", kCustomizeMenu},
    {L"customize-menu-popup", kCustomizeMenu},
    {L"customize-menu-add", kCustomizeMenu},
    {L"customize-menu-context", kCustomizeMenu},
    {L"menu-options", kCustomizeMenu},
    {L"menu-options-root", kCustomizeMenu},
    {L"edit-menu", kCustomizeMenu},
    {L"edit-item", kCustomizeMenu},
    {L"choose-icon", kCustomizeMenu},
    {L"select-file", kCustomizeMenu},
    {L"select-link", kCustomizeMenu},
    {kCustomizeHome, kCustomizeHome},
    {kCustomizeHomePrograms, kCustomizeHome},
    {kCustomizeHomeLimit, kCustomizeHome},
    {kCustomizeNow, kCustomizeNow},
    {kInstallWizard, kInstallWizard},
    {kSelectCity, kSelectCity},
    {L"select-city-search", kSelectCity},
    {kSelectCityChosen, kSelectCity},
    {L"select-city-panel", kSelectCity},
    {L"select-city-no-database", kSelectCity},
};

// Where the sample menu has the folders that the pictures show: the Start Menu, and the office
// programs, one of which is pinned.
constexpr int kProgramsPosition = 0;
constexpr int kOfficePosition = 5;

// Milliseconds in which the message comes, if it does.
constexpr DWORD kPatienceWithMessage = 300;

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
    m_dialog = open::WaitForDialog(m_uiThread, nullptr);
    if (!m_dialog)
        return L"no dialog appeared";
    std::wstring problem = BringUpView();
    if (!problem.empty())
        return problem;
    // On a busy machine the screen looks settled although parts of it are still to come.
    open::PaintAll(m_uiThread);
    return WritePng(CopySettledScreen(), m_file) ? L"" : L"the file can't be written";
}

std::wstring CPictureDriver::BringUpView()
{
    if (DialogOfView(m_view) == std::wstring(kSelectCity))
        return BringUpCityView(m_dialog, m_view);
    if (DialogOfView(m_view) == std::wstring(kCustomizeMenu))
        return BringUpMenuView(m_dialog, m_view);
    if (DialogOfView(m_view) == std::wstring(kCustomizeHome))
        return BringUpHomeView();
    return {};
}

std::wstring CPictureDriver::BringUpHomeView()
{
    const HWND tree = treeinput::TreeOf(m_dialog);
    const int folder = m_view == kCustomizeHomePrograms ? kProgramsPosition : kOfficePosition;
    if (!tree || !treeinput::Open(tree, {folder}))
        return L"the folder can't be opened";
    return m_view == kCustomizeHomeLimit ? PinTooMany(tree) : L"";
}

// Checks one box after the other until the message is there.
std::wstring CPictureDriver::PinTooMany(HWND tree)
{
    const HTREEITEM root = treeinput::Root(tree);
    for (int position = 0; HTREEITEM node = treeinput::Child(tree, root, position); ++position)
    {
        if (treeinput::BoxOf(tree, node) != treeinput::kUnchecked)
            continue;
        if (!treeinput::Select(tree, node))
            return L"an entry can't be selected";
        stylus::Key(VK_RETURN);
        // The box is switched at once, the message comes a little later.
        if (waiting::Until([&] { return open::Dialog(m_uiThread, m_dialog) != nullptr; },
                           kPatienceWithMessage))
            return {};
    }
    return L"everything can be pinned";
}

// Ends menus first, then dialogs from the inside out.
void CPictureDriver::CloseAll()
{
    const WPARAM command = m_view == kSelectCityChosen ? IDOK : IDCANCEL;
    waiting::Until(
        [&]
        {
            if (open::IsMenuOpen())
            {
                stylus::Key(VK_ESCAPE);
                return false;
            }
            const HWND dialog = open::Dialog(m_uiThread, nullptr);
            if (dialog)
                PostMessageW(dialog, WM_COMMAND, command, 0);
            return dialog == nullptr;
        });
}
