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
#include "device/MessageLoop.h"
#include "device/NowScreen.h"
#include "device/Options.h"
#include "device/PictureDriver.h"
#include "device/ScreenPicture.h"
#include "device/Seed.h"
#include "device/ShellViews.h"
#include "device/TopBar.h"
#include "device/WizardPictures.h"
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

// A device out of a package has its data beside the program.
std::wstring InstallFolder()
{
    const std::wstring program = OwnPath();
    const std::wstring folder = program.substr(0, program.rfind(L'\\'));
    const std::wstring cities = folder + L"\\CitiesDb.dat";
    return GetFileAttributesW(cities.c_str()) != INVALID_FILE_ATTRIBUTES ? folder : kInstallFolder;
}

void PrepareDevice(bool fresh)
{
    SetCurrentDirectoryW(kRootFolder);
    if (fresh)
        seed::EraseRegistry();
    if (seed::IsSeeded())
        return;
    seed::WriteRegistry(InstallFolder());
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

int TakePicture(CHomeScreen& home, const PictureWish& wish)
{
    HandleWaitingMessages();
    if (const wchar_t* dialog = DialogOfView(wish.View))
    {
        CPictureDriver driver(GetCurrentThreadId(), wish.View, wish.File);
        FindDialogEntry(dialog)->Run(home.Window());
        if (driver.Finish())
            return 0;
        Complain(wish.View + L": " + driver.Problem());
        return 1;
    }
    if (!ShowShellView(home, wish.View))
    {
        Complain(wish.View + L": there is no such view");
        return kUsageError;
    }
    HandleWaitingMessages();
    if (WritePng(CopySettledScreen(), wish.File))
        return 0;
    Complain(wish.View + L": the file can't be written");
    return 1;
}

// One after the other; each view finds the device as the one before it left it.
int TakePictures(CHomeScreen& home, const std::vector<PictureWish>& wishes)
{
    int result = 0;
    for (size_t i = 0; i < wishes.size() && result == 0; ++i)
        result = TakePicture(home, wishes[i]);
    return result;
}

int RunShell(const Options& options)
{
    const CColourScheme colours;
    CMenuProcessWindow menuProcess;
    if (!options.Pictures.empty())
        clockwork::Freeze();
    CTopBar topBar;
    const CWorkAreaBelow workArea(CTopBar::Height());
    const CNowScreen now;
    CHomeScreen home(now);
    home.Show();
    if (!options.Pictures.empty())
        return TakePictures(home, options.Pictures);
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
    wizard::WritePictures(InstallFolder());
    const int result = RunShell(options);
    CoUninitialize();
    return result;
}
