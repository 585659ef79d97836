// Tree and list views in a dialog: the stylus announcement, tap-and-hold, boxes, right button,
// keys.
#include "tests/platform/aygshell/TestDialog.h"

#include <thread>

#include <gtest/gtest.h>

namespace
{

constexpr int kTreeId = 203;
constexpr int kListId = 202;
constexpr UINT kPostedInAnnouncement = WM_APP + 1;

// What the dialog answers: a gesture may be recognised, or none.
constexpr LRESULT kRecognise = 0;
constexpr LRESULT kNoGesture = 1;

UINT BoxState(HWND tree, HTREEITEM node)
{
    return TreeView_GetItemState(tree, node, TVIS_STATEIMAGEMASK) >> 12;
}

// Does something from another thread after a while; the destructor waits for it.
class CLater
{
public:
    template <class Action>
    CLater(DWORD milliseconds, Action action)
        : m_thread(
              [=]
              {
                  Sleep(milliseconds);
                  action();
              })
    {
    }
    ~CLater() { m_thread.join(); }

private:
    std::thread m_thread;
};

class StylusTree : public testing::Test
{
protected:
    StylusTree() : dialog({{WC_TREEVIEWW, WS_TABSTOP | TVS_HASLINES, kTreeId, 0, 10, 100, 80}})
    {
        tree = dialog.Control(kTreeId);
        const LONG_PTR style = GetWindowLongPtrW(tree, GWL_STYLE);
        SetWindowLongPtrW(tree, GWL_STYLE, style | TVS_CHECKBOXES);
        first = Insert(L"First", 1);
        second = Insert(L"Second node", 2);
        boxless = Insert(L"Boxless node", 0);
        dialog.SetHandler([this](const LoggedMessage& entry, LRESULT& result)
                          { return OnMessage(entry, result); });
        dialog.Open();
        SetFocus(tree);
        SetCursorPos(0, 0);
        dialog.RunPending();
        dialog.ClearLog();
    }

    HTREEITEM Insert(const wchar_t* text, UINT state)
    {
        TVINSERTSTRUCTW item{};
        item.hInsertAfter = TVI_LAST;
        item.item.mask = TVIF_TEXT;
        item.item.pszText = const_cast<wchar_t*>(text);
        const HTREEITEM node = TreeView_InsertItem(tree, &item);
        TreeView_SetItemState(tree, node, INDEXTOSTATEIMAGEMASK(state), TVIS_STATEIMAGEMASK);
        return node;
    }

    bool OnMessage(const LoggedMessage& entry, LRESULT& result)
    {
        if (entry.Message == kPostedInAnnouncement)
            stateWhenPosted = BoxState(tree, first);
        if (entry.Code == static_cast<UINT>(NM_CLICK))
            stateAtClick = BoxState(tree, first);
        if (entry.Message != WM_NOTIFY || entry.Code != NM_STYLUSDOWN)
            return false;
        const auto& down = *reinterpret_cast<const NMSTYLUSDOWN*>(entry.LParam);
        announced = down;
        stateAtAnnouncement = BoxState(tree, first);
        PostMessageW(dialog.Window(), kPostedInAnnouncement, 0, 0);
        result = answer;
        return true;
    }

    POINT LabelOf(HTREEITEM node)
    {
        RECT rect{};
        TreeView_GetItemRect(tree, node, &rect, TRUE);
        return CentreOf(rect);
    }

    POINT BoxOf(HTREEITEM node)
    {
        POINT point = LabelOf(node);
        for (point.x = 0; point.x < 200; ++point.x)
        {
            TVHITTESTINFO hit{};
            hit.pt = {point.x + 3, point.y};
            TreeView_HitTest(tree, &hit);
            if (hit.flags == TVHT_ONITEMSTATEICON)
                return hit.pt;
        }
        ADD_FAILURE() << "the node has no box";
        return point;
    }

    POINT OnScreen(POINT point)
    {
        ClientToScreen(tree, &point);
        return point;
    }

    const LoggedMessage* ContextMenu()
    {
        for (const LoggedMessage& entry : dialog.Log())
            if (entry.Message == WM_CONTEXTMENU)
                return &entry;
        return nullptr;
    }

    bool RunUntilContextMenu()
    {
        return dialog.RunUntil([this] { return dialog.Count(WM_CONTEXTMENU) > 0; });
    }

    CTestDialog dialog;
    HWND tree = nullptr;
    HTREEITEM first = nullptr;
    HTREEITEM second = nullptr;
    HTREEITEM boxless = nullptr;
    LRESULT answer = kNoGesture;
    NMSTYLUSDOWN announced{};
    UINT stateAtAnnouncement = 99;
    UINT stateAtClick = 99;
    UINT stateWhenPosted = 99;
};

} // namespace

TEST_F(StylusTree, APressIsAnnouncedWithItsPoint)
{
    const POINT point = LabelOf(second);
    PostTap(tree, point);
    ASSERT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) > 0; }));
    EXPECT_EQ(announced.hdr.hwndFrom, tree);
    EXPECT_EQ(announced.hdr.idFrom, static_cast<UINT_PTR>(kTreeId));
    EXPECT_EQ(announced.point.x, point.x);
    EXPECT_EQ(announced.point.y, point.y);
}

TEST_F(StylusTree, AnAnnouncementWithoutAnAnswerLetsAHoldBeRecognised)
{
    dialog.SetHandler({});
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(LabelOf(second)));
    EXPECT_TRUE(RunUntilContextMenu());
}

TEST_F(StylusTree, ADoubleClickIsAnnouncedToo)
{
    PostMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, PointParam(LabelOf(second)));
    PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(LabelOf(second)));
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) == 1; }));
}

TEST_F(StylusTree, AnAnswerOfNoGestureGoesOnWithTheTap)
{
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AQuickTapGoesOnAtOnceAlthoughAHoldCouldBeRecognised)
{
    answer = kRecognise;
    const ULONGLONG start = GetTickCount64();
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_LT(GetTickCount64() - start, 600u);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AHoldAsksForTheMenuAtItsPointAndSwallowsThePress)
{
    answer = kRecognise;
    TreeView_SelectItem(tree, first);
    const ULONGLONG start = GetTickCount64();
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(LabelOf(second)));
    ASSERT_TRUE(RunUntilContextMenu());
    EXPECT_GE(GetTickCount64() - start, 690u);
    EXPECT_EQ(ContextMenu()->WParam, reinterpret_cast<WPARAM>(tree));
    EXPECT_EQ(ContextMenu()->LParam, PointParam(OnScreen(LabelOf(second))));
    PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(LabelOf(second)));
    dialog.RunPending();
    EXPECT_EQ(TreeView_GetSelection(tree), first);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
}

TEST_F(StylusTree, AHoldWithoutGestureAsksForNothing)
{
    POINT point = LabelOf(second);
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(point));
    const CLater later(900,
                       [this, point] { PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(point)); });
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatIsLiftedBeforeTheHoldTimeTaps)
{
    answer = kRecognise;
    const POINT point = LabelOf(second);
    const CLater later(300,
                       [this, point] { PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(point)); });
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(point));
    EXPECT_TRUE(dialog.RunUntil([this] { return TreeView_GetSelection(tree) == second; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatMovesDragsAndIsNotHeld)
{
    answer = kRecognise;
    const POINT point = LabelOf(second);
    const CLater move(100, [] { SetCursorPos(30, 0); });
    const CLater lift(1200,
                      [this, point] { PostMessageW(tree, WM_LBUTTONUP, 0, PointParam(point)); });
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(point));
    EXPECT_TRUE(dialog.RunUntil(
        [this] { return dialog.CountNotify(static_cast<UINT>(TVN_BEGINDRAGW)) == 1; }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, AStylusThatTremblesIsHeld)
{
    answer = kRecognise;
    const CLater move(100, [] { SetCursorPos(Scaled(3), 0); });
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(LabelOf(second)));
    EXPECT_TRUE(RunUntilContextMenu());
}

TEST_F(StylusTree, TheRealButtonHeldDownIsAHold)
{
    answer = kRecognise;
    const POINT screen = OnScreen(LabelOf(second));
    SetCursorPos(screen.x, screen.y);
    INPUT button{};
    button.type = INPUT_MOUSE;
    button.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    SendInput(1, &button, sizeof button);
    EXPECT_TRUE(RunUntilContextMenu());
    button.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(1, &button, sizeof button);
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
}

TEST_F(StylusTree, ATreeThatGoesAwayDuringItsAnnouncementIsLeftAlone)
{
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Code == NM_STYLUSDOWN)
                DestroyWindow(tree);
            return entry.Code == NM_STYLUSDOWN;
        });
    PostTap(tree, LabelOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(tree); }));
}

TEST_F(StylusTree, ATreeThatGoesAwayDuringTheHoldIsLeftAlone)
{
    answer = kRecognise;
    const CLater later(200, [this] { SendMessageW(dialog.Window(), WM_CLOSE, 0, 0); });
    dialog.SetHandler(
        [this](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Message == WM_CLOSE)
                DestroyWindow(tree);
            return entry.Message == WM_CLOSE;
        });
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(LabelOf(second)));
    EXPECT_TRUE(dialog.RunUntil([this] { return !IsWindow(tree); }));
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, APressOnABoxFlipsItAfterTheAnnouncementAndBeforeWhatIsPostedThere)
{
    PostTap(tree, BoxOf(first));
    ASSERT_TRUE(dialog.RunUntil([this] { return stateWhenPosted != 99; }));
    EXPECT_EQ(stateAtAnnouncement, 1u);
    EXPECT_EQ(stateAtClick, 2u);
    EXPECT_EQ(stateWhenPosted, 2u);
    dialog.RunPending();
    EXPECT_EQ(BoxState(tree, first), 2u);
    EXPECT_EQ(dialog.CountNotify(static_cast<UINT>(NM_CLICK)), 1);
}

TEST_F(StylusTree, ACheckedBoxIsUnchecked)
{
    PostTap(tree, BoxOf(second));
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, second) == 1; }));
}

TEST_F(StylusTree, ABoxFlipsAtOnceWhateverTheAnswerIs)
{
    answer = kRecognise;
    const ULONGLONG start = GetTickCount64();
    PostMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, PointParam(BoxOf(first)));
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
    EXPECT_LT(GetTickCount64() - start, 600u);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
}

TEST_F(StylusTree, ADoubleClickFlipsABoxTwice)
{
    const LPARAM box = PointParam(BoxOf(first));
    SendMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, box);
    SendMessageW(tree, WM_LBUTTONUP, 0, box);
    EXPECT_EQ(BoxState(tree, first), 2u);
    SendMessageW(tree, WM_LBUTTONDBLCLK, MK_LBUTTON, box);
    SendMessageW(tree, WM_LBUTTONUP, 0, box);
    EXPECT_EQ(BoxState(tree, first), 1u);
}

TEST_F(StylusTree, ANodeWithoutABoxNeverGetsOne)
{
    POINT point = LabelOf(boxless);
    const int end = point.x;
    for (point.x = 0; point.x < end; point.x += 4)
    {
        PostTap(tree, point);
        dialog.RunPending();
        ASSERT_EQ(BoxState(tree, boxless), 0u) << point.x;
    }
}

TEST_F(StylusTree, APressOnABoxDoesNotSelectByItself)
{
    TreeView_SelectItem(tree, second);
    PostTap(tree, BoxOf(first));
    ASSERT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
    EXPECT_EQ(TreeView_GetSelection(tree), second);
}

TEST_F(StylusTree, TheRightButtonAsksForTheMenuOnceWhenTheDialogLetsIt)
{
    answer = kRecognise;
    const POINT point = LabelOf(second);
    PostMessageW(tree, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(point));
    PostMessageW(tree, WM_RBUTTONUP, 0, PointParam(point));
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.CountNotify(NM_STYLUSDOWN), 1);
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, PointParam(OnScreen(point)));
}

TEST_F(StylusTree, TheRightButtonDoesNothingWhenTheDialogRefuses)
{
    const POINT point = LabelOf(second);
    PostMessageW(tree, WM_RBUTTONDOWN, MK_RBUTTON, PointParam(point));
    PostMessageW(tree, WM_RBUTTONUP, 0, PointParam(point));
    ASSERT_TRUE(dialog.RunUntil([this] { return dialog.CountNotify(NM_STYLUSDOWN) == 1; }));
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 0);
    EXPECT_EQ(dialog.CountNotify(static_cast<UINT>(NM_RCLICK)), 0);
}

TEST_F(StylusTree, TheAppsKeyAsksForTheMenuOnceWithoutAPoint)
{
    TypeKey(VK_APPS);
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, -1);
    EXPECT_EQ(ContextMenu()->WParam, reinterpret_cast<WPARAM>(tree));
}

TEST_F(StylusTree, ShiftF10AsksForTheMenuOnceWithoutAPoint)
{
    TypeKey(VK_F10, VK_SHIFT);
    ASSERT_TRUE(RunUntilContextMenu());
    dialog.RunPending();
    EXPECT_EQ(dialog.Count(WM_CONTEXTMENU), 1);
    EXPECT_EQ(ContextMenu()->LParam, -1);
}

TEST_F(StylusTree, EnterBelongsToTheTree)
{
    WORD key = 0;
    dialog.SetHandler(
        [&key](const LoggedMessage& entry, LRESULT&)
        {
            if (entry.Code == static_cast<UINT>(TVN_KEYDOWN))
                key = reinterpret_cast<const NMTVKEYDOWN*>(entry.LParam)->wVKey;
            return false;
        });
    TypeKey(VK_RETURN);
    ASSERT_TRUE(dialog.RunUntil([&key] { return key != 0; }));
    dialog.RunPending();
    EXPECT_EQ(key, VK_RETURN);
    EXPECT_EQ(dialog.CountCommand(IDOK), 0);
}

TEST_F(StylusTree, EscapeStillCancelsTheDialog)
{
    TypeKey(VK_ESCAPE);
    EXPECT_TRUE(dialog.RunUntil([this] { return dialog.CountCommand(IDCANCEL) == 1; }));
}

TEST_F(StylusTree, SpaceKeepsTheTreesDefault)
{
    TreeView_SelectItem(tree, first);
    TypeKey(VK_SPACE);
    EXPECT_TRUE(dialog.RunUntil([this] { return BoxState(tree, first) == 2; }));
}

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
        SetCursorPos(0, 0);
        dialog.RunPending();
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
