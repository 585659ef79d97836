// What the picker shows when it opens.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/SoftKeys.h"

namespace
{

class CityOpening : public CityFixture
{
};

DWORD ExtendedStyleOf(HWND list)
{
    return static_cast<DWORD>(SendMessageW(list, LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0));
}

} // namespace

TEST_F(CityOpening, AllCitiesAreListedInTableOrder)
{
    Open();
    EXPECT_EQ((Texts{L"London", L"London", L"Abingdon", L"MÜNCHEN", L"Long Eaton", L"Croydon",
                     kLongName}),
              Names());
}

TEST_F(CityOpening, TheSecondColumnIsTheAreaWithItsSubareaInParentheses)
{
    Open();
    EXPECT_EQ(L"Ontario (Middlesex)", CellText(1, 1));
    EXPECT_EQ(L"England (Kent)", CellText(4, 1));
}

TEST_F(CityOpening, WithoutASubareaTheAreaStandsAlone)
{
    Open();
    EXPECT_EQ(L"England", CellText(0, 1));
    EXPECT_EQ(L"Bavaria", CellText(3, 1));
}

TEST_F(CityOpening, TheHostsCityIsSelectedAndFocusedAndMarked)
{
    Open(30);
    EXPECT_EQ(std::vector<int>{2}, RowsWith(LVNI_SELECTED));
    EXPECT_EQ(std::vector<int>{2}, RowsWith(LVNI_FOCUSED));
    EXPECT_EQ(2, Mark());
}

TEST_F(CityOpening, TheHostsCityIsScrolledIntoView)
{
    folder.InstallAsFolder(ManyCities(500).Build());
    Open(400);
    EXPECT_EQ(std::vector<int>{399}, RowsWith(LVNI_SELECTED));
    EXPECT_TRUE(IsRowVisible(399));
}

TEST_F(CityOpening, TheHostsCityCanBeConfirmedAsItIs)
{
    Open(30);
    Done();
    EXPECT_EQ(30u, city.identifier);
    EXPECT_STREQ(L"Abingdon", city.name);
}

TEST_F(CityOpening, OfCitiesWithTheSameIdentifierTheFirstIsSelected)
{
    Open(20);
    EXPECT_EQ(std::vector<int>{1}, RowsWith(LVNI_SELECTED));
}

TEST_F(CityOpening, ZeroIsAnIdentifierLikeAnyOther)
{
    Open(0);
    EXPECT_EQ(std::vector<int>{5}, RowsWith(LVNI_SELECTED));
    Done();
    EXPECT_STREQ(L"Croydon", city.name);
    EXPECT_EQ(0u, city.identifier);
}

TEST_F(CityOpening, AnUnknownIdentifierSelectsNothing)
{
    Open(kNobody);
    EXPECT_TRUE(RowsWith(LVNI_SELECTED).empty());
    EXPECT_TRUE(RowsWith(LVNI_FOCUSED).empty());
    EXPECT_EQ(-1, Mark());
    EXPECT_EQ(0, ToList(LVM_GETTOPINDEX));
}

TEST_F(CityOpening, DoneWithNothingSelectedIsCancel)
{
    Open(kNobody);
    PostCommand(dialog, IDOK);
    ExpectEnd(FALSE);
}

TEST_F(CityOpening, TheSearchBoxIsEmptyAndHasTheFocus)
{
    Open(10);
    EXPECT_EQ(L"", TextOf(search));
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    GetGUIThreadInfo(run->ThreadId(), &info);
    EXPECT_EQ(search, info.hwndFocus);
}

TEST_F(CityOpening, WholeRowsAreSelectedAndOneTapIsEnough)
{
    Open();
    constexpr DWORD kExpected = LVS_EX_FULLROWSELECT | LVS_EX_ONECLICKACTIVATE;
    EXPECT_EQ(kExpected, ExtendedStyleOf(list) & kExpected);
}

TEST_F(CityOpening, TheListHasTwoLeftAlignedColumns)
{
    Open();
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT | LVCF_WIDTH;
    for (const WPARAM index : {WPARAM{0}, WPARAM{1}})
    {
        ASSERT_TRUE(ToList(LVM_GETCOLUMNW, index, reinterpret_cast<LPARAM>(&column))) << index;
        EXPECT_EQ(LVCFMT_LEFT, column.fmt & LVCFMT_JUSTIFYMASK) << index;
        EXPECT_GT(column.cx, 0) << index;
    }
    EXPECT_FALSE(ToList(LVM_GETCOLUMNW, 2, reinterpret_cast<LPARAM>(&column)));
}

TEST_F(CityOpening, TheSoftKeysAreDoneAndCancel)
{
    Open();
    ASSERT_EQ(2, SoftKeyCount(dialog));
    EXPECT_EQ(L"Done", SoftKeyText(dialog, 0));
    EXPECT_EQ(static_cast<UINT>(IDOK), SoftKeyCommand(dialog, 0));
    EXPECT_EQ(L"Cancel", SoftKeyText(dialog, 1));
    EXPECT_EQ(static_cast<UINT>(IDCANCEL), SoftKeyCommand(dialog, 1));
}

TEST_F(CityOpening, TheDialogBelongsToTheCallersWindow)
{
    Open();
    EXPECT_EQ(run->Owner(), GetWindow(dialog, GW_OWNER));
}

TEST_F(CityOpening, EmptyTablesGiveAnEmptyList)
{
    folder.InstallAsFolder(CCityImageBuilder().Build());
    Open(0);
    EXPECT_EQ(0, RowCount());
    Type(L"a");
    Type(L"");
    EXPECT_EQ(0, RowCount());
    PostCommand(dialog, IDOK);
    ExpectEnd(FALSE);
}

TEST_F(CityOpening, EveryCallStartsAfresh)
{
    Open(10);
    Type(L"croy");
    Select(0);
    Done();
    Open(10);
    EXPECT_EQ(kSampleCount, RowCount());
    EXPECT_EQ(0, Mark());
    Cancel();
}
