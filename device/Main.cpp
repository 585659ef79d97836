// The stand-in device: prepares the sample data, puts up top bar and home screen, and opens what
// the command line asks for.
#include "platform/Win.h"

#include <objbase.h>
#include <shellapi.h>

#include "device/Clock.h"
#include "device/ColourScheme.h"
#include "device/DialogRunner.h"
#include "device/Dialogs.h"
#include "device/HomeScreen.h"
#include "device/MenuProcessWindow.h"
#include "device/NowScreen.h"
#include "device/Options.h"
#include "device/PictureDriver.h"
#include "device/ScreenPicture.h"
#include "device/Seed.h"
#include "device/TopBar.h"
#include "device/WizardPictures.h"
#include "dialogs/wizard/LayoutType.h"
#include "frame/Localizer.h"

namespace
{

// The device has one drive; paths on it begin with a single backslash.
constexpr const wchar_t* kRootFolder = L"C:\\";
// With its drive letter, because the module reads it before the shell has chosen the drive.
constexpr const wchar_t* kInstallFolder = L"C:\\Program Files\\Tav Lumenar";
constexpr const wchar_t* kStartMenuFolder = L"C:\\Windows\\Start Menu";

constexpr int kUsageError = 2;

std::vector<std::wstring> Arguments()
{
    std::vector<std::wstring> arguments;
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; words && i < count; ++i)
        arguments.push_back(words[i]);
    LocalFree(words);
    return arguments;
}

std::wstring OwnPath()
{
    wchar_t path[MAX_PATH];
    const DWORD length = GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::wstring(path, length < MAX_PATH ? length : 0);
}

void PrepareDevice(bool fresh)
{
    SetCurrentDirectoryW(kRootFolder);
    if (fresh)
        seed::EraseRegistry();
    if (seed::IsSeeded())
        return;
    seed::WriteRegistry(kInstallFolder);
    seed::WriteStartMenu(kStartMenuFolder, OwnPath());
}

void Complain(const std::wstring& error)
{
    const std::wstring text = L"TavLumenarShell: " + error + L"\n";
    const std::string bytes(text.begin(), text.end());
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(bytes.size()),
              &written, nullptr);
}

int RunMessageLoop()
{
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
    {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return 0;
}

// Handles what is waiting, so that the windows are painted.
void HandleWaitingMessages()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        DispatchMessageW(&message);
}

int TakePicture(CHomeScreen& home, const Options& options)
{
    HandleWaitingMessages();
    if (const wchar_t* dialog = DialogOfView(options.Picture))
    {
        CPictureDriver driver(GetCurrentThreadId(), options.Picture, options.PictureFile);
        FindDialogEntry(dialog)->Run(home.Window());
        if (driver.Finish())
            return 0;
        Complain(options.Picture + L": " + driver.Problem());
        return 1;
    }
    if (options.Picture == L"launcher-menu")
        home.ShowLauncher();
    else if (options.Picture == L"now")
        home.ShowNow();
    else if (options.Picture == L"now-professional")
    {
        SaveLayoutType(LayoutType::Professional);
        AnnounceLayoutType();
        home.ShowNow();
    }
    else if (options.Picture != L"home")
        return kUsageError;
    HandleWaitingMessages();
    if (WritePng(CopySettledScreen(), options.PictureFile))
        return 0;
    Complain(options.Picture + L": the file can't be written");
    return 1;
}

int RunShell(const Options& options)
{
    const CColourScheme colours;
    CMenuProcessWindow menuProcess;
    if (!options.Picture.empty())
        clockwork::Freeze();
    CTopBar topBar;
    const CWorkAreaBelow workArea(CTopBar::Height());
    const CNowScreen now;
    CHomeScreen home(now);
    home.Show();
    if (!options.Picture.empty())
        return TakePicture(home, options);
    if (!options.Dialog.empty())
    {
        HandleWaitingMessages();
        return static_cast<int>(
            RunAndReport(FindDialogEntry(options.Dialog), home.Window(), options.Report));
    }
    return RunMessageLoop();
}

} // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, wchar_t*, int)
{
    const Options options = ReadOptions(Arguments());
    if (!options.Error.empty())
    {
        Complain(options.Error);
        return kUsageError;
    }
    PrepareDevice(options.Fresh);
    if (options.Seed)
        return 0;
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    LoadTranslations();
    // Anew each time: they speak the device's language.
    wizard::WritePictures(kInstallFolder);
    const int result = RunShell(options);
    CoUninitialize();
    return result;
}
