// Choose Icon: the icons it offers, what is selected at first, and what "Done" tells.
#include "tests/dialogs/menu/edit/EditFixture.h"
#include "tests/support/Pixels.h"
#include "tests/support/Wait.h"

namespace
{

constexpr const wchar_t* kMyMenu = L"User 1";
constexpr const wchar_t* kMaps = L"Programs\\User 3";

using Numbers = std::vector<uint32_t>;

class ChooseIcon : public EditFixture
{
protected:
    // Opens it for the user menu, which has no image path, or for a link with one.
    void OpenForMenu(DWORD number = 100)
    {
        registry.SetCustom(kMyMenu, L"Image", number);
        OpenEdit(L"My Menu");
        OpenChoice();
    }
    void OpenForLink()
    {
        OpenEdit(L"Programs/Maps");
        OpenChoice();
    }

    HIMAGELIST Images() const { return reinterpret_cast<HIMAGELIST>(ToList(LVM_GETIMAGELIST)); }
    LVITEMW ItemAt(int place, wchar_t (&text)[20]) const
    {
        LVITEMW item = {};
        item.mask = LVIF_IMAGE | LVIF_TEXT;
        item.iItem = place;
        item.pszText = text;
        item.cchTextMax = 20;
        EXPECT_TRUE(ToList(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item))) << place;
        return item;
    }
    // Whether a place is within what the list shows.
    bool IsInView(int place) const
    {
        RECT rect = {LVIR_ICON, 0, 0, 0};
        RECT client = {};
        ToList(LVM_GETITEMRECT, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&rect));
        GetClientRect(list, &client);
        return rect.top >= 0 && rect.bottom <= client.bottom;
    }
    void ExpectSelected(int place) const
    {
        EXPECT_EQ(place, PlaceWith(LVNI_SELECTED));
        EXPECT_EQ(place, PlaceWith(LVNI_FOCUSED));
        EXPECT_TRUE(place == kNothing || IsInView(place)) << place;
    }
    // Checks what Done with a place writes for the menu, and for the link.
    void ExpectDoneForMenu(int place, DWORD image)
    {
        SelectPlace(place);
        EndChoice(IDOK);
        EndEdit(IDOK);
        EXPECT_EQ(image, registry.CustomDword(kMyMenu, L"Image"));
    }
    void ExpectDoneForLink(int place, DWORD image)
    {
        registry.SetCustom(kMaps, L"Image", 111);
        OpenForLink();
        SelectPlace(place);
        EndChoice(IDOK);
        EndEdit(IDOK);
        EXPECT_EQ(image, registry.CustomDword(kMaps, L"Image", 0)) << place;
    }
};

class ChooseIconGeometry : public ChooseIcon
{
};

class ChooseIconVolume : public ChooseIcon
{
};

} // namespace

TEST_F(ChooseIcon, HasTheSoftKeysDoneAndCancel)
{
    OpenForMenu();
    ASSERT_EQ(2, SoftKeyCount(choice));
    EXPECT_EQ(L"Done", SoftKeyText(choice, 0));
    EXPECT_EQ(UINT{IDOK}, SoftKeyCommand(choice, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(choice, 1));
    EXPECT_EQ(UINT{IDCANCEL}, SoftKeyCommand(choice, 1));
}

TEST_F(ChooseIcon, IsOwnedByEditItem)
{
    OpenForMenu();
    EXPECT_EQ(edit, GetWindow(choice, GW_OWNER));
    EndChoice(IDCANCEL);
    EXPECT_TRUE(IsWindowEnabled(edit));
}

TEST_F(ChooseIcon, OffersTheIconsFrom100ToTheFirstThatIsRefused)
{
    StartProcess(5);
    OpenForMenu();
    EXPECT_EQ(5, Count());
    EXPECT_EQ((Numbers{100, 100, 101, 102, 103, 104, 105}), Asked(kDrawNumber));
    EXPECT_TRUE(Asked(kDrawFile).empty());
}

TEST_F(ChooseIcon, OffersTheLinksOwnImageLast)
{
    StartProcess(5, true);
    OpenForLink();
    EXPECT_EQ(6, Count());
    EXPECT_EQ((Numbers{100, 101, 102, 103, 104, 105}), Asked(kDrawNumber));
    // One for the preview, one for the list.
    EXPECT_EQ(2u, Asked(kDrawFile).size());
    EXPECT_EQ(L"\\Program Files\\maps.exe", process->Requests().back().TextAt(kPathField));
}

TEST_F(ChooseIcon, HasOneItemWithoutTextForEachImageInTheirOrder)
{
    StartProcess(40, true);
    OpenForLink();
    ASSERT_EQ(41, Count());
    EXPECT_EQ(41, ImageList_GetImageCount(Images()));
    for (int i = 0; i < Count(); ++i)
    {
        wchar_t text[20] = L"untouched";
        const LVITEMW item = ItemAt(i, text);
        EXPECT_EQ(i, item.iImage);
        EXPECT_STREQ(L"", item.pszText);
    }
}

TEST_F(ChooseIcon, TheListShowsTheImages)
{
    StartProcess(3);
    OpenForMenu();
    UpdateWindow(list);
    const HDC dc = GetDC(list);
    for (int place = 0; place < 3; ++place)
    {
        RECT rect = {LVIR_ICON, 0, 0, 0};
        ToList(LVM_GETITEMRECT, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&rect));
        const int x = (rect.left + rect.right) / 2;
        const int y = (rect.top + rect.bottom) / 2;
        EXPECT_TRUE(WaitUntil([=] { return GetPixel(dc, x, y) == ColourOfIcon(100 + place); }))
            << place;
    }
    ReleaseDC(list, dc);
}

TEST_F(ChooseIcon, WithoutTheProcessOffersNothingToAMenu)
{
    OpenForMenu();
    EXPECT_EQ(0, Count());
    ExpectSelected(kNothing);
    ExpectDoneForMenu(kNothing, 100);
}

TEST_F(ChooseIcon, WithoutTheProcessOffersTheFilesIconToALink)
{
    ExpectDoneForLink(0, 0);
    OpenForLink();
    EXPECT_EQ(1, Count());
    ExpectSelected(0);
}

TEST_F(ChooseIcon, SelectsThePlace100BeyondTheIcon)
{
    StartProcess(230);
    OpenForMenu(105);
    ExpectSelected(105);
    EndChoice(IDCANCEL);
    Choose(115);
    // 215 by now.
    OpenChoice();
    ExpectSelected(215);
}

TEST_F(ChooseIcon, SelectsThatPlaceForIcon100Too)
{
    StartProcess(101);
    OpenForMenu(100);
    ExpectSelected(100);
}

TEST_F(ChooseIcon, WithFewerThan101IconsSelectsNone)
{
    StartProcess(100);
    OpenForMenu(100);
    ExpectSelected(kNothing);
}

TEST_F(ChooseIcon, SelectsNoneForANumberBelow100)
{
    StartProcess(120);
    for (const DWORD number : {DWORD{99}, DWORD{0}, DWORD{50}, DWORD{0x80000000}})
    {
        OpenForMenu(number);
        ExpectSelected(kNothing);
        EndChoice(IDCANCEL);
        EndEdit(IDCANCEL);
    }
}

TEST_F(ChooseIcon, SelectsNoneForANumberBeyondAll)
{
    StartProcess(120);
    OpenForMenu(0x7FFFFFFF);
    ExpectSelected(kNothing);
}

TEST_F(ChooseIcon, SelectsTheFilesIconWhateverTheNumber)
{
    registry.SetCustom(kMaps, L"Image", 103);
    StartProcess(150, true);
    OpenForLink();
    ExpectSelected(150);
}

TEST_F(ChooseIcon, TheListHasTheFocusFromTheStart)
{
    StartProcess();
    OpenForMenu();
    EXPECT_TRUE(WaitUntil([&] { return run->Focus() == list; }));
}

TEST_F(ChooseIcon, DoneWithTheFirstIconIs100)
{
    StartProcess();
    OpenForMenu(117);
    ExpectDoneForMenu(0, 100);
}

TEST_F(ChooseIcon, DoneWithTheLastIconOfAMenuIsThatIcon)
{
    StartProcess(40);
    OpenForMenu(117);
    ExpectDoneForMenu(39, 139);
}

TEST_F(ChooseIcon, DoneWithNothingKeepsAMenusIconAndTakesALinks)
{
    StartProcess();
    OpenForMenu(117);
    ExpectDoneForMenu(kNothing, 117);
    ExpectDoneForLink(kNothing, 0);
}

TEST_F(ChooseIcon, DoneWithTheFilesOwnImageIsNoNumber)
{
    StartProcess(10, true);
    ExpectDoneForLink(10, 0);
    ExpectDoneForLink(9, 109);
}

TEST_F(ChooseIcon, CancelKeepsTheIcon)
{
    StartProcess();
    OpenForMenu(117);
    SelectPlace(3);
    EndChoice(IDCANCEL);
    EndEdit(IDOK);
    EXPECT_EQ(117u, registry.CustomDword(kMyMenu, L"Image"));
}

TEST_F(ChooseIcon, OnlyOneIconIsSelectedAtATime)
{
    StartProcess();
    OpenForMenu();
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_SELECTED;
    ToList(LVM_SETITEMSTATE, 2, reinterpret_cast<LPARAM>(&item));
    ToList(LVM_SETITEMSTATE, 6, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(1, static_cast<int>(ToList(LVM_GETSELECTEDCOUNT)));
    EndChoice(IDOK);
    EndEdit(IDOK);
    EXPECT_EQ(106u, registry.CustomDword(kMyMenu, L"Image"));
}

TEST_F(ChooseIcon, ItemsThatComeOrGoMeanwhileAreSurvived)
{
    StartProcess(10, true);
    registry.SetCustom(kMaps, L"Image", 111);
    OpenForLink();
    ToList(LVM_DELETEALLITEMS);
    EndChoice(IDOK);
    EndEdit(IDOK);
    EXPECT_FALSE(registry.CustomExists(kMaps, L"Image"));
}

TEST_F(ChooseIcon, LooksForTheProcessAnewEachTime)
{
    OpenForMenu();
    EXPECT_EQ(0, Count());
    EndChoice(IDCANCEL);
    StartProcess(7);
    OpenChoice();
    EXPECT_EQ(7, Count());
}

TEST_F(ChooseIconGeometry, CellsAre32LogicalPixelsAndStand42Apart)
{
    StartProcess(5);
    OpenForMenu();
    int width = 0;
    int height = 0;
    ASSERT_TRUE(ImageList_GetIconSize(Images(), &width, &height));
    EXPECT_EQ(Px(32), width);
    EXPECT_EQ(Px(32), height);
    const RECT asked = process->Requests().back().Rect();
    EXPECT_EQ(Px(32), asked.right);
    EXPECT_EQ(Px(32), asked.bottom);
    const auto spacing = static_cast<DWORD>(ToList(LVM_GETITEMSPACING, FALSE));
    EXPECT_EQ(Px(42), LOWORD(spacing));
    EXPECT_EQ(Px(42), HIWORD(spacing));
}

TEST_F(ChooseIconGeometry, AsManyIconsStandInARowAsFit)
{
    StartProcess(40);
    OpenForMenu();
    POINT first = {};
    POINT second = {};
    ToList(LVM_GETITEMPOSITION, 0, reinterpret_cast<LPARAM>(&first));
    ToList(LVM_GETITEMPOSITION, 1, reinterpret_cast<LPARAM>(&second));
    EXPECT_EQ(Px(42), second.x - first.x);
    RECT client = {};
    GetClientRect(list, &client);
    const int perRow = static_cast<int>(client.right) / Px(42);
    ToList(LVM_GETITEMPOSITION, static_cast<WPARAM>(perRow), reinterpret_cast<LPARAM>(&second));
    EXPECT_EQ(first.x, second.x);
    EXPECT_EQ(Px(42), second.y - first.y);
}

TEST_F(ChooseIconVolume, OfAProcessThatDrawsEverythingOffers4096IconsAndTheFiles)
{
    StartRogue(1);
    OpenForLink();
    EXPECT_EQ(4096 + 1, Count());
    ExpectSelected(4096);
    EndChoice(IDCANCEL);
}
