// The help viewer: opens a page of help at a topic, in the system's browser or, without one, in a
// window of its own. The dialogs start it with "TavLumenar.htm#Main_Contents" as its whole command
// line.
#include "platform/Win.h"

#include <objbase.h>

#include <optional>

#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/Failure.h"
#include "device/MessageLoop.h"
#include "device/ScreenPicture.h"
#include "device/TopBar.h"
#include "device/help/Browser.h"
#include "device/help/HelpArguments.h"
#include "device/help/HelpWindow.h"
#include "device/help/OpenViewer.h"
#include "device/help/PageFile.h"
#include "frame/Localizer.h"

namespace
{

constexpr int kFailed = 1;
constexpr int kRefused = 2;

// To whoever started the program from a command line, and to the person in front of the screen.
int Complain(const std::wstring& problem, const help::HelpRequest& request, int exitCode)
{
    const std::wstring text = L"PegHelp: " + problem + L"\n";
    char bytes[1024];
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), bytes,
                            static_cast<int>(sizeof(bytes)), nullptr, nullptr);
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes, static_cast<DWORD>(length), &written, nullptr);
    if (request.PictureFile.empty())
        failure::Show(nullptr, problem);
    return exitCode;
}

// As on the device, with its colours and its top bar.
int TakePicture(const std::wstring& path, const help::HelpRequest& request)
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const CColourScheme colours;
    clockwork::Freeze();
    const CTopBar topBar;
    help::CHelpWindow window;
    const std::wstring problem = window.Open(path, request.Topic);
    if (!problem.empty())
        return Complain(problem, request, kFailed);
    window.Show();
    HandleWaitingMessages();
    if (!WritePng(CopySettledScreen(), request.PictureFile))
        return Complain(L"The picture can't be written.", request, kFailed);
    return 0;
}

int ShowInOwnWindow(const std::wstring& path, const help::HelpRequest& request)
{
    std::optional<help::CStartingViewer> starting(std::in_place);
    if (help::ShowInOpenViewer(path + L"#" + request.Topic))
        return 0;
    help::CHelpWindow window;
    const std::wstring problem = window.Open(path, request.Topic);
    if (!problem.empty())
        return Complain(problem, request, kFailed);
    window.Show();
    starting.reset();
    return RunMessageLoop();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    const help::HelpRequest request = help::ReadHelpRequest(GetCommandLineW(), help::ProgramPath());
    const help::FoundPage page = help::FindPage(request.File);
    if (!page.Problem.empty())
        return Complain(page.Problem, request, kRefused);
    LoadTranslations();
    if (!request.PictureFile.empty())
        return TakePicture(page.Path, request);
    if (!request.OwnWindow &&
        help::OpenInBrowser(help::FindBrowser(), help::AddressOf(page.Path, request.Topic)))
        return 0;
    return ShowInOwnWindow(page.Path, request);
}
