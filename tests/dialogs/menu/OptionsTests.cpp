// Menu Options: its controls, its rules, and what "Done" writes.
#include "tests/dialogs/menu/support/EditorFixture.h"

namespace
{

constexpr int kList = 210;
constexpr int kGrid = 211;
constexpr int kMostUsed = 212;
constexpr int kHardware = 213;
constexpr int kLayoutHeading = 214;
constexpr int kDisplayHeading = 215;

class Options : public EditorFixture
{
protected:
    // Opens the dialog for one of the sample menus.
    void OpenFor(const std::wstring& path, const std::wstring& title)
    {
        if (!dialog)
            Open();
        options = OpenOptions(path, title);
        ASSERT_NE(nullptr, options);
    }
    void OpenForPrograms() { OpenFor(L"Programs", L"Menu Options ('Programs')"); }
    void OpenForRoot() { OpenFor(L"", L"Menu Options ('')"); }

    bool IsChecked(int id) { return SendDlgItemMessageW(options, id, BM_GETCHECK, 0, 0) == 1; }
    bool IsControlEnabled(int id) { return IsWindowEnabled(GetDlgItem(options, id)) != FALSE; }
    void Click(int id) { SendDlgItemMessageW(options, id, BM_CLICK, 0, 0); }

    // Ends the sub-dialog and waits until the editor is back.
    void End(UINT command)
    {
        PostCommand(options, command);
        EXPECT_EQ(dialog, run->WaitForDialog(L"Customize Menu"));
    }

    // The flags of the menu "Programs" as the product has them, then its layout.
    void SetProgram(DWORD flags, const wchar_t* layout)
    {
        const std::wstring key = std::wstring(kProductMenu) + L"\\Programs";
        registry.SetDword(key.c_str(), L"RtFlags", flags);
        registry.SetText(key.c_str(), L"DrawType", layout);
    }
    DWORD ProgramFlags() { return registry.CustomDword(L"Programs", L"RtFlags"); }

    HWND options = nullptr;
};

} // namespace

TEST_F(Options, TheCaptionNamesTheMenu)
{
    OpenFor(L"My Menu", L"Menu Options ('My Menu')");
}

TEST_F(Options, TheRootsCaptionNamesItsOwnText)
{
    OpenForRoot();
    EXPECT_EQ(L"Menu Options ('')", TextOf(options));
}

TEST_F(Options, AMenusNameIsNoFormat)
{
    registry.AddUserMenu(L"User 9", L"100%s %n %d", 4);
    OpenFor(L"100%s %n %d", L"Menu Options ('100%s %n %d')");
}

TEST_F(Options, ALongNameIsShownInTheCaption)
{
    const std::wstring name(300, L'n');
    registry.AddUserMenu(L"User 9", name.c_str(), 4);
    Open();
    // The tree shows what fits into the text of a node.
    const HTREEITEM node = tree.Next(tree.Find(L"My Menu"), TVGN_NEXT);
    tree.Select(node);
    PostCommand(dialog, CommandOptions);
    options = run->WaitForDialog(L"Menu Options ('" + name + L"')");
    EXPECT_NE(nullptr, options);
}

TEST_F(Options, HasTheSoftKeysDoneAndCancel)
{
    OpenForPrograms();
    ASSERT_EQ(2, SoftKeyCount(options));
    EXPECT_EQ(L"Done", SoftKeyText(options, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(options, 1));
}

TEST_F(Options, AListWithoutFlagsIsOneByOne)
{
    OpenForPrograms();
    EXPECT_TRUE(IsChecked(kList));
    EXPECT_FALSE(IsChecked(kGrid));
    EXPECT_FALSE(IsChecked(kMostUsed));
    EXPECT_FALSE(IsChecked(kHardware));
}

TEST_F(Options, AGridIsAGridInAnyCapitals)
{
    SetProgram(0, L"gRID");
    OpenForPrograms();
    EXPECT_TRUE(IsChecked(kGrid));
    EXPECT_FALSE(IsChecked(kList));
}

TEST_F(Options, BitTwoIsMostUsedFirst)
{
    SetProgram(2, L"List");
    OpenForPrograms();
    EXPECT_TRUE(IsChecked(kMostUsed));
    EXPECT_FALSE(IsChecked(kHardware));
}

TEST_F(Options, BitOneIsHardwareNavigation)
{
    SetProgram(1, L"List");
    OpenForPrograms();
    EXPECT_FALSE(IsChecked(kMostUsed));
    EXPECT_TRUE(IsChecked(kHardware));
}

TEST_F(Options, OtherBitsShowNothing)
{
    SetProgram(0xFFFFFFFC, L"List");
    OpenForPrograms();
    EXPECT_FALSE(IsChecked(kMostUsed));
    EXPECT_FALSE(IsChecked(kHardware));
}

TEST_F(Options, InAMenuEverythingCanBeChosenButNavigationInAList)
{
    OpenForPrograms();
    EXPECT_TRUE(IsControlEnabled(kList));
    EXPECT_TRUE(IsControlEnabled(kGrid));
    EXPECT_TRUE(IsControlEnabled(kMostUsed));
    EXPECT_FALSE(IsControlEnabled(kHardware));
}

TEST_F(Options, InAGridNavigationCanBeChosen)
{
    OpenFor(L"Programs/Games", L"Menu Options ('Games')");
    EXPECT_TRUE(IsControlEnabled(kHardware));
}

TEST_F(Options, ChoosingAnotherLayoutEnablesAndDisablesNavigationAtOnce)
{
    OpenForPrograms();
    Click(kGrid);
    EXPECT_TRUE(IsControlEnabled(kHardware));
    Click(kList);
    EXPECT_FALSE(IsControlEnabled(kHardware));
}

TEST_F(Options, TheRootsLayoutAndOrderAreFixed)
{
    OpenForRoot();
    EXPECT_FALSE(IsControlEnabled(kList));
    EXPECT_FALSE(IsControlEnabled(kGrid));
    EXPECT_FALSE(IsControlEnabled(kMostUsed));
    EXPECT_FALSE(IsControlEnabled(kHardware));
}

TEST_F(Options, OfARootThatIsAGridNavigationCanBeChosen)
{
    registry.SetText(kProductMenu, L"DrawType", L"Grid");
    OpenForRoot();
    EXPECT_FALSE(IsControlEnabled(kList));
    EXPECT_FALSE(IsControlEnabled(kGrid));
    EXPECT_FALSE(IsControlEnabled(kMostUsed));
    EXPECT_TRUE(IsControlEnabled(kHardware));
    Click(kHardware);
    End(IDOK);
    EXPECT_EQ(1u, registry.CustomDword(L"", L"RtFlags"));
    EXPECT_EQ(L"Grid", registry.CustomText(L"", L"DrawType"));
}

TEST_F(Options, TheHeadingsAreBold)
{
    OpenForPrograms();
    for (const int heading : {kLayoutHeading, kDisplayHeading})
    {
        const HWND label = GetDlgItem(options, heading);
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0)), sizeof(font),
                   &font);
        EXPECT_EQ(700, font.lfWeight) << heading;
        EXPECT_STREQ(L"Tahoma", font.lfFaceName);
    }
}

TEST_F(Options, CancelWritesNothing)
{
    Open();
    const std::wstring before = registry.CustomDump();
    OpenForPrograms();
    Click(kGrid);
    Click(kMostUsed);
    Click(kHardware);
    End(IDCANCEL);
    EXPECT_EQ(std::vector<std::wstring>{}, DumpDifference(before, registry.CustomDump()));
}

TEST_F(Options, NothingIsWrittenBeforeDone)
{
    Open();
    const std::wstring before = registry.CustomDump();
    OpenForPrograms();
    Click(kGrid);
    Click(kMostUsed);
    EXPECT_EQ(before, registry.CustomDump());
}

TEST_F(Options, DoneWritesTheLayout)
{
    OpenForPrograms();
    Click(kGrid);
    End(IDOK);
    EXPECT_EQ(L"Grid", registry.CustomText(L"Programs", L"DrawType"));
    OpenForPrograms();
    EXPECT_TRUE(IsChecked(kGrid));
    Click(kList);
    End(IDOK);
    EXPECT_EQ(L"List", registry.CustomText(L"Programs", L"DrawType"));
}

TEST_F(Options, DoneWithoutAChangeWritesLayoutAndFlagsAllTheSame)
{
    Open();
    const std::wstring before = registry.CustomDump();
    OpenForPrograms();
    End(IDOK);
    EXPECT_EQ(
        (std::vector<std::wstring>{L"+\\Programs|DrawType=List", L"+\\Programs|RtFlags=00000000"}),
        DumpDifference(before, registry.CustomDump()));
}

TEST_F(Options, SwitchingMostUsedFirstOnSetsTwoBitsAndNamesAFreshList)
{
    OpenForPrograms();
    Click(kMostUsed);
    End(IDOK);
    EXPECT_EQ(6u, ProgramFlags());
    EXPECT_EQ(L"User 4", registry.CustomText(L"Programs", L"Rating"));
    EXPECT_EQ(4u, registry.CustomDword(L"", L"LastKey"));
}

TEST_F(Options, AListThatHasANameKeepsIt)
{
    registry.SetText((std::wstring(kProductMenu) + L"\\Programs").c_str(), L"Rating", L"Products");
    OpenForPrograms();
    Click(kMostUsed);
    End(IDOK);
    EXPECT_EQ(6u, ProgramFlags());
    EXPECT_FALSE(registry.CustomExists(L"Programs", L"Rating"));
    EXPECT_EQ(3u, registry.CustomDword(L"", L"LastKey"));
}

TEST_F(Options, SwitchingMostUsedFirstOffKeepsTheBitThatRemembersTheList)
{
    OpenForPrograms();
    Click(kMostUsed);
    End(IDOK);
    OpenForPrograms();
    EXPECT_TRUE(IsChecked(kMostUsed));
    Click(kMostUsed);
    End(IDOK);
    EXPECT_EQ(4u, ProgramFlags());
    EXPECT_EQ(L"User 4", registry.CustomText(L"Programs", L"Rating"));
    EXPECT_EQ(4u, registry.CustomDword(L"", L"LastKey"));
}

TEST_F(Options, LeavingMostUsedFirstOnNamesAListThatLacksOne)
{
    SetProgram(2, L"List");
    OpenForPrograms();
    End(IDOK);
    EXPECT_EQ(6u, ProgramFlags());
    EXPECT_EQ(L"User 4", registry.CustomText(L"Programs", L"Rating"));
}

TEST_F(Options, NavigationOfAGridIsSet)
{
    SetProgram(0xF0, L"Grid");
    OpenForPrograms();
    Click(kHardware);
    End(IDOK);
    EXPECT_EQ(0xF1u, ProgramFlags());
}

TEST_F(Options, NavigationOfAGridIsCleared)
{
    SetProgram(0xF1, L"Grid");
    OpenForPrograms();
    Click(kHardware);
    End(IDOK);
    EXPECT_EQ(0xF0u, ProgramFlags());
}

TEST_F(Options, AListLeavesTheNavigationBitSet)
{
    SetProgram(1, L"Grid");
    OpenForPrograms();
    Click(kHardware);
    Click(kList);
    End(IDOK);
    EXPECT_EQ(1u, ProgramFlags());
    EXPECT_EQ(L"List", registry.CustomText(L"Programs", L"DrawType"));
}

TEST_F(Options, AListLeavesTheNavigationBitClear)
{
    SetProgram(0, L"Grid");
    OpenForPrograms();
    Click(kHardware);
    Click(kList);
    End(IDOK);
    EXPECT_EQ(0u, ProgramFlags());
}

TEST_F(Options, BothFlagsOfAGridAreWritten)
{
    SetProgram(0x10, L"Grid");
    OpenForPrograms();
    Click(kHardware);
    Click(kMostUsed);
    End(IDOK);
    EXPECT_EQ(0x17u, ProgramFlags());
}

TEST_F(Options, TheRootsFlagsAreWrittenToTheCustomisationRoot)
{
    registry.SetDword(kProductMenu, L"RtFlags", 2);
    OpenForRoot();
    EXPECT_TRUE(IsChecked(kMostUsed));
    End(IDOK);
    EXPECT_EQ(6u, registry.CustomDword(L"", L"RtFlags"));
    EXPECT_EQ(L"List", registry.CustomText(L"", L"DrawType"));
}

TEST_F(Options, AUserMenusOptionsAreWrittenToItsOwnKey)
{
    OpenFor(L"My Menu", L"Menu Options ('My Menu')");
    Click(kGrid);
    Click(kMostUsed);
    End(IDOK);
    EXPECT_EQ(L"Grid", registry.CustomText(L"User 1", L"DrawType"));
    EXPECT_EQ(6u, registry.CustomDword(L"User 1", L"RtFlags"));
}

TEST_F(Options, AreWrittenAlthoughTheEditorIsCancelled)
{
    OpenForPrograms();
    Click(kGrid);
    End(IDOK);
    Cancel();
    EXPECT_EQ(L"Grid", registry.CustomText(L"Programs", L"DrawType"));
}

TEST_F(Options, WithoutASelectionNothingOpens)
{
    Open();
    tree.Select(nullptr);
    SendCommand(dialog, CommandOptions);
    EXPECT_EQ(dialog, run->InnermostDialog());
}

TEST_F(Options, WithoutAnItemIsAnInternalError)
{
    Open();
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = tree.Find(L"Programs");
    item.lParam = 0x7FFFFFF0;
    SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    Select(L"Programs");
    PostCommand(dialog, CommandOptions);
    ExpectThrown(static_cast<HRESULT>(0x84000001));
}

TEST_F(Options, TheEditorIsDisabledWhileTheyAreOpenAndEnabledAfterwards)
{
    Open();
    OpenForPrograms();
    EXPECT_EQ(dialog, GetWindow(options, GW_OWNER));
    End(IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(dialog));
}
