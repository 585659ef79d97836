// The pickers worked by keys alone, and by the stylus alone.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/Wait.h"

namespace
{

template <class Fixture>
class PickInput : public Fixture
{
protected:
    // Presses keys until the entry at a path is selected.
    void Walk(std::initializer_list<WORD> keys, const std::wstring& path)
    {
        for (const WORD key : keys)
            PressKey(key);
        ASSERT_TRUE(
            WaitUntil([&] { return this->entries.Selected() == this->entries.Find(path); }));
    }
    void TapOn(const std::wstring& path, UINT part)
    {
        POINT point = this->entries.PointOn(this->entries.Find(path), part);
        ASSERT_GE(point.x, 0);
        ClientToScreen(this->entries.Window(), &point);
        TapScreen(point);
    }
    bool WaitForEditor() { return this->run->WaitForDialog(L"Customize Menu") == this->dialog; }
};

class FileKeys : public PickInput<FileFixture>
{
protected:
    FileKeys()
    {
        device.AddFile(L"\\Storage Card\\game.exe");
        device.AddFile(L"\\Windows\\Programs\\calc.exe");
        device.AddFile(L"\\Windows\\about.lnk");
    }
};
using FileStylus = FileKeys;

class LinkKeys : public PickInput<LinkFixture>
{
protected:
    LinkKeys()
    {
        start.AddFile(L"Programs\\Games\\Chess.lnk");
        start.AddFile(L"Programs\\Mail.lnk");
    }
};
using LinkStylus = LinkKeys;

} // namespace

TEST_F(FileKeys, AFileIsFoundAndAddedWithoutAStylus)
{
    OpenFiles();
    Walk({VK_HOME, VK_DOWN, VK_DOWN}, L"Windows");
    PressKey(VK_RIGHT);
    ASSERT_TRUE(WaitUntil([&] { return entries.Find(L"Windows/about.lnk") != nullptr; }));
    Walk({VK_DOWN}, L"Windows/Programs");
    PressKey(VK_RIGHT);
    Walk({VK_DOWN}, L"Windows/Programs/calc.exe");
    PressKey(VK_F1);
    ASSERT_TRUE(WaitForEditor());
    EXPECT_EQ(L"\\Windows\\Programs\\calc.exe", registry.CustomText(L"Programs\\User 4", L"File"));
}

TEST_F(FileKeys, LeftCollapsesAFolder)
{
    OpenFiles();
    Walk({VK_HOME, VK_DOWN}, L"Storage Card");
    PressKey(VK_RIGHT);
    const HTREEITEM folder = entries.Find(L"Storage Card");
    ASSERT_TRUE(WaitUntil([&] { return entries.IsExpanded(folder); }));
    PressKey(VK_LEFT);
    EXPECT_TRUE(WaitUntil([&] { return !entries.IsExpanded(folder); }));
}

TEST_F(FileKeys, TheRightSoftKeyAndEscapeCancel)
{
    for (const WORD key : {WORD(VK_F2), WORD(VK_ESCAPE)})
    {
        OpenFiles();
        PressKey(key);
        ASSERT_TRUE(WaitForEditor());
    }
    EXPECT_FALSE(registry.CustomExists(L"Programs\\User 4", L"File"));
}

TEST_F(FileStylus, ATapOnAButtonExpandsItsFolderAndNextTimeCollapsesIt)
{
    OpenFiles();
    const HTREEITEM folder = entries.Find(L"Windows");
    TapOn(L"Windows", TVHT_ONITEMBUTTON);
    ASSERT_TRUE(WaitUntil([&] { return entries.IsExpanded(folder); }));
    EXPECT_EQ((Lines{L"Programs", L"about.lnk"}), entries.ChildrenOf(L"Windows"));
    TapOn(L"Windows", TVHT_ONITEMBUTTON);
    EXPECT_TRUE(WaitUntil([&] { return !entries.IsExpanded(folder); }));
}

TEST_F(FileStylus, ATapOnALabelSelectsItAndTheSoftKeyTakesIt)
{
    OpenFilesAt(L"Storage Card");
    TapOn(L"Storage Card/game.exe", TVHT_ONITEMLABEL);
    ASSERT_TRUE(
        WaitUntil([&] { return entries.Selected() == entries.Find(L"Storage Card/game.exe"); }));
    PressKey(VK_F1);
    ASSERT_TRUE(WaitForEditor());
    EXPECT_EQ(L"\\Storage Card\\game.exe", registry.CustomText(L"Programs\\User 4", L"File"));
}

TEST_F(LinkKeys, ALinkIsFoundAndAddedWithoutAStylus)
{
    OpenLinks();
    Walk({VK_HOME, VK_DOWN, VK_RIGHT, VK_DOWN}, L"Games/Chess");
    PressKey(VK_F1);
    ASSERT_TRUE(WaitForEditor());
    EXPECT_EQ(start.PathOf(L"Programs\\Games\\Chess.lnk"),
              registry.CustomText(L"Programs\\User 4", L"File"));
}

TEST_F(LinkKeys, TheRightSoftKeyCancels)
{
    OpenLinks();
    Walk({VK_HOME, VK_DOWN, VK_DOWN}, L"Mail");
    PressKey(VK_F2);
    ASSERT_TRUE(WaitForEditor());
    EXPECT_FALSE(registry.CustomExists(L"Programs\\User 4", L"File"));
}

TEST_F(LinkStylus, ATapOnAButtonExpandsItsFolder)
{
    OpenLinks();
    TapOn(L"Games", TVHT_ONITEMBUTTON);
    EXPECT_TRUE(WaitUntil([&] { return entries.IsExpanded(entries.Find(L"Games")); }));
}
