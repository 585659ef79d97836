// Places and sizes of the pickers, on every size of screen.
#include "tests/dialogs/menu/pick/PickFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

constexpr UINT kScreenReset = 0x3002;

template <class Fixture>
class PickGeometry : public Fixture
{
protected:
    // Checks that the picker has its title band and that its tree fills what that leaves.
    void ExpectFullScreenTree()
    {
        ExpectFullScreen(this->picker);
        ExpectTitleBand();
        const RECT rect = RectOf(this->entries.Window());
        const RECT own = RectOf(this->picker);
        EXPECT_EQ(0, rect.left);
        EXPECT_EQ(own.right, rect.right);
        EXPECT_EQ(own.bottom, rect.bottom);
        // Below the line, as close as dialog units can say.
        EXPECT_GE(rect.top, Px(24));
        EXPECT_LE(rect.top, Px(24) + Px(2));
    }
    void ExpectTheTreeFitsAgainAfterAReset()
    {
        const HWND window = this->entries.Window();
        const RECT before = RectOf(window);
        SetWindowPos(window, nullptr, 10, before.top, 50, 50, SWP_NOZORDER);
        SendMessageW(this->picker, WM_SETTINGCHANGE, 0, 0);
        EXPECT_EQ(10, RectOf(window).left);
        SendMessageW(this->picker, WM_SETTINGCHANGE, kScreenReset, 0);
        const RECT after = RectOf(window);
        EXPECT_TRUE(EqualRect(&before, &after));
    }
    void ExpectNormalFont()
    {
        LOGFONTW font = {};
        const LRESULT handle = SendMessageW(this->entries.Window(), WM_GETFONT, 0, 0);
        GetObjectW(reinterpret_cast<HFONT>(handle), sizeof(font), &font);
        EXPECT_EQ(FW_NORMAL, font.lfWeight);
        EXPECT_EQ(Px(13), font.lfHeight);
        EXPECT_STREQ(L"Tahoma", font.lfFaceName);
    }
    void ExpectInView(std::initializer_list<const wchar_t*> paths)
    {
        for (const wchar_t* const path : paths)
            EXPECT_TRUE(this->entries.IsInView(this->entries.Find(path))) << path;
    }
};

class FileGeometry : public PickGeometry<FileFixture>
{
protected:
    FileGeometry()
    {
        device.AddFile(L"\\Windows\\calc.exe");
        device.AddFile(L"\\a.exe");
    }
};

class LinkGeometry : public PickGeometry<LinkFixture>
{
protected:
    LinkGeometry()
    {
        start.AddFile(L"Programs\\Games\\Chess.lnk");
        start.AddFile(L"Programs\\Mail.lnk");
    }
};

} // namespace

TEST_F(FileGeometry, ThePickerFillsTheScreenAndItsTreeWhatTheTitleLeaves)
{
    OpenFiles();
    ExpectFullScreenTree();
}

TEST_F(FileGeometry, TheTreeIsFittedAgainWhenTheScreenIsReset)
{
    OpenFiles();
    ExpectTheTreeFitsAgainAfterAReset();
}

TEST_F(FileGeometry, TheTreeIsSetInTheNormalFontAndShowsItsFirstEntries)
{
    OpenFilesAt(L"Windows");
    ExpectNormalFont();
    ExpectInView({L"", L"Windows", L"Windows/calc.exe", L"a.exe"});
}

TEST_F(FileGeometry, ALongFolderIsScrolledToItsEnd)
{
    for (int i = 100; i < 160; ++i)
        device.AddFile(L"\\Windows\\file" + std::to_wstring(i) + L".exe");
    OpenFilesAt(L"Windows");
    const HTREEITEM last = SelectEntry(L"Windows/file159.exe");
    EXPECT_TRUE(entries.IsInView(last));
}

TEST_F(LinkGeometry, ThePickerFillsTheScreenAndItsTreeWhatTheTitleLeaves)
{
    OpenLinks();
    ExpectFullScreenTree();
}

TEST_F(LinkGeometry, TheTreeIsFittedAgainWhenTheScreenIsReset)
{
    OpenLinks();
    ExpectTheTreeFitsAgainAfterAReset();
}

TEST_F(LinkGeometry, TheTreeIsSetInTheNormalFontAndShowsItsFirstEntries)
{
    OpenLinks();
    ExpectNormalFont();
    ExpectInView({L"", L"Games", L"Mail"});
}
