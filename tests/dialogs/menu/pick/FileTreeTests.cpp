// The tree of files in Select File: what it lists, when, in which order and with which data.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/FolderWatch.h"
#include "tests/support/IconWatch.h"
#include "tests/support/Wait.h"

#include <algorithm>

#include <shellapi.h>

namespace
{

// A folder's data.
constexpr LPARAM kUnfilled = 0;
constexpr LPARAM kFilled = 1;

class FileTree : public FileFixture
{
protected:
    // Opens the picker over what the module finds from now on.
    void Watch()
    {
        LoadModule();
        watch = std::make_unique<CFolderWatch>(module->Handle());
    }
    ~FileTree() override
    {
        run.reset();
        watch.reset();
        icons.reset();
    }

    std::unique_ptr<CFolderWatch> watch;
    std::unique_ptr<CIconWatch> icons;
};

int g_waitCursors;
int g_cursors;

HCURSOR WINAPI CountCursors(HCURSOR cursor)
{
    ++g_cursors;
    g_waitCursors += cursor == LoadCursorW(nullptr, IDC_WAIT);
    return SetCursor(cursor);
}

} // namespace

TEST_F(FileTree, TheRootIsTheFileSystemsRootAndExpanded)
{
    device.AddFolder(L"\\Windows");
    OpenFiles();
    const HTREEITEM root = entries.Find(L"");
    EXPECT_EQ(L"\\", entries.TextOf(root));
    EXPECT_TRUE(entries.IsExpanded(root));
    EXPECT_EQ(kFilled, entries.DataOf(root));
    EXPECT_EQ(nullptr, entries.Next(root, TVGN_NEXT));
    EXPECT_EQ(Lines{L"Windows"}, entries.ChildrenOf(L""));
}

TEST_F(FileTree, FoldersComeFirstAndEachGroupInTheOrderOfItsNamesWithoutRegardToCase)
{
    device.AddFolder(L"\\b");
    device.AddFolder(L"\\A");
    device.AddFile(L"\\c.exe");
    device.AddFile(L"\\B.lnk");
    OpenFiles();
    EXPECT_EQ((Lines{L"A", L"b", L"B.lnk", L"c.exe"}), entries.ChildrenOf(L""));
}

TEST_F(FileTree, NamesAreOrderedByTheirLettersNotByTheLanguage)
{
    for (const wchar_t* const name :
         {L"\\_x.exe", L"\\-y.exe", L"\\a10.exe", L"\\a9.exe", L"\\Zoo.exe", L"\\\u00C4pfel.exe"})
        device.AddFile(name);
    OpenFiles();
    EXPECT_EQ((Lines{L"-y.exe", L"_x.exe", L"a10.exe", L"a9.exe", L"Zoo.exe", L"\u00C4pfel.exe"}),
              entries.ChildrenOf(L""));
}

TEST_F(FileTree, OnlyWhatCanBeLaunchedIsListed)
{
    for (const wchar_t* const name :
         {L"\\no dot", L"\\a.ExE", L"\\b.LNK", L"\\c.Dll", L"\\d.txt", L"\\e.exe.txt",
          L"\\f.txt.exe", L"\\g.exes", L"\\h.ex", L"\\.lnk"})
        device.AddFile(name);
    OpenFiles();
    EXPECT_EQ((Lines{L".lnk", L"a.ExE", L"b.LNK", L"c.Dll", L"f.txt.exe", L"no dot"}),
              entries.ChildrenOf(L""));
}

TEST_F(FileTree, FoldersAreListedWhateverTheirNamesAndAttributes)
{
    Watch();
    device.AddFolder(L"\\a.txt");
    device.AddFolder(L"\\b.exe");
    device.AddFolder(L"\\hidden.dll");
    CFolderWatch::AddAttributes(L"hidden.dll", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    OpenFiles();
    EXPECT_EQ((Lines{L"a.txt", L"b.exe", L"hidden.dll"}), entries.ChildrenOf(L""));
}

TEST_F(FileTree, OfTheHiddenAndTheSystemsFilesOnlyLibrariesAreLeftOut)
{
    Watch();
    const struct
    {
        const wchar_t* prefix;
        DWORD attributes;
    } kinds[] = {{L"h", FILE_ATTRIBUTE_HIDDEN},
                 {L"s", FILE_ATTRIBUTE_SYSTEM},
                 {L"b", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM},
                 {L"r", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE}};
    for (const auto& kind : kinds)
        for (const wchar_t* const extension : {L".exe", L".LNK", L".dll", L".DLL2", L""})
        {
            const std::wstring name = std::wstring(kind.prefix) + extension;
            device.AddFile(L"\\" + name);
            CFolderWatch::AddAttributes(name, kind.attributes);
        }
    OpenFiles();
    EXPECT_EQ((Lines{L"b", L"b.exe", L"b.LNK", L"h", L"h.exe", L"h.LNK", L"r", L"r.dll", L"r.exe",
                     L"r.LNK", L"s", L"s.exe", L"s.LNK"}),
              entries.ChildrenOf(L""));
}

TEST_F(FileTree, AFolderIsListedWhenItIsFirstExpandedAndNotBefore)
{
    Watch();
    device.AddFile(L"\\Windows\\Programs\\a.exe");
    OpenFiles();
    EXPECT_EQ(Lines{L"\\*.*"}, CFolderWatch::Patterns());
    Expand(L"Windows");
    EXPECT_EQ((Lines{L"\\*.*", L"\\Windows\\*.*"}), CFolderWatch::Patterns());
    Expand(L"Windows/Programs");
    EXPECT_EQ((Lines{L"\\*.*", L"\\Windows\\*.*", L"\\Windows\\Programs\\*.*"}),
              CFolderWatch::Patterns());
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows/Programs"));
}

TEST_F(FileTree, CollapsingAndExpandingAgainDoesNotListAnew)
{
    Watch();
    device.AddFile(L"\\Windows\\a.exe");
    OpenFiles();
    for (int i = 0; i < 3; ++i)
    {
        entries.Collapse(Expand(L"Windows"));
        entries.Collapse(entries.Find(L""));
        entries.Expand(entries.Find(L""));
    }
    EXPECT_EQ((Lines{L"\\*.*", L"\\Windows\\*.*"}), CFolderWatch::Patterns());
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows"));
}

TEST_F(FileTree, AFolderThatIsNotYetListedHasOneChildWithoutAName)
{
    device.AddFile(L"\\Windows\\a.exe");
    OpenFiles();
    EXPECT_EQ(Lines{L""}, entries.ChildrenOf(L"Windows"));
    EXPECT_EQ(kUnfilled, entries.DataOf(entries.Find(L"Windows")));
    const HTREEITEM folder = Expand(L"Windows");
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows"));
    EXPECT_EQ(kFilled, entries.DataOf(folder));
    EXPECT_TRUE(entries.IsExpanded(folder));
}

TEST_F(FileTree, AnEmptyFolderHasNoChildrenOnceItIsExpanded)
{
    device.AddFolder(L"\\Empty");
    OpenFiles();
    const HTREEITEM folder = Expand(L"Empty");
    EXPECT_EQ(Lines{}, entries.ChildrenOf(L"Empty"));
    EXPECT_EQ(kFilled, entries.DataOf(folder));
}

TEST_F(FileTree, AFolderThatVanishesShowsNoChildrenAndCountsAsListed)
{
    device.AddFile(L"\\Card\\a.exe");
    OpenFiles();
    device.RemoveFolder(L"\\Card");
    const HTREEITEM folder = Expand(L"Card");
    EXPECT_EQ(Lines{}, entries.ChildrenOf(L"Card"));
    EXPECT_EQ(kFilled, entries.DataOf(folder));
    device.AddFile(L"\\Card\\a.exe");
    entries.Collapse(folder);
    entries.Expand(folder);
    EXPECT_EQ(Lines{}, entries.ChildrenOf(L"Card"));
}

TEST_F(FileTree, TheEntriesOfOneAndTwoDotsAreNotShown)
{
    Watch();
    device.AddFile(L"\\Windows\\a.exe");
    OpenFilesAt(L"Windows");
    const Lines found = CFolderWatch::Names();
    ASSERT_EQ(1, std::count(found.begin(), found.end(), L"..")) << "the system has them";
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L"Windows"));
}

TEST_F(FileTree, LinksToFoldersAreNotShownAndLinksToFilesAre)
{
    Watch();
    device.AddFolder(L"\\up");
    device.AddFile(L"\\a.exe");
    CFolderWatch::AddAttributes(L"up", FILE_ATTRIBUTE_REPARSE_POINT);
    CFolderWatch::AddAttributes(L"a.exe", FILE_ATTRIBUTE_REPARSE_POINT);
    OpenFiles();
    EXPECT_EQ(Lines{L"a.exe"}, entries.ChildrenOf(L""));
}

TEST_F(FileTree, EveryNodeShowsTheSystemsSmallIconOfItsFullPath)
{
    LoadModule();
    icons = std::make_unique<CIconWatch>(module->Handle());
    device.AddFile(L"\\Windows\\calc.exe");
    device.AddFile(L"\\a.exe");
    OpenFilesAt(L"Windows");
    const struct
    {
        const wchar_t* node;
        const wchar_t* path;
    } nodes[] = {{L"", L"\\"},
                 {L"Windows", L"\\Windows"},
                 {L"Windows/calc.exe", L"\\Windows\\calc.exe"},
                 {L"a.exe", L"\\a.exe"}};
    for (const auto& each : nodes)
    {
        const auto images = entries.ImagesOf(entries.Find(each.node));
        const int icon = CIconWatch::IconOf(each.path);
        EXPECT_NE(-1, icon) << each.path;
        EXPECT_EQ(std::make_pair(icon, icon), images);
    }
    EXPECT_TRUE(CIconWatch::AreAllForSmallIcons());
}

TEST_F(FileTree, TheSystemIsAskedForTheIconsOfWhatIsShownOnly)
{
    LoadModule();
    icons = std::make_unique<CIconWatch>(module->Handle());
    constexpr int kFiles = 200;
    for (int i = 0; i < kFiles; ++i)
        device.AddFile(L"\\Windows\\" + std::to_wstring(1000 + i) + L".exe");
    OpenFilesAt(L"Windows");
    EXPECT_TRUE(WaitUntil([] { return CIconWatch::IconOf(L"\\Windows\\1000.exe") != -1; }));
    EXPECT_EQ(-1, CIconWatch::IconOf(L"\\Windows\\1199.exe"));
    const auto images = entries.ImagesOf(entries.Find(L"Windows/1199.exe"));
    EXPECT_EQ(CIconWatch::IconOf(L"\\Windows\\1199.exe"), images.first);
}

TEST_F(FileTree, TheTreesPicturesAreTheSystemsSmallIcons)
{
    OpenFiles();
    SHFILEINFOW info = {};
    const DWORD_PTR list =
        SHGetFileInfoW(L"C:\\", 0, &info, sizeof(info), SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
    ASSERT_NE(0u, list);
    EXPECT_EQ(reinterpret_cast<HIMAGELIST>(list), entries.Images());
}

TEST_F(FileTree, TheWaitCursorIsShownWhileAFolderIsListedAndTakenBackAfterwards)
{
    device.AddFolder(L"\\Windows");
    OpenFiles();
    const CImportPatch patch(module->Handle(), "user32.dll", "SetCursor", CountCursors);
    g_cursors = g_waitCursors = 0;
    const HTREEITEM folder = Expand(L"Windows");
    EXPECT_EQ(1, g_waitCursors);
    EXPECT_EQ(2, g_cursors);
    entries.Collapse(folder);
    entries.Expand(folder);
    EXPECT_EQ(2, g_cursors);
}

TEST_F(FileTree, APathLongerThanTheSystemsOldLimitIsFoundAndTakenWhole)
{
    const std::wstring a(90, L'a');
    const std::wstring b(90, L'b');
    const std::wstring c(90, L'c');
    const std::wstring path = L"\\" + a + L"\\" + b + L"\\" + c + L"\\long.exe";
    ASSERT_GT(path.size(), 260u);
    device.AddFile(path);
    OpenFilesAt(a + L"/" + b + L"/" + c);
    SelectEntry(a + L"/" + b + L"/" + c + L"/long.exe");
    ExpectAdds(L"Programs", L"Programs", path, L"long");
}

TEST_F(FileTree, ANameAsLongAsTheSystemAllowsIsTakenWhole)
{
    const std::wstring name = L"n." + std::wstring(249, L'x') + L".exe";
    device.AddFile(L"\\Windows\\" + name);
    OpenFilesAt(L"Windows");
    SelectEntry(L"Windows/" + name);
    ExpectAdds(L"Programs", L"Programs", L"\\Windows\\" + name, L"n");
}
