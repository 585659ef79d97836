// Choosing a city: which one, by what, and the record that the host gets.
#include "tests/dialogs/city/CityFixture.h"
#include "tests/support/Wait.h"

#include <cstddef>
#include <cstring>

namespace
{

class CityAccepting : public CityFixture
{
protected:
    // Chooses a row of the whole list and confirms it.
    void Choose(int row, DWORD identifier = kNobody)
    {
        Open(identifier);
        Select(row);
        Done();
    }
};

const BYTE* BytesOf(const CITYINFO& city)
{
    return reinterpret_cast<const BYTE*>(&city);
}

} // namespace

TEST_F(CityAccepting, TheRecordHasItsDocumentedLayout)
{
    EXPECT_EQ(244u, sizeof(CITYINFO));
    EXPECT_EQ(4u, offsetof(CITYINFO, name));
    EXPECT_EQ(68u, offsetof(CITYINFO, hasDetails));
    EXPECT_EQ(72u, offsetof(CITYINFO, details));
}

TEST_F(CityAccepting, ACityWithDetailsFillsAllBytes)
{
    Choose(1);
    BYTE expected[244] = {20, 0, 0, 0, 'L', 0, 'o', 0, 'n', 0, 'd', 0, 'o', 0, 'n'};
    expected[68] = 1;
    for (int i = 0; i < 172; ++i)
        expected[72 + i] = static_cast<BYTE>(101 + i);
    EXPECT_EQ(0, std::memcmp(expected, BytesOf(city), 244));
}

TEST_F(CityAccepting, WithoutDetailsTheBytesFrom72OnStayAsTheHostPassedThem)
{
    Choose(2);
    BYTE expected[244] = {30, 0, 0, 0, 'A', 0, 'b', 0, 'i', 0, 'n', 0, 'g', 0, 'd', 0, 'o', 0, 'n'};
    std::memset(expected + 72, 0x5A, 172);
    EXPECT_EQ(0, std::memcmp(expected, BytesOf(city), 244));
}

TEST_F(CityAccepting, AnOldDetailsFlagIsCleared)
{
    Open();
    ASSERT_NE(0u, before.hasDetails);
    Select(2);
    Done();
    EXPECT_EQ(0u, city.hasDetails);
}

TEST_F(CityAccepting, ANameOfFortyCharactersIsCutToThirtyOneAndAZero)
{
    Choose(kLongNameRow);
    EXPECT_STREQ(kLongNameCut, city.name);
    EXPECT_EQ(31u, std::wcslen(city.name));
}

TEST_F(CityAccepting, ANameOfThirtyOneCharactersIsWhole)
{
    CCityImageBuilder builder = ManyCities(0);
    builder.City(kLongNameCut);
    builder.City(std::wstring(kLongNameCut) + L"f");
    folder.InstallAsFolder(builder.Build());
    Choose(0);
    EXPECT_STREQ(kLongNameCut, city.name);
    Choose(1);
    EXPECT_STREQ(kLongNameCut, city.name);
}

TEST_F(CityAccepting, AnEmptyNameIsAllZeros)
{
    CCityImageBuilder builder = ManyCities(0);
    builder.City(L"");
    folder.InstallAsFolder(builder.Build());
    Choose(0);
    for (const wchar_t unit : city.name)
        EXPECT_EQ(0, unit);
}

TEST_F(CityAccepting, TheRowIsOneOfTheResultsThatAreShown)
{
    Open();
    Type(L"croy");
    Select(0);
    Done();
    EXPECT_STREQ(L"Croydon", city.name);
}

TEST_F(CityAccepting, OfTwoCitiesWithOneIdentifierTheChosenOneIsTaken)
{
    Choose(4);
    EXPECT_EQ(20u, city.identifier);
    EXPECT_STREQ(L"Long Eaton", city.name);
}

TEST_F(CityAccepting, CancelLeavesAll244Bytes)
{
    Open(10);
    Select(1);
    Cancel();
    EXPECT_TRUE(city == before);
}

TEST_F(CityAccepting, ATapConfirmsAtOnce)
{
    Open();
    TapScreen(PlaceOf(2));
    ExpectEnd(TRUE);
    EXPECT_EQ(30u, city.identifier);
}

TEST_F(CityAccepting, ATapOnTheSecondColumnConfirmsToo)
{
    Open();
    RECT client = {};
    GetClientRect(list, &client);
    POINT place = PlaceOf(3);
    place.x += client.right * 3 / 4;
    TapScreen(place);
    ExpectEnd(TRUE);
    EXPECT_EQ(40u, city.identifier);
}

TEST_F(CityAccepting, ATapBelowTheRowsChoosesNothing)
{
    Open();
    Type(L"croy");
    POINT below = PlaceOf(0);
    const RECT row = RowRect(0);
    below.y += 2 * (row.bottom - row.top);
    TapScreen(below);
    // What comes after it finds the dialog open.
    PressKey(VK_ESCAPE);
    ExpectEnd(FALSE);
}

TEST_F(CityAccepting, AnActivationTakesTheMarkedRowWhateverItSays)
{
    Open();
    Select(3);
    NMITEMACTIVATE activate = {};
    activate.hdr = {list, kListId, static_cast<UINT>(LVN_ITEMACTIVATE)};
    activate.iItem = 1;
    SendMessageW(dialog, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&activate));
    ExpectEnd(TRUE);
    EXPECT_EQ(40u, city.identifier);
}

TEST_F(CityAccepting, AnActivationWithNothingMarkedIsCancel)
{
    Open();
    NMITEMACTIVATE activate = {};
    activate.hdr = {list, kListId, static_cast<UINT>(LVN_ITEMACTIVATE)};
    SendMessageW(dialog, WM_NOTIFY, kListId, reinterpret_cast<LPARAM>(&activate));
    ExpectEnd(FALSE);
}

// The mark is a place in the result index, which keeps all its entries: behind the results stand
// cities of earlier searches.
TEST_F(CityAccepting, AMarkBehindTheResultsTakesWhatStandsThere)
{
    Open(0);
    ASSERT_EQ(5, Mark());
    Type(L"abing");
    ASSERT_EQ(1, RowCount());
    ASSERT_EQ(5, Mark());
    Done();
    EXPECT_STREQ(L"Croydon", city.name);
}

TEST_F(CityAccepting, AMarkBehindAllCitiesIsBroken)
{
    Open();
    // The list takes no mark behind its own rows.
    ToList(LVM_SETITEMCOUNT, kSampleCount + 1);
    ToList(LVM_SETSELECTIONMARK, 0, kSampleCount);
    PostCommand(dialog, IDOK);
    ExpectThrown(kBroken);
}

TEST_F(CityAccepting, TheLastPlaceOfTheIndexIsNot)
{
    Open();
    ToList(LVM_SETSELECTIONMARK, 0, kSampleCount - 1);
    Done();
    EXPECT_EQ(50u, city.identifier);
}

TEST_F(CityAccepting, TheThirdArgumentHasNoEffect)
{
    module = std::make_unique<CModule>();
    city = before = RecordOf(30);
    run = std::make_unique<CDialogRun>([this](HWND owner)
                                       { return module->SelectCity(owner, &city, 0xFFFFFFFF); });
    dialog = run->WaitForDialog(L"Select City");
    ASSERT_NE(nullptr, dialog);
    Done();
    EXPECT_STREQ(L"Abingdon", city.name);
}

TEST_F(CityAccepting, TheRecordIsReadBeforeTheDialogOpens)
{
    Open(30);
    city.identifier = 10;
    std::memset(city.details, 0x11, sizeof(city.details));
    EXPECT_EQ(2, Mark());
    Done();
    EXPECT_EQ(30u, city.identifier);
    EXPECT_EQ(0x5A, city.details[0]);
}
