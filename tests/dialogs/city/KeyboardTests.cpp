// The picker worked by keys alone, as on a handheld without a stylus, and its soft keys.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/SoftKeys.h"
#include "tests/support/Wait.h"

namespace
{

class CityKeyboard : public CityFixture
{
protected:
    HWND Focus() const { return run->Focus(); }
    void TabTo(HWND control) const
    {
        PressKey(VK_TAB);
        EXPECT_TRUE(WaitUntil([&] { return Focus() == control; }));
    }
    void PressUntilMarked(WORD key, int row) const
    {
        PressKey(key);
        EXPECT_TRUE(WaitUntil([&] { return Mark() == row; })) << Mark();
    }
};

} // namespace

TEST_F(CityKeyboard, ACityIsFoundAndChosenWithoutTheStylus)
{
    Open();
    for (const WORD key : {'D', 'O', 'N'})
        PressKey(key);
    ASSERT_TRUE(WaitUntil([&] { return RowCount() == 4; }));
    TabTo(list);
    PressUntilMarked(VK_HOME, 0);
    PressUntilMarked(VK_DOWN, 1);
    PressUntilMarked(VK_DOWN, 2);
    PressKey(VK_RETURN);
    ExpectEnd(TRUE);
    EXPECT_STREQ(L"Abingdon", city.name);
}

TEST_F(CityKeyboard, TheFirstPressOfDownReachesTheFirstRow)
{
    Open();
    TabTo(list);
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return Mark() == 0; })) << Mark();
    EXPECT_EQ(std::vector<int>{0}, RowsWith(LVNI_SELECTED));
}

TEST_F(CityKeyboard, TabGoesFromTheSearchBoxToTheListAndBack)
{
    Open();
    EXPECT_EQ(search, Focus());
    TabTo(list);
    TabTo(search);
}

TEST_F(CityKeyboard, ArrowsStartAtTheHostsCity)
{
    Open(30);
    TabTo(list);
    PressUntilMarked(VK_DOWN, 3);
    EXPECT_EQ(std::vector<int>{3}, RowsWith(LVNI_SELECTED));
    PressUntilMarked(VK_UP, 2);
    PressUntilMarked(VK_END, kSampleCount - 1);
}

TEST_F(CityKeyboard, EnterInTheSearchBoxIsDone)
{
    Open(30);
    PressKey(VK_RETURN);
    ExpectEnd(TRUE);
    EXPECT_EQ(30u, city.identifier);
}

TEST_F(CityKeyboard, EnterInTheSearchBoxWithNothingSelectedIsCancel)
{
    Open();
    PressKey(VK_RETURN);
    ExpectEnd(FALSE);
}

TEST_F(CityKeyboard, EscapeCancels)
{
    Open(30);
    PressKey(VK_ESCAPE);
    ExpectEnd(FALSE);
}

TEST_F(CityKeyboard, EscapeCancelsFromTheListToo)
{
    Open(30);
    TabTo(list);
    PressKey(VK_ESCAPE);
    ExpectEnd(FALSE);
}

TEST_F(CityKeyboard, TheLeftSoftKeyIsDone)
{
    Open(30);
    PressKey(VK_F1);
    ExpectEnd(TRUE);
}

TEST_F(CityKeyboard, TheRightSoftKeyIsCancel)
{
    Open(30);
    PressKey(VK_F2);
    ExpectEnd(FALSE);
}

TEST_F(CityKeyboard, TheSoftKeysCanBeTapped)
{
    for (const bool done : {true, false})
    {
        Open(30);
        const HWND bar = SoftKeyBar(dialog);
        RECT key = {};
        SendMessageW(bar, TB_GETITEMRECT, done ? 0 : 1, reinterpret_cast<LPARAM>(&key));
        POINT middle = {(key.left + key.right) / 2, (key.top + key.bottom) / 2};
        ClientToScreen(bar, &middle);
        TapScreen(middle);
        ExpectEnd(done);
    }
}

TEST_F(CityKeyboard, LettersInTheListDoNotSearch)
{
    Open();
    TabTo(list);
    PressKey('C');
    // The key has been handled once the next one has.
    TabTo(search);
    EXPECT_EQ(L"", TextOf(search));
    EXPECT_EQ(kSampleCount, RowCount());
}
