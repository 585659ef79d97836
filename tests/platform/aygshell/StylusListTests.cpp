// List views in a dialog, controls that come later, and controls that are neither.
#include "tests/platform/aygshell/StylusTree.h"

TEST(StylusControls, ATreeThatIsCreatedLaterHasTheSameManners)
{
    CTestDialog dialog;
    dialog.Open();
    const HWND tree = CreateWindowExW(0, WC_TREEVIEWW, nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 80, 80,
                                      dialog.Window(), nullptr, nullptr, nullptr);
    ASSERT_NE(tree, nullptr);
    PostTap(tree, {5, 5});
    EXPECT_TRUE(dialog.RunUntil([&] { return dialog.CountNotify(NM_STYLUSDOWN) == 1; }));
}

TEST(StylusControls, OtherControlsAnnounceNothing)
{
    CTestDialog dialog({{L"ListBox", WS_BORDER, 9, 0, 0, 50, 50}});
    dialog.Open();
    PostTap(dialog.Control(9), {5, 5});
    dialog.RunPending();
    EXPECT_EQ(dialog.CountNotify(NM_STYLUSDOWN), 0);
}

namespace
{

constexpr int kListId = 202;

class StylusList : public testing::Test
{
protected:
    StylusList()
        : dialog({{WC_LISTVIEWW, WS_TABSTOP | LVS_LIST | LVS_SINGLESEL, kListId, 0, 0, 90, 80}})
    {
        list = dialog.Control(kListId);
        for (const wchar_t* text : {L"First row", L"Second row"})
        {
            LVITEMW item{};
            item.mask = LVIF_TEXT;
            item.iItem = 9;
            item.pszText = const_cast<wchar_t*>(text);
            ListView_InsertItem(list, &item);
        }
        dialog.SetHandler(
            [this](const LoggedMessage& entry, LRESULT& result)
            {
                result = answer;
                return entry.Message == WM_NOTIFY && entry.Code == NM_STYLUSDOWN;
            });
        dialog.Open();
        SetFocus(list);
        dialog.ParkPointer({0, 0});
        dialog.ClearLog();
    }

    POINT Row(int index)
    {
        RECT rect{};
        ListView_GetItemRect(list, index, &rect, LVIR_LABEL);
        return CentreOf(rect);
    }

    CTestDialog dialog;
    HWND list = nullptr;
    LRESULT answer = kNoGesture;
};

} // namespace

TEST_F(StylusList, ATapIsAnnouncedAndSelects)
{
    PostTap(list, Row(1));
    EXPECT_TRUE(dialog.RunUntil([this] { return ListView_GetSelectionMark(list) == 1; }));
    EXPECT_EQ(dialog.CountNotify(NM_STYLUSDOWN), 1);
}

TEST_F(StylusList, AHoldAsksForTheMenu)
{
    answer = kRecognise;
    const CLater lift(kLong, [window = list, row = Row(1)]
                      { PostMessageW(window, WM_LBUTTONUP, 0, PointParam(row)); });
    PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(Row(1)));
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_CONTEXTMENU) == 1; }));
}

TEST_F(StylusList, TheRightButtonAsksForTheMenuOnce)
{
    answer = kRecognise;
    PostMessageW(list, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(Row(1)));
    PostMessageW(list, WM_RBUTTONUP, 0, PointParam(Row(1)));
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.Count(WM_CONTEXTMENU) > 0; }));
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
}

TEST_F(StylusList, EnterIsTheDialogsOk)
{
    TypeKey(VK_RETURN);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountCommand(IDOK) == 1; }));
}

TEST_F(StylusList, ADoubleTapOnABoxFlipsItTwice)
{
    ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
    RECT row{};
    ListView_GetItemRect(list, 1, &row, LVIR_BOUNDS);
    LVHITTESTINFO hit{};
    hit.pt = {row.left, CentreOf(row).y};
    while (ListView_HitTest(list, &hit) != 1 || hit.flags != LVHT_ONITEMSTATEICON)
        ASSERT_LT(++hit.pt.x, row.right) << "the row has no box";
    const LPARAM box = PointParam({hit.pt.x + 2, hit.pt.y});
    for (const UINT press : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK})
    {
        const BOOL before = ListView_GetCheckState(list, 1);
        SendMessageW(list, press, MK_LBUTTON, box);
        SendMessageW(list, WM_LBUTTONUP, 0, box);
        EXPECT_NE(before, static_cast<BOOL>(ListView_GetCheckState(list, 1))) << press;
    }
    EXPECT_EQ(dialog.CountNotify(NM_STYLUSDOWN), 4);
}

TEST_F(StylusList, ADoubleTapOnALabelStaysOne)
{
    ListView_SetExtendedListViewStyle(list, LVS_EX_CHECKBOXES);
    const LPARAM label = PointParam(Row(1));
    SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, label);
    SendMessageW(list, WM_LBUTTONUP, 0, label);
    EXPECT_EQ(dialog.CountNotify(static_cast<UINT>(NM_DBLCLK)), 1);
    EXPECT_FALSE(ListView_GetCheckState(list, 1));
}
