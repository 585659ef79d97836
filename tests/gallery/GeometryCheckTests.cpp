// That the check finds what is wrong: each rule is broken once, in a window of the test's own or by
// a translation that is too long.
#include "tests/gallery/GalleryFixture.h"

#include "device/Painting.h"
#include "platform/Handles.h"
#include "tests/support/Pixels.h"
#include "tests/support/Screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

namespace
{

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

// The failures that a piece of the check reports.
template <class Piece>
std::vector<std::string> FailuresOf(Piece piece)
{
    testing::TestPartResultArray found;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &found);
        piece();
    }
    std::vector<std::string> messages;
    for (int i = 0; i < found.size(); ++i)
        messages.push_back(found.GetTestPartResult(i).message());
    return messages;
}

// A window of 200 by 100 pixels of a 96-dpi screen.
class GeometryCheck : public testing::Test
{
protected:
    GeometryCheck()
    {
        INITCOMMONCONTROLSEX all = {sizeof(all), ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
        InitCommonControlsEx(&all);
        m_window.reset(CreateWindowExW(0, L"Static", L"", WS_POPUP | WS_VISIBLE, 0, 0, Px(200),
                                       Px(100), nullptr, nullptr, nullptr, nullptr));
    }
    HWND Add(const wchar_t* name, const wchar_t* text, DWORD style, RECT place)
    {
        const HWND control = CreateWindowExW(
            0, name, text, WS_CHILD | WS_VISIBLE | style, Px(place.left), Px(place.top),
            Px(place.right - place.left), Px(place.bottom - place.top), m_window.get(), nullptr,
            nullptr, nullptr);
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.get()), 0);
        return control;
    }
    std::vector<std::string> Failures()
    {
        return FailuresOf([&] { CGeometryCheck("xx", "sample").MessageBox(m_window.get()); });
    }

private:
    UniqueFont m_font = painting::MakeFont(Px(13), false);
    UniqueWindow m_window;
};

constexpr const wchar_t* kLong = L"A text that is much longer than its place";

} // namespace

TEST_F(GeometryCheck, NothingIsWrongWithControlsThatStandApartAndHaveRoom)
{
    Add(L"Static", L"Label", 0, {0, 0, 60, 20});
    Add(L"Edit", L"", 0, {70, 0, 190, 24});
    Add(L"Button", L"Press", BS_PUSHBUTTON, {0, 30, 80, 54});
    Add(L"Button", L"Check", BS_AUTOCHECKBOX, {90, 30, 190, 54});
    EXPECT_THAT(Failures(), IsEmpty());
}

TEST_F(GeometryCheck, AControlOverTheEdgeIsFound)
{
    Add(L"Static", L"", 0, {150, 0, 201, 20});
    EXPECT_THAT(Failures(), Contains(AllOf(HasSubstr("xx "), HasSubstr(" sample: static 0"),
                                           HasSubstr("outside"))));
}

TEST_F(GeometryCheck, AControlOverAnotherIsFound)
{
    Add(L"Static", L"", 0, {0, 0, 50, 20});
    Add(L"Edit", L"", 0, {0, 19, 50, 60});
    EXPECT_THAT(Failures(), Contains(HasSubstr("share")));
}

TEST_F(GeometryCheck, AHiddenControlIsInNobodysWay)
{
    Add(L"Static", kLong, 0, {0, 0, 20, 20});
    ShowWindow(Add(L"Static", kLong, 0, {0, 0, 20, 20}), SW_HIDE);
    EXPECT_EQ(1u, Failures().size());
}

TEST_F(GeometryCheck, AnEdgeThatIsSharedIsNoOverlap)
{
    Add(L"Static", L"", 0, {0, 0, 50, 20});
    Add(L"Edit", L"", 0, {0, 20, 50, 60});
    EXPECT_THAT(Failures(), IsEmpty());
}

TEST_F(GeometryCheck, ALabelWithoutRoomIsFoundWithItsTextAndPixels)
{
    Add(L"Static", kLong, 0, {0, 0, 120, 16});
    EXPECT_THAT(Failures(),
                Contains(AllOf(HasSubstr("much longer"), HasSubstr("needs"), HasSubstr("has"))));
}

TEST_F(GeometryCheck, ALabelMayTakeSeveralLines)
{
    Add(L"Static", kLong, 0, {0, 0, 190, 60});
    EXPECT_THAT(Failures(), IsEmpty());
}

TEST_F(GeometryCheck, AWordThatIsTooLongForItsLineIsFound)
{
    Add(L"Static", L"Donaudampfschifffahrt", 0, {0, 0, 60, 60});
    EXPECT_THAT(Failures(), Contains(HasSubstr("needs")));
}

TEST_F(GeometryCheck, AButtonWithoutRoomForItsEdgesIsFound)
{
    Add(L"Button", kLong, BS_PUSHBUTTON, {0, 0, 190, 24});
    EXPECT_THAT(Failures(), Contains(HasSubstr("button 0")));
}

// "Check" alone would fit.
TEST_F(GeometryCheck, TheBoxOfACheckBoxTakesRoom)
{
    const HWND box = Add(L"Button", L"Check", BS_AUTOCHECKBOX, {0, 0, 190, 20});
    SetWindowPos(box, nullptr, 0, 0, TextWidthOf(box) + Px(10), Px(20), SWP_NOZORDER);
    EXPECT_THAT(Failures(), Contains(HasSubstr("button 0")));
}

TEST_F(GeometryCheck, ACheckBoxMayTakeTwoLinesWhenItIsMadeForThem)
{
    Add(L"Button", kLong, BS_AUTOCHECKBOX | BS_MULTILINE, {0, 0, 190, 40});
    EXPECT_THAT(Failures(), IsEmpty());
    Add(L"Button", kLong, BS_AUTOCHECKBOX, {0, 50, 190, 90});
    EXPECT_EQ(1u, Failures().size());
}

TEST_F(GeometryCheck, AnEditThatShowsNoWholeLineIsFound)
{
    Add(L"Edit", L"", 0, {0, 0, 190, 8});
    EXPECT_THAT(Failures(), Contains(HasSubstr("edit 0")));
}

TEST_F(GeometryCheck, ATreesRowThatCannotBeScrolledToIsFound)
{
    const HWND tree = Add(WC_TREEVIEWW, L"", TVS_NOHSCROLL, {0, 0, 90, 90});
    TVINSERTSTRUCTW node = {};
    node.hInsertAfter = TVI_LAST;
    node.item.mask = TVIF_TEXT;
    node.item.pszText = const_cast<wchar_t*>(kLong);
    SendMessageW(tree, TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&node));
    EXPECT_THAT(Failures(), Contains(HasSubstr("can't be scrolled")));
}

TEST_F(GeometryCheck, AListsRowThatIsCutAndAColumnThatIsTooWideAreFound)
{
    const HWND list = Add(WC_LISTVIEWW, L"", LVS_REPORT | LVS_NOCOLUMNHEADER, {0, 0, 90, 90});
    LVCOLUMNW column = {};
    column.mask = LVCF_WIDTH;
    column.cx = Px(80);
    SendMessageW(list, LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    LVITEMW item = {};
    item.mask = LVIF_TEXT;
    item.pszText = const_cast<wchar_t*>(kLong);
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_THAT(Failures(), Contains(HasSubstr("much longer")));
    SendMessageW(list, LVM_SETCOLUMNWIDTH, 0, Px(300));
    EXPECT_THAT(Failures(), Contains(HasSubstr("narrower than its columns")));
}

TEST_F(GeometryCheck, AControlOfAnUnknownKindIsFound)
{
    Add(L"ScrollBar", L"", 0, {0, 0, 20, 20});
    EXPECT_THAT(Failures(), Contains(HasSubstr("unknown kind")));
}

TEST_F(GeometryCheck, APaintedWordThatIsCutIsFoundAndANameMayBe)
{
    const UniqueScreenDc screen(GetDC(nullptr));
    const UniqueFont font = painting::MakeFont(Px(13), false);
    const painting::CTextRecorder recorder;
    painting::Text(screen.get(), font.get(), kLong, {0, 0, Px(60), Px(20)}, 0, DT_LEFT);
    const std::vector<painting::DrawnText> drawn = painting::CTextRecorder::Take();
    ASSERT_EQ(1u, drawn.size());
    const auto check = [&](const std::set<std::wstring>& names)
    { return FailuresOf([&] { CGeometryCheck("xx", "sample").Drawn(drawn, names); }); };
    EXPECT_THAT(check({}), Contains(HasSubstr("much longer")));
    EXPECT_THAT(check({kLong}), IsEmpty());
}

TEST_F(GeometryCheck, APaintedNameThatLacksItsLowerEdgeIsFound)
{
    const UniqueScreenDc screen(GetDC(nullptr));
    const UniqueFont font = painting::MakeFont(Px(13), false);
    const painting::CTextRecorder recorder;
    painting::Text(screen.get(), font.get(), L"Name", {0, 0, Px(60), Px(9)}, 0, DT_LEFT);
    const std::vector<painting::DrawnText> drawn = painting::CTextRecorder::Take();
    EXPECT_THAT(FailuresOf([&] { CGeometryCheck("xx", "sample").Drawn(drawn, {L"Name"}); }),
                Contains(HasSubstr("the window")));
}

// The rest is looked for in a real dialog whose translation is too long.
class LongTranslation : public GalleryFixture
{
protected:
    std::vector<std::string> Failures(const std::wstring& entries)
    {
        device.Translate(entries);
        const HWND editor = OpenEditor();
        std::vector<std::string> found =
            FailuresOf([&] { CGeometryCheck("xx", "sample").Dialog(editor); });
        PressKey(VK_F2);
        EXPECT_NE(nullptr, run->WaitForPopup());
        const std::vector<std::string> menus =
            FailuresOf([&] { CGeometryCheck("xx", "sample").Menus(run->ThreadId()); });
        found.insert(found.end(), menus.begin(), menus.end());
        CloseMenus();
        End(editor);
        return found;
    }
};

TEST_P(LongTranslation, OfASoftKeyIsFound)
{
    EXPECT_THAT(Failures(L"Done|Fertig und aus und vorbei und zu Ende gebracht, das war es\n"),
                Contains(HasSubstr("soft key 0")));
}

TEST_P(LongTranslation, OfATitleIsFound)
{
    EXPECT_THAT(Failures(L"Customize Menu|Everything that a person may want to change in the menu "
                         L"of this device\n"),
                Contains(HasSubstr("the title band")));
}

TEST_P(LongTranslation, OfAMenusEntryIsFound)
{
    EXPECT_THAT(Failures(L"Move Up|Put this entry of the menu in front of the one that stands "
                         L"before it in this menu\n"),
                Contains(HasSubstr("a menu")));
}

TEST_P(LongTranslation, IsMissedNowhereInAShortOne)
{
    EXPECT_THAT(Failures(L"Done|Ok\n"), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(In, LongTranslation, testing::Values("en"), LanguageName);
