// Select File: how it opens, and what each way of ending it adds to the menu.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/ShellCalls.h"
#include "tests/support/TranslationFixture.h"
#include "tests/support/Wait.h"

namespace
{

class SelectFile : public FileFixture
{
protected:
    SelectFile()
    {
        device.AddFile(L"\\Windows\\calc.exe");
        device.AddFile(L"\\Storage Card\\Programs\\Cards.v2.lnk");
    }
    // Opens the picker and selects a file in "\Windows".
    void OpenOnFile(const std::wstring& menu = L"Programs")
    {
        OpenFiles(menu);
        Expand(L"Windows");
        SelectEntry(L"Windows/calc.exe");
    }
};

} // namespace

TEST_F(SelectFile, HasDoneAndCancelForSoftKeys)
{
    OpenFiles();
    EXPECT_EQ(2, SoftKeyCount(picker));
    EXPECT_EQ(L"Done", SoftKeyText(picker, 0));
    EXPECT_EQ(static_cast<UINT>(IDOK), SoftKeyCommand(picker, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(picker, 1));
    EXPECT_EQ(static_cast<UINT>(IDCANCEL), SoftKeyCommand(picker, 1));
}

TEST_F(SelectFile, AsksTheShellForTheFullScreenAndForABarWithTheInputPanelsButton)
{
    LoadModule();
    const CShellCalls calls(module->Handle());
    OpenFiles();
    EXPECT_EQ(CShellCalls::OfOneDialog("bar 16 207"), CShellCalls::Asked(4));
    run.reset();
}

TEST_F(SelectFile, GivesTheFocusToTheTree)
{
    OpenFiles();
    EXPECT_TRUE(WaitUntil([&] { return run->Focus() == entries.Window(); }));
}

TEST_F(SelectFile, DoneOnAFileAddsALinkToIt)
{
    OpenOnFile();
    ExpectAdds(L"Programs", L"Programs", L"\\Windows\\calc.exe", L"calc");
}

TEST_F(SelectFile, DoneOnAFileOfAUserMenuAddsItThere)
{
    OpenOnFile(L"My Menu");
    ExpectAdds(L"My Menu", L"User 1", L"\\Windows\\calc.exe", L"calc");
}

TEST_F(SelectFile, DoneOnAFileInADeeperFolderAddsItsFullPath)
{
    OpenFilesAt(L"Storage Card/Programs");
    SelectEntry(L"Storage Card/Programs/Cards.v2.lnk");
    ExpectAdds(L"Programs", L"Programs", L"\\Storage Card\\Programs\\Cards.v2.lnk", L"Cards");
}

TEST_F(SelectFile, DoneOnAFileInTheRootAddsItsPathWithOneBackslash)
{
    device.AddFile(L"\\a.exe");
    OpenFiles();
    SelectEntry(L"a.exe");
    ExpectAdds(L"Programs", L"Programs", L"\\a.exe", L"a");
}

TEST_F(SelectFile, TheNewItemIsThereWhenTheEditorOpensAgain)
{
    OpenOnFile();
    EndPicker(IDOK);
    Done();
    Open();
    EXPECT_EQ(L"calc", tree.ChildrenOf(L"Programs").back());
}

TEST_F(SelectFile, DoneOnAFolderAddsNothing)
{
    OpenFiles();
    SelectEntry(L"Windows");
    ExpectAddsNothing();
}

TEST_F(SelectFile, DoneOnTheRootAddsNothing)
{
    OpenFiles();
    SelectEntry(L"");
    ExpectAddsNothing();
}

TEST_F(SelectFile, DoneWithNothingSelectedAddsNothing)
{
    OpenFiles();
    entries.Select(nullptr);
    ASSERT_EQ(nullptr, entries.Selected());
    ExpectAddsNothing();
}

TEST_F(SelectFile, DoneOnAFileThatIsGoneAddsNothing)
{
    OpenOnFile();
    device.RemoveFile(L"\\Windows\\calc.exe");
    ExpectAddsNothing();
}

TEST_F(SelectFile, DoneOnAFolderThatBecameAFileTakesIt)
{
    device.AddFolder(L"\\thing");
    OpenFiles();
    SelectEntry(L"thing");
    device.RemoveFolder(L"\\thing");
    device.AddFile(L"\\thing");
    ExpectAdds(L"Programs", L"Programs", L"\\thing", L"thing");
}

TEST_F(SelectFile, DoneOnAFolderThatIsGoneAddsNothing)
{
    OpenFiles();
    SelectEntry(L"Windows");
    device.RemoveFolder(L"\\Windows");
    ExpectAddsNothing();
}

TEST_F(SelectFile, CancelOnAFileAddsNothing)
{
    OpenOnFile();
    ExpectAddsNothing(IDCANCEL);
}

TEST_F(SelectFile, CanBeOpenedAgainAndAgain)
{
    OpenOnFile();
    EndPicker(IDCANCEL);
    OpenFiles();
    EXPECT_EQ(Lines{L""}, entries.ChildrenOf(L"Windows")) << "a fresh tree";
    Expand(L"Windows");
    SelectEntry(L"Windows/calc.exe");
    ExpectAdds(L"Programs", L"Programs", L"\\Windows\\calc.exe", L"calc");
}

TEST_F(SelectFile, IsNotOpenedForWhatTakesNoItems)
{
    Open();
    for (const wchar_t* const item : {L"", L"Tools", L"Programs/Calendar", L"My Menu/Radio"})
    {
        Select(item);
        ExpectOpensNothing(CommandAddFile);
    }
}

TEST_F(SelectFile, IsNotOpenedWithNothingSelected)
{
    Open();
    tree.Select(nullptr);
    ExpectOpensNothing(CommandAddFile);
}

TEST_F(SelectFile, IsNotOpenedForANodeThatStandsForNoItem)
{
    Open();
    TVITEMW item = {};
    item.mask = TVIF_HANDLE | TVIF_PARAM;
    item.hItem = Select(L"Programs");
    item.lParam = 9999;
    SendMessageW(tree.Window(), TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    ExpectOpensNothing(CommandAddFile);
}

TEST_F(SelectFile, AddsNothingToAMenuThatWasRemovedMeanwhile)
{
    OpenOnFile(L"My Menu");
    SendCommand(dialog, CommandRemove);
    const std::wstring store = registry.CustomDump();
    EndPicker(IDOK);
    EXPECT_EQ(nullptr, tree.Find(L"My Menu"));
    EXPECT_EQ(store, registry.CustomDump());
}

TEST_F(SelectFile, ItsTextsAreTranslated)
{
    const CTempFolder folder;
    WriteTranslation(folder, L"Select File|Datei\nDone|Fertig\nCancel|Nein\n");
    SetInstallFolder(registry, folder);
    Open();
    Select(L"Programs");
    PostCommand(dialog, CommandAddFile);
    picker = run->WaitForDialog(L"Datei");
    ASSERT_NE(nullptr, picker);
    EXPECT_EQ(L"Fertig", SoftKeyText(picker, 0));
    EXPECT_EQ(L"Nein", SoftKeyText(picker, 1));
    run.reset();
}
