// What of the Start Menu the program scan takes, how it names, sorts, numbers and checks it.
#include "frame/TavException.h"
#include "tests/menu/scan/ScanFixture.h"

#include <shellapi.h>

namespace
{

using ProgramScan = ScanFixture;
using Names = std::vector<std::wstring>;

// Which files.

TEST_F(ProgramScan, ShortcutsAndProgramsAreTakenInAnyCaseAndOtherFilesAreNot)
{
    StartFilter();
    for (const wchar_t* const name :
         {L"Chess.lnk", L"Maps.EXE", L"Radio.LnK", L"Notes.txt", L"lnk", L"Setup.exe.bak"})
        menu.AddFile(name);
    EXPECT_EQ(L"- Programs\n"
              L"  - Chess\n"
              L"  - Maps\n"
              L"  - Radio\n",
              FillPinned());
    EXPECT_EQ((Names{L"Chess.lnk", L"Maps.EXE", L"Radio.LnK"}), filter->Names())
        << "other files are not even asked about";
}

TEST_F(ProgramScan, OneCharacterBeforeTheExtensionIsEnoughAndNoneIsNot)
{
    StartFilter();
    for (const wchar_t* const name : {L"a.lnk", L".lnk", L"b.exe", L".exe"})
        menu.AddFile(name);
    EXPECT_EQ(L"- Programs\n  - a\n  - b\n", FillPinned());
}

TEST_F(ProgramScan, FoldersOfTheStartMenuAreFlattened)
{
    StartFilter();
    menu.AddFile(L"Settings\\System\\Clock.lnk");
    menu.AddFile(L"Settings\\Sound.lnk");
    menu.AddFolder(L"Empty");
    EXPECT_EQ(L"- Programs\n  - Clock\n  - Sound\n", FillPinned());
    EXPECT_EQ((Names{L"Clock.lnk", L"Sound.lnk"}), filter->Names())
        << "flattened folders are not asked about";
}

TEST_F(ProgramScan, FoldersOfTheProgramsFolderStayFoldersWithoutABox)
{
    StartFilter();
    menu.AddFile(L"Programs\\Mail.lnk");
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    menu.AddFile(L"Programs\\Games\\Cards\\Bridge.lnk");
    EXPECT_EQ(L"- Programs\n"
              L"    Games\n"
              L"      Cards\n"
              L"      - Bridge\n"
              L"    - Chess\n"
              L"  - Mail\n",
              FillPinned());
}

TEST_F(ProgramScan, TheProgramsFolderIsKnownInAnyCase)
{
    StartFilter();
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    menu.SetPrograms(menu.PathOf(L"PROGRAMS"));
    EXPECT_EQ(L"- Programs\n    Games\n    - Chess\n", FillPinned());
}

TEST_F(ProgramScan, OnlyTheProgramsFolderItselfKeepsItsFolders)
{
    StartFilter();
    menu.AddFile(L"Programs 2\\Games\\Chess.lnk");
    EXPECT_EQ(L"- Programs\n  - Chess\n", FillPinned());
}

// What the launcher-menu process says of them.

TEST_F(ProgramScan, WhatTheProcessRejectsIsNotShown)
{
    StartFilterBut(L"Chess.lnk", 0);
    menu.AddFile(L"Alarm.lnk");
    menu.AddFile(L"Chess.lnk");
    menu.AddFile(L"Radio.lnk");
    EXPECT_EQ(L"- Programs\n  - Alarm\n  - Radio\n", FillPinned());
}

TEST_F(ProgramScan, AFolderWhoseEntriesAreRejectedIsNotShown)
{
    StartFilterBut(L"Chess.lnk", 0);
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    EXPECT_EQ(L"- Programs\n", FillPinned());
    EXPECT_EQ((Names{L"Chess.lnk", L"Games"}), filter->Names());
}

TEST_F(ProgramScan, ARejectedFolderIsNotLookedInto)
{
    StartFilterBut(L"Games", 0);
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    EXPECT_EQ(L"- Programs\n", FillPinned());
    EXPECT_EQ(Names{L"Games"}, filter->Names());
}

TEST_F(ProgramScan, AnEmptyFolderIsNotShownButOneThatHoldsItIs)
{
    StartFilter();
    menu.AddFolder(L"Programs\\Empty");
    menu.AddFolder(L"Programs\\Holder\\Empty");
    EXPECT_EQ(L"- Programs\n    Holder\n", FillPinned());
}

// Texts, order, numbers.

TEST_F(ProgramScan, TextsEndAtTheLastDotOfTheName)
{
    StartFilter();
    menu.AddFile(L"Programs\\Version 1.5\\Read.Me.lnk");
    EXPECT_EQ(L"- Programs\n    Version 1\n    - Read.Me\n", FillPinned());
}

TEST_F(ProgramScan, EntriesAreSortedByTextWhateverTheFoldersOrder)
{
    StartFilter();
    menu.AddFile(L"zeta.lnk");
    menu.AddFile(L"Programs\\Beta\\x.lnk");
    menu.AddFile(L"Programs\\Beta\\A.lnk");
    menu.AddFile(L"Programs\\alpha.lnk");
    menu.AddFile(L"A folder\\Gamma.lnk");
    EXPECT_EQ(L"- Programs\n"
              L"  - alpha\n"
              L"    Beta\n"
              L"    - A\n"
              L"    - x\n"
              L"  - Gamma\n"
              L"  - zeta\n",
              FillPinned());
}

TEST_F(ProgramScan, EntriesAreNumberedDownwardsAndKeepTheirPaths)
{
    StartFilter();
    const std::wstring chess = menu.AddFile(L"Programs\\Games\\Chess.lnk");
    CProgramScan scan(false);
    Fill(scan);
    const HTREEITEM folder = tree.Find(L"Games");
    EXPECT_EQ(-1, tree.DataOf(folder));
    EXPECT_EQ(-2, tree.DataOf(tree.Find(L"Games/Chess")));
    EXPECT_EQ(menu.PathOf(L"Programs\\Games"), scan.PathOf(-1));
    EXPECT_EQ(chess, scan.PathOf(-2));
    for (const int32_t unknown : {-3, 0, 1, INT32_MIN, INT32_MAX})
        EXPECT_EQ(L"", scan.PathOf(unknown)) << unknown;
}

TEST_F(ProgramScan, NumbersKeepFallingOverSeveralFillsAndOldPathsAreForgotten)
{
    StartFilter();
    const std::wstring path = menu.AddFile(L"Chess.lnk");
    CProgramScan scan(false);
    Fill(scan);
    Fill(scan);
    Fill(scan);
    EXPECT_EQ(-3, tree.DataOf(tree.Find(L"Chess")));
    EXPECT_EQ(path, scan.PathOf(-3));
    EXPECT_EQ(L"", scan.PathOf(-1));
    EXPECT_EQ(1u, scan.Paths.size());
}

// Boxes.

TEST_F(ProgramScan, PinnedFilesAreCheckedIgnoringCaseAndFoldersNever)
{
    StartFilter();
    std::wstring chess = menu.AddFile(L"Programs\\Games\\Chess.lnk");
    const std::wstring mail = menu.AddFile(L"Programs\\Mail.lnk");
    menu.AddFile(L"Programs\\Radio.lnk");
    CharUpperW(chess.data());
    EXPECT_EQ(L"- Programs\n    Games\n    + Chess\n  + Mail\n  - Radio\n",
              FillPinned({L"L:" + chess, L"l:" + mail, L"l:" + menu.PathOf(L"Programs\\Games"),
                          L"m:" + menu.PathOf(L"Programs\\Radio.lnk")}));
}

TEST_F(ProgramScan, WithoutPinnedNamesTheBoxesAreTheTreesOwn)
{
    StartFilter();
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    CProgramScan scan(false);
    EXPECT_EQ(L"- Programs\n  - Games\n    - Chess\n", Fill(scan));
}

// Icons.

TEST_F(ProgramScan, WithoutIconsTheTreeGetsNoImages)
{
    StartFilter();
    menu.AddFile(L"Chess.lnk");
    CProgramScan scan(false);
    Fill(scan);
    EXPECT_EQ(0, SendMessageW(window, TVM_GETIMAGELIST, TVSIL_NORMAL, 0));
}

TEST_F(ProgramScan, WithIconsEachNodeHasTheSystemsIconOfItsPath)
{
    StartFilter();
    menu.AddFile(L"Programs\\Games\\Chess.lnk");
    CProgramScan scan(true);
    Fill(scan);
    const auto list = SendMessageW(window, TVM_GETIMAGELIST, TVSIL_NORMAL, 0);
    EXPECT_NE(0, list);
    for (const wchar_t* const name : {L"Games", L"Games/Chess"})
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        item.hItem = tree.Find(name);
        SendMessageW(window, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
        SHFILEINFOW info = {};
        const std::wstring path = scan.PathOf(static_cast<int32_t>(tree.DataOf(tree.Find(name))));
        EXPECT_EQ(list, static_cast<LRESULT>(SHGetFileInfoW(path.c_str(), 0, &info, sizeof(info),
                                                            SHGFI_SYSICONINDEX | SHGFI_SMALLICON)));
        EXPECT_EQ(info.iIcon, item.iImage) << name;
        EXPECT_EQ(info.iIcon, item.iSelectedImage) << name;
    }
}

// Folders that are missing.

TEST_F(ProgramScan, WithoutAProgramsFolderItCannotBeMade)
{
    menu.SetPrograms(menu.PathOf(L"Nowhere"));
    try
    {
        CProgramScan scan(false);
        ADD_FAILURE() << "nothing was thrown";
    }
    catch (const CTavException& exception)
    {
        EXPECT_EQ(static_cast<HRESULT>(0x80070002), exception.Code());
    }
}

TEST_F(ProgramScan, AMissingStartMenuContributesNothing)
{
    StartFilter();
    menu.SetStartMenu(menu.PathOf(L"Nowhere"));
    EXPECT_EQ(L"- Programs\n", FillPinned());
}

} // namespace
