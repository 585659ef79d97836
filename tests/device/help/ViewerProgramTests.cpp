// PegHelp.exe itself: started like the dialogs and people start it, and by a dialog that is asked
// for help.
#include <gtest/gtest.h>

#include <memory>

#include "device/help/HelpWindow.h"
#include "device/help/PageFile.h"
#include "platform/Handles.h"
#include "tests/device/help/HelpFolder.h"
#include "tests/support/DialogRun.h"
#include "tests/support/MenuSandbox.h"
#include "tests/support/Module.h"
#include "tests/support/RegistrySandbox.h"
#include "tests/support/Wait.h"

namespace
{

std::wstring ViewerPath()
{
    const std::wstring own = help::ProgramPath();
    return own.substr(0, own.find_last_of(L'\\') + 1) + L"PegHelp.exe";
}

UniqueKernelHandle Start(const std::wstring& commandLine)
{
    std::vector<wchar_t> line(commandLine.begin(), commandLine.end());
    line.push_back(L'\0');
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(CreateProcessW(ViewerPath().c_str(), line.data(), nullptr, nullptr, FALSE, 0,
                               nullptr, nullptr, &startup, &process));
    CloseHandle(process.hThread);
    return UniqueKernelHandle(process.hProcess);
}

// The exit code; 999 when it doesn't end.
DWORD ExitCodeOf(const UniqueKernelHandle& process)
{
    DWORD code = 999;
    if (WaitForSingleObject(process.get(), 20000) == WAIT_OBJECT_0)
        GetExitCodeProcess(process.get(), &code);
    return code;
}

HWND Viewer()
{
    const HWND viewer = FindWindowW(help::kViewerClass, nullptr);
    return viewer && IsWindowVisible(viewer) ? viewer : nullptr;
}

// The first line that the open viewer shows.
std::wstring FirstLine()
{
    const HWND viewer = Viewer();
    const HWND view = viewer ? FindWindowExW(viewer, nullptr, L"TavHelpPage", nullptr) : nullptr;
    const std::wstring text = view ? TextOf(view) : std::wstring();
    return text.substr(0, text.find(L'\n'));
}

void ExpectShown(const std::wstring& line)
{
    WaitUntil([&] { return FirstLine() == line; });
    EXPECT_EQ(line, FirstLine());
}

// Waits until the open viewer takes the keys.
void WaitForKeys()
{
    EXPECT_TRUE(WaitUntil(
        []
        {
            const HWND viewer = Viewer();
            GUITHREADINFO info = {};
            info.cbSize = sizeof(info);
            return viewer && GetForegroundWindow() == viewer &&
                   GetGUIThreadInfo(GetWindowThreadProcessId(viewer, nullptr), &info) &&
                   info.hwndFocus && IsChild(viewer, info.hwndFocus);
        }));
}

class ViewerProgram : public testing::Test
{
protected:
    ViewerProgram() { CloseViewer(); }
    ~ViewerProgram() override { CloseViewer(); }

    static void CloseViewer()
    {
        const HWND viewer = FindWindowW(help::kViewerClass, nullptr);
        if (!viewer)
            return;
        PostMessageW(viewer, WM_CLOSE, 0, 0);
        EXPECT_TRUE(WaitUntil([&] { return !IsWindow(viewer); }));
    }

    // Waits for the message box of a refusal and closes it; its sentence.
    static std::wstring DismissComplaint()
    {
        HWND box = nullptr;
        WaitUntil([&] { return (box = FindWindowW(L"#32770", L"Tav Lumenar")) != nullptr; });
        EXPECT_NE(nullptr, box);
        HWND sentence = nullptr;
        WaitUntil(
            [&]
            {
                sentence = GetDlgItem(box, 0xFFFF);
                return sentence && !TextOf(sentence).empty();
            });
        const std::wstring text = TextOf(sentence);
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        return text;
    }
};

} // namespace

TEST_F(ViewerProgram, ShowsTheContentsForTheCommandLineOfTheDialogs)
{
    const UniqueKernelHandle viewer = Start(L"TavLumenar.htm#Main_Contents");
    ExpectShown(L"Tav Lumenar Help");
    WaitForKeys();
    PostMessageW(Viewer(), WM_CLOSE, 0, 0);
    EXPECT_EQ(0u, ExitCodeOf(viewer));
}

TEST_F(ViewerProgram, IsWorkedByRealKeysAlone)
{
    const UniqueKernelHandle viewer = Start(L"TavLumenar.htm#Main_Contents");
    ExpectShown(L"Tav Lumenar Help");
    WaitForKeys();
    PressKey(VK_DOWN);
    PressKey(VK_RETURN);
    ExpectShown(L"Customize Menu");
    // The right soft key is "Back" now.
    PressKey(VK_F2);
    ExpectShown(L"Tav Lumenar Help");
    PressKey(VK_ESCAPE);
    EXPECT_EQ(0u, ExitCodeOf(viewer));
}

TEST_F(ViewerProgram, ASecondStartShowsItsTopicInTheOpenWindow)
{
    const UniqueKernelHandle first = Start(L"TavLumenar.htm#Main_Contents");
    ExpectShown(L"Tav Lumenar Help");
    const HWND window = Viewer();
    const UniqueKernelHandle second = Start(L"PegHelp.exe --window Select_City");
    EXPECT_EQ(0u, ExitCodeOf(second));
    ExpectShown(L"Select City");
    EXPECT_EQ(window, Viewer());
}

TEST_F(ViewerProgram, TwoThatAreStartedTogetherAreOneWindow)
{
    const UniqueKernelHandle first = Start(L"TavLumenar.htm#Keys");
    const UniqueKernelHandle second = Start(L"TavLumenar.htm#Keys");
    const HANDLE both[] = {first.get(), second.get()};
    EXPECT_NE(WAIT_TIMEOUT, WaitForMultipleObjects(2, both, FALSE, 20000)) << "none handed over";
    ExpectShown(L"With the keys");
    EXPECT_EQ(WAIT_TIMEOUT, WaitForMultipleObjects(2, both, TRUE, 0)) << "both ended";
}

TEST_F(ViewerProgram, ARefusedPageIsExplained)
{
    const UniqueKernelHandle viewer = Start(L"PegHelp.exe ..\\x.htm#Topic");
    EXPECT_EQ(L"'..\\x.htm' leads out of the help folder, so it is not opened.",
              DismissComplaint());
    EXPECT_EQ(2u, ExitCodeOf(viewer));
}

TEST_F(ViewerProgram, AMissingPageIsExplained)
{
    const UniqueKernelHandle viewer = Start(L"Missing.htm#Topic");
    EXPECT_EQ(L"The help page 'Missing.htm' was not found.", DismissComplaint());
    EXPECT_EQ(2u, ExitCodeOf(viewer));
}

TEST_F(ViewerProgram, TakesAPictureOfATopicAndLeaves)
{
    const CHelpFolder folder;
    const std::wstring file = folder.Path() + L"a.png";
    const UniqueKernelHandle viewer =
        Start(L"PegHelp.exe --window --picture \"" + file + L"\" Choose_Icon");
    EXPECT_EQ(0u, ExitCodeOf(viewer));
    EXPECT_EQ("\x89PNG", BytesOf(file).substr(0, 4));
}

TEST_F(ViewerProgram, APictureOfAMissingPageEndsWithoutAQuestion)
{
    EXPECT_EQ(2u, ExitCodeOf(Start(L"PegHelp.exe --picture C:\\a.png Missing.htm")));
}

TEST_F(ViewerProgram, ADialogThatIsAskedForHelpOpensIt)
{
    CRegistrySandbox hive;
    const CModule module;
    CDialogRun run([&](HWND owner) { return module.CustomizeNow(owner, 0, 0, 0); });
    const HWND dialog = run.WaitForDialog(L"Customize Now Screen");
    ASSERT_NE(nullptr, dialog);
    SendMessageW(dialog, WM_HELP, 0, 0);
    ExpectShown(L"Tav Lumenar Help");
    CloseViewer();
    SendCommand(dialog, IDCANCEL);
    EXPECT_TRUE(run.WaitForEnd());
}

TEST_F(ViewerProgram, CtrlAndF1InADialogOpensIt)
{
    CRegistrySandbox hive;
    const CModule module;
    CDialogRun run([&](HWND owner) { return module.CustomizeNow(owner, 0, 0, 0); });
    const HWND dialog = run.WaitForDialog(L"Customize Now Screen");
    ASSERT_NE(nullptr, dialog);
    HoldKey(VK_CONTROL, true);
    PressKey(VK_F1);
    HoldKey(VK_CONTROL, false);
    ExpectShown(L"Tav Lumenar Help");
    CloseViewer();
    SendCommand(dialog, IDCANCEL);
    EXPECT_TRUE(run.WaitForEnd());
}

TEST_F(ViewerProgram, CustomizeMenuClosesBehindItsHelpAsTheBookSays)
{
    const CMenuSandbox menu;
    const CModule module;
    CDialogRun run([&](HWND owner) { return module.CustomizeMenu(owner, 0, 0, 0); });
    const HWND dialog = run.WaitForDialog(L"Customize Menu");
    ASSERT_NE(nullptr, dialog);
    SendMessageW(dialog, WM_HELP, 0, 0);
    ExpectShown(L"Tav Lumenar Help");
    EXPECT_TRUE(run.WaitForEnd());
    EXPECT_EQ(FALSE, run.Result());
}
