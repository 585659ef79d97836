// Places and sizes on the screen, on every size of screen.
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

namespace
{

class HomeGeometry : public HomeFixture
{
protected:
    // The weight and height of a control's font.
    static LOGFONTW FontOf(HWND control)
    {
        LOGFONTW font = {};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)), sizeof(font),
                   &font);
        return font;
    }
};

} // namespace

TEST_F(HomeGeometry, TheDialogFillsTheScreenAboveItsSoftKeys)
{
    Open();
    ExpectFullScreen(dialog);
}

TEST_F(HomeGeometry, TheTreeFillsWhatTheTitleBandLeaves)
{
    Open();
    const RECT rect = RectOf(tree.Window());
    const RECT own = RectOf(dialog);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(own.right, rect.right);
    EXPECT_EQ(own.bottom, rect.bottom);
    // Below the line, as close as dialog units can say.
    EXPECT_GE(rect.top, Px(24));
    EXPECT_LE(rect.top, Px(24) + Px(2));
    EXPECT_TRUE(TurnsInto(GetSysColor(COLOR_WINDOW), 3, 3));
    EXPECT_TRUE(TurnsInto(RGB(0, 0, 0), 3, Px(23)));
}

TEST_F(HomeGeometry, TheTreeIsSetInTheNormalFont)
{
    Open();
    const LOGFONTW font = FontOf(tree.Window());
    EXPECT_EQ(FW_NORMAL, font.lfWeight);
    EXPECT_EQ(Px(13), font.lfHeight);
    EXPECT_STREQ(L"Tahoma", font.lfFaceName);
}

TEST_F(HomeGeometry, EveryMenuOfTheFirstLevelIsInView)
{
    StoreList({{MenuName(L"Tools\\Alarm"), kPinned}});
    Open();
    for (const wchar_t* const path : {L"", L"Programs", L"Settings", L"Tools", L"Messaging"})
        EXPECT_TRUE(tree.IsInView(tree.Find(path))) << path;
}

TEST_F(HomeGeometry, AResetOfTheScreenFitsTheTreeAgain)
{
    Open();
    const RECT before = RectOf(tree.Window());
    SetWindowPos(tree.Window(), nullptr, Px(7), before.top, Px(50), Px(40), SWP_NOZORDER);
    EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0));
    const RECT after = RectOf(tree.Window());
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(HomeGeometry, OtherSettingsLeaveTheTreeWhereItIs)
{
    Open();
    SetWindowPos(tree.Window(), nullptr, Px(7), Px(40), Px(50), Px(40), SWP_NOZORDER);
    const RECT before = RectOf(tree.Window());
    for (const WPARAM setting : {WPARAM{0}, WPARAM{0xE0}, WPARAM{0x3001}, ~WPARAM{0}})
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, setting, 0));
    const RECT after = RectOf(tree.Window());
    EXPECT_TRUE(EqualRect(&before, &after));
}
