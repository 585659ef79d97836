// The dialog worked by keys alone, by the stylus, and by messages that no honest sender sends.
#include "tests/dialogs/now/NowFixture.h"
#include "tests/support/FaultCounter.h"
#include "tests/support/ProcessPatch.h"
#include "tests/support/Wait.h"

#include <climits>

namespace
{

constexpr UINT kStylusDown = static_cast<UINT>(-50);

class NowHandling : public NowFixture
{
protected:
    void OpenThree()
    {
        registry.Add(L"A", L"a", kEmail, 1);
        registry.Add(L"B", L"b", kEmail, 1);
        registry.Add(L"C", L"c", kEmail, 0);
        Open();
    }
    int Selected() const
    {
        return static_cast<int>(ToList(LVM_GETNEXTITEM, WPARAM(-1), LVNI_SELECTED));
    }
    bool TurnsSelected(int row) const
    {
        return WaitUntil([&] { return Selected() == row; });
    }
    bool TurnsInto(int row, UINT box) const
    {
        return WaitUntil([&] { return BoxOf(row) == box; });
    }
    // A point of a row: of its box or of its label.
    POINT PointOn(int row, UINT where) const
    {
        RECT rect = {};
        rect.left = LVIR_BOUNDS;
        ToList(LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        for (int x = rect.left; x < rect.right; ++x)
        {
            LVHITTESTINFO hit = {};
            hit.pt = {x + 2, (rect.top + rect.bottom) / 2};
            ToList(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
            if (hit.iItem == row && (hit.flags & where) == where)
                return hit.pt;
        }
        ADD_FAILURE() << "the row has no such point";
        return {};
    }
    void Tap(POINT point) const
    {
        ClientToScreen(list, &point);
        TapScreen(point);
    }
};

} // namespace

TEST_F(NowHandling, TheListHasTheFocusFromTheStart)
{
    OpenThree();
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([&] { return Selected() >= 0; }));
}

TEST_F(NowHandling, AWholeEditNeedsNoStylus)
{
    OpenThree();
    PressKey(VK_HOME);
    ASSERT_TRUE(TurnsSelected(0));
    PressKey(VK_SPACE);
    ASSERT_TRUE(TurnsInto(0, 2));
    PressKey(VK_END);
    ASSERT_TRUE(TurnsSelected(2));
    PressKey(VK_SPACE);
    ASSERT_TRUE(TurnsInto(2, 1));
    PressKey(VK_F1);
    ExpectEnd(TRUE);
    EXPECT_EQ(0u, registry.Inactive(L"A"));
    EXPECT_EQ(1u, registry.Inactive(L"B"));
    EXPECT_EQ(1u, registry.Inactive(L"C"));
}

TEST_F(NowHandling, EscapeAndTheRightSoftKeyCancel)
{
    for (const WORD key : {WORD{VK_ESCAPE}, WORD{VK_F2}})
    {
        OpenThree();
        Check(L"a (email)", true);
        PressKey(key);
        ExpectEnd(FALSE);
        EXPECT_EQ(1u, registry.Inactive(L"A"));
    }
}

TEST_F(NowHandling, EnterIsDone)
{
    OpenThree();
    Check(L"a (email)", true);
    PressKey(VK_RETURN);
    ExpectEnd(TRUE);
    EXPECT_EQ(0u, registry.Inactive(L"A"));
}

TEST_F(NowHandling, ATapOnABoxFlipsIt)
{
    OpenThree();
    Tap(PointOn(1, LVHT_ONITEMSTATEICON));
    ASSERT_TRUE(TurnsInto(1, 2));
    Tap(PointOn(2, LVHT_ONITEMSTATEICON));
    ASSERT_TRUE(TurnsInto(2, 1));
    Done();
    EXPECT_EQ(0u, registry.Inactive(L"B"));
    EXPECT_EQ(1u, registry.Inactive(L"C"));
}

// As quick as a double tap, or slower.
TEST_F(NowHandling, EachFurtherTapFlipsABoxBack)
{
    OpenThree();
    for (const UINT box : {2u, 1u, 2u, 1u})
    {
        Tap(PointOn(1, LVHT_ONITEMSTATEICON));
        ASSERT_TRUE(TurnsInto(1, box));
    }
}

TEST_F(NowHandling, ATapOnALabelSelectsItsRowAndFlipsNothing)
{
    OpenThree();
    Tap(PointOn(1, LVHT_ONITEMLABEL));
    EXPECT_TRUE(TurnsSelected(1));
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_EQ((Labels{L"c (email)"}), CheckedLabels());
}

// The dialog has no say in it: a hold would be recognised, and leads to nothing here.
TEST_F(NowHandling, TheStylusIsLetDownAnywhere)
{
    OpenThree();
    struct
    {
        NMHDR header;
        POINT point;
    } down = {};
    down.header = {list, kListId, kStylusDown};
    for (const POINT point :
         {PointOn(1, LVHT_ONITEMSTATEICON), PointOn(1, LVHT_ONITEMLABEL), POINT{-5, -5}})
    {
        down.point = point;
        EXPECT_EQ(0, SendMessageW(dialog, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&down)));
    }
    EXPECT_EQ((Labels{L"c (email)"}), CheckedLabels());
}

TEST_F(NowHandling, ARequestForAContextMenuOpensNone)
{
    OpenThree();
    SendMessageW(dialog, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), MAKELPARAM(20, 100));
    EXPECT_EQ(nullptr, run->OpenPopup());
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(NowHandling, OnlyOneRowIsSelectedAndStaysMarkedWithoutTheFocus)
{
    OpenThree();
    const auto style = static_cast<DWORD>(GetWindowLongW(list, GWL_STYLE));
    EXPECT_NE(0u, style & LVS_SINGLESEL);
    EXPECT_NE(0u, style & LVS_SHOWSELALWAYS);
    PressKey(VK_HOME);
    ASSERT_TRUE(TurnsSelected(0));
    PressKey(VK_DOWN);
    ASSERT_TRUE(TurnsSelected(1));
    EXPECT_EQ(1, ToList(LVM_GETSELECTEDCOUNT));
}

TEST_F(NowHandling, HelpShowsTheMainContents)
{
    OpenThree();
    ExpectHelp(module->Handle(), dialog);
    EXPECT_FALSE(run->HasEnded());
}

// No viewer is installed here.
TEST_F(NowHandling, HelpWithoutAViewerDoesNothing)
{
    OpenThree();
    EXPECT_NE(0, SendMessageW(dialog, WM_HELP, 0, 0));
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(NowHandling, ForgedMessagesChangeNothing)
{
    OpenThree();
    const CFaultCounter faults(module->Handle());
    const std::wstring before = registry.Dump(L"");
    for (const LPARAM data : {LPARAM(0), LPARAM(4), LPARAM(-1)})
    {
        SendMessageW(dialog, WM_NOTIFY, kListId, data);
        SendMessageW(dialog, WM_SETTINGCHANGE, 0x3002, data);
    }
    const UINT scroll = RegisterWindowMessageW(L"PPCD_ScrollMessage");
    for (const int position : {INT_MIN, -1, 0, 24, INT_MAX})
        EXPECT_EQ(0, SendMessageW(dialog, scroll, static_cast<WPARAM>(position), 0));
    for (const UINT command : {0u, 3u, 202u, 0xFFFFu})
        SendCommand(dialog, command);
    EXPECT_EQ(3, RowCount());
    EXPECT_EQ((Labels{L"c (email)"}), CheckedLabels());
    EXPECT_EQ(before, registry.Dump(L""));
    EXPECT_FALSE(run->HasEnded());
    EXPECT_EQ(0, faults.Count());
}
