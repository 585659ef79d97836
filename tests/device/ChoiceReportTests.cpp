// What ./run --dialog says about pins, plug-ins of the Now screen and its layout.
#include <gmock/gmock.h>

#include "device/Keys.h"
#include "device/RegistryReport.h"
#include "menu/MenuKeys.h"

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

const std::wstring kPlugin = std::wstring(keys::kPlugins) + L"\\Sky";

class ChoiceReport : public testing::Test
{
protected:
    std::vector<std::wstring> Changes() const { return report::DescribeChanges(before, after); }

    // The global list: entry 1 is a menu item, entry 2 a file.
    static void StoreList(RegistrySnapshot& snapshot, uint8_t firstFlags, uint8_t secondFlags,
                          uint32_t timestamp)
    {
        RegistryValues& list = snapshot[keys::kGlobalList];
        list[L"Index"] = {3, {1, 0, 5, firstFlags, 2, 0, 4, secondFlags}};
        list[L"1"] = TextValue(std::wstring(L"m:") + kMenuRootPath + L"\\Games");
        list[L"2"] = TextValue(L"l:\\Windows\\Start Menu\\Notes.lnk");
        list[L"Timestamp"] = NumberValue(timestamp);
    }

    void StorePlugin(RegistrySnapshot& snapshot) const
    {
        snapshot[kPlugin][L"Text"] = TextValue(L"Sky Watch");
    }

    RegistrySnapshot before;
    RegistrySnapshot after;
};

} // namespace

TEST_F(ChoiceReport, PinsAreToldByTheNamesOfTheirEntries)
{
    before[std::wstring(kMenuRootPath) + L"\\Games"][L"Text"] = TextValue(L"Fun and Games");
    after = before;
    StoreList(before, 0x80, 0, 7);
    StoreList(after, 0, 0x80, 9);
    EXPECT_THAT(Changes(),
                ElementsAre(L"\"Notes\" is pinned to the home screen now "
                            L"(l:\\Windows\\Start Menu\\Notes.lnk)",
                            L"\"Fun and Games\" is no longer pinned to the home screen (m:" +
                                std::wstring(kMenuRootPath) + L"\\Games)",
                            L"pinned entries: 1; saves of GlobalMRUList: 2 (Timestamp = 9)"));
}

TEST_F(ChoiceReport, AMenuItemWithoutATextIsCalledLikeItsKey)
{
    StoreList(before, 0, 0, 1);
    StoreList(after, 0x80, 0, 2);
    EXPECT_EQ(0u, Changes().front().find(L"\"Games\" is pinned"));
}

TEST_F(ChoiceReport, AListThatAppearsIsToldByItsPins)
{
    StoreList(after, 0x80, 0, 1);
    ASSERT_EQ(2u, Changes().size());
    EXPECT_EQ(0u, Changes().front().find(L"\"Games\" is pinned"));
}

TEST_F(ChoiceReport, AListThatIsGoneHasNoPins)
{
    StoreList(before, 0x80, 0, 1);
    ASSERT_EQ(2u, Changes().size());
    EXPECT_EQ(0u, Changes().front().find(L"\"Games\" is no longer pinned"));
    EXPECT_EQ(L"pinned entries: 0", Changes().back()) << "nobody has saved it";
}

TEST_F(ChoiceReport, SavesAreCountedRoundTheEndOfTheirNumbers)
{
    StoreList(before, 0, 0x80, 0xFFFFFFFF);
    StoreList(after, 0x80, 0x80, 0);
    EXPECT_EQ(L"pinned entries: 2; saves of GlobalMRUList: 1 (Timestamp = 0)", Changes().back());
}

TEST_F(ChoiceReport, AnIndexOfOddLengthIsReadWithoutHarm)
{
    StoreList(before, 0x80, 0, 1);
    after = before;
    after[keys::kGlobalList][L"Index"].Data.resize(3);
    EXPECT_EQ(0u, Changes().front().find(L"\"Games\" is no longer pinned"));
}

TEST_F(ChoiceReport, APluginIsSwitchedOnAndOff)
{
    StorePlugin(before);
    StorePlugin(after);
    after[kPlugin][L"Inactive"] = NumberValue(0);
    EXPECT_THAT(Changes(), ElementsAre(L"plug-in \"Sky Watch\" is used on the Now screen now "
                                       L"(Inactive = 0)"));
    std::swap(before, after);
    after[kPlugin][L"Inactive"] = NumberValue(1);
    EXPECT_THAT(Changes(), ElementsAre(L"plug-in \"Sky Watch\" is no longer used on the Now screen "
                                       L"(Inactive = 1)"));
}

TEST_F(ChoiceReport, AFlagThatChangesNothingIsOnlyStored)
{
    StorePlugin(before);
    StorePlugin(after);
    after[kPlugin][L"Inactive"] = NumberValue(1);
    EXPECT_THAT(Changes(), ElementsAre(L"plug-in \"Sky Watch\" stays as it was (Inactive = 1)"));
}

TEST_F(ChoiceReport, ADeletedRegistrationIsToldByItsTextOrItsKey)
{
    StorePlugin(before);
    before[std::wstring(keys::kPlugins) + L"\\Zero"][L"Kind"] = NumberValue(9);
    EXPECT_THAT(
        Changes(),
        ElementsAre(L"the malformed plug-in registration \"Sky Watch\" was deleted (key Sky)",
                    L"the malformed plug-in registration \"Zero\" was deleted (key Zero)"));
}

TEST_F(ChoiceReport, AKeyInsideARegistrationIsNoRegistration)
{
    StorePlugin(before);
    before[kPlugin + L"\\Inner"][L"Inactive"] = NumberValue(1);
    EXPECT_THAT(
        Changes(),
        ElementsAre(L"the malformed plug-in registration \"Sky Watch\" was deleted (key Sky)",
                    L"key " + kPlugin + L"\\Inner was deleted"));
}

TEST_F(ChoiceReport, ASoundRegistrationThatIsGoneIsNotCalledMalformed)
{
    StorePlugin(before);
    before[kPlugin][L"Kind"] = NumberValue(2);
    EXPECT_THAT(Changes(),
                ElementsAre(L"the plug-in registration \"Sky Watch\" was deleted (key Sky)"));
}

TEST_F(ChoiceReport, TheLayoutIsToldByItsName)
{
    before[keys::kNowLayout];
    after[keys::kNowLayout][L"Type"] = TextValue(L"Detailed");
    EXPECT_THAT(Changes(), ElementsAre(L"the Now screen's layout changed from Classic to "
                                       L"Professional (Type = \"Detailed\")"));
    std::swap(before, after);
    after[keys::kNowLayout][L"Type"] = TextValue(L"Simple");
    EXPECT_THAT(Changes(), ElementsAre(L"the Now screen's layout changed from Professional to "
                                       L"Classic (Type = \"Simple\")"));
}

TEST_F(ChoiceReport, ALayoutInWrongCapitalsCountsAsClassic)
{
    before[keys::kNowLayout];
    after[keys::kNowLayout][L"Type"] = TextValue(L"detailed");
    EXPECT_THAT(Changes(), ElementsAre(L"the Now screen keeps its layout Classic "
                                       L"(Type = \"detailed\")"));
}

TEST_F(ChoiceReport, TheSameChoicesSayNothing)
{
    StoreList(before, 0x80, 0, 1);
    StorePlugin(before);
    after = before;
    EXPECT_THAT(Changes(), IsEmpty());
}
