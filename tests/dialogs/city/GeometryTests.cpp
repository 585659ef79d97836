// Places and sizes of the picker's parts, on every size of screen.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

#include <aygshell.h>

namespace
{

class CityGeometry : public CityFixture
{
protected:
    // Opens the dialog and waits until the input panel, which follows the focus into the search
    // box, is up and the list has made room for it: what comes later, the test has asked for.
    void Open(DWORD identifier = kNobody)
    {
        CityFixture::Open(identifier);
        ASSERT_TRUE(WaitUntil(
            [&]
            {
                const bool isUp = (Panel(SPI_GETSIPINFO, 0).fdwFlags & SIPF_ON) != 0;
                return isUp && RectOf(list).bottom == PanelTop() - Px(4);
            }));
    }
    static int WidthOf(const RECT& rect) { return static_cast<int>(rect.right - rect.left); }
    int ColumnWidth(WPARAM column) const
    {
        return static_cast<int>(ToList(LVM_GETCOLUMNWIDTH, column));
    }
    static SIPINFO Panel(UINT action, DWORD flags)
    {
        const auto call = reinterpret_cast<decltype(&SHSipInfo)>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"aygshell.dll"), "SHSipInfo")));
        SIPINFO info = {};
        info.cbSize = sizeof(info);
        info.fdwFlags = flags;
        EXPECT_TRUE(call && call(action, 0, &info, 0));
        return info;
    }
    static int PanelTop() { return static_cast<int>(Panel(SPI_GETSIPINFO, 0).rcSipRect.top); }
    // Raises or lowers the input panel and waits until the list ends at `bottom`.
    bool ListFollowsPanel(bool up, int bottom) const
    {
        Panel(SPI_SETSIPINFO, up ? SIPF_ON : SIPF_OFF);
        return WaitUntil([&] { return RectOf(list).bottom == bottom; });
    }
    void SetPanel(bool up) const
    {
        const int bottom = up ? PanelTop() : static_cast<int>(RectOf(dialog).bottom);
        ASSERT_TRUE(ListFollowsPanel(up, bottom - Px(4)));
    }
    // Puts the list where no layout would.
    void MisplaceList() const { MoveWindow(list, Px(3), Px(60), Px(50), Px(40), FALSE); }
    void ExpectLaidOut(const RECT& place) const
    {
        const RECT now = RectOf(list);
        EXPECT_EQ(RectOf(dialog).right - Px(3), now.right);
        EXPECT_EQ(place.bottom, now.bottom);
    }
    void ExpectWidths(bool overflow) const
    {
        const int scrollBar = overflow ? GetSystemMetrics(SM_CXVSCROLL) : 0;
        const int width = WidthOf(RectOf(list)) - Px(2) - scrollBar;
        EXPECT_EQ(2 * width / 3, ColumnWidth(0));
        EXPECT_EQ(width - Px(1) - 2 * width / 3, ColumnWidth(1));
    }
    int ListClientHeight() const
    {
        RECT client = {};
        GetClientRect(list, &client);
        return static_cast<int>(client.bottom);
    }
};

} // namespace

TEST_F(CityGeometry, TheDialogFillsTheScreenAboveItsSoftKeys)
{
    Open();
    ExpectFullScreen(dialog);
}

TEST_F(CityGeometry, TheTitleBandIsPainted)
{
    Open();
    ExpectTitleBand();
}

TEST_F(CityGeometry, TheControlsStandBelowTheTitleBandWithoutOverlap)
{
    Open();
    const RECT box = RectOf(search);
    const RECT rows = RectOf(list);
    EXPECT_GE(box.top, Px(24));
    EXPECT_GE(rows.top, box.bottom);
    EXPECT_GT(rows.bottom, rows.top);
    EXPECT_LE(rows.bottom, RectOf(dialog).bottom);
}

TEST_F(CityGeometry, BothControlsReachAsFarRightAsTheyStandFromTheLeft)
{
    Open();
    for (const HWND control : {search, list})
    {
        const RECT rect = RectOf(control);
        EXPECT_GT(rect.left, 0);
        EXPECT_EQ(RectOf(dialog).right - rect.left, rect.right);
    }
}

TEST_F(CityGeometry, WithThePanelDownTheListEndsFourPixelsAboveTheSoftKeys)
{
    Open();
    SetPanel(false);
    EXPECT_EQ(RectOf(dialog).bottom - Px(4), RectOf(list).bottom);
}

TEST_F(CityGeometry, WithThePanelUpTheListEndsFourPixelsAboveIt)
{
    Open();
    SetPanel(false);
    const RECT rows = RectOf(list);
    SetPanel(true);
    EXPECT_EQ(PanelTop() - Px(4), RectOf(list).bottom);
    EXPECT_LT(RectOf(list).bottom, rows.bottom);
    EXPECT_EQ(rows.top, RectOf(list).top);
    EXPECT_EQ(rows.left, RectOf(list).left);
    EXPECT_EQ(rows.right, RectOf(list).right);
    SetPanel(false);
    EXPECT_EQ(rows.bottom, RectOf(list).bottom);
}

TEST_F(CityGeometry, AChangedPanelKeepsTheSearchBoxInItsPlace)
{
    Open();
    const RECT box = RectOf(search);
    SetPanel(false);
    SetPanel(true);
    const RECT now = RectOf(search);
    EXPECT_TRUE(EqualRect(&box, &now));
}

TEST_F(CityGeometry, TwoThirdsOfTheListAreForNames)
{
    Open();
    SetPanel(false);
    ExpectWidths(false);
}

TEST_F(CityGeometry, RowsThatOverflowMakeTheColumnsNarrowerByTheScrollBar)
{
    folder.InstallAsFolder(ManyCities(100).Build());
    Open();
    SetPanel(false);
    ExpectWidths(true);
}

TEST_F(CityGeometry, TheColumnsChangeWhenTypingEndsTheOverflow)
{
    folder.InstallAsFolder(ManyCities(100).Build());
    Open();
    SetPanel(false);
    Type(L"town 77");
    ASSERT_EQ(1, RowCount());
    ExpectWidths(false);
    Type(L"");
    ExpectWidths(true);
}

TEST_F(CityGeometry, TheColumnsChangeWhenThePanelMakesTheRowsOverflow)
{
    folder.InstallAsFolder(ManyCities(1).Build());
    Open();
    SetPanel(false);
    const RECT row = RowRect(0);
    const int fitting = ListClientHeight() / static_cast<int>(row.bottom - row.top);
    run.reset();
    folder.InstallAsFolder(ManyCities(static_cast<uint32_t>(fitting)).Build());
    Open();
    SetPanel(false);
    ExpectWidths(false);
    SetPanel(true);
    ExpectWidths(true);
}

TEST_F(CityGeometry, NothingReachesBehindTheRightEdgeOfTheColumns)
{
    folder.InstallAsFolder(ManyCities(100).Build());
    Open();
    RECT client = {};
    GetClientRect(list, &client);
    EXPECT_LE(ColumnWidth(0) + ColumnWidth(1), WidthOf(client));
    EXPECT_EQ(0, GetWindowLongW(list, GWL_STYLE) & WS_HSCROLL);
}

TEST_F(CityGeometry, AScreenResetLaysOut)
{
    Open();
    SetPanel(false);
    const RECT place = RectOf(list);
    MisplaceList();
    EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0));
    EXPECT_EQ(place.bottom, RectOf(list).bottom);
    EXPECT_EQ(Px(60), RectOf(list).top) << "the top stays where it is";
    EXPECT_EQ(RectOf(dialog).right - Px(3), RectOf(list).right);
    ExpectWidths(false);
}

TEST_F(CityGeometry, AnAnnouncementOfThePanelLaysOut)
{
    Open();
    SetPanel(false);
    const RECT place = RectOf(list);
    MisplaceList();
    EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, 224, 0));
    ExpectLaidOut(place);
}

TEST_F(CityGeometry, OtherSettingsMoveNothing)
{
    Open();
    SetPanel(false);
    MisplaceList();
    const RECT misplaced = RectOf(list);
    for (const WPARAM kind : {WPARAM{0}, WPARAM{1}, WPARAM{225}, WPARAM{0x3001}, WPARAM{0x3003}})
        EXPECT_EQ(0, SendMessageW(dialog, WM_SETTINGCHANGE, kind, 0)) << kind;
    const RECT now = RectOf(list);
    EXPECT_TRUE(EqualRect(&misplaced, &now));
}

TEST_F(CityGeometry, ALayoutBringsTheMarkedRowIntoView)
{
    folder.InstallAsFolder(ManyCities(300).Build());
    Open(1);
    SetPanel(false);
    ToList(LVM_ENSUREVISIBLE, 250);
    ASSERT_FALSE(IsRowVisible(0));
    SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_TRUE(IsRowVisible(0));
}

TEST_F(CityGeometry, WithoutAMarkALayoutScrollsNothing)
{
    folder.InstallAsFolder(ManyCities(300).Build());
    Open(kNobody);
    SetPanel(false);
    ToList(LVM_ENSUREVISIBLE, 250);
    const LRESULT top = ToList(LVM_GETTOPINDEX);
    SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_EQ(top, ToList(LVM_GETTOPINDEX));
}

TEST_F(CityGeometry, ThePanelHidesNoMarkedRow)
{
    folder.InstallAsFolder(ManyCities(300).Build());
    Open(kNobody);
    SetPanel(false);
    const int last = static_cast<int>(ToList(LVM_GETCOUNTPERPAGE)) - 1;
    Select(last);
    ASSERT_TRUE(IsRowVisible(last));
    SetPanel(true);
    EXPECT_TRUE(WaitUntil([&] { return IsRowVisible(last); }));
}

TEST_F(CityGeometry, ATurnedScreenIsFilledAgain)
{
    Open();
    SetPanel(false);
    // What a turn of the screen leaves behind until the reset arrives.
    MoveWindow(dialog, 0, 0, Px(200), Px(200), FALSE);
    SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, 0);
    EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), RectOf(dialog).right);
    EXPECT_EQ(RectOf(dialog).bottom - Px(4), RectOf(list).bottom);
    EXPECT_EQ(RectOf(dialog).right - RectOf(search).left, RectOf(search).right);
}
