#include "device/help/OpenViewer.h"

#include "device/help/HelpWindow.h"

namespace help
{
namespace
{

constexpr const wchar_t* kMutexName = L"TavHelpViewer_Starting";
constexpr DWORD kPatience = 5000;

} // namespace

CStartingViewer::CStartingViewer() : m_mutex(CreateMutexW(nullptr, FALSE, kMutexName))
{
    if (!m_mutex)
        return;
    // One that was left behind by a viewer that crashed is as good.
    const DWORD result = WaitForSingleObject(m_mutex.get(), kPatience);
    m_isHeld = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

CStartingViewer::~CStartingViewer()
{
    if (m_isHeld)
        ReleaseMutex(m_mutex.get());
}

bool ShowInOpenViewer(const std::wstring& target)
{
    const HWND viewer = FindWindowW(kViewerClass, nullptr);
    // One that is closing is hidden already.
    if (!viewer || !IsWindowVisible(viewer))
        return false;
    DWORD process = 0;
    GetWindowThreadProcessId(viewer, &process);
    AllowSetForegroundWindow(process);
    std::wstring text = target;
    COPYDATASTRUCT data = {};
    data.dwData = kShowTarget;
    data.cbData = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    data.lpData = text.data();
    DWORD_PTR answer = FALSE;
    return SendMessageTimeoutW(viewer, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data),
                               SMTO_ABORTIFHUNG, kPatience, &answer) != 0 &&
           answer == TRUE;
}

} // namespace help
