// Narrowing and widening the list by typing.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/Wait.h"

namespace
{

class CityTyping : public CityFixture
{
protected:
    // Shortens the list behind the dialog's back: a search that narrows looks no further than the
    // list is long, one that starts afresh doesn't mind.
    void ShortenList(int count) const { ToList(LVM_SETITEMCOUNT, static_cast<WPARAM>(count)); }
};

const Texts kDonCities = {L"London", L"London", L"Abingdon", L"Croydon"};

} // namespace

TEST_F(CityTyping, ListsTheCitiesWhoseNamesContainTheText)
{
    Open();
    Type(L"lon");
    EXPECT_EQ((Texts{L"London", L"London", L"Long Eaton"}), Names());
}

TEST_F(CityTyping, FindsTheTextInTheMiddleAndAtTheEndOfNames)
{
    Open();
    Type(L"don");
    // Croydon ends in it, too, and comes last, as in the table.
    EXPECT_EQ(kDonCities, Names());
}

TEST_F(CityTyping, UpperCaseFindsWhatLowerCaseFinds)
{
    Open();
    Type(L"DON");
    EXPECT_EQ(kDonCities, Names());
    Type(L"mÜnc");
    EXPECT_EQ(Texts{L"MÜNCHEN"}, Names());
    Type(L"MüNC");
    EXPECT_EQ(Texts{L"MÜNCHEN"}, Names());
}

TEST_F(CityTyping, AnEmptyTextListsEveryCityInTableOrder)
{
    Open();
    const Texts all = Names();
    Type(L"croy");
    EXPECT_EQ(1, RowCount());
    Type(L"");
    EXPECT_EQ(all, Names());
}

TEST_F(CityTyping, ATextThatNoNameContainsEmptiesTheList)
{
    Open();
    Type(L"xyzzy");
    EXPECT_EQ(0, RowCount());
    Type(L"xyz");
    EXPECT_EQ(Texts{kLongName}, Names());
}

TEST_F(CityTyping, AFurtherLetterNarrowsTheLastResult)
{
    Open();
    Type(L"lo");
    ASSERT_EQ(3, RowCount());
    ShortenList(2);
    Type(L"lon");
    EXPECT_EQ((Texts{L"London", L"London"}), Names());
}

TEST_F(CityTyping, DeletingALetterSearchesAllCitiesAfresh)
{
    Open();
    Type(L"lon");
    ShortenList(1);
    Type(L"lo");
    EXPECT_EQ((Texts{L"London", L"London", L"Long Eaton"}), Names());
}

TEST_F(CityTyping, AnotherTextSearchesAllCitiesAfresh)
{
    Open();
    Type(L"lon");
    ShortenList(0);
    Type(L"don");
    EXPECT_EQ(kDonCities, Names());
}

TEST_F(CityTyping, TheSameTextAgainKeepsToTheLastResult)
{
    Open();
    Type(L"don");
    ShortenList(3);
    Type(L"don");
    EXPECT_EQ((Texts{L"London", L"London", L"Abingdon"}), Names());
}

TEST_F(CityTyping, TheFirstLetterNarrowsWhatTheDialogOpenedWith)
{
    Open();
    ShortenList(1);
    Type(L"l");
    EXPECT_EQ(Texts{L"London"}, Names());
}

TEST_F(CityTyping, TheAreaFollowsItsCity)
{
    Open();
    Type(L"croy");
    EXPECT_EQ(Texts{L"England (Kent)"}, Column(1));
}

TEST_F(CityTyping, ThirtyOneCharactersCount)
{
    Open();
    const std::wstring name = kLongName;
    Type(name.substr(0, 31) + L"#");
    EXPECT_EQ(Texts{kLongName}, Names());
    Type(name.substr(0, 30) + L"#");
    EXPECT_EQ(0, RowCount());
}

TEST_F(CityTyping, TheSearchBoxTakesMoreThanCounts)
{
    Open();
    Type(std::wstring(kLongName) + std::wstring(5000, L'x'));
    EXPECT_EQ(Texts{kLongName}, Names());
    EXPECT_FALSE(run->HasEnded());
}

TEST_F(CityTyping, NothingIsSelectedAfterwards)
{
    Open(10);
    ASSERT_EQ(std::vector<int>{0}, RowsWith(LVNI_SELECTED));
    Type(L"l");
    EXPECT_TRUE(RowsWith(LVNI_SELECTED).empty());
    EXPECT_TRUE(RowsWith(LVNI_FOCUSED).empty());
}

TEST_F(CityTyping, ASelectedRowApartFromTheFocusedOneIsClearedToo)
{
    Open(10);
    LVITEMW item = {};
    item.state = item.stateMask = LVIS_FOCUSED;
    ToList(LVM_SETITEMSTATE, 2, reinterpret_cast<LPARAM>(&item));
    Type(L"l");
    EXPECT_TRUE(RowsWith(LVNI_SELECTED).empty());
    EXPECT_TRUE(RowsWith(LVNI_FOCUSED).empty());
}

TEST_F(CityTyping, OnlyAChangeOfTheTextSearches)
{
    Open();
    Type(L"lon");
    ShortenList(1);
    for (const UINT code : {EN_SETFOCUS, EN_KILLFOCUS, EN_UPDATE, EN_MAXTEXT})
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kSearchId, code),
                     reinterpret_cast<LPARAM>(search));
    EXPECT_EQ(1, RowCount());
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(kListId, EN_CHANGE),
                 reinterpret_cast<LPARAM>(list));
    EXPECT_EQ(1, RowCount());
}

TEST_F(CityTyping, ReplacingASelectionSearchesToo)
{
    Open();
    Type(L"lon");
    SendMessageW(search, EM_SETSEL, 0, -1);
    SendMessageW(search, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L"croy"));
    EXPECT_EQ(Texts{L"Croydon"}, Names());
}

TEST_F(CityTyping, KeysDoTheSame)
{
    Open();
    for (const WORD key : {'D', 'O', 'N'})
        PressKey(key);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(search) == L"don" && RowCount() == 4; }));
    EXPECT_EQ(kDonCities, Names());
    PressKey(VK_BACK);
    PressKey(VK_BACK);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(search) == L"d" && RowCount() == 5; }));
}
