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
