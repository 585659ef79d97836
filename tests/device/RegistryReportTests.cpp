// What ./run --dialog says about changes of the registry.
#include "device/RegistryReport.h"

#include <gmock/gmock.h>

#include "menu/MenuKeys.h"
#include "tests/support/RegistrySandbox.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const std::wstring kProduct = kMenuRootPath;
const std::wstring kShared = kSharedRootPath;
const std::wstring kMirror = kCustomizeRootPath;

class RegistryReport : public testing::Test
{
protected:
    void SetUp() override
    {
        m_before[kProduct + L"\\Games"][L"Text"] = TextValue(L"Games");
        m_before[kProduct + L"\\Games"][L"Index"] = NumberValue(3);
        m_before[kProduct + L"\\Games"][L"RtFlags"] = NumberValue(6);
        m_before[kShared + L"\\Ruler"][L"Text"] = TextValue(L"Ruler");
        m_before[kMirror][L"LastKey"] = NumberValue(4);
        m_before[kMirror + L"\\User 4"][L"User"] = NumberValue(1);
        m_before[kMirror + L"\\User 4"][L"Text"] = TextValue(L"Mine");
        m_before[kMirror + L"\\User 4"][L"Index"] = NumberValue(5);
        m_after = m_before;
    }

    std::vector<std::wstring> Changes() const { return report::DescribeChanges(m_before, m_after); }

    RegistryValues& Games() { return m_after[kMirror + L"\\Games"]; }
    RegistryValues& Mine() { return m_after[kMirror + L"\\User 4"]; }

    RegistrySnapshot m_before;
    RegistrySnapshot m_after;
};

} // namespace

TEST_F(RegistryReport, NothingChangedSaysNothing)
{
    EXPECT_THAT(Changes(), IsEmpty());
}

TEST_F(RegistryReport, AnItemSwitchedOffIsHidden)
{
    Games()[L"Inactive"] = NumberValue(1);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Games\" is now hidden (Inactive = 1)"));
}

TEST_F(RegistryReport, AnItemSwitchedOnIsShownAgain)
{
    m_before[kMirror + L"\\Games"][L"Inactive"] = NumberValue(1);
    Games()[L"Inactive"] = NumberValue(0);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Games\" is shown again (Inactive = 0)"));
}

TEST_F(RegistryReport, AMoveNamesBothPlacesCountedFromOne)
{
    Games()[L"Index"] = NumberValue(2);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Games\" moved from place 4 to 3 (Index = 2)"));
}

TEST_F(RegistryReport, AMoveOfAMovedItemStartsFromItsCustomisedPlace)
{
    Mine()[L"Index"] = NumberValue(6);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Mine\" moved from place 6 to 7 (Index = 6)"));
}

TEST_F(RegistryReport, AnItemWithoutAPositionBeforeWasUnplaced)
{
    m_after[kMirror + L"\\Ruler"][L"Index"] = NumberValue(7);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Ruler\", unplaced before, has place 8 now (Index = 7)"));
}

TEST_F(RegistryReport, APositionWrittenAsItWasIsNoMove)
{
    Games()[L"Index"] = NumberValue(3);
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Games\" keeps place 4, which is stored now (Index = 3)"));
}

TEST_F(RegistryReport, ANewMenuAndANewLinkAreTold)
{
    m_after[kMirror][L"LastKey"] = NumberValue(6);
    RegistryValues& menu = m_after[kMirror + L"\\Games\\User 5"];
    menu[L"User"] = NumberValue(1);
    menu[L"Text"] = TextValue(L"Puzzles");
    RegistryValues& link = m_after[kMirror + L"\\User 6"];
    link[L"User"] = NumberValue(1);
    link[L"Text"] = TextValue(L"Notes");
    link[L"File"] = TextValue(L"\\a.lnk");
    m_after[kMirror + L"\\Games"];
    EXPECT_THAT(Changes(),
                ElementsAre(L"the next new key will be User 7 (LastKey = 6)",
                            L"key " + kMirror + L"\\Games was created",
                            L"new menu \"Puzzles\" in \"Games\" (key User 5)",
                            L"new link \"Notes\" in the menu itself to \\a.lnk (key User 6)"));
}

TEST_F(RegistryReport, ARemovedUserItemIsTold)
{
    m_after.erase(kMirror + L"\\User 4");
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Mine\" was removed from the menu itself (key User 4 deleted)"));
}

TEST_F(RegistryReport, ARenamedItemHasBothNames)
{
    Mine()[L"Text"] = TextValue(L"Ours");
    EXPECT_THAT(Changes(), ElementsAre(L"\"Mine\" was renamed to \"Ours\""));
}

TEST_F(RegistryReport, IconsComeAndGo)
{
    Mine()[L"Image"] = NumberValue(105);
    EXPECT_THAT(Changes(), ElementsAre(L"\"Mine\" has another icon now (Image = 105)"));
    std::swap(m_before, m_after);
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Mine\" has no icon of its own any more (Image deleted)"));
}

TEST_F(RegistryReport, MenuOptionsAreToldInTheirOwnWords)
{
    Games()[L"DrawType"] = TextValue(L"Grid");
    Games()[L"RtFlags"] = NumberValue(5);
    Games()[L"Rating"] = TextValue(L"User 5");
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Games\" is laid out as a grid now (DrawType = Grid)",
                            L"\"Games\" has a usage list of its own now (Rating = User 5)",
                            L"\"Games\" no longer shows most used items first and is optimized for "
                            L"hardware navigation now (RtFlags = 5)"));
}

TEST_F(RegistryReport, FlagsThatChangeNothingAreOnlyStored)
{
    Games()[L"RtFlags"] = NumberValue(6);
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Games\" has its display options stored now (RtFlags = 6)"));
}

TEST_F(RegistryReport, OtherValuesAreToldWithKeyBeforeAndAfter)
{
    const std::wstring list = std::wstring(kRatingsRootPath) + L"\\GlobalMRUList";
    m_before[list][L"Timestamp"] = NumberValue(7);
    m_before[list][L"0"] = TextValue(L"l:\\a");
    m_after[list][L"Timestamp"] = NumberValue(8);
    m_after[list][L"Layout"] = RegistryValue{3, {0x1F, 0x00, 0xA2}};
    EXPECT_THAT(Changes(), ElementsAre(L"key " + list + L", value \"0\": was \"l:\\a\", now absent",
                                       L"key " + list +
                                           L", value \"Layout\": was absent, now 3 bytes: 1F 00 A2",
                                       L"key " + list + L", value \"Timestamp\": was 7, now 8"));
}

TEST_F(RegistryReport, KeysThatComeAndGoElsewhereAreTold)
{
    const std::wstring ratings = kRatingsRootPath;
    m_before[ratings + L"\\Gone"][L"0"] = TextValue(L"x");
    m_after[ratings + L"\\New"];
    EXPECT_THAT(Changes(), ElementsAre(L"key " + ratings + L"\\Gone was deleted",
                                       L"key " + ratings + L"\\New was created"));
}

TEST_F(RegistryReport, LongValuesAreCutAfterSixteenBytes)
{
    const std::wstring words = report::ValueInWords({3, std::vector<uint8_t>(20, 0xAB)});
    EXPECT_EQ(0u, words.find(L"20 bytes: AB AB"));
    EXPECT_EQ(L" ...", words.substr(words.size() - 4));
}

TEST(RegistrySnapshotTest, TheCopyHoldsEveryValueAndKey)
{
    CRegistrySandbox hive;
    hive.SetDword(L"\\SOFTWARE\\A", L"Number", 7);
    hive.SetText(L"\\SOFTWARE\\A\\B", L"", L"default");
    hive.SetRaw(L"\\SOFTWARE\\A\\B", L"Bytes", REG_BINARY, "\x01\x02", 2);
    RegistrySnapshot snapshot;
    AddToSnapshot(L"\\SOFTWARE\\A", snapshot);
    ASSERT_EQ(2u, snapshot.size());
    EXPECT_EQ(7u, NumberOf(FindValue(snapshot, L"\\software\\a", L"NUMBER"), 0));
    EXPECT_EQ(L"default", TextOf(FindValue(snapshot, L"\\SOFTWARE\\A\\B", L"")));
    EXPECT_EQ(2u, FindValue(snapshot, L"\\SOFTWARE\\A\\B", L"Bytes")->Data.size());
    EXPECT_EQ(nullptr, FindValue(snapshot, L"\\SOFTWARE\\A", L"Missing"));
}

TEST(RegistrySnapshotTest, OddValuesAreReadWithoutHarm)
{
    const RegistryValue halfText{REG_SZ, {'a', 0, 'b'}};
    EXPECT_EQ(L"a", TextOf(&halfText));
    const RegistryValue longNumber{REG_BINARY, std::vector<uint8_t>(8)};
    EXPECT_EQ(9u, NumberOf(&longNumber, 9));
    const RegistryValue shortNumber{REG_BINARY, {5}};
    EXPECT_EQ(5u, NumberOf(&shortNumber, 9));
}
