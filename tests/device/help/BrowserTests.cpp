// Which program counts as a browser, and what it is started with.
#include "device/help/Browser.h"

#include <gtest/gtest.h>

#include "device/help/PageFile.h"
#include "platform/Handles.h"
#include "tests/device/help/HelpFolder.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/Wait.h"

namespace
{

const std::wstring kAddress = L"file:///C:/Help/Book.htm#Topic";

// A registry in which this is the program for a kind of file or address.
void Associate(CRegistrySandbox& classes, const std::wstring& kind, const std::wstring& command)
{
    classes.SetText((kind + L"\\shell\\open\\command").c_str(), L"", command);
    classes.SetText(kind.c_str(), L"URL Protocol", L"");
}

} // namespace

TEST(Browser, WinesOwnProgramsAreNoBrowsersOnWine)
{
    EXPECT_FALSE(help::IsBrowser(L"C:\\windows\\system32\\winebrowser.exe", true));
    EXPECT_FALSE(help::IsBrowser(L"C:\\Program Files\\Internet Explorer\\IEXPLORE.EXE", true));
    EXPECT_TRUE(help::IsBrowser(L"C:\\Program Files\\Internet Explorer\\iexplore.exe", false));
    EXPECT_TRUE(help::IsBrowser(L"C:\\Program Files\\Any\\any.exe", true));
}

TEST(Browser, TheSystemsQuestionIsNoBrowser)
{
    EXPECT_FALSE(help::IsBrowser(L"C:\\Windows\\System32\\OpenWith.exe", false));
    EXPECT_FALSE(help::IsBrowser(L"", false));
}

TEST(Browser, TheTestsOwnSystemHasNone)
{
    EXPECT_EQ(L"", help::FindBrowser().Program);
}

TEST(Browser, TheProgramForAddressesIsFound)
{
    CRegistrySandbox classes(HKEY_CLASSES_ROOT);
    const std::wstring command = L"\"" + help::ProgramPath() + L"\" -show \"%1\"";
    Associate(classes, L"http", command);
    const help::Browser browser = help::FindBrowser();
    EXPECT_EQ(help::ProgramPath(), browser.Program);
    EXPECT_EQ(command, browser.Command);
}

TEST(Browser, TheProgramForPagesIsFoundWhereThereIsNoneForAddresses)
{
    CRegistrySandbox classes(HKEY_CLASSES_ROOT);
    Associate(classes, L"http", L"C:\\windows\\system32\\winebrowser.exe %1");
    classes.SetText(L".htm", L"", L"testfile");
    Associate(classes, L"testfile", L"\"" + help::ProgramPath() + L"\" \"%1\"");
    EXPECT_EQ(help::ProgramPath(), help::FindBrowser().Program);
}

TEST(Browser, AProgramThatIsNotThereIsNone)
{
    CRegistrySandbox classes(HKEY_CLASSES_ROOT);
    Associate(classes, L"http", L"\"C:\\Missing\\Browser.exe\" \"%1\"");
    EXPECT_EQ(L"", help::FindBrowser().Program);
}

TEST(Browser, AnAddressHasThePathAndTheTopic)
{
    EXPECT_EQ(L"file:///C:/Help/Book.htm#Main_Contents",
              help::AddressOf(L"C:\\Help\\Book.htm", L"Main_Contents"));
}

TEST(Browser, UnusualCharactersOfAnAddressAreEscaped)
{
    EXPECT_EQ(L"file:///C:/My%20Help/a%23b.htm#A%20%22%C3%BC%23",
              help::AddressOf(L"C:\\My Help\\a#b.htm", L"A \"\u00FC#"));
}

TEST(Browser, APathWithoutADriveIsOneOnTheCurrentDrive)
{
    const std::wstring address = help::AddressOf(L"\\Windows\\a.htm", L"T");
    EXPECT_EQ(L"file:///", address.substr(0, 8));
    EXPECT_EQ(L":/Windows/a.htm#T", address.substr(9));
}

TEST(Browser, TheAddressStandsWhereTheCommandHasItsPlace)
{
    EXPECT_EQ(L"\"C:\\b.exe\" -url \"" + kAddress + L"\" -new",
              help::CommandFor({L"C:\\b.exe", L"\"C:\\b.exe\" -url \"%1\" -new"}, kAddress));
    EXPECT_EQ(L"C:\\b.exe \"" + kAddress + L"\"",
              help::CommandFor({L"C:\\b.exe", L"C:\\b.exe"}, kAddress));
}

// Stands in for a browser: writes its command line into the file that it is told of.
CHILD_ENTRY(TestBrowser)
{
    const std::wstring line = GetCommandLineW();
    const std::string bytes(line.begin(), line.end());
    const std::wstring unfinished = argument + L".new";
    {
        const UniqueFile file(CreateFileW(unfinished.c_str(), GENERIC_WRITE, 0, nullptr,
                                          CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
        DWORD written = 0;
        WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }
    return MoveFileW(unfinished.c_str(), argument.c_str()) ? 0 : 1;
}

TEST(Browser, IsStartedWithTheAddress)
{
    const CHelpFolder folder;
    const std::wstring file = folder.Path() + L"asked.txt";
    // The browser is this program on another way in.
    SetEnvironmentVariableW(L"TAV_CHILD_ENTRY", L"TestBrowser");
    SetEnvironmentVariableW(L"TAV_CHILD_ARGUMENT", file.c_str());
    const bool isStarted =
        help::OpenInBrowser({help::ProgramPath(), L"browser -url \"%1\""}, kAddress);
    SetEnvironmentVariableW(L"TAV_CHILD_ENTRY", nullptr);
    ASSERT_TRUE(isStarted);
    ASSERT_TRUE(
        WaitUntil([&] { return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES; }));
    EXPECT_EQ("browser -url \"" + std::string(kAddress.begin(), kAddress.end()) + "\"",
              BytesOf(file));
}

TEST(Browser, WithoutABrowserOrAnAddressNothingIsStarted)
{
    EXPECT_FALSE(help::OpenInBrowser({}, kAddress));
    EXPECT_FALSE(help::OpenInBrowser({help::ProgramPath(), L"x \"%1\""}, L""));
    EXPECT_FALSE(help::OpenInBrowser({L"C:\\Missing\\b.exe", L"b \"%1\""}, kAddress));
}
