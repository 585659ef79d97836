// Select File and Select Link, on a screen that turns while they are open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/Screen.h"

namespace
{

class FileTurnGeometry : public FileFixture
{
protected:
    CTurningScreen screen;
};

class LinkTurnGeometry : public LinkFixture
{
protected:
    CTurningScreen screen;
};

} // namespace

TEST_F(FileTurnGeometry, SelectFileFollowsAndAddsTheChosenFile)
{
    device.AddFile(L"\\Windows\\calc.exe");
    OpenFilesAt(L"Windows");
    const HTREEITEM chosen = SelectEntry(L"Windows/calc.exe");
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectControlFills(picker, entries.Window());
        ExpectControlFills(dialog, tree.Window());
        EXPECT_EQ(chosen, entries.Selected());
        EXPECT_TRUE(entries.IsExpanded(entries.Find(L"Windows")));
    }
    const size_t before = tree.ChildrenOf(L"Programs").size();
    EndPicker(IDOK);
    EXPECT_EQ(before + 1, tree.ChildrenOf(L"Programs").size());
}

TEST_F(LinkTurnGeometry, SelectLinkFollowsAndAddsTheChosenLink)
{
    start.AddFile(L"Programs\\Games\\Chess.lnk");
    start.AddFile(L"Programs\\Mail.lnk");
    OpenLinks();
    const HTREEITEM chosen = SelectEntry(L"Mail");
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectControlFills(picker, entries.Window());
        EXPECT_EQ(chosen, entries.Selected());
    }
    const size_t before = tree.ChildrenOf(L"Programs").size();
    EndPicker(IDOK);
    EXPECT_EQ(before + 1, tree.ChildrenOf(L"Programs").size());
}
