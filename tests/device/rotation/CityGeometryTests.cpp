// Select City, with the input panel up and down, on a screen that turns while it is open.
#include "tests/device/rotation/TurningScreen.h"
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"
#include "tests/support/Wait.h"

#include <aygshell.h>

namespace
{

constexpr const wchar_t* kPanelClass = L"SoftInputPanel";

class CityTurnGeometry : public CityFixture
{
protected:
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
    static bool IsPanelUp() { return (Panel(SPI_GETSIPINFO, 0).fdwFlags & SIPF_ON) != 0; }
    // The focus in the search box raises the panel soon after the dialog has opened.
    void OpenWithPanel()
    {
        Open();
        ASSERT_TRUE(WaitUntil(IsPanelUp));
    }
    void LowerPanel()
    {
        Panel(SPI_SETSIPINFO, SIPF_OFF);
        ASSERT_TRUE(WaitUntil([] { return FindWindowW(kPanelClass, nullptr) == nullptr; }));
    }
    // Where the visible part of the dialog ends.
    static int UsableBottom()
    {
        return static_cast<int>(RoomBetweenBars().bottom) - (IsPanelUp() ? Px(80) : 0);
    }
    void ExpectLaidOut() const
    {
        EXPECT_TRUE(WaitUntil([&] { return RectOf(list).bottom == UsableBottom() - Px(4); }))
            << RectOf(list).bottom;
        for (const HWND control : {search, list})
            EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN) - RectOf(control).left, RectOf(control).right);
        const int width = static_cast<int>(RectOf(list).right - RectOf(list).left) - Px(2);
        EXPECT_EQ(2 * width / 3, ToList(LVM_GETCOLUMNWIDTH, 0));
    }

    CTurningScreen screen;
};

} // namespace

TEST_F(CityTurnGeometry, WithThePanelDownTheListEndsAboveTheSoftKeys)
{
    folder.InstallAsFolder(ManyCities(2).Build());
    OpenWithPanel();
    LowerPanel();
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(dialog);
        ExpectLaidOut();
        EXPECT_FALSE(IsPanelUp());
    }
}

TEST_F(CityTurnGeometry, ThePanelMovesAlongAndTheListEndsAboveIt)
{
    folder.InstallAsFolder(ManyCities(2).Build());
    OpenWithPanel();
    for (int turns = 0; turns < 2; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(dialog);
        ExpectLaidOut();
        EXPECT_TRUE(IsPanelUp());
        const RECT room = RoomBetweenBars();
        const RECT panel = RectOf(FindWindowW(kPanelClass, nullptr));
        EXPECT_EQ(0, panel.left);
        EXPECT_EQ(room.right, panel.right);
        EXPECT_EQ(room.bottom - Px(80), panel.top);
        EXPECT_EQ(room.bottom, panel.bottom);
    }
}

TEST_F(CityTurnGeometry, SearchTextFocusAndChosenCityStayAndDoneReturnsIt)
{
    OpenWithPanel();
    Type(L"a");
    ASSERT_GT(RowCount(), 1);
    const Texts found = Names();
    Select(1);
    for (int turns = 0; turns < 3; ++turns)
    {
        screen.Turn();
        ExpectFillsRoom(dialog);
        EXPECT_EQ(L"a", TextOf(search));
        EXPECT_EQ(found, Names());
        EXPECT_EQ(1, Mark());
        EXPECT_EQ(search, run->Focus());
        EXPECT_TRUE(IsRowVisible(1));
    }
    Done();
    EXPECT_EQ(found[1], city.name);
}
