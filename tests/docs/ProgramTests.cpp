// The programs of the documents at work: each was built from a document's own text and calls the
// built module; the dialogs are worked from outside, as a person would.
#include "tests/docs/Examples.h"

#include "tests/dialogs/city/CityFolder.h"
#include "tests/dialogs/wizard/WizardPictures.h"
#include "tests/support/DialogRun.h"
#include "tests/support/Module.h"
#include "tests/support/StartMenu.h"
#include "tests/support/Wait.h"

#include "include/TavLumenarCityDetails.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

// Titles and commands, by what hosts know them by.
constexpr const wchar_t* kMenuTitle = L"Customize Menu";
constexpr const wchar_t* kNowTitle = L"Customize Now Screen";
constexpr const wchar_t* kCityTitle = L"Select City";
constexpr const wchar_t* kWizardTitle = L"Tav Lumenar";
constexpr const wchar_t* kPinTitle = L"Manage Pinned";
constexpr UINT kAddMenu = 32782;
constexpr int kProfessional = 222;
constexpr int kTree = 203;
constexpr int kCitySearch = 201;
constexpr int kCityList = 202;
constexpr int kPreview = 208;

constexpr const wchar_t* kRootKey = L"SOFTWARE\\Orvane 2\\Tav Lumenar\\Menu\\Root";

// Two cities; the first one has details as the city tool writes them.
Bytes TwoCities()
{
    CCityImageBuilder builder;
    builder.Area(L"Switzerland");
    builder.Details(1);
    builder.City({2657896, builder.Text(L"Zurich"), 0, kNoCityRecord, 0});
    builder.City({2658434, builder.Text(L"Thun"), 0, kNoCityRecord, kNoCityRecord});
    Bytes image = builder.Build();
    CITYDETAILS details = {};
    details.version = TAVLUMENAR_CITY_DETAILS_VERSION;
    details.latitude = 47366670;
    details.longitude = 8550000;
    std::memcpy(details.timeZone, L"Europe/Zurich", sizeof(L"Europe/Zurich"));
    const uint32_t record = bytes::GetU32LE(image.data() + FirstRecordField(2));
    std::memcpy(image.data() + record + 4, &details, sizeof(details));
    return image;
}

// The second city's area is none of the image's.
Bytes BrokenCities()
{
    CCityImageBuilder builder;
    builder.Area(L"Switzerland");
    builder.City({1, builder.Text(L"Zurich"), 99, kNoCityRecord, kNoCityRecord});
    return builder.Build();
}

class DocsProgram : public testing::Test
{
protected:
    // Ends the dialog with that title by a command of its soft keys.
    static void EndDialogOf(const CExampleProgram& program, const wchar_t* title, UINT command)
    {
        const HWND dialog = program.WaitForDialog(title);
        ASSERT_NE(nullptr, dialog);
        PostCommand(dialog, command);
    }
    void InstallCities(const Bytes& image)
    {
        folder.InstallAsFolder(image);
        SetInstallFolder(registry, folder);
    }
    void AddMenuItem(const wchar_t* name)
    {
        const std::wstring key = std::wstring(kRootKey) + L"\\" + name;
        registry.SetText(key.c_str(), L"Text", name);
        registry.SetDword(key.c_str(), L"Add", 1);
    }

    CCityFolder folder;
    CRegistrySandbox registry;
};

} // namespace

TEST_F(DocsProgram, TheGuidesCallReloadsTheMenuAfterDone)
{
    const CExampleProgram program(L"host-call", L"", registry);
    EndDialogOf(program, kMenuTitle, IDOK);
    EXPECT_EQ("reloading\nreturned\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheGuidesCallDoesNothingAfterCancel)
{
    const CExampleProgram program(L"host-call", L"", registry);
    EndDialogOf(program, kMenuTitle, IDCANCEL);
    EXPECT_EQ("returned\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheReadmesCallReloadsTheMenuAfterDone)
{
    const CExampleProgram program(L"readme-call", L"", registry);
    EndDialogOf(program, kMenuTitle, IDOK);
    EXPECT_EQ("reloading\nreturned\n", program.WaitForEnd());
}

TEST_F(DocsProgram, AModuleThatWasLoadedByItsPathShowsItsDialogAndGoesAgain)
{
    wchar_t path[MAX_PATH] = {};
    {
        const CModule module;
        GetModuleFileNameW(module.Handle(), path, MAX_PATH);
    }
    const CExampleProgram program(L"host-load", std::wstring(L"\"") + path + L"\"", registry);
    EndDialogOf(program, kNowTitle, IDOK);
    EXPECT_EQ("confirmed\n", program.WaitForEnd());
}

TEST_F(DocsProgram, WithoutTheModuleNothingIsShown)
{
    const CExampleProgram program(L"host-load", L"C:\\nowhere\\TavLumenarDialogs.dll", registry);
    EXPECT_EQ("cancelled\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheChosenCitySetsTheClock)
{
    InstallCities(TwoCities());
    const CExampleProgram program(L"host-city", L"2657896", registry);
    EndDialogOf(program, kCityTitle, IDOK);
    EXPECT_EQ("city 2657896: Zurich\nclock: Europe/Zurich at 47.37, 8.55\nreturned\n",
              program.WaitForEnd());
}

TEST_F(DocsProgram, ACityWithoutDetailsIsKeptAndSetsNoClock)
{
    InstallCities(TwoCities());
    const CExampleProgram program(L"host-city", L"2658434", registry);
    EndDialogOf(program, kCityTitle, IDOK);
    EXPECT_EQ("city 2658434: Thun\nreturned\n", program.WaitForEnd());
}

TEST_F(DocsProgram, WithoutAChosenCityDoneChangesNothing)
{
    InstallCities(TwoCities());
    const CExampleProgram program(L"host-city", L"0", registry);
    EndDialogOf(program, kCityTitle, IDOK);
    EXPECT_EQ("returned\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheListOfPinsIsPrintedInItsOrder)
{
    ImportExample(L"mru-index", registry);
    const CExampleProgram program(L"host-pins", L"", registry);
    EXPECT_EQ(OutputOf(L"host-pins"), program.WaitForEnd());
}

TEST_F(DocsProgram, WithoutAListOfPinsNothingIsPrinted)
{
    const CExampleProgram program(L"host-pins", L"", registry);
    EXPECT_EQ("", program.WaitForEnd());
}

TEST_F(DocsProgram, TheShieldHandsTheResultOn)
{
    InstallCities(TwoCities());
    const CExampleProgram program(L"host-shield", L"2657896", registry);
    EndDialogOf(program, kCityTitle, IDOK);
    EXPECT_EQ("result 1, failure 00000000, owner enabled\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheShieldTurnsAnExceptionIntoItsCode)
{
    InstallCities(BrokenCities());
    const CExampleProgram program(L"host-shield", L"", registry);
    EXPECT_EQ("result 0, failure 84000001, owner enabled\n", program.WaitForEnd());
}

// As the guide tells: the structured exception's code, then the end with exit code 3.
TEST_F(DocsProgram, AnExceptionThatNobodyCatchesEndsTheHost)
{
    InstallCities(BrokenCities());
    const CExampleProgram program(L"host-unshielded", L"", registry);
    const std::string output = program.WaitForEnd(3);
    EXPECT_EQ(0u, output.find("exception 20474343\n")) << output;
    EXPECT_EQ(std::string::npos, output.find("survived")) << output;
}

TEST_F(DocsProgram, TheMinimalHostChoosesACity)
{
    InstallCities(TwoCities());
    const CExampleProgram program(L"minimal-host", L"select-city", registry);
    const HWND dialog = program.WaitForDialog(kCityTitle);
    ASSERT_NE(nullptr, dialog);
    SendMessageW(GetDlgItem(dialog, kCitySearch), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"th"));
    // The list shows one row; Down chooses it.
    SendMessageW(GetDlgItem(dialog, kCityList), WM_KEYDOWN, VK_DOWN, 0);
    PostCommand(dialog, IDOK);
    EXPECT_EQ("city 2658434: Thun\nconfirmed\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheMinimalHostIsToldOfTheNewLayout)
{
    // The choices are as wide as their pictures.
    WriteWizardArchive(folder, {{"Classic.bmp", BitmapFileOf(60, 80, RGB(200, 30, 10))},
                                {"Professional.bmp", BitmapFileOf(60, 80, RGB(10, 60, 220))}});
    SetInstallFolder(registry, folder);
    const CExampleProgram program(L"minimal-host", L"install-wizard", registry);
    const HWND dialog = program.WaitForDialog(kWizardTitle);
    ASSERT_NE(nullptr, dialog);
    SendMessageW(GetDlgItem(dialog, kProfessional), BM_CLICK, 0, 0);
    EXPECT_EQ(BST_CHECKED, SendMessageW(GetDlgItem(dialog, kProfessional), BM_GETCHECK, 0, 0));
    PostCommand(dialog, IDOK);
    EXPECT_EQ("layout: Professional\nconfirmed\n", program.WaitForEnd());
}

TEST_F(DocsProgram, TheMinimalHostDrawsTheIconOfANewMenu)
{
    AddMenuItem(L"Programs");
    const CExampleProgram program(L"minimal-host", L"customize-menu", registry);
    const HWND editor = program.WaitForDialog(kMenuTitle);
    ASSERT_NE(nullptr, editor);
    // The first item below the root takes items.
    SendMessageW(GetDlgItem(editor, kTree), WM_KEYDOWN, VK_DOWN, 0);
    PostCommand(editor, kAddMenu);
    HWND edit = nullptr;
    ASSERT_TRUE(WaitUntil(
        [&]
        {
            edit = OpenDialogOf(program.ThreadId());
            return edit && edit != editor;
        }));
    // Painting the preview asks for the icon before this message is answered.
    UpdateWindow(GetDlgItem(edit, kPreview));
    SendMessageW(GetDlgItem(edit, kPreview), WM_PAINT, 0, 0);
    PostCommand(edit, IDCANCEL);
    ASSERT_TRUE(WaitUntil([&] { return OpenDialogOf(program.ThreadId()) == editor; }));
    PostCommand(editor, IDOK);
    const std::string output = program.WaitForEnd();
    EXPECT_EQ(0u, output.find("drew icon 100\n")) << output;
    EXPECT_NE(std::string::npos, output.find("confirmed\n")) << output;
}

TEST_F(DocsProgram, TheMinimalHostSaysWhichProgramsAreShown)
{
    AddMenuItem(L"Programs");
    const CStartMenu startMenu;
    startMenu.AddFile(L"Programs\\Chess.lnk");
    startMenu.AddFile(L"Programs\\Setup.lnk");
    const CExampleProgram program(L"minimal-host", L"customize-home", registry,
                                  startMenu.UserBackingPath());
    EndDialogOf(program, kPinTitle, IDCANCEL);
    const std::string output = program.WaitForEnd();
    EXPECT_NE(std::string::npos, output.find("shown: Chess.lnk\n")) << output;
    EXPECT_NE(std::string::npos, output.find("hidden: Setup.lnk\n")) << output;
    EXPECT_NE(std::string::npos, output.find("cancelled\n")) << output;
}

TEST_F(DocsProgram, TheMinimalHostOpensTheListOfPlugins)
{
    const CExampleProgram program(L"minimal-host", L"customize-now", registry);
    EndDialogOf(program, kNowTitle, IDOK);
    EXPECT_EQ("confirmed\n", program.WaitForEnd());
}
