// Select Link: what it shows of the Start Menu, and what each way of ending it adds to the menu.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/IconWatch.h"
#include "tests/support/ShellCalls.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/Wait.h"

#include <shellapi.h>

namespace
{

class SelectLink : public LinkFixture
{
protected:
    SelectLink()
    {
        start.AddFile(L"Programs\\Mail.lnk");
        start.AddFile(L"Programs\\Games\\Chess.lnk");
        start.AddFile(L"Programs\\Calculator.exe");
        start.AddFile(L"Today.lnk");
        start.AddFile(L"Programs\\notes.txt");
    }
    void OpenOnLink(const std::wstring& menu = L"Programs")
    {
        OpenLinks(menu);
        SelectEntry(L"Mail");
    }
    void ExpectAddsMail(const std::wstring& menu, const std::wstring& key)
    {
        ExpectAdds(menu, key, start.PathOf(L"Programs\\Mail.lnk"), L"Mail");
    }
    // Gives a node data of the test's own.
    void SetData(HTREEITEM node, LPARAM data)
    {
        TVITEMW item = {};
        item.mask = TVIF_HANDLE | TVIF_PARAM;
        item.hItem = node;
        item.lParam = data;
        SendMessageW(entries.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
    void ExpectEmptyButUsable()
    {
        EXPECT_EQ(L"  Programs\n", entries.Dump());
        SelectEntry(L"");
        ExpectAddsNothing();
    }
};

} // namespace

TEST_F(SelectLink, ShowsTheStartMenuByNameWithoutBoxes)
{
    OpenLinks();
    EXPECT_EQ(L"  Programs\n"
              L"    Calculator\n"
              L"    Games\n"
              L"      Chess\n"
              L"    Mail\n"
              L"    Today\n",
              entries.Dump());
}

TEST_F(SelectLink, ItsRootIsNumberOneAndExpanded)
{
    OpenLinks();
    const HTREEITEM root = entries.Find(L"");
    EXPECT_EQ(1, entries.DataOf(root));
    EXPECT_TRUE(entries.IsExpanded(root));
    EXPECT_FALSE(entries.IsExpanded(entries.Find(L"Games")));
    EXPECT_EQ(nullptr, entries.Next(root, TVGN_NEXT));
}

TEST_F(SelectLink, ItsEntriesHaveNegativeNumbers)
{
    OpenLinks();
    for (const wchar_t* const path : {L"Calculator", L"Games", L"Games/Chess", L"Mail", L"Today"})
        EXPECT_LT(entries.DataOf(entries.Find(path)), 0) << path;
}

TEST_F(SelectLink, ItsEntriesShowTheSystemsSmallIcons)
{
    LoadModule();
    const CIconWatch icons(module->Handle());
    OpenLinks();
    SHFILEINFOW info = {};
    const DWORD_PTR list =
        SHGetFileInfoW(L"C:\\", 0, &info, sizeof(info), SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
    EXPECT_EQ(reinterpret_cast<HIMAGELIST>(list), entries.Images());
    const int icon = CIconWatch::IconOf(start.PathOf(L"Programs\\Games\\Chess.lnk"));
    EXPECT_NE(-1, icon);
    EXPECT_EQ(std::make_pair(icon, icon), entries.ImagesOf(entries.Find(L"Games/Chess")));
    EXPECT_TRUE(CIconWatch::AreAllForSmallIcons());
    run.reset();
}

TEST_F(SelectLink, ShowsOnlyWhatTheLauncherShows)
{
    filter.reset();
    filter = std::make_unique<CFilterWindow>([](const std::wstring& path)
                                             { return path.find(L"Mail") == std::wstring::npos; });
    OpenLinks();
    EXPECT_EQ((Lines{L"Calculator", L"Games", L"Today"}), entries.ChildrenOf(L""));
}

TEST_F(SelectLink, ItsTextsAreTranslated)
{
    const CTempFolder folder;
    WriteTranslation(folder, L"Select Link|Verkn\u00FCpfung\nPrograms|Programme\n");
    SetInstallFolder(registry, folder);
    Open();
    Select(L"Programme");
    PostCommand(dialog, CommandAddLink);
    picker = run->WaitForDialog(L"Verkn\u00FCpfung");
    entries = CTreeDriver(GetDlgItem(picker, 209));
    EXPECT_EQ(L"Programme", entries.TextOf(entries.Find(L"")));
    run.reset();
}

TEST_F(SelectLink, HasDoneAndCancelForSoftKeysAndTheFocusOnItsTree)
{
    OpenLinks();
    EXPECT_EQ(2, SoftKeyCount(picker));
    EXPECT_EQ(L"Done", SoftKeyText(picker, 0));
    EXPECT_EQ(static_cast<UINT>(IDOK), SoftKeyCommand(picker, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(picker, 1));
    EXPECT_EQ(static_cast<UINT>(IDCANCEL), SoftKeyCommand(picker, 1));
    EXPECT_TRUE(WaitUntil([&] { return run->Focus() == entries.Window(); }));
}

TEST_F(SelectLink, AsksTheShellForTheFullScreenAndForABarWithTheInputPanelsButton)
{
    LoadModule();
    const CShellCalls calls(module->Handle());
    OpenLinks();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 16 207"), CShellCalls::Asked(4));
    run.reset();
}

TEST_F(SelectLink, DoneOnALinkAddsIt)
{
    OpenOnLink();
    ExpectAddsMail(L"Programs", L"Programs");
}

TEST_F(SelectLink, DoneOnALinkOfAUserMenuAddsItThere)
{
    OpenOnLink(L"My Menu");
    ExpectAddsMail(L"My Menu", L"User 1");
}

TEST_F(SelectLink, DoneOnALinkInAFolderAddsIt)
{
    OpenLinks();
    SelectEntry(L"Games/Chess");
    ExpectAdds(L"Programs", L"Programs", start.PathOf(L"Programs\\Games\\Chess.lnk"), L"Chess");
}

TEST_F(SelectLink, DoneOnAFolderAddsNothing)
{
    OpenLinks();
    SelectEntry(L"Games");
    ExpectAddsNothing();
}

TEST_F(SelectLink, DoneOnTheRootAddsNothing)
{
    OpenLinks();
    SelectEntry(L"");
    ExpectAddsNothing();
}

TEST_F(SelectLink, DoneWithNothingSelectedAddsNothing)
{
    OpenLinks();
    entries.Select(nullptr);
    ASSERT_EQ(nullptr, entries.Selected());
    ExpectAddsNothing();
}

TEST_F(SelectLink, DoneOnALinkThatIsGoneAddsNothing)
{
    OpenOnLink();
    EXPECT_TRUE(DeleteFileW(start.PathOf(L"Programs\\Mail.lnk").c_str()));
    ExpectAddsNothing();
}

TEST_F(SelectLink, DoneOnANodeThatStandsForNoPathAddsNothing)
{
    for (const LPARAM data : {LPARAM(0), LPARAM(7), LPARAM(-1000), LPARAM(0x80000000)})
    {
        OpenLinks();
        SetData(SelectEntry(L"Mail"), data);
        ExpectAddsNothing();
    }
}

TEST_F(SelectLink, CancelOnALinkAddsNothing)
{
    OpenOnLink();
    ExpectAddsNothing(IDCANCEL);
}

TEST_F(SelectLink, IsNotOpenedForWhatTakesNoItems)
{
    Open();
    for (const wchar_t* const item : {L"", L"Tools", L"Programs/Calendar", L"My Menu/Radio"})
    {
        Select(item);
        ExpectOpensNothing(CommandAddLink);
    }
    tree.Select(nullptr);
    ExpectOpensNothing(CommandAddLink);
}

TEST_F(SelectLink, AddsNothingToAMenuThatWasRemovedMeanwhile)
{
    OpenOnLink(L"My Menu");
    SendCommand(dialog, CommandRemove);
    const std::wstring store = registry.CustomDump();
    EndPicker(IDOK);
    EXPECT_EQ(store, registry.CustomDump());
}

TEST_F(SelectLink, WithoutTheLauncherIsEmptyButUsable)
{
    filter.reset();
    OpenLinks();
    ExpectEmptyButUsable();
}

TEST_F(SelectLink, WhenTheLauncherDiesIsEmptyButUsable)
{
    filter->Behave(ImageProcessManner::Die);
    OpenLinks();
    ExpectEmptyButUsable();
}

// It is given five seconds once, not for every entry.
TEST_F(SelectLink, WhenTheLauncherHangsIsEmptyButUsable)
{
    filter->Behave(ImageProcessManner::Hang);
    OpenLinks();
    EXPECT_EQ(1u, filter->Questions().size());
    ExpectEmptyButUsable();
}

TEST_F(SelectLink, WithoutAProgramsFolderTheSystemsErrorLeavesTheExport)
{
    start.SetPrograms(start.PathOf(L"nowhere"));
    Open();
    Select(L"Programs");
    PostCommand(dialog, CommandAddLink);
    ExpectThrown(static_cast<HRESULT>(0x80070000 | ERROR_FILE_NOT_FOUND));
}

TEST_F(SelectLink, WithoutAStartMenuOnlyItsRootIsShown)
{
    start.SetStartMenu(start.PathOf(L"nowhere"));
    OpenLinks();
    ExpectEmptyButUsable();
}

TEST_F(SelectLink, FilesAndLinksBecomeTheSameKindOfItem)
{
    OpenOnLink();
    EndPicker(IDOK);
    const std::wstring item = L"Programs\\User 4";
    EXPECT_FALSE(registry.CustomExists(item, L"Image"));
    EXPECT_EQ((std::vector<UINT>{CommandEdit, CommandRemove, CommandMoveUp}),
              EnabledFor(L"Programs/Mail"));
}
