// Manage Pinned worked by keys alone, and by the stylus.
#include "tests/dialogs/home/HomeFixture.h"
#include "tests/support/Wait.h"

namespace
{

constexpr UINT kStylusDown = static_cast<UINT>(-50);
struct StylusDown
{
    NMHDR header;
    POINT point;
};

class HomeInput : public HomeFixture
{
protected:
    bool TurnsInto(const std::wstring& path, UINT box)
    {
        return WaitUntil([&] { return BoxOf(path) == box; });
    }
    bool BecomesBold(const std::wstring& path, bool bold)
    {
        return WaitUntil([&] { return IsBold(path) == bold; });
    }
    // Presses keys until the node at a path is selected.
    void Walk(std::initializer_list<WORD> keys, const std::wstring& path)
    {
        for (const WORD key : keys)
            PressKey(key);
        ASSERT_TRUE(WaitUntil([&] { return tree.Selected() == tree.Find(path); }));
    }
    // The notification that the tree sends when the stylus comes down.
    LRESULT PutDown(POINT point)
    {
        StylusDown down = {{tree.Window(), kTreeId, kStylusDown}, point};
        return SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&down));
    }
    void TapBox(const std::wstring& path)
    {
        POINT point = tree.PointOn(tree.Find(path), TVHT_ONITEMSTATEICON);
        ASSERT_GE(point.x, 0);
        ClientToScreen(tree.Window(), &point);
        TapScreen(point);
    }
};

} // namespace

// Keys.

TEST_F(HomeInput, TheTreeHasTheFocusFromTheStart)
{
    Open();
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(dialog, 1));
    Walk({VK_HOME, VK_DOWN}, L"Programs");
}

TEST_F(HomeInput, EnterSwitchesTheBoxAndTheBoldMarks)
{
    Open();
    Walk({VK_HOME, VK_DOWN, VK_DOWN}, L"Settings");
    PressKey(VK_RETURN);
    EXPECT_TRUE(TurnsInto(L"Settings", BoxOn));
    EXPECT_TRUE(BecomesBold(L"", true));
    PressKey(VK_RETURN);
    EXPECT_TRUE(TurnsInto(L"Settings", BoxOff));
    EXPECT_TRUE(BecomesBold(L"", false));
    EXPECT_FALSE(run->HasEnded()) << "Enter belongs to the tree, not to Done";
}

TEST_F(HomeInput, SpaceDoesWhatEnterDoes)
{
    Open();
    Walk({VK_HOME, VK_DOWN, VK_DOWN}, L"Settings");
    PressKey(VK_SPACE);
    EXPECT_TRUE(TurnsInto(L"Settings", BoxOn));
    EXPECT_TRUE(BecomesBold(L"", true));
    PressKey(VK_SPACE);
    EXPECT_TRUE(TurnsInto(L"Settings", BoxOff));
    EXPECT_TRUE(BecomesBold(L"", false));
}

TEST_F(HomeInput, EnterAndSpaceMeetTheLimit)
{
    Open(0);
    for (const WORD key : {WORD(VK_RETURN), WORD(VK_SPACE)})
    {
        Walk({VK_HOME, VK_DOWN, VK_DOWN}, L"Settings");
        PressKey(key);
        ExpectLimitMessage(L"Only 0 items may be pinned");
        EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Settings"));
    }
}

TEST_F(HomeInput, AFolderOfTheStartMenuHasNoBoxToSwitch)
{
    Open(0);
    Walk({VK_HOME, VK_DOWN, VK_RIGHT, VK_DOWN, VK_DOWN}, L"Programs/Games");
    PressKey(VK_RETURN);
    PressKey(VK_SPACE);
    // On from there when both are through.
    Walk({VK_DOWN}, L"Programs/Mail");
    EXPECT_EQ(static_cast<UINT>(NoBox), BoxOf(L"Programs/Games"));
}

TEST_F(HomeInput, OtherKeysSwitchNothing)
{
    Open();
    Select(L"Tools");
    const std::wstring before = tree.Dump();
    for (const int key : {VK_TAB, VK_F1, VK_ADD, 0x41, 0})
    {
        NMTVKEYDOWN down = {};
        down.hdr = {tree.Window(), kTreeId, static_cast<UINT>(TVN_KEYDOWN)};
        down.wVKey = static_cast<WORD>(key);
        EXPECT_EQ(0, SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(&down)));
    }
    EXPECT_EQ(before, tree.Dump());
}

TEST_F(HomeInput, AWholeChoiceNeedsNoStylus)
{
    StoreList({{MenuName(L"Settings"), kPinned}});
    Open();
    Walk({VK_HOME, VK_DOWN, VK_RIGHT, VK_DOWN}, L"Programs/Calculator");
    PressKey(VK_RETURN);
    ASSERT_TRUE(TurnsInto(L"Programs/Calculator", BoxOn));
    Walk({VK_LEFT, VK_LEFT, VK_DOWN}, L"Settings");
    PressKey(VK_RETURN);
    ASSERT_TRUE(TurnsInto(L"Settings", BoxOff));
    PressKey(VK_F1);
    ASSERT_TRUE(run->WaitForEnd());
    EXPECT_EQ(TRUE, run->Result());
    EXPECT_EQ((Lines{L"*" + LinkName(L"Programs\\Calculator.lnk"), MenuName(L"Settings")}), List());
}

TEST_F(HomeInput, TheRightSoftKeyAndEscapeCancel)
{
    for (const WORD key : {WORD(VK_F2), WORD(VK_ESCAPE)})
    {
        Open();
        Switch(L"Tools");
        PressKey(key);
        ASSERT_TRUE(run->WaitForEnd());
        EXPECT_EQ(FALSE, run->Result());
        EXPECT_EQ(Lines{}, List());
    }
}

// The stylus.

TEST_F(HomeInput, ATapOnABoxSelectsItsNodeAndSwitchesIt)
{
    Open();
    TapBox(L"Tools");
    EXPECT_TRUE(TurnsInto(L"Tools", BoxOn));
    EXPECT_TRUE(BecomesBold(L"", true));
    EXPECT_EQ(tree.Find(L"Tools"), tree.Selected());
    TapBox(L"Tools");
    EXPECT_TRUE(TurnsInto(L"Tools", BoxOff));
    EXPECT_TRUE(BecomesBold(L"", false));
}

TEST_F(HomeInput, ATapOnABoxMeetsTheLimit)
{
    StoreList({{MenuName(L"Settings"), kPinned}});
    Open(1);
    TapBox(L"Tools");
    ExpectLimitMessage(L"Only 1 items may be pinned");
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools"));
}

TEST_F(HomeInput, ATapOnALabelSelectsWithoutSwitching)
{
    Open();
    TapScreen(tree.LabelCentreOnScreen(tree.Find(L"Tools")));
    EXPECT_TRUE(WaitUntil([&] { return tree.Selected() == tree.Find(L"Tools"); }));
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools"));
}

TEST_F(HomeInput, TheStylusBesideLabelAndBoxSelectsNothing)
{
    Open();
    Select(L"");
    PutDown(tree.PointOn(tree.Find(L"Tools"), TVHT_ONITEMRIGHT));
    PutDown(tree.PointOn(tree.Find(L"Programs"), TVHT_ONITEMBUTTON));
    PutDown({-5, -5});
    EXPECT_EQ(tree.Find(L""), tree.Selected());
}

TEST_F(HomeInput, TheStylusOnABoxSelectsItsNodeBeforeTheTreeDoes)
{
    Open();
    Select(L"");
    PutDown(tree.PointOn(tree.Find(L"Tools"), TVHT_ONITEMSTATEICON));
    EXPECT_EQ(tree.Find(L"Tools"), tree.Selected());
    SendMessageW(dialog, WM_NULL, 0, 0);
    EXPECT_EQ(static_cast<UINT>(BoxOff), BoxOf(L"Tools")) << "the box is the tree's to switch";
}

TEST_F(HomeInput, ACutOffStylusNotificationSelectsNothing)
{
    Open();
    Select(L"");
    // The end of a page behind which no memory can be read.
    constexpr size_t kPage = 4096;
    auto* const pages = static_cast<char*>(
        VirtualAlloc(nullptr, 2 * kPage, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    DWORD old = 0;
    VirtualProtect(pages + kPage, kPage, PAGE_NOACCESS, &old);
    auto* const header = reinterpret_cast<NMHDR*>(pages + kPage - sizeof(NMHDR));
    for (const UINT code : {kStylusDown, static_cast<UINT>(TVN_KEYDOWN)})
    {
        *header = {tree.Window(), kTreeId, code};
        SendMessageW(dialog, WM_NOTIFY, kTreeId, reinterpret_cast<LPARAM>(header));
    }
    EXPECT_EQ(tree.Find(L""), tree.Selected());
    VirtualFree(pages, 0, MEM_RELEASE);
}
