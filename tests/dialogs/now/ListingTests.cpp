// Which plug-ins the dialog lists, in which order, and with which boxes.
#include "tests/dialogs/now/NowFixture.h"

namespace
{

class NowListing : public NowFixture
{
protected:
    // Opens the dialog and checks what it shows with at least one plug-in.
    void ExpectListed(const Labels& labels)
    {
        Open();
        EXPECT_EQ(labels, AllLabels());
        EXPECT_TRUE(IsShown(kListId));
        EXPECT_TRUE(IsShown(kExplanationId));
        EXPECT_FALSE(IsShown(kEmptyTextId));
    }
    // The same without any.
    void ExpectNothingListed()
    {
        Open();
        EXPECT_EQ(0, RowCount());
        EXPECT_FALSE(IsShown(kListId));
        EXPECT_FALSE(IsShown(kExplanationId));
        EXPECT_TRUE(IsShown(kEmptyTextId));
    }
};

// With a user's registry of the test's own beside the machine's.
class NowCheckKeys : public NowListing
{
protected:
    CRegistrySandbox user{HKEY_CURRENT_USER};
};

} // namespace

TEST_F(NowListing, EachKindHasItsSuffixDirectlyBehindTheText)
{
    registry.Add(L"A", L"First", kCalendar);
    registry.Add(L"B", L"Second", kEmail);
    registry.Add(L"C", L"Third", kWeather);
    registry.Add(L"D", L"Zero", kProfile);
    ExpectListed({L"First (calendar)", L"Second (email)", L"Third (weather)", L"Zero (profile)"});
}

TEST_F(NowListing, LabelsAreSortedWhateverTheirKeysAre)
{
    registry.Add(L"1", L"pear", kCalendar);
    registry.Add(L"2", L"Apple", kCalendar);
    registry.Add(L"3", L"zebra", kCalendar);
    registry.Add(L"4", L"banana", kCalendar);
    registry.Add(L"5", L"Quince", kCalendar);
    ExpectListed({L"Apple (calendar)", L"banana (calendar)", L"pear (calendar)",
                  L"Quince (calendar)", L"zebra (calendar)"});
}

TEST_F(NowListing, EqualTextsAreToldApartBySuffixAndSortedByIt)
{
    registry.Add(L"A", L"Sun", kWeather);
    registry.Add(L"B", L"Sun", kCalendar);
    registry.Add(L"C", L"Sun", kProfile);
    ExpectListed({L"Sun (calendar)", L"Sun (profile)", L"Sun (weather)"});
}

TEST_F(NowListing, EqualLabelsAreAllListed)
{
    registry.Add(L"A", L"Sun", kWeather, 0);
    registry.Add(L"B", L"Sun", kWeather, 1);
    registry.Add(L"C", L"Sun", kWeather, 0);
    ExpectListed({L"Sun (weather)", L"Sun (weather)", L"Sun (weather)"});
    EXPECT_EQ(2u, CheckedLabels().size());
}

TEST_F(NowListing, TheBoxShowsInactive)
{
    registry.Add(L"A", L"Used", kEmail, 0);
    registry.Add(L"B", L"Unused", kEmail, 1);
    registry.Add(L"C", L"Large", kEmail, 0xFFFFFFFF);
    registry.Add(L"D", L"Missing", kEmail);
    Open();
    EXPECT_EQ((Labels{L"Used (email)"}), CheckedLabels());
    EXPECT_EQ(1u, BoxOf(RowOf(L"Unused (email)")));
    EXPECT_EQ(1u, BoxOf(RowOf(L"Large (email)")));
    EXPECT_EQ(1u, BoxOf(RowOf(L"Missing (email)")));
}

TEST_F(NowListing, SortingKeepsEachBoxWithItsLabel)
{
    registry.Add(L"1", L"d", kEmail, 0);
    registry.Add(L"2", L"b", kEmail, 1);
    registry.Add(L"3", L"c", kEmail, 0);
    registry.Add(L"4", L"a", kEmail, 1);
    Open();
    EXPECT_EQ((Labels{L"c (email)", L"d (email)"}), CheckedLabels());
}

TEST_F(NowListing, ARowsDataIsItsKeysPlaceAndItsKind)
{
    registry.Add(L"A", L"z", kProfile);
    registry.Add(L"B", L"y", kWeather);
    registry.Add(L"C", L"x", kCalendar);
    Open();
    EXPECT_EQ(0x00030000u, DataOf(RowOf(L"z (profile)")));
    EXPECT_EQ(0x00020001u, DataOf(RowOf(L"y (weather)")));
    EXPECT_EQ(0x00000002u, DataOf(RowOf(L"x (calendar)")));
}

TEST_F(NowListing, PlacesCountListedPluginsOnly)
{
    registry.Set(L"A", L"Text", L"malformed");
    registry.Add(L"B", L"not installed", kWeather);
    registry.Set(L"B", L"CheckHKLM", L"SOFTWARE\\Missing");
    registry.Add(L"C", L"listed", kEmail);
    Open();
    ASSERT_EQ(1, RowCount());
    EXPECT_EQ(0x00010000u, DataOf(0));
}

TEST_F(NowListing, WithoutTheNowKeyTheEmptyTextIsShown)
{
    ExpectNothingListed();
    EXPECT_EQ(L"No plugins installed", TextOf(GetDlgItem(dialog, kEmptyTextId)));
    EXPECT_FALSE(registry.KeyExists(kNowKey));
}

TEST_F(NowListing, WithAnEmptyNowKeyTheEmptyTextIsShown)
{
    registry.CreateKey(kNowKey);
    ExpectNothingListed();
}

TEST_F(NowListing, WithoutAValidPluginTheEmptyTextIsShown)
{
    registry.Add(L"A", L"Fifth kind", 4);
    registry.Add(L"B", L"Not installed", kEmail);
    registry.Set(L"B", L"CheckHKLM", L"SOFTWARE\\Missing");
    ExpectNothingListed();
}

TEST_F(NowListing, TheExplanationSaysWhatABoxDoes)
{
    registry.Add(L"A", L"a", kEmail);
    Open();
    EXPECT_EQ(L"Checked items will be used on the Now Screen instead of default ones.",
              TextOf(GetDlgItem(dialog, kExplanationId)));
}

TEST_F(NowListing, TheListGetsCheckBoxesAndOneColumnWithoutText)
{
    registry.Add(L"A", L"a", kEmail);
    Open();
    EXPECT_NE(0, ToList(LVM_GETEXTENDEDLISTVIEWSTYLE) & LVS_EX_CHECKBOXES);
    wchar_t text[20] = L"unset";
    LVCOLUMNW column = {};
    column.mask = LVCF_FMT | LVCF_TEXT;
    column.pszText = text;
    column.cchTextMax = 20;
    ASSERT_TRUE(ToList(LVM_GETCOLUMNW, 0, reinterpret_cast<LPARAM>(&column)));
    EXPECT_STREQ(L"", text);
    EXPECT_EQ(LVCFMT_LEFT, column.fmt & LVCFMT_JUSTIFYMASK);
    EXPECT_FALSE(ToList(LVM_GETCOLUMNW, 1, reinterpret_cast<LPARAM>(&column)));
}

TEST_F(NowListing, NumbersCountWhateverTheirTypeIs)
{
    registry.Set(L"A", L"Text", L"short");
    registry.SetBytes(L"A", L"Kind", REG_BINARY, std::string("\x02", 1));
    registry.SetBytes(L"A", L"Inactive", REG_SZ, std::string("\0\0", 2));
    ExpectListed({L"short (weather)"});
    EXPECT_EQ(2u, BoxOf(0));
}

TEST_F(NowListing, AnInactiveThatIsNoNumberCountsAsMissing)
{
    registry.Add(L"A", L"long", kEmail);
    registry.SetBytes(L"A", L"Inactive", REG_BINARY, std::string(8, '\0'));
    ExpectListed({L"long (email)"});
    EXPECT_EQ(1u, BoxOf(0));
}

TEST_F(NowListing, TextsWithoutTerminatorOrWithZerosInsideAreCutThere)
{
    registry.Set(L"A", L"Kind", kEmail);
    registry.SetBytes(L"A", L"Text", REG_SZ, std::string("a\0b\0", 4));
    registry.Set(L"B", L"Kind", kEmail);
    registry.SetBytes(L"B", L"Text", REG_SZ, std::string("c\0\0\0d\0\0\0", 8));
    ExpectListed({L"ab (email)", L"c (email)"});
}

TEST_F(NowListing, LongTextsAndNamesAreListed)
{
    const std::wstring text(1500, L't');
    const std::wstring key(255, L'k');
    registry.Add(key, text, kProfile);
    ExpectListed({text + L" (profile)"});
    Check(text + L" (profile)", true);
    Done();
    EXPECT_EQ(0u, registry.Inactive(key));
}

TEST_F(NowListing, OpeningWritesNothing)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"B", L"Text", L"b");
    registry.Set(L"B", L"Kind", kProfile);
    registry.Set(L"B", L"CheckHKLM", L"SOFTWARE\\Missing");
    const std::wstring before = registry.Dump(L"");
    Open();
    EXPECT_EQ(before, registry.Dump(L""));
    Cancel();
    EXPECT_EQ(before, registry.Dump(L""));
}

TEST_F(NowListing, SubkeysOfARegistrationAreNoPlugins)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Add(L"A\\Inner", L"inner", kEmail);
    ExpectListed({L"a (email)"});
    EXPECT_TRUE(registry.Exists(L"A\\Inner"));
}

TEST_F(NowCheckKeys, APluginWhoseMachineKeyExistsIsListed)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"\\SOFTWARE\\Maker\\Product");
    registry.CreateKey(L"SOFTWARE\\Maker\\Product");
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, APluginWhoseMachineKeyIsMissingIsHiddenAndKept)
{
    registry.Add(L"A", L"a", kEmail, 0);
    registry.Set(L"A", L"CheckHKLM", L"\\SOFTWARE\\Maker\\Product");
    user.CreateKey(L"SOFTWARE\\Maker\\Product");
    const std::wstring before = registry.DumpNow();
    ExpectNothingListed();
    Done();
    EXPECT_EQ(before, registry.DumpNow());
}

TEST_F(NowCheckKeys, APluginWhoseUserKeyExistsIsListed)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKCU", L"\\SOFTWARE\\Maker\\Product");
    user.CreateKey(L"SOFTWARE\\Maker\\Product");
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, APluginWhoseUserKeyIsMissingIsHiddenAndKept)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKCU", L"\\SOFTWARE\\Maker\\Product");
    registry.CreateKey(L"SOFTWARE\\Maker\\Product");
    ExpectNothingListed();
    EXPECT_TRUE(registry.Exists(L"A"));
}

TEST_F(NowCheckKeys, WithBothOnlyTheMachineKeyCounts)
{
    registry.Add(L"A", L"machine", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"SOFTWARE\\Present");
    registry.Set(L"A", L"CheckHKCU", L"SOFTWARE\\Missing");
    registry.Add(L"B", L"user", kEmail);
    registry.Set(L"B", L"CheckHKLM", L"SOFTWARE\\Missing");
    registry.Set(L"B", L"CheckHKCU", L"SOFTWARE\\Present");
    registry.CreateKey(L"SOFTWARE\\Present");
    user.CreateKey(L"SOFTWARE\\Present");
    ExpectListed({L"machine (email)"});
}

TEST_F(NowCheckKeys, AnEmptyMachineKeyLetsTheUserKeyCount)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"");
    registry.Set(L"A", L"CheckHKCU", L"SOFTWARE\\Missing");
    ExpectNothingListed();
}

TEST_F(NowCheckKeys, EmptyKeysAreNoCondition)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"");
    registry.Set(L"A", L"CheckHKCU", L"");
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, AKeyThatIsNoTextIsNoCondition)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", DWORD{1});
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, AKeyWithoutALeadingBackslashIsTheSame)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"SOFTWARE\\Maker");
    registry.CreateKey(L"SOFTWARE\\Maker");
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, ABackslashIsTheRootWhichAlwaysExists)
{
    registry.Add(L"A", L"a", kEmail);
    registry.Set(L"A", L"CheckHKLM", L"\\");
    ExpectListed({L"a (email)"});
}

TEST_F(NowCheckKeys, KeysThatCanNotExistHideThePlugin)
{
    registry.Add(L"A", L"huge", kEmail);
    registry.Set(L"A", L"CheckHKLM", std::wstring(20000, L'x'));
    registry.Add(L"B", L"deep", kEmail);
    std::wstring deep;
    for (int i = 0; i < 600; ++i)
        deep += L"\\a";
    registry.Set(L"B", L"CheckHKCU", deep);
    registry.Add(L"C", L"relative", kEmail);
    registry.Set(L"C", L"CheckHKLM", L"..\\SOFTWARE");
    ExpectNothingListed();
    for (const wchar_t* plugin : {L"A", L"B", L"C"})
        EXPECT_TRUE(registry.Exists(plugin)) << plugin;
}
